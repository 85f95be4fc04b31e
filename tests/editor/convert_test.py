"""Maps on their way through the map editor and back: what is untouched stays byte for byte, and an
edit changes its own lines alone. The editor runs without a window, by editor/convert."""

import os
import pathlib
import subprocess
import tempfile
import unittest

EDITOR = pathlib.Path(__file__).resolve().parents[2] / "editor"
LEVELS = pathlib.Path(os.environ["TUMBLEDEEP_LEVELS"])

ODD = (b'\xef\xbb\xbftitle \xe9\xff \\x41\r\n\r\n  dirt 0 0\rdirt 0 0\nyou 0 0,dirt 0 360\r\n'
       b'dirt +360 0\ndirt 1e3 .5\nmovingmineP 0 360 X\nfactory 0 360 \ndirt 0 \n"title a,\r\nb" c'
       b'\ntitle \xc3\xa4\xef\xbf\xbe\t\x01\ndirt 108000 -360\nfactory 0 0 5:gem1type\n \n'
       b' "open, \ndirt 0 0')

EDITED = (b"title Old\ndirt 0 0\ndirt 0 360\nroundrock 0 720\nfactory 0360 0 5:gem1type\n"
          b"harddirt 100 200\nyou 0 720\n\nrem \xff")

# What is replaced in the editor's file, and the map that comes of it.
EDITS = (
    ("paint and wipe", [("3,3,5,", "1,0,5,")],
     EDITED.replace(b"dirt 0 0\ndirt 0 360\n", b"") + b"\nyou 0 0\n"),
    ("rocks fall together", [("3,3,5,", "3,3,0,"), (",0,\n0,", ",5,\n5,")],
     EDITED.replace(b"roundrock 0 720\n", b"") + b"\nroundrock 4680 0\n" +
     b"".join(b"roundrock %d 0\nroundrock %d 6840\n" % (row * 360, row * 360)
              for row in range(12, 0, -1)) + b"roundrock 0 6840\n"),
    ("move of all", [("3,3,5,0,", "0,3,3,5,"), ('x="48"', 'x="72"'), ('"13.3333"', '"37.3333"')],
     EDITED.replace(b"dirt 0 360\n", b"dirt 0 720\n").replace(b"dirt 0 0\n", b"dirt 0 360\n")
     .replace(b"rock 0 720", b"rock 0 1080").replace(b"you 0 720", b"you 0 1080")
     .replace(b"100 200", b"100 560")),
    ("recipe", [('value="5:gem1type"', 'value="9:bang"')],
     EDITED.replace(b"factory 0360 0 5:gem1type\n", b"") + b"\nfactory 360 0 9:bang\n"),
    ("move", [('x="13.3333" y="6.66667"', 'x="50" y="23"')],
     EDITED.replace(b"harddirt 100 200\n", b"") + b"\nharddirt 360 720\n"),
    ("a line of one's own", [('value="harddirt 100 200"', 'value="harddirt 7 8"')],
     EDITED.replace(b"harddirt 100 200\n", b"") + b"\nharddirt 7 8\n"),
    ("texts", [(">title Old<", ">title \u00c4\ndirt<")],
     EDITED.replace(b"title Old\n", b"") + b"\ntitle \xc3\x84\ndirt\n"),
)
REFUSED = (
    ('x="13.3333"', 'x="36"', "between cells"),
    ('x="48"', 'x="-24"', "outside the grid"),
    ("3,3,5,", "2147483659,3,5,", "turned"),
    ("3,3,5,", "8,3,5,", "tileset"),
    ('value="5:gem1type"', 'value="5 gem1type"', "recipe"),
    (">title Old<", '>"title<', "quote"),
)


class Convert(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.drawn, self.map = (pathlib.Path(folder.name) / name for name in ("a.tmx", "a.TBM"))

    def convert(self, source, target):
        return subprocess.run([EDITOR / "convert", source, target], capture_output=True, text=True,
                              timeout=60, check=False)

    def draw(self, content):
        self.map.write_bytes(content)
        self.assertEqual(self.convert(self.map, self.drawn).returncode, 0)
        return self.drawn.read_text(encoding="utf-8")

    def test_untouched_maps_come_back(self):
        maps = [path.read_bytes() for path in sorted(LEVELS.glob("*.TBM"))]
        self.assertTrue(maps)
        for content in [*maps, (EDITOR / "New map.TBM").read_bytes(), ODD, b""]:
            with self.subTest(content[:40]):
                self.draw(content)
                self.map.unlink()
                self.convert(self.drawn, self.map)
                self.assertEqual(self.map.read_bytes(), content)

    def test_edits(self):
        drawn = self.draw(EDITED.replace(b"\n", b"\r\n"))
        for name, changes, expected in EDITS:
            with self.subTest(name):
                text = drawn
                for old, new in changes:
                    self.assertIn(old, text)
                    text = text.replace(old, new)
                self.drawn.write_text(text, encoding="utf-8")
                self.convert(self.drawn, self.map)
                self.assertEqual(self.map.read_bytes(), expected.replace(b"\n", b"\r\n"))

    def test_new_lines_stand_before_an_open_quote(self):
        drawn = self.draw(b'dirt 0 0\n"open')
        self.drawn.write_text(drawn.replace("3,0,", "1,0,", 1), encoding="utf-8")
        self.convert(self.drawn, self.map)
        self.assertEqual(self.map.read_bytes(), b'you 0 0\n"open')

    def test_refusals_tell_why_and_write_nothing(self):
        drawn = self.draw(EDITED)
        for old, new, why in REFUSED:
            with self.subTest(why):
                self.assertIn(old, drawn)
                self.drawn.write_text(drawn.replace(old, new), encoding="utf-8")
                self.assertIn(why, self.convert(self.drawn, self.map).stderr)
                self.assertEqual(self.map.read_bytes(), EDITED)

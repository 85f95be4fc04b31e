"""The text pictures and the map in the papers are what they are said to be."""

import os
import pathlib
import re
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]


def examples(paper, sign):
    """The indented blocks of a paper that hold a line."""
    text = (ROOT / paper).read_text()
    blocks = re.findall(r"(?:^    .*\n|^\n)+", text, re.MULTILINE)
    plain = [re.sub("^    ", "", block, flags=re.MULTILINE).strip("\n") + "\n" for block in blocks]
    return [block for block in plain if sign in block.splitlines()]


class Examples(unittest.TestCase):
    def check(self, text, name="m.txt"):
        with tempfile.TemporaryDirectory() as folder:
            file = pathlib.Path(folder) / name
            file.write_text(text)
            done = subprocess.run([os.environ["TUMBLEDEEP_MAP"], "check", file],
                                  capture_output=True, text=True, check=False)
            return done.stdout.replace(str(file), name) + done.stderr

    def test_pictures(self):
        for paper, count in (("README.md", 1), ("docs/PICTURES.md", 1), ("docs/MAPS.md", 2)):
            found = examples(paper, "board")
            self.assertEqual(count, len(found), paper)
            for text in found[:1]:
                self.assertEqual("", self.check(text), paper)
        # The second one has the hole that the reader is told to mend.
        self.assertRegex(self.check(found[1]), r"^m\.txt:\d+: error: .*hole.*\n$")

    def test_map(self):
        (text,) = examples("docs/MAPS.md", "harddirt 0 0")
        kinds = set(re.findall("^[a-zA-Z1]+", text, re.MULTILINE))
        self.assertEqual(13, len(kinds), "every keyword")
        self.assertNotRegex(self.check(text, "m.TBM"), "keyword|number|heading")


class Limits(unittest.TestCase):
    def test_every_entry_names_tests_that_are_there(self):
        text = (ROOT / "docs/LIMITS.md").read_text()
        pins = re.findall(r"`(\w+/\w+\.(?:cpp|py))`(?::\s+((?:`\w+`(?:,\s+)?)+))?", text)
        self.assertGreater(len(pins), 80)
        for file, names in pins:
            code = (ROOT / "tests" / file).read_text()
            for name in re.findall(r"\w+", names):
                with self.subTest(file, name=name):
                    self.assertRegex(code, r"(TEST(_F)?\(\w+, |def )%s\b" % name)
        entries = re.split(r"^- ", text[text.index("This is no bug\n\n###"):], flags=re.M)[1:]
        for entry in entries:
            self.assertRegex(entry, r"\.(cpp|py)`", "a test pins it")


if __name__ == "__main__":
    unittest.main()

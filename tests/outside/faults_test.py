"""What the world round the game can do to it: full disks, kills, odd files and odd names.

TUMBLEDEEP_KILLS is how often the process is killed while it writes its settings.
"""

import os
import pathlib
import random
import re
import resource
import shutil
import subprocess
import tempfile
import time
import unittest

TRACE = os.environ["TUMBLEDEEP_TRACE"]
KILLS = int(os.environ.get("TUMBLEDEEP_KILLS", "40"))
MAP = "harddirt 0 0\nyou 360 360\ngem1type 720 720\n"
SETTINGS = "[Level]\nLOAD=M.TBM\n[AutoMove]\nMOVE=False\nMODE=2\n"
UNREAD = 'box 0 "An unknown error occured75" = 1'
MIB = 1 << 20


class Faults(unittest.TestCase):
    def setUp(self):
        self.dir = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.ini = self.dir / "Tumbledeep.ini"
        (self.dir / "M.TBM").write_text(MAP)
        self.ini.write_text(SETTINGS)

    def call(self, *words, script="", folder=None, before=(), **options):
        """A run of a few steps that ends well and soon; its lines."""
        run = subprocess.run(
            [*before, TRACE, "--dir", folder or self.dir, "--steps", "30", "--script", "-", *words],
            input=script.encode(), stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=30,
            check=False, **options)
        self.assertEqual((0, b""), (run.returncode, run.stderr))
        return run.stdout.decode(errors="replace").splitlines()

    def test_files_that_are_no_plain_files_are_refused_at_once(self):
        def pipe(path):
            os.mkfifo(path)

        def endless(path):
            path.symlink_to("/dev/zero")

        def huge(path):
            with open(path, "wb") as file:
                file.write(b"garbage\n")
                file.truncate(1024 * MIB)

        def small_memory():
            # The sanitizers need far more of it for themselves.
            if "-fsanitize" not in os.environ.get("TUMBLEDEEP_FLAGS", ""):
                resource.setrlimit(resource.RLIMIT_AS, (512 * MIB, 512 * MIB))

        (self.dir / "L.TBL").write_text("M\n")
        for name, argument, told in (
                ("M.TBM", [], UNREAD),
                ("L.TBL", ["L.TBL"], 'box 16 "The map list L.TBL can\'t be opened." = 1'),
                ("Tumbledeep.ini", ["M.TBM"], 'cell 1 1 "you"')):
            kept = (self.dir / name).read_bytes()
            for fault in (pipe, endless, huge):
                with self.subTest(name, fault=fault):
                    (self.dir / name).unlink()
                    fault(self.dir / name)
                    lines = self.call(*argument, preexec_fn=small_memory)
                    self.assertIn(told.replace("1 1", "2 2"), lines)
            (self.dir / name).unlink()
            (self.dir / name).write_bytes(kept)

    def test_a_nul_names_no_other_file(self):
        for name in ("M.TBM\0", "M.TBM\0.TBM"):
            self.ini.write_text(SETTINGS.replace("M.TBM", name))
            self.assertIn('open "Open"', " ".join(self.call()))

    def test_names_are_bytes(self):
        for name in (b" two  blanks ", b'a"quote', b"\xc3\xa4\xc3\xb6 \xe2\x9b\x8f", b"\xff\xfe\x80",
                     b"n" * 251):
            folder = os.path.join(os.fsencode(self.dir), name)
            os.mkdir(folder)
            for file in (b"M.TBM", name.lstrip() + b".TBM"):
                with self.subTest(file):
                    shutil.copy(self.dir / "M.TBM", os.path.join(folder, file))
                    self.assertIn('cell 2 2 "you"', self.call(file, folder=folder))
            self.assertTrue(os.path.exists(os.path.join(folder, b"Tumbledeep.ini")))

    def test_a_full_disk_keeps_the_settings(self):
        disk = self.dir / "disk"
        disk.mkdir()
        play = 'mount -t tmpfs -o size=64k none "$0" && cp "$1" "$2" "$0" && ' \
               'head -c 80000 /dev/zero >"$0/rest" 2>&-; shift 2; "$@" && cat "$0/Tumbledeep.ini"; ls "$0"'
        words = ["unshare", "-rm", "sh", "-c", play, disk, self.ini, self.dir / "M.TBM"]
        if subprocess.run(["unshare", "-rm", "mount", "-t", "tmpfs", "none", disk],
                          stderr=subprocess.DEVNULL, check=False).returncode:
            self.skipTest("this machine lets nobody mount a disk")
        lines = self.call(before=words, folder=disk, script="at 2 menu MnuMode3\n")
        self.assertIn('ini "AutoMove" "MODE" "3"', lines)
        self.assertEqual(SETTINGS.split() + ["M.TBM", "Tumbledeep.ini", "rest"], lines[-8:])

    def test_a_kill_leaves_the_old_file_or_the_new_one(self):
        note = "; " + "x" * 200_000 + "\n"
        text = note + SETTINGS.replace("MOVE=False", "MOVE=True")
        self.ini.write_text(text)
        script = self.dir / "script"
        script.write_text("".join("at %d menu MnuMode%d\n" % (n, n % 3 + 1) for n in range(1, 5000)))
        dice = random.Random(1)
        for _ in range(KILLS):
            before = self.ini.stat().st_mtime_ns
            run = subprocess.Popen([TRACE, "--dir", self.dir, "--script", script, "--steps", "5000"],
                                   stdout=subprocess.DEVNULL)
            # The first write is waited for: how long a start takes is the machine's affair.
            while self.ini.stat().st_mtime_ns == before and run.poll() is None:
                time.sleep(0.001)
            time.sleep(dice.uniform(0, 0.03))
            run.kill()
            self.assertEqual(-9, run.wait())
            self.assertIn(self.ini.read_text()[-2:], ("1\n", "2\n", "3\n"))
            self.assertTrue(self.ini.read_text().startswith(text[:-2]), "all else is as it was")
        self.call(script="at 2 menu MnuMode1\nat 3 menu MnuMode2\n")
        self.assertEqual({"M.TBM", "Tumbledeep.ini", "script"}, set(os.listdir(self.dir)))

    def test_an_hour_of_play_takes_no_more_memory_than_a_minute(self):
        rows = ["##########", "#r  t  b #", "#        #", "#        #", "#        #",
                "##########", "#@#*#l   #", "##########"]
        lines = {"#": "harddirt %d %d", "@": "you %d %d", "*": "gem1type %d %d",
                 "l": "movingmineL %d %d U", "r": "factory %d %d 1:roundrock",
                 "t": "factory %d %d 1:movingmineT", "b": "factory %d %d 1:bang"}
        (self.dir / "M.TBM").write_text("".join(
            lines[mark] % (row * 360, col * 360) + "\n" for row, text in enumerate(rows, 1)
            for col, mark in enumerate(text, 1) if mark in lines))

        def most(steps):
            """In KiB; read while it runs, as what wait tells counts this process's memory in."""
            seen = 0
            with subprocess.Popen([TRACE, "--dir", self.dir, "--quiet", "--steps", str(steps)],
                                  stdout=subprocess.PIPE) as run:
                while run.poll() is None:
                    status = pathlib.Path("/proc/%d/status" % run.pid).read_text()
                    found = re.search(r"VmHWM:\s*(\d+)", status)
                    seen = int(found[1]) if found else seen
                self.assertIn(b"\nstop %d tick" % steps, b"\n" + run.stdout.read())
            return seen
        self.assertLess(most(360_000), 1.1 * most(6_000))

    def test_a_list_that_vanishes_between_two_maps(self):
        (self.dir / "Default.TBL").write_text("M\nN\n")
        (self.dir / "Default.TBL").unlink()
        (self.dir / "M.TBM").write_text("you 360 360\n")
        lines = self.call(script="answer yes\n")
        self.assertIn('box 16 "The map list Default.TBL can\'t be opened." = 1', lines)
        self.assertIn("end", lines)


if __name__ == "__main__":
    unittest.main()

"""The commands in the papers, carried out in their order as a reader would."""

import os
import pathlib
import re
import shutil
import subprocess
import time

import screen

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROGRAMS = ("tumbledeep", "tumbledeep-map", "tumbledeep-trace")
OPENS_A_WINDOW = re.compile(r"\./play|\S*tumbledeep-map play")
# What installs and builds is the rest of the checks' work.
IS_CARRIED_OUT = re.compile(
    r"\./play [^ ]|(build/release/)?tumbledeep-\w+ [^[]|maps=|mkdir |printf ")


def blocks(paper):
    """The indented blocks of a paper, each a list of lines, those that go on put together."""
    text = (ROOT / paper).read_text().replace("\\\n", " ")
    for block in re.findall(r"(?:^    .*\n)+", text, re.MULTILINE):
        yield [line[4:] for line in block.splitlines()]


def commands(block):
    """Without what stands behind them as an explanation."""
    return [re.sub(r"(?<=\S)   +.*", "", line) for line in block
            if IS_CARRIED_OUT.match(line) and " | " not in line]


class Commands(screen.GameTest):
    def setUp(self):
        super().setUp()
        self.home = self.dir / "home"
        bin_folder = self.dir / "build/release"
        for folder in (bin_folder, self.home / "maps", self.dir / "solutions"):
            folder.mkdir(parents=True)
        for name in PROGRAMS:
            shutil.copy(screen.LEVELS / name, bin_folder)
        for file in screen.LEVELS.glob("*.TB?"):
            shutil.copy(file, bin_folder)
            shutil.copy(file, self.home / "maps")
        (self.dir / "play").symlink_to(bin_folder / "tumbledeep")
        (self.dir / "levels").symlink_to(ROOT / "levels")
        self.screen.env.update(HOME=str(self.home),
                               PATH="%s:%s" % (bin_folder, os.environ["PATH"]))

    def open_window(self, command):
        self.first = subprocess.Popen(["sh", "-c", "exec " + command], cwd=self.dir,
                                      env=self.screen.env)
        # A recording begins behind the title and the question of a first start.
        screen.wait_until("the board", lambda: self.plays() and not time.sleep(0.3) and self.plays())
        self.first.terminate()
        self.wait_for_end()

    def plays(self):
        """Whether the player is there and no dialog is; one that is open is closed."""
        if not self.screen.windows("Tumbledeep"):
            return self.spot()
        self.screen.key("Escape")
        return False

    def test_papers(self):
        for paper, least in (("README.md", 13), ("docs/MAPS.md", 10), ("docs/PICTURES.md", 2),
                             ("docs/SCRIPT.md", 2)):
            done = 0
            for block in blocks(paper):
                if "board" in block and not (self.dir / "My map.txt").exists():
                    (self.dir / "My map.txt").write_text("\n".join(block) + "\n")
                plain = [c for c in commands(block) if not OPENS_A_WINDOW.match(c)]
                for command in commands(block):
                    if OPENS_A_WINDOW.match(command):
                        with self.subTest(paper, command=command):
                            self.open_window(command)
                with self.subTest(paper, commands=plain):
                    ran = subprocess.run(["sh", "-ec", "\n".join(plain)], cwd=self.dir, text=True,
                                         env=self.screen.env, stdout=subprocess.PIPE,
                                         stderr=subprocess.STDOUT, check=False)
                    self.assertEqual(0, ran.returncode, ran.stdout)
                done += len(commands(block))
            self.assertGreaterEqual(done, least, paper)

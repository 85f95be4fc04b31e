"""A whole map played in the window, recorded, and played back in the trace and in the window."""

import re
import shutil
import subprocess
import tempfile

import screen

MAP = "First steps.TBM"


class Record(screen.GameTest):
    def last_line_of_trace(self, script):
        seed = re.search("^# seed (.*)$", script.read_text(), re.M)[1]
        with tempfile.TemporaryDirectory() as folder:
            shutil.copy(self.dir / MAP, folder)
            lines = subprocess.run(
                [screen.LEVELS / "tumbledeep-trace", "--dir", folder, "--seed", seed, "--steps",
                 "100000", "--quiet", "--script", script, MAP],
                stdout=subprocess.PIPE, check=True).stdout.decode().splitlines()
        self.assertIn('box 16 "You won" = 1', lines)
        return lines[-1]

    def test_a_recording_ends_alike_everywhere(self):
        shutil.copy(screen.LEVELS / MAP, self.dir)
        shutil.copy(self.dir / MAP, self.dir / "Second.TBM")
        (self.dir / "Default.TBL").write_text("First steps\nSecond\n")
        self.write_settings(MAP)
        script = self.dir / "run.script"
        self.start("--record", script)
        self.screen.answer("Return")
        keys = re.findall("type (.)", (screen.SOLUTIONS / "First steps.script").read_text())
        half = len(keys) // 2
        self.screen.hands("key", "--delay", "70", *keys[:half], "p", "Right", "p")
        self.screen.hands("key", "--delay", "70", *keys[half:])
        self.screen.answer("Return")
        old = self.pids()
        self.screen.key("Return")
        self.wait_for_successor(old)
        self.screen.answer("Return")
        self.screen.run("kill", *map(str, self.pids()))
        screen.wait_until("the end", lambda: not self.pids())
        second = (self.dir / "run-2.script").read_text()
        self.assertRegex(second, "(?ms)^# map Second.TBM$.*^# stop [1-9].* tick [1-9]")

        last = self.last_line_of_trace(script)
        self.assertEqual("# " + last, script.read_text().splitlines()[-1])
        settings = (self.dir / "Tumbledeep.ini").read_text()
        replay = subprocess.run(
            [screen.PROGRAM, "--dir", self.dir, "--replay", script, "--speed", "4"],
            env=self.screen.env, stdout=subprocess.PIPE, timeout=120, check=True)
        self.assertEqual(last, replay.stdout.decode().strip())
        self.assertEqual(settings, (self.dir / "Tumbledeep.ini").read_text())

    def test_what_is_wrong_is_told_in_a_line(self):
        for words, told in (
                (("--record", self.dir), "there is such a file already"),
                (("--record", "/none/x"), "can't be written"),
                (("--replay", "/none/x"), "the script can't be read"),
                (("--replay", self.dir / "mapless"), "does not say for which map"),
                (("--replay", self.dir / "mapless", "x.TBM"), "its map x.TBM can't be found"),
                (("--speed", "2"), "belongs to --replay")):
            (self.dir / "mapless").write_text("at 1 type d\n")
            done = subprocess.run([screen.PROGRAM, "--dir", self.dir, *words], env=self.screen.env,
                                  stderr=subprocess.PIPE, timeout=60, check=False)
            self.assertEqual(2, done.returncode, words)
            self.assertRegex(done.stderr.decode(), "^tumbledeep: .*%s[^\n]*\n$" % told)

"""What the world round the game can do to it while it has a window."""

import os
import shutil
import signal
import subprocess
import time

import screen

READ_ONLY = 'mount --bind "$0" "$0" && mount -o remount,ro,bind "$0" && exec "$@"'


def handles_signals(process):
    """Whether the program has come so far that it answers a signal itself."""
    with open("/proc/%d/status" % process.pid) as file:
        caught = next(line for line in file if line.startswith("SigCgt")).split()[1]
    return int(caught, 16) >> (signal.SIGTERM - 1) & 1


class Faults(screen.GameTest):
    def test_a_folder_that_cannot_be_written_is_played_like_any_other(self):
        if subprocess.run(["unshare", "-rm", "sh", "-c", READ_ONLY, self.dir, "true"],
                          stderr=subprocess.DEVNULL, check=False).returncode:
            self.skipTest("this machine lets nobody make a folder read-only")
        self.write_map("M.TBM", ["####", "#@*#", "####"])
        self.write_map("N.TBM", screen.ROOM)
        (self.dir / "Default.TBL").write_text("M\nN\n")
        self.first = subprocess.Popen(
            ["unshare", "-rm", "sh", "-c", READ_ONLY, self.dir, screen.PROGRAM, "--dir", self.dir],
            env=self.screen.env, stderr=subprocess.PIPE)
        self.screen.answer("Escape")           # the board is not to follow
        screen.wait_until("the player", self.spot)
        first = self.pids()
        self.screen.key("d")
        self.screen.answer("Return")           # won
        self.screen.open_dialog()
        self.screen.key("Return")              # the next map
        self.wait_for_successor(first)
        self.wait_for_you(1, 1)                # and no question about the board
        self.screen.key("alt+F4")
        screen.wait_until("the end", lambda: not self.pids())
        told = self.first.communicate()[1].decode().splitlines()
        self.assertEqual(1, len(told), told)
        self.assertIn("Tumbledeep.ini can't be written", told[0])
        self.assertEqual({"M.TBM", "N.TBM", "Default.TBL"}, set(os.listdir(self.dir)))

    def test_the_program_in_a_folder_of_any_name_and_moved_while_it_runs(self):
        folder = os.path.join(os.fsencode(self.dir), b"\xff\xfe \"q")
        os.mkdir(folder)
        program = os.path.join(folder, b"tumbledeep")
        shutil.copy(screen.PROGRAM, program)
        self.write_map("M.TBM", screen.ROOM)
        self.write_settings("M.TBM")
        for name in ("M.TBM", "Tumbledeep.ini"):
            shutil.move(self.dir / name, os.path.join(folder, os.fsencode(name)))
        self.first = subprocess.Popen([program], env=self.screen.env)
        self.wait_for_you(1, 1)
        self.walk("d")
        first = self.pids()
        os.rename(program, os.path.join(os.fsencode(self.dir), b"elsewhere"))
        self.screen.key("alt+f", "r")
        self.screen.open_dialog()
        self.screen.key("Return")
        self.wait_for_successor(first)
        self.wait_for_you(1, 1)

    def test_texts_and_names_of_any_length(self):
        (self.dir / "T.TBM").write_text("title " + "word " * 30_000 + "\nyou 360 360\n")
        self.write_settings("T.TBM")
        self.start()
        box = self.screen.open_dialog()
        x, y = self.screen.middle(box)
        self.assertTrue(abs(x - 640) < 100 and abs(y - 450) < 100, "all of it is on the screen")
        self.screen.answer("Return")
        self.kill_games()
        (self.dir / "Tumbledeep.ini").unlink()
        (self.dir / "L.TBL").write_text("x" * 20_000_000)
        self.start()
        first = self.screen.wait_for_focus("Open")
        # The first press closes the list of names that fit.
        self.screen.hands("type", "L.TBL")
        self.screen.hands("key", "Return", "sleep", "0.3", "key", "Return")
        screen.wait_until("the question for another map",
                          lambda: self.screen.wait_for_focus("Open") != first)

    def test_a_signal_ends_the_game_from_its_first_moment_on_and_in_a_long_load(self):
        self.write_map("M.TBM", screen.ROOM)
        (self.dir / "Long.TBM").write_text("you 360 360\n" * 5_500_000)
        self.write_settings("M.TBM")
        before = (self.dir / "Tumbledeep.ini").read_text()
        for name, wait in (("M.TBM", 0), ("M.TBM", 0.02), ("M.TBM", 0.05), ("Long.TBM", 0.8)):
            self.first = subprocess.Popen([screen.PROGRAM, "--dir", self.dir, name],
                                          env=self.screen.env)
            screen.wait_until("its signals", lambda: handles_signals(self.first))
            time.sleep(wait)
            self.first.terminate()
            self.assertEqual(0, self.first.wait(timeout=5))
        self.assertEqual(before.replace("M.TBM", "Long.TBM"),
                         (self.dir / "Tumbledeep.ini").read_text())

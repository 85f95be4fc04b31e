"""The window as a citizen of the desktop: menus, the next process, signals, the command line."""

import os
import pathlib
import signal
import subprocess
import time
import unittest

import screen

ROOM = ["##########",
        "#@       #",
        "#       *#",
        "##########"]


class Shell(screen.GameTest):
    def setUp(self):
        super().setUp()
        self.write_map("M.TBM", ROOM)
        self.write_settings("M.TBM")

    def call(self, *words, **changes):
        env = {k: v for k, v in dict(self.screen.env, **changes).items() if v is not None}
        return subprocess.run([str(screen.PROGRAM), *words], env=env, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, timeout=10, check=False)

    def test_restart_by_access_letters_asks_and_starts_a_new_process(self):
        self.start("--scale", "1")
        self.wait_for_you((1, 1))
        self.screen.key("d")
        self.wait_for_you((2, 1))
        first = self.pids()
        self.screen.key("alt+f")
        time.sleep(0.2)
        self.screen.key("r")
        self.screen.answer("Escape")          # no
        self.assertEqual(first, self.pids())
        self.screen.key("alt+f")
        time.sleep(0.2)
        self.screen.key("r")
        self.screen.answer("Return")
        second = self.wait_for_successor(first)
        self.wait_for_you((1, 1))
        words = pathlib.Path("/proc/%d/cmdline" % second[0]).read_text().split("\0")
        self.assertIn("--scale", words)
        state = self.screen.run("xprop", "-id", self.screen.windows("Tumble Deep.*")[0],
                                "_NET_WM_STATE")
        self.assertIn("MAXIMIZED_VERT", state)
        self.screen.key("d")                  # it has the keyboard
        self.wait_for_you((2, 1))

    def test_a_window_is_on_the_screen_throughout_a_restart(self):
        window = self.start()
        self.wait_for_you((1, 1))
        first = self.pids()
        spot = self.screen.middle(window)
        self.screen.key("alt+f")
        time.sleep(0.2)
        self.screen.key("r")
        self.screen.open_dialog()
        self.screen.run("xdotool", "key", "Return")
        seen = set()

        def done():
            end = time.monotonic() + 0.05
            while time.monotonic() < end:
                seen.add(self.screen.pixels.at(*spot))
            return self.pids() and self.pids() != first and len(self.pids()) == 1
        screen.wait_until("the next process", done)
        self.assertNotIn(screen.DESKTOP, seen)

    def test_settings_menu_by_mouse(self):
        window = self.start()
        self.wait_for_you((1, 1))
        self.screen.key("alt+s")
        time.sleep(0.2)
        self.screen.key("Return")              # start with last played map
        screen.wait_until("the setting", lambda: self.setting("STARTMAP") == "False")
        self.screen.run("xdotool", "mousemove", "--window", window, "60", "10", "click", "1")
        time.sleep(0.2)
        self.screen.key("Up", "Right", "Down", "Return")   # AutoMove, Mode1
        screen.wait_until("the mode", lambda: self.setting("MODE") == "1")
        self.assertEqual("True", self.setting("MOVE"))

    def test_ends_cleanly_when_asked(self):
        for ask in ("close", signal.SIGTERM):
            self.start()
            self.wait_for_you((1, 1))
            if ask == "close":
                self.screen.key("alt+F4")
            else:
                os.kill(self.first.pid, ask)
            self.wait_for_end()
            self.assertEqual(0, self.first.returncode)

    def test_signal_in_a_dialog_answers_nothing(self):
        (self.dir / "Tumbledeep.ini").write_text("[Level]\nLOAD=M.TBM\n")
        self.start()
        self.screen.open_dialog()
        os.kill(self.first.pid, signal.SIGTERM)
        self.wait_for_end()
        self.assertEqual(0, self.first.returncode)
        self.assertIsNone(self.setting("MOVE"))

    def test_names_on_the_command_line(self):
        elsewhere = self.dir / "elsewhere"
        elsewhere.mkdir()
        (self.dir / "M.TBM").rename(elsewhere / "N.TBM")
        here = os.getcwd()
        self.addCleanup(os.chdir, here)
        os.chdir(elsewhere)
        self.start("N.TBM")
        self.wait_for_you((1, 1))
        self.assertEqual("N.TBM", self.setting("LOAD"))

    def test_calls_that_need_no_window(self):
        self.assertIn(b"--scale", self.call("--help", DISPLAY=None).stdout)
        self.assertRegex(self.call("--version").stdout, rb"^tumbledeep \d")
        for words, status in ((["--colour"], 2), (["--scale", "0"], 2), (["--dir", "/no/dir"], 2)):
            result = self.call(*words)
            self.assertEqual((status, 1), (result.returncode, result.stderr.count(b"\n")), words)
        for display in (None, ":9999"):
            result = self.call(DISPLAY=display, QT_QPA_PLATFORM=None)
            self.assertEqual((1, 1), (result.returncode, result.stderr.count(b"\n")))


if __name__ == "__main__":
    unittest.main()

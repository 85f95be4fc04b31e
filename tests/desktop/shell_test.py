"""The window as a citizen of the desktop: its menu, the next process, the command line."""

import pathlib
import subprocess
import time

import screen


class Shell(screen.GameTest):
    def call(self, *words, **changes):
        env = {k: v for k, v in dict(self.screen.env, **changes).items() if v is not None}
        return subprocess.run([screen.PROGRAM, *words], env=env, capture_output=True, timeout=60,
                              check=False)

    def test_restart_asks_and_a_window_is_on_the_screen_throughout(self):
        window = self.begin(screen.ROOM, "--scale", "1")
        self.walk("d")
        first, spot, seen = self.pids(), self.screen.middle(window), set()
        self.screen.key("alt+f", "r")
        self.screen.answer("Escape")          # no
        self.assertEqual(first, self.pids())
        self.screen.key("alt+f", "r")
        self.screen.open_dialog()
        self.screen.key("Return")

        def is_alone():
            end = time.monotonic() + 0.05
            while time.monotonic() < end:
                seen.add(self.screen.pixels.at(*spot))
            return len(self.pids()) == 1 and self.pids() != first
        screen.wait_until("the next process", is_alone)
        self.assertNotIn(screen.DESKTOP, seen)
        second = self.wait_for_successor(first)
        self.wait_for_you(1, 1)
        words = pathlib.Path("/proc/%d/cmdline" % second).read_text().split("\0")
        self.assertIn("--scale", words)
        window = self.screen.windows("Tumble Deep.*")[0]
        self.assertIn("MAXIMIZED_VERT", self.screen.run("xprop", "-id", window, "_NET_WM_STATE"))
        self.walk("d")                        # it has the keyboard

    def test_names_on_the_command_line(self):
        elsewhere = self.dir / "elsewhere"
        elsewhere.mkdir()
        self.write_map("elsewhere/N.TBM", screen.ROOM)
        self.write_settings("M.TBM")
        self.start("N.TBM", cwd=elsewhere)
        self.wait_for_you(1, 1)
        self.assertEqual("N.TBM", self.setting("LOAD"))

    def test_calls_that_need_no_window(self):
        self.assertIn(b"--scale", self.call("--help", DISPLAY=None).stdout)
        self.assertRegex(self.call("--version").stdout, rb"^tumbledeep \d")
        no_screen = {"QT_QPA_PLATFORM": None, "DISPLAY": None}
        for words, changes, status in ((["--colour"], {}, 2), (["--scale", "0"], {}, 2),
                                       (["--dir", "/no/dir"], {}, 2), ([], no_screen, 1),
                                       ([], dict(no_screen, DISPLAY=":9999"), 1)):
            result = self.call(*words, **changes)
            self.assertEqual((status, 1), (result.returncode, result.stderr.count(b"\n")), words)

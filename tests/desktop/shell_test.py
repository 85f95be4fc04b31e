"""The window as a citizen of the desktop: its menu, the next process, the command line."""

import subprocess
import time

import screen


class Shell(screen.GameTest):
    def test_restart_asks_and_a_window_is_on_the_screen_throughout(self):
        window = self.begin(screen.ROOM, "--scale", "1")
        self.screen.key("alt+f", "Escape")    # and the board has the keyboard again
        self.walk("d")
        first, spot, seen = self.pids(), self.screen.middle(window), set()
        self.screen.key("alt+f", "r")
        self.screen.answer("Escape")          # no
        self.assertEqual(first, self.pids())
        self.screen.key("alt+f", "r")
        self.screen.wait_for_focus("Tumbledeep")
        self.screen.key("Return")

        def look():
            end = time.monotonic() + 0.05
            while time.monotonic() < end:
                seen.add(self.screen.pixels.at(*spot))
        self.wait_for_successor(first, look)
        self.assertNotIn(screen.DESKTOP, seen)
        self.wait_for_you(1, 1)
        self.assertIn("--scale 1", self.screen.run("pgrep", "-fa", str(self.dir)))
        window = self.screen.windows("Tumble Deep.*")[0]
        self.assertIn("MAXIMIZED_VERT", self.screen.run("xprop", "-id", window, "_NET_WM_STATE"))
        self.walk("d")                        # it has the keyboard

    def test_names_on_the_command_line(self):
        elsewhere = self.dir / "elsewhere"
        elsewhere.mkdir()
        self.write_map("elsewhere/N.tbm", screen.ROOM)
        self.write_settings("M.TBM")
        self.start("N.tbm", cwd=elsewhere)
        self.wait_for_you(1, 1)
        self.assertEqual("N.TBM", self.setting("LOAD"))
        # The next process does not find it, and asks with that very map chosen.
        self.screen.key("alt+f", "r")
        self.screen.answer("Return")
        self.screen.wait_for_focus("Open")
        self.screen.key("Return")
        self.wait_for_you(1, 1)

    def test_calls_that_need_no_window(self):
        bare = ["env", "-u", "QT_QPA_PLATFORM", "-u", "DISPLAY"]
        for before, words, status, out in (
                (bare, ["--help"], 0, "--scale"), ([], ["--version"], 0, r"^tumbledeep \d"),
                ([], ["--colour"], 2, "^$"), ([], ["--scale", "0"], 2, "^$"),
                ([], ["--dir", "/no/dir"], 2, "^$"), (bare, [], 1, "^$"),
                ([*bare, "DISPLAY=:9999"], [], 1, "^$")):
            result = subprocess.run([*before, screen.PROGRAM, *words], env=self.screen.env,
                                    capture_output=True, text=True, timeout=60, check=False)
            self.assertEqual((status, status > 0),
                             (result.returncode, result.stderr.count("\n")), words)
            self.assertRegex(result.stdout, out)

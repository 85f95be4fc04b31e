"""Keys that outlast their name, their window or a signal, and the press that brings the game back."""

import os
import signal
import subprocess
import time
import unittest

import screen

# Longer than any test walks. The view goes along, and the dirt shows that it does.
CORRIDOR = ["#" * 300,
            "#@" + " " * 297 + "#",
            "#" + ": :::  " * 42 + "   *#",
            "#" * 300]


class HeldKeys(screen.GameTest):
    def setUp(self):
        super().setUp()
        self.write_map("M.TBM", CORRIDOR)
        self.write_settings("M.TBM", "True", 1)
        # Without the server's repeat nothing but the game itself can know that a key is still held.
        self.screen.run("xset", "r", "off")
        self.start()
        self.wait_for_you((1, 1))

    def hold(self, key):
        self.screen.run("xdotool", "keydown", key)

    def release(self, key):
        self.screen.run("xdotool", "keyup", key)

    def moves(self):
        before = self.screen.shot().data
        time.sleep(0.2)
        return self.screen.shot().data != before

    def assert_walks(self):
        time.sleep(0.4)
        screen.wait_until("steps", self.moves)

    def assert_stands(self):
        time.sleep(0.4)
        self.assertFalse(self.moves())

    def assert_ends_when_asked(self):
        os.kill(self.first.pid, signal.SIGTERM)
        self.wait_for_end()
        self.assertEqual(0, self.first.returncode)

    def test_a_key_of_the_number_pad_goes_up_under_another_name(self):
        self.hold("KP_Right")
        self.assert_walks()
        self.screen.key("Num_Lock")
        self.release("KP_Right")
        self.assert_stands()
        self.screen.key("alt+f")
        self.assert_ends_when_asked()

    def test_a_held_arrow_counts_again_after_a_menu_and_a_box(self):
        self.hold("Right")
        self.assert_walks()
        self.screen.key("alt+f")
        self.assert_stands()
        self.screen.key("Escape", "Escape")  # the menu, then the bar
        self.assert_walks()
        for still_held in (True, False):
            self.screen.key("alt+f", "r")
            self.screen.open_dialog()
            if not still_held:
                self.release("Right")
            self.screen.answer("Escape")
            self.assert_walks() if still_held else self.assert_stands()
        self.hold("Right")
        self.assert_walks()
        self.assert_ends_when_asked()

    def test_the_press_that_brings_the_game_back_is_no_press_on_the_board(self):
        left, top = self.board()
        spot, beside = (str(left + 200), str(top + 34)), (str(left + 260), str(top + 34))
        other = subprocess.Popen(["xev", "-geometry", "150x100+1100+750"], env=self.screen.env,
                                 stdout=subprocess.DEVNULL)
        self.addCleanup(other.wait)
        self.addCleanup(other.kill)
        screen.wait_until("another program's focus", lambda: self.screen.focused("Event Tester"))
        time.sleep(0.6)  # the toolkit waits for the focus to come back to a window of its own
        self.screen.run("xdotool", "mousemove", *spot, "mousedown", "1")
        self.screen.wait_for_focus()
        self.screen.run("xdotool", "mousemove", *beside, "mouseup", "1")
        time.sleep(0.3)
        self.assertEqual((left, top), self.board(), "no drag follows")
        self.hold("Right")
        self.assert_walks()
        self.release("Right")
        self.screen.run("xdotool", "mousemove", *spot, "click", "1")
        self.hold("Right")
        self.assert_stands()


if __name__ == "__main__":
    unittest.main()

"""Arrows that outlast their name, a menu or a box, as only a real keyboard shows them."""

import os
import signal
import time
import unittest

import screen

# Longer than any test walks. The view goes along, and the dirt shows that it does.
CORRIDOR = ["#" * 300,
            "#@" + " " * 297 + "#",
            "#" + ": :::  " * 42 + "   *#",
            "#" * 300]


class HeldKeys(screen.GameTest):
    def moves(self):
        before = self.screen.pixels.shot().data
        time.sleep(0.2)
        return self.screen.pixels.shot().data != before

    def assert_walks(self):
        time.sleep(0.4)
        screen.wait_until("steps", self.moves)

    def assert_stands(self):
        time.sleep(0.4)
        self.assertFalse(self.moves())

    def test_an_arrow_is_held_for_as_long_as_its_key_is_down(self):
        self.begin(CORRIDOR, mode=1)
        self.screen.hands("keydown", "KP_Right")
        self.assert_walks()
        self.screen.key("Num_Lock")
        self.screen.hands("keyup", "KP_Right")
        self.assert_stands()
        self.screen.hands("keydown", "Right")
        for still_held in (True, False):
            self.assert_walks()
            self.screen.key("alt+f", "r")
            self.screen.open_dialog()
            if not still_held:
                self.screen.hands("keyup", "Right")
            self.screen.answer("Escape")
        self.assert_stands()
        self.screen.hands("keydown", "Right")
        self.assert_walks()
        # A held key used to call into a window that was half gone, which the sanitizers see.
        os.kill(self.first.pid, signal.SIGTERM)
        self.wait_for_end()


if __name__ == "__main__":
    unittest.main()

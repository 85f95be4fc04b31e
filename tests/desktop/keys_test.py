"""The two roads of the keys, and the pauses."""

import time
import unittest

import screen

CORRIDOR = ["####################",
            "#@                 #",
            "#                  #",
            "#                 *#",
            "####################"]


class Keys(screen.GameTest):
    def setUp(self):
        super().setUp()
        self.write_map("M.TBM", CORRIDOR)
        self.write_settings("M.TBM")
        # Without the server's repeat, only the game's own polling can move a held key on.
        self.screen.run("xset", "r", "off")
        self.start()
        self.wait_for_you((1, 1))

    def test_letters_step_once_and_arrows_while_they_are_held(self):
        self.screen.run("xdotool", "keydown", "d")
        self.wait_for_you((2, 1))
        time.sleep(0.5)
        self.assertEqual((2, 1), self.you())
        self.screen.run("xdotool", "keyup", "d")

        self.screen.run("xdotool", "keydown", "Right")
        screen.wait_until("several steps", lambda: self.you()[0] >= 8)
        self.screen.run("xdotool", "keyup", "Right")
        time.sleep(0.3)
        stopped = self.you()
        time.sleep(0.3)
        self.assertEqual(stopped, self.you())

    def test_p_and_a_click_pause(self):
        def held_right():
            self.screen.run("xdotool", "keydown", "Right")
            time.sleep(0.4)
            self.screen.run("xdotool", "keyup", "Right")

        self.screen.key("p")
        time.sleep(0.1)
        held_right()
        self.screen.key("d")
        time.sleep(0.2)
        self.assertEqual((1, 1), self.you(), "after p neither arrows nor letters step")
        self.screen.key("p")
        time.sleep(0.2)
        self.screen.key("d")
        self.wait_for_you((2, 1))

        left, top = self.board()
        self.screen.run("xdotool", "mousemove", str(left + 10 * screen.CELL),
                        str(top + 2 * screen.CELL), "click", "1")
        time.sleep(0.1)
        held_right()
        self.assertEqual((2, 1), self.you(), "after a click arrows do not step")
        self.screen.key("d")
        self.wait_for_you((3, 1))
        self.screen.key("d")
        time.sleep(0.2)
        self.assertEqual((3, 1), self.you(), "one typed step is left after a click")
        self.screen.run("xdotool", "click", "1")
        time.sleep(0.1)
        self.screen.key("d")
        self.wait_for_you((4, 1))

        gem = (left + int(18.5 * screen.CELL), top + int(3.5 * screen.CELL))
        self.screen.run("xdotool", "mousemove", str(gem[0]), str(gem[1]), "click", "1")
        time.sleep(0.1)
        held_right()
        screen.wait_until("steps after a press on a picture", lambda: self.you()[0] > 4)


if __name__ == "__main__":
    unittest.main()

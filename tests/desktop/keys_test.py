"""The two roads of the keys, and the pauses."""

import time

import screen

CORRIDOR = ["#" * 38, "#@" + " " * 35 + "#", "#" + " " * 36 + "#",
            "#" + " " * 17 + "*" + " " * 18 + "#", "#" * 38]
HELD_RIGHT = ("keydown", "Right", "sleep", "0.4", "keyup", "Right")


class Keys(screen.GameTest):
    def setUp(self):
        super().setUp()
        # Without the server's repeat, only the game's own polling can move a held key on.
        self.screen.run("xset", "r", "off")
        self.begin(CORRIDOR)

    def click(self, col, row):
        x, y = self.board()
        self.screen.hands("mousemove", str(int(x + col * screen.CELL)),
                          str(int(y + row * screen.CELL)), "click", "1")

    def test_letters_step_once_and_arrows_while_they_are_held(self):
        self.screen.hands("keydown", "d")
        self.wait_for_you(2, 1)
        time.sleep(0.5)
        self.assertEqual((2, 1), self.you())
        self.screen.hands("keyup", "d", "keydown", "Right")
        screen.wait_until("several steps", lambda: self.you()[0] >= 6)
        self.screen.hands("keyup", "Right")
        time.sleep(0.5)
        stopped = self.you()
        self.assertLess(stopped[0], 36, "before the wall")
        time.sleep(0.3)
        self.assertEqual(stopped, self.you())

    def test_p_and_a_click_pause(self):
        self.screen.key("p")
        self.screen.hands(*HELD_RIGHT, "key", "d")
        self.assertEqual((1, 1), self.you(), "after p neither arrows nor letters step")
        self.screen.key("p", "d")
        self.wait_for_you(2, 1)

        self.click(10, 2)
        self.screen.hands(*HELD_RIGHT)
        self.assertEqual((2, 1), self.you(), "after a click arrows do not step")
        self.screen.key("d")
        self.wait_for_you(3, 1)
        self.screen.key("d")
        time.sleep(0.2)
        self.assertEqual((3, 1), self.you(), "one typed step is left after a click")
        self.click(10, 2)
        self.screen.key("d")
        self.wait_for_you(4, 1)

        self.click(18.5, 3.5)
        self.screen.hands(*HELD_RIGHT)
        screen.wait_until("steps after a press on a picture", lambda: self.you()[0] > 4)

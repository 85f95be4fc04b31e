"""The two roads of the keys, the pauses, the drag, and the view that glides after the player."""

import time

import screen

CORRIDOR = ["#" * 38, "#@" + " " * 35 + "#", "#" + " " * 36 + "#",
            "#" + " " * 17 + "*" + " " * 18 + "#", "#" * 38]
SIZE = 301
FLOOR = "#" + " " * (SIZE - 2) + "#"
HELD_RIGHT = ("keydown", "Right", "sleep", "0.4", "keyup", "Right")


class Play(screen.GameTest):
    def click(self, col, row):
        x, y = self.board()
        self.screen.hands("mousemove", str(int(x + col * screen.CELL)),
                          str(int(y + row * screen.CELL)), "click", "1")

    def test_a_press_is_one_step_and_letters_and_arrows_go_on_while_they_are_held(self):
        self.begin(CORRIDOR)
        self.screen.key("d")
        time.sleep(0.5)
        self.assertEqual((2, 1), self.you(), "a press")
        for key in ("d", "Right"):
            start = self.you()[0]
            self.screen.hands("keydown", key)
            screen.wait_until("several steps", lambda: self.you()[0] >= start + 5)
            self.screen.hands("keyup", key)
            time.sleep(0.3)
            stopped = self.you()
            self.assertLess(stopped[0], 36, "before the wall")
            time.sleep(0.3)
            self.assertEqual(stopped, self.you())

    def test_boxes_keep_clear_of_the_player_and_take_no_key_of_play(self):
        self.begin(["#####", "#O  #", "#:  #", "#@ *#", "#####"])
        first = self.pids()
        self.screen.hands("key", "--delay", "50", "w", "s")
        died = self.screen.open_dialog()
        self.assertTrue(self.spot(), "the player and what has killed him can be seen")
        self.screen.answer("Return")
        again = self.screen.open_dialog()
        self.assertNotEqual(died, again)
        self.screen.key("Right", "d", "n", "y")
        time.sleep(0.3)
        self.assertIn(again, self.screen.windows("Tumbledeep"))
        self.screen.key("Return")
        self.wait_for_successor(first)        # Yes: the arrow has not moved the choice

    def test_p_and_a_click_pause(self):
        self.begin(CORRIDOR)
        self.screen.key("p")
        self.screen.hands(*HELD_RIGHT, "key", "d")
        self.assertEqual((1, 1), self.you(), "after p neither arrows nor letters step")
        wall = self.board()
        self.assertEqual(screen.DIMMED[screen.WALL], self.screen.pixels.at(*wall), "it is seen")
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

    def test_a_drag_moves_the_board_and_stops_the_clock(self):
        self.begin(screen.ROOM)
        left, top = self.board()
        x, y = left + 5 * screen.CELL, top + 2 * screen.CELL
        self.screen.hands("mousemove", str(x), str(y), "mousedown", "1",
                          *["mousemove_relative", "12", "6", "sleep", "0.05"] * 5, "mouseup", "1")
        screen.wait_until("the board to follow", lambda: self.board() == (left + 60, top + 30))
        self.screen.hands(*HELD_RIGHT)
        self.assertEqual((1, 1), self.you(), "the press has stopped the clock")

    def test_the_glide_keeps_who_runs_near_the_middle(self):
        rows = ["#" * SIZE, *[FLOOR] * (SIZE - 2), "#" * SIZE]
        # In the board's middle; the wall above tells how far the player has come.
        for row, text in ((145, "######"), (150, "@"), (299, "*")):
            rows[row] = FLOOR[:150] + text + FLOOR[150 + len(text):]
        window = self.begin(rows, mode=2)
        self.screen.hands("keydown", "Right")
        screen.wait_until("a run", lambda: (self.you() or (0,))[0] >= 12)
        self.screen.hands("keyup", "Right")
        screen.wait_until("the view to follow", lambda: abs(
            self.spot()[0] - self.screen.middle(window)[0]) < 3 * screen.CELL)

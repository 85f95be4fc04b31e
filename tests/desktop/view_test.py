"""The following view's glide over a board as large as boards get, and the drag."""

import screen

SIZE = 301
FLOOR = "#" + " " * (SIZE - 2) + "#"


class View(screen.GameTest):
    def test_the_glide_keeps_who_runs_near_the_middle(self):
        rows = ["#" * SIZE, *[FLOOR] * (SIZE - 2), "#" * SIZE]
        # In the board's middle; the wall above tells how far the player has come.
        for row, text in ((145, "######"), (150, "@"), (299, "*")):
            rows[row] = FLOOR[:150] + text + FLOOR[150 + len(text):]
        window = self.begin(rows, mode=2)
        self.screen.hands("keydown", "Right")
        screen.wait_until("a run", lambda: (self.you() or (0,))[0] >= 12)
        self.screen.hands("keyup", "Right")
        middle = self.screen.middle(window)[0]
        screen.wait_until("the view to follow", lambda: abs(
            self.screen.shot().find(screen.YOU)[0] - middle) < 3 * screen.CELL)

    def test_a_drag_moves_the_board_and_stops_the_clock(self):
        self.begin(screen.ROOM)
        left, top = self.board()
        x, y = left + 5 * screen.CELL, top + 2 * screen.CELL
        self.screen.hands("mousemove", str(x), str(y), "mousedown", "1")
        for step in range(1, 6):
            self.screen.hands("mousemove", str(x + 12 * step), str(y + 6 * step))
        self.screen.hands("mouseup", "1")
        screen.wait_until("the board to follow", lambda: self.board() == (left + 60, top + 30))
        self.screen.hands("keydown", "Right", "sleep", "0.3", "keyup", "Right")
        self.assertEqual((1, 1), self.you(), "the press has stopped the clock")

"""The three modes of the following view, the drag, and a board as large as boards get."""

import time
import unittest

import screen

SIZE = 301


def big_map(cols, rows, you):
    """Walls round an open field with a line of dirt and a gem far away."""
    lines = ["you %d %d" % (you[1] * 360, you[0] * 360)]
    for col in range(cols):
        lines += ["harddirt 0 %d" % (col * 360), "harddirt %d %d" % ((rows - 1) * 360, col * 360)]
    for row in range(1, rows - 1):
        lines += ["harddirt %d 0" % (row * 360), "harddirt %d %d" % (row * 360, (cols - 1) * 360)]
    lines.append("gem1type %d %d" % ((rows - 2) * 360, (cols - 2) * 360))
    return "\n".join(lines) + "\n"


class View(screen.GameTest):
    def begin(self, mode, cols=80, rows=60, you=(5, 5)):
        (self.dir / "M.TBM").write_text(big_map(cols, rows, you))
        self.write_settings("M.TBM", "True", mode)
        self.window = self.start()
        screen.wait_until("the player", lambda: self.screen.shot().find(screen.YOU))
        self.shot = self.screen.shot()

    def walk_right(self, seconds):
        self.screen.run("xdotool", "keydown", "Right")
        time.sleep(seconds)
        self.screen.run("xdotool", "keyup", "Right")
        time.sleep(0.2)

    def spot(self):
        return self.screen.shot().find(screen.YOU)

    def test_mode_1_shifts_with_the_walk(self):
        self.begin(1)
        self.walk_right(1.5)
        before = self.spot()
        self.walk_right(0.6)
        self.assertLess(abs(self.spot()[0] - before[0]), 3 * screen.CELL)

    def test_mode_2_glides_and_comes_to_rest_near_the_middle(self):
        self.begin(2, SIZE, SIZE, (150, 150))
        self.walk_right(1.0)
        time.sleep(0.7)
        x = self.spot()[0]
        self.assertLess(abs(x - self.screen.middle(self.window)[0]), 4 * screen.CELL)

    def test_mode_3_flips_by_a_page(self):
        self.begin(3)
        left = self.spot()[0]
        self.screen.run("xdotool", "keydown", "Right")
        seen = [left]
        def flipped():
            seen.append(self.spot()[0])
            return seen[-1] < seen[-2] - 10 * screen.CELL
        screen.wait_until("a flip", flipped)
        self.screen.run("xdotool", "keyup", "Right")

    def test_off_and_a_drag(self):
        self.write_map("M.TBM", ["####################", "#@                 #",
                                 "#                  #", "#                 *#",
                                 "####################"])
        self.write_settings("M.TBM", "False", 2)
        self.start()
        self.wait_for_you((1, 1))
        left, top = self.board()
        x, y = left + 10 * screen.CELL, top + 2 * screen.CELL
        self.screen.run("xdotool", "mousemove", str(x), str(y), "mousedown", "1")
        for step in range(1, 6):
            self.screen.run("xdotool", "mousemove", str(x + 12 * step), str(y + 6 * step))
        self.screen.run("xdotool", "mouseup", "1")
        screen.wait_until("the board to follow", lambda: self.board() == (left + 60, top + 30))
        self.screen.run("xdotool", "keydown", "Right")
        time.sleep(0.3)
        self.screen.run("xdotool", "keyup", "Right")
        self.assertEqual((1, 1), self.you(), "the press has stopped the clock")


if __name__ == "__main__":
    unittest.main()

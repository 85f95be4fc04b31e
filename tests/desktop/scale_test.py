"""Screens of other densities: pixels stay square and sharp, and no seam opens between cells."""

import unittest

import screen

ROOM = ["##########",
        "#@       #",
        "#:::::::*#",
        "##########"]


class Scale(screen.GameTest):
    def check(self, factor, pixel, *words):
        """At that scale factor a pixel of the game covers `pixel` device pixels a side."""
        self.write_map("M.TBM", ROOM)
        self.write_settings("M.TBM")
        self.start(*words, QT_SCALE_FACTOR=str(factor))
        screen.wait_until("the player", lambda: self.screen.shot().find(screen.YOU))
        shot = self.screen.still_shot()
        width = 10 * screen.CELL * pixel + pixel
        wall = bytes(screen.WALL) * width
        at = shot.data.find(wall)
        self.assertGreater(at, 0, "the top wall is one black line without a seam")
        x, y = at // 3 % shot.width, at // 3 // shot.width
        self.assertNotEqual(screen.WALL, shot.at(x - 1, y))
        self.assertNotEqual(screen.WALL, shot.at(x + width, y))
        # Dirt: one even colour, from the pixel behind the wall to the one before the gem.
        middle = y + int(2.5 * screen.CELL * pixel)
        row = shot.row(middle, x + (screen.CELL + 1) * pixel, x + 8 * screen.CELL * pixel)
        self.assertEqual({screen.DIRT}, set(row))
        # Every device pixel of a block is the same, in the player's outline too.
        for row in range(y, y + 4 * screen.CELL * pixel, pixel):
            lines = {bytes(shot.data[3 * (r * shot.width + x):3 * (r * shot.width + x + width)])
                     for r in range(row, row + pixel)}
            self.assertEqual(1, len(lines), "rows %d" % row)
        line = shot.row(y + int(1.5 * screen.CELL * pixel), x, x + width)
        for i in range(0, width, pixel):
            self.assertEqual(1, len(set(line[i:i + pixel])), "column %d" % i)
        self.kill_games()

    def test_the_screen_s_own_scales(self):
        for factor, pixel in ((1, 1), (1.25, 1), (1.5, 2), (2, 2), (3, 3)):
            with self.subTest(factor=factor):
                self.check(factor, pixel)

    def test_a_scale_of_the_player_s_choice(self):
        self.check(1.5, 3, "--scale", "3")


if __name__ == "__main__":
    unittest.main()

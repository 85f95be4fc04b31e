"""Screens of other densities: pixels stay square and sharp, and no seam opens between cells."""

import screen


class Scale(screen.GameTest):
    def check(self, pixel):
        """A pixel of the game covers `pixel` device pixels a side."""
        cell, width = screen.CELL * pixel, (10 * screen.CELL + 1) * pixel
        # The top wall is one black line without a seam.
        x, y = screen.wait_until("the board", lambda: self.board(length=width))
        shot = self.screen.pixels.shot()
        for beyond in (x - 1, x + width):
            self.assertNotEqual(bytes(screen.WALL), shot.row(y, beyond, beyond + 1))
        # Dirt: one even colour, from the pixel behind the wall to the one before the gem.
        self.assertEqual(bytes(screen.DIRT) * (7 * cell - pixel),
                         shot.row(y + 5 * cell // 2, x + cell + pixel, x + 8 * cell))
        # Every device pixel of a block is the same, in the player's outline too.
        for row in range(y, y + 4 * cell, pixel):
            line = shot.row(row, x, x + width)
            square = b"".join(line[i:i + 3] * pixel for i in range(0, len(line), 3 * pixel))
            for below in range(pixel):
                self.assertEqual(square, shot.row(row + below, x, x + width))

    def test_the_screen_s_own_scales_and_one_of_the_player_s_choice(self):
        for factor, pixel, *words in ((1, 1), (1.25, 1), (1.5, 2), (2, 2), (3, 3),
                                      (1.5, 3, "--scale", "3")):
            with self.subTest(factor=factor, pixel=pixel):
                self.begin(screen.ROOM, *words, QT_SCALE_FACTOR=str(factor))
                self.check(pixel)
                self.kill_games()

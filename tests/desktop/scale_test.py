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

    def test_the_player_s_own_choice_and_the_full_screen_go_on_with_the_next_process(self):
        self.begin(screen.ROOM)
        self.screen.key("ctrl+plus")
        self.check(2)
        first = self.pids()
        self.screen.key("F11", "alt+f", "r")
        self.screen.answer("Return")
        self.wait_for_successor(first)
        self.check(2)
        self.assertIn("--scale 2 --full-screen", self.screen.run("pgrep", "-fa", str(self.dir)))


class LargeScreen(screen.GameTest):
    screen_size = "2560x1440"

    def test_a_large_screen_is_used(self):
        self.begin(screen.ROOM)
        screen.wait_until("a pixel of two by two", lambda: self.board(length=20 * screen.CELL + 2))

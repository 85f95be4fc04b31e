"""Dying, and what the player is asked."""

import time
import unittest

import screen

UNDER_A_ROCK = ["#######",
                "#  O  #",
                "#  :  #",
                "#     #",
                "#@   *#",
                "#######"]
RUNNER = ["############",
          "#   @     *#",
          "############"]


class Ends(screen.GameTest):
    def die_under_the_rock(self):
        """Digs the dirt away under the rock, steps down twice and waits."""
        for key in ["d", "d", "w", "w", "s", "s"]:
            self.screen.key(key)
            time.sleep(0.02)

    def test_a_rock_kills_and_yes_starts_the_map_again(self):
        self.write_map("M.TBM", UNDER_A_ROCK)
        self.write_settings("M.TBM")
        self.start()
        self.wait_for_you((1, 4))
        first = self.pids()
        self.die_under_the_rock()
        self.screen.answer("Return")      # You died
        self.screen.answer("Return")      # play again? Yes
        self.wait_for_successor(first)
        self.wait_for_you((1, 4))

    def test_after_a_rock_there_are_two_boxes(self):
        self.write_map("M.TBM", UNDER_A_ROCK)
        self.write_settings("M.TBM")
        self.start()
        self.wait_for_you((1, 4))
        self.die_under_the_rock()
        self.screen.answer("Return")
        self.assertTrue(self.pids())
        self.screen.answer("Escape")
        self.wait_for_end()
        self.assertEqual(0, self.first.returncode)

    def test_a_runner_to_the_right_shows_the_question_alone(self):
        self.write_map("M.TBM", RUNNER, "movingmineFL 360 360 R\n")
        self.write_settings("M.TBM")
        self.start()
        self.screen.answer("Escape")
        self.wait_for_end()
        self.assertEqual("M.TBM", self.setting("LOAD"))


if __name__ == "__main__":
    unittest.main()

"""Dying, and what the player is asked; closing, by hand or by a signal, which answers nothing."""

import signal

import screen

UNDER_A_ROCK = ["#######",
                "#  O  #",
                "#  :  #",
                "#@   *#",
                "#######"]


class Ends(screen.GameTest):
    def test_a_rock_kills_and_yes_starts_the_map_again_and_no_ends(self):
        self.begin(UNDER_A_ROCK)
        first = self.pids()
        for answer in ("Return", "Escape"):
            self.wait_for_you(1, 3)
            self.walk("ddw")
            self.screen.key("s")              # away from under the rock
            self.screen.answer("Return")      # You died
            self.screen.answer(answer)        # play again?
            if answer == "Return":
                self.wait_for_successor(first)
        self.wait_for_end()

    def test_closing_and_signals_end_the_game_and_answer_nothing(self):
        self.begin(screen.ROOM)
        self.screen.key("alt+F4")
        self.wait_for_end()
        for title, settings in (("Tumble Deep.*", "[AutoMove]\nMOVE=False\n"), ("Tumbledeep", "")):
            (self.dir / "Tumbledeep.ini").write_text("[Level]\nLOAD=M.TBM\n" + settings)
            self.start()
            self.screen.wait_for_focus(title)
            self.first.send_signal(signal.SIGTERM)
            self.wait_for_end()
        self.assertIsNone(self.setting("MOVE"))

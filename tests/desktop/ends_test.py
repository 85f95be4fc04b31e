"""Dying, and what the player is asked; closing, by hand or by a signal, which answers nothing."""

import signal

import screen

UNDER_A_ROCK = ["#######",
                "#  O  #",
                "#  :  #",
                "#     #",
                "#@   *#",
                "#######"]


class Ends(screen.GameTest):
    def test_a_rock_kills_and_yes_starts_the_map_again_and_no_ends(self):
        self.begin(UNDER_A_ROCK)
        first = self.pids()
        for answer in ("Return", "Escape"):
            self.wait_for_you(1, 4)
            self.walk("ddww")
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
        for settings in ("[AutoMove]\nMOVE=False\n", ""):
            (self.dir / "Tumbledeep.ini").write_text("[Level]\nLOAD=M.TBM\n" + settings)
            self.start()
            if not settings:
                self.screen.open_dialog()     # move automatically?
            self.first.send_signal(signal.SIGTERM)
            self.wait_for_end()
        self.assertIsNone(self.setting("MOVE"))

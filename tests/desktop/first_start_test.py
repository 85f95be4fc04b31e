"""The very first start: the shipped list plays at once, and a won map leads to the next."""

import shutil

import screen


class FirstStart(screen.GameTest):
    def test_plays_the_first_map_to_its_win_and_goes_on(self):
        for file in [*screen.LEVELS.glob("*.TBM"), screen.LEVELS / "Default.TBL"]:
            shutil.copy(file, self.dir)
        maps = (self.dir / "Default.TBL").read_text().splitlines()
        self.start()
        first = self.pids()
        self.screen.answer("Return")          # the map's title
        self.screen.answer("Return")          # move automatically? Yes
        self.screen.answer("2", "Return")     # gradual centre
        self.assertEqual(["True", "2", "Default"],
                         [self.setting(key) for key in ("MOVE", "MODE", "MAPLIST")])
        solution = (screen.SOLUTIONS / (maps[0] + ".script")).read_text()
        keys = [line.split()[3] for line in solution.splitlines() if line.startswith("at ")]
        self.screen.hands("key", "--delay", "100", *keys)
        self.screen.answer("Return")          # You won
        self.screen.answer("Return")          # the next level? Yes
        self.wait_for_successor(first)
        self.assertEqual(maps[1] + ".TBM", self.setting("LOAD"))
        self.screen.answer("Return")          # its title
        screen.wait_until("the second map's board", self.spot)

    def test_a_settings_file_that_is_there_is_left_as_it_is(self):
        ini = self.dir / "Tumbledeep.ini"
        ini.write_text("; mine\n[Other]\nKEY=1\n")
        self.start()
        self.screen.wait_for_focus("Open")
        self.assertEqual("; mine\n[Other]\nKEY=1\n", ini.read_text())

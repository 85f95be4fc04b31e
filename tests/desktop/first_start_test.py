"""The very first start: the shipped list plays at once, and a won map leads to the next."""

import re
import shutil
import time
import unittest

import screen


def keys_of_solution(name):
    """The letters that the map's own solution types, in order."""
    text = (screen.LEVELS / "solutions" / (name + ".txt")).read_text()
    return re.findall(r"^at \d+ type (\w)$", text, re.M)


class FirstStart(screen.GameTest):
    def setUp(self):
        super().setUp()
        for file in [*screen.LEVELS.glob("*.TBM"), screen.LEVELS / "Default.TBL"]:
            shutil.copy(file, self.dir)
        self.maps = (self.dir / "Default.TBL").read_text().splitlines()

    def test_plays_the_first_map_to_its_win_and_goes_on(self):
        self.start()
        first = self.pids()
        self.screen.answer("Return")          # the map's title
        self.screen.answer("Return")          # move automatically? Yes
        self.screen.answer("2", "Return")     # gradual centre
        self.assertEqual(["True", "2"], [self.setting("MOVE"), self.setting("MODE")])
        self.assertEqual("Default", self.setting("MAPLIST"))

        keys = keys_of_solution(self.maps[0])
        self.assertGreater(len(keys), 20)
        for key in keys:
            self.screen.key(key)
            time.sleep(0.05)
        self.screen.answer("Return")          # You won
        self.screen.answer("Return")          # the next level? Yes
        self.wait_for_successor(first)
        self.assertEqual(self.maps[1] + ".TBM", self.setting("LOAD"))
        if re.search("^title .", (self.dir / (self.maps[1] + ".TBM")).read_text(), re.M):
            self.screen.answer("Return")
        screen.wait_until("the second map's board", lambda: self.screen.shot().find(screen.YOU))

    def test_a_settings_file_that_is_there_is_left_as_it_is(self):
        ini = self.dir / "Tumbledeep.ini"
        ini.write_text("; mine\n[Other]\nKEY=1\n")
        self.start()
        screen.wait_until("the open dialog", lambda: self.screen.windows("Open"))
        self.assertEqual("; mine\n[Other]\nKEY=1\n", ini.read_text())


if __name__ == "__main__":
    unittest.main()

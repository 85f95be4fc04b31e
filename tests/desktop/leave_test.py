"""Every way out, in every state: the process ends with status 0, and the settings stay whole."""

import screen

GEM_AHEAD = ["####", "#@*#", "####"]
SHUT_IN = ["####", "#@##", "#*##", "####"]


class Leave(screen.GameTest):
    def playing(self):
        self.begin(screen.ROOM)

    def idle(self):
        self.start()
        self.screen.key("Escape")
        self.screen.wait_for_focus("Tumble Deep")

    def paused(self):
        self.begin(screen.ROOM)
        self.screen.key("p")

    def menu(self):
        self.begin(screen.ROOM)
        self.screen.key("alt+f")

    def dragging(self):
        self.begin(screen.ROOM)
        x, y = self.board()
        self.screen.hands("mousemove", str(x + 100), str(y + 50), "mousedown", "1",
                          "mousemove_relative", "20", "20")

    def title(self):
        (self.dir / "M.TBM").write_text("title words\nyou 360 360\n")
        self.write_settings("M.TBM")
        self.start()
        self.screen.open_dialog()

    def won(self):
        self.begin(GEM_AHEAD)
        self.screen.key("d")
        self.screen.open_dialog()

    def next_level(self):
        self.won()
        self.screen.answer("Return")
        self.screen.open_dialog()

    def died(self):
        self.write_map("M.TBM", SHUT_IN)
        with open(self.dir / "M.TBM", "a") as file:
            file.write("movingmineL 360 720 U\n")
        self.write_settings("M.TBM")
        self.start()
        self.screen.open_dialog()

    def again(self):
        self.died()
        self.screen.answer("Return")
        self.screen.open_dialog()

    def first_question(self):
        self.write_map("M.TBM", screen.ROOM)
        self.write_settings("M.TBM", move="")
        self.start()
        self.screen.open_dialog()

    def mode(self):
        self.first_question()
        self.screen.answer("Return")
        self.screen.open_dialog()

    def open_dialog(self):
        self.start()
        self.screen.wait_for_focus("Open")

    def restart(self):
        self.begin(screen.ROOM)
        self.screen.key("alt+f", "r")
        self.screen.open_dialog()

    def states(self):
        return (self.idle, self.playing, self.paused, self.menu, self.dragging, self.title,
                self.won, self.next_level, self.died, self.again, self.first_question, self.mode,
                self.open_dialog, self.restart)

    def reach(self, state):
        """Comes to that state from an empty folder."""
        for file in self.dir.iterdir():
            file.unlink()
        state()

    def leave(self, state, way):
        with self.subTest(state.__name__, way=way):
            self.reach(state)
            settings = self.dir / "Tumbledeep.ini"
            before = settings.exists() and settings.read_bytes()
            if way == "close":
                self.screen.close_window(self.screen.windows("Tumble Deep.*")[0])
            else:
                self.screen.run("kill", "-" + way, str(self.pids()[0]))
            screen.wait_until("the end", lambda: not self.pids(), 5)
            self.assertEqual(0, self.first.wait())
            self.assertEqual(before, settings.exists() and settings.read_bytes())
            self.screen.run("xdotool", "mouseup", "1")

    def test_a_signal(self):
        for state in self.states():
            self.leave(state, "TERM")
        self.leave(self.playing, "INT")
        self.leave(self.mode, "HUP")

    def test_closing_the_window(self):
        for state in self.states():
            self.leave(state, "close")

    def test_closing_a_dialog_is_an_answer(self):
        board, box = "Tumble Deep.*", "Tumbledeep"
        for state, then, *setting in (
                (self.title, board), (self.won, box), (self.next_level, None), (self.died, box),
                (self.again, None), (self.first_question, board, "MOVE", "False"),
                (self.mode, board, "MODE", "2"), (self.open_dialog, board), (self.restart, board)):
            with self.subTest(state.__name__):
                self.reach(state)
                first, dialog = self.pids(), self.screen.wait_for_focus("(Tumbledeep|Open)")
                self.screen.close_window(dialog)
                if then:
                    screen.wait_until("what follows", lambda: self.screen.wait_for_focus() in
                                      set(self.screen.windows(then)) - {dialog})
                    self.assertEqual(first, self.pids())
                else:
                    self.wait_for_end()
                if setting:
                    self.assertEqual(setting[1], self.setting(setting[0]))
                self.kill_games()

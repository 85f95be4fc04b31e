"""A player who does not know what to do: thousands of acts at random, then one who does.

TUMBLEDEEP_EVENTS and TUMBLEDEEP_RELAUNCHES are how many acts and new starts in a row.
"""

import ctypes
import os
import pathlib
import random
import re
import subprocess
import tempfile
import time

import screen

EVENTS = int(os.environ.get("TUMBLEDEEP_EVENTS", "400"))
RELAUNCHES = int(os.environ.get("TUMBLEDEEP_RELAUNCHES", "12"))
BATCH = 10
PLAY = ["w", "a", "s", "d", "p", "Up", "Down", "Left", "Right"]
OTHER = ["Return", "Escape", "Tab", "space", "alt+f", "alt+s", "ctrl+c", "F10", "F1", "Home", "End",
         "BackSpace", "1", "3", "minus", "F11", "ctrl+plus", "ctrl+minus",
         "Caps_Lock", "Num_Lock", "shift+Tab", "adiaeresis"]
MENUS = [("alt+f", "l"), ("alt+f", "b"), ("alt+f", "m"), ("alt+f", "r"), ("alt+s", "s"),
         ("alt+s", "Down", "Right", "Return")]
SETTINGS = "[Level]\nLOAD=M.TBM\n[AutoMove]\nMOVE=True\nMODE=2\n"
# In turn for each start by hand: at once, with an open dialog, with the questions of a first start.
STARTS = [SETTINGS, "[Level]\nSTARTMAP=False\n[AutoMove]\nMOVE=True\nMODE=1\n",
          "[Level]\nLOAD=N.TBM\n"]
AT_HOME = SETTINGS.replace("M.TBM", "HOME")
BUSY = ["#" * 20, "#@ ::::::*:::: O: :#", "# ::O:O:*::::O::::*#", "#::::*:::O::::*: ::#", "#" * 20]
MINES = "movingmineL 360 6120 U\nmovingmineP 1080 5760 U\nfactory 360 5040 2:movingmineT\n"
EASY = ["######", "#@* O#", "#    #", "#:::*#", "######"]


class Abuse(screen.GameTest):
    def setUp(self):
        super().setUp()
        # Who loses its parent, as a successor does, becomes a child of this process.
        set_child_subreaper = 36
        ctypes.CDLL(None).prctl(set_child_subreaper, 1, 0, 0, 0)
        self.told = self.enterContext(tempfile.TemporaryFile())
        self.ends = 0

    def bury(self):
        """How the game's processes have ended, each of them once."""
        while dead := os.waitid(os.P_ALL, 0, os.WEXITED | os.WNOHANG | os.WNOWAIT):
            name = pathlib.Path("/proc/%d/comm" % dead.si_pid).read_text().strip()
            os.waitpid(dead.si_pid, 0)
            if dead.si_pid == self.first.pid:
                self.first.returncode = dead.si_status
            if name == screen.PROGRAM.name:
                yield dead

    def kill_games(self):
        super().kill_games()
        list(self.bury())

    def check_ends(self):
        """No process of the game's has ended but with status 0, and none has said a word."""
        for dead in self.bury():
            self.assertEqual((os.CLD_EXITED, 0), (dead.si_code, dead.si_status))
            self.ends += 1
        self.told.seek(0)
        self.assertEqual(b"", self.told.read())

    def look(self, dice, window):
        """What a player does who looks at the screen now and then: plays, and answers."""
        files, boxes = self.screen.windows("Open"), self.screen.windows("Tumbledeep")
        words = ["windowactivate", [window, *files, *boxes][-1]]
        if dice.random() < 0.3:
            words = ["windowfocus", dice.choice([window, self.other])]
        elif files and not boxes:
            words += dice.choice([["key", "Escape", "Escape"], ["type", "M.TBM\n\n"]])
        elif boxes:
            words += ["key", dice.choice(["Return", "Return", "Escape", "3"])]
        return words if files else words + self.rough_act(dice)

    def rough_act(self, dice):
        """The words for one that would move or delete files if it met a dialog that shows some."""
        place = [str(dice.randrange(1280)), str(dice.randrange(900))]
        return dice.choice([
            ["key", "Delete"], ["mousemove", *place, "click", "3"],
            ["mousemove", *place, "mousedown", "1", "mousemove_relative", "--",
             str(dice.randrange(-90, 90)), str(dice.randrange(-90, 90)), "mouseup", "1"]])

    def act(self, dice, window):
        """The words of xdotool for one act."""
        place = [str(dice.randrange(1280)), str(dice.randrange(900))]
        return dice.choice([
            ["key", dice.choice(PLAY)], ["key", dice.choice(PLAY)], ["key", dice.choice(OTHER)],
            ["key", dice.choice(["Escape", "Return"])],
            ["keydown", dice.choice(PLAY)], ["keyup", dice.choice(PLAY)],
            ["key", *dice.choice(MENUS)],
            ["mousemove", *place, "click", dice.choice("111245")],
            ["windowsize", window, str(dice.randrange(20, 1400)), str(dice.randrange(20, 1000))],
            ["windowmove", window, *place],
            ["mousemove", place[0], "8", "click", "--repeat", "2", "1"],
            ["windowfocus", dice.choice([window, self.other])],
            ["sleep", "0.0%d" % dice.randrange(1, 9)]])

    def run_game(self, settings=SETTINGS):
        (self.dir / "Tumbledeep.ini").write_text(settings)
        self.first = subprocess.Popen([screen.PROGRAM, "--dir", self.dir], env=self.screen.env,
                                      stderr=self.told)
        return screen.wait_until("a window", lambda: self.of(self.pids()))

    def of(self, pids):
        """The game's own window, of the process that came last."""
        for pid in sorted(pids, reverse=True):
            found = self.screen.run("xdotool", "search", "--onlyvisible", "--all", "--pid", str(pid),
                                    "--name", "^Tumble Deep").split()
            if found:
                return found[0]
        return None

    def ended(self):
        """Whether the game has ended, which by its own rules it may."""
        self.check_ends()
        return not self.pids()

    def test_acts_at_random(self):
        dice = random.Random(11)
        self.write_map("M.TBM", BUSY)
        with open(self.dir / "M.TBM", "a") as file:
            file.write(MINES)
        self.write_map("N.TBM", EASY)
        (self.dir / "Default.TBL").write_text("M\nN\nM\n")
        other = subprocess.Popen(["xev", "-geometry", "200x200"], env=self.screen.env,
                                 stdout=subprocess.DEVNULL)
        self.addCleanup(other.wait)
        self.addCleanup(other.kill)
        self.other = screen.wait_until("another program", lambda: self.screen.windows(
            "Event Tester"))[0]
        window, starts, acts = self.run_game(), 1, 0
        while acts < EVENTS:
            # A batch breaks off where the window has gone, to a successor's most often.
            batch = self.look(dice, window) + [
                word for _ in range(BATCH - 2) for word in self.act(dice, window)]
            if subprocess.run(["xdotool", *batch], env=self.screen.env, stderr=subprocess.PIPE,
                              check=False).returncode == 0:
                acts += BATCH
            if self.ended():
                window, starts = self.run_game(STARTS[starts % len(STARTS)]), starts + 1
            window = self.of(self.pids()) or window
        other.kill()
        self.screen.run("xdotool", "mouseup", "1", *(w for key in PLAY for w in ("keyup", key)))
        if re.search("Caps Lock: *on", self.screen.run("xset", "q")):
            self.screen.run("xdotool", "key", "Caps_Lock")
        screen.wait_until("a known map", self.go_home)
        self.screen.key("ctrl+0")
        self.wait_for_you(1, 1)
        self.walk("d")
        self.check_ends()
        print("acts: %d, processes that ended: %d, starts by hand: %d" % (acts, self.ends, starts))

    def go_home(self):
        """Does what comes next, wherever the game is; whether the known map is there."""
        self.write_map("HOME.TBM", screen.ROOM)
        (self.dir / "Default.TBL").write_text("HOME\n")
        if self.ended():
            self.run_game(AT_HOME)
        elif self.screen.windows("Tumble Deep - HOME"):
            return len(self.pids()) == 1
        elif self.screen.windows("(Tumbledeep|Open|What is what)"):
            self.screen.run("xdotool", "key", "Escape")
        else:
            (self.dir / "Tumbledeep.ini").write_text(AT_HOME)
            self.screen.run("xdotool", "windowactivate", self.of(self.pids()) or "0",
                            "key", "Escape", "Escape", "alt+f", "sleep", "0.2", "key", "b")
        time.sleep(0.5)
        return False

    def test_new_starts_in_a_row(self):
        self.begin(screen.ROOM)
        seen = []
        for _ in range(RELAUNCHES):
            first = self.pids()
            self.screen.key("alt+f", "r")
            self.screen.open_dialog()
            self.screen.key("Return")
            self.wait_for_successor(first)
            screen.wait_until("the player", lambda: self.you() == (1, 1))
            process = "/proc/%d/" % self.pids()[0]
            with open(process + "status") as file:
                memory = next(line for line in file if line.startswith("VmRSS")).split()[1]
            seen.append((len(os.listdir(process + "fd")), int(memory)))
        self.check_ends()
        self.assertEqual(RELAUNCHES, self.ends)
        print("descriptors and memory in KiB:", seen[0], seen[-1])
        self.assertEqual(seen[1][0], seen[-1][0], "descriptors")
        self.assertLess(seen[-1][1], seen[1][1] * 1.1, "memory")
        self.walk("d")

"""A player who does not know what to do: thousands of acts at random, then one who does.

TUMBLEDEEP_EVENTS and TUMBLEDEEP_RELAUNCHES are how many acts and new starts in a row.
"""

import os
import random
import subprocess
import time

import screen

EVENTS = int(os.environ.get("TUMBLEDEEP_EVENTS", "500"))
RELAUNCHES = int(os.environ.get("TUMBLEDEEP_RELAUNCHES", "12"))
BATCH = 10
PLAY = ["w", "a", "s", "d", "p", "Up", "Down", "Left", "Right"]
OTHER = ["Return", "Escape", "Tab", "space", "alt+f", "alt+s", "ctrl+c", "F10", "F1", "Home", "End",
         "Delete", "BackSpace", "1", "3", "minus", "Caps_Lock", "Num_Lock", "shift+Tab", "adiaeresis"]
MENUS = [("alt+f", "l"), ("alt+f", "b"), ("alt+f", "m"), ("alt+f", "r"), ("alt+s", "s"),
         ("alt+s", "Down", "Right", "Return")]
SETTINGS = "[Level]\nLOAD=M.TBM\n[AutoMove]\nMOVE=True\nMODE=2\n"
BUSY = ["#" * 20, "#@ :::O:O:*:::: O: #", "# ::O:O:*::::O::::*#", "#::::*:::O::::*::: #", "#" * 20]


class Abuse(screen.GameTest):
    def act(self, dice, window):
        """The words of xdotool for one act."""
        place = [str(dice.randrange(1280)), str(dice.randrange(900))]
        return dice.choice([
            ["key", dice.choice(PLAY)], ["key", dice.choice(PLAY)], ["key", dice.choice(OTHER)],
            ["key", dice.choice(["Escape", "Return"])],
            ["keydown", dice.choice(PLAY)], ["keyup", dice.choice(PLAY)],
            ["key", *dice.choice(MENUS)],
            ["mousemove", *place, "click", dice.choice("1113245")],
            ["mousemove", *place, "mousedown", "1", "mousemove_relative", "--",
             str(dice.randrange(-90, 90)), str(dice.randrange(-90, 90)), "mouseup", "1"],
            ["windowsize", window, str(dice.randrange(20, 1400)), str(dice.randrange(20, 1000))],
            ["windowmove", window, *place],
            ["windowfocus", dice.choice([window, self.other])],
            ["sleep", "0.0%d" % dice.randrange(1, 9)]])

    def run_game(self):
        self.first = subprocess.Popen([screen.PROGRAM, "--dir", self.dir], env=self.screen.env,
                                      stderr=subprocess.PIPE)
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
        """Whether the game has ended; only by its own rules, and without a word, it may."""
        if self.pids():
            return False
        told = self.first.communicate()[1]
        self.assertEqual((0, b""), (self.first.returncode, told))
        return True

    def test_acts_at_random(self):
        dice = random.Random(11)
        for name in ("M.TBM", "N.TBM"):
            self.write_map(name, BUSY)
        (self.dir / "Default.TBL").write_text("M\nN\nM\n")
        (self.dir / "Tumbledeep.ini").write_text(SETTINGS)
        with subprocess.Popen(["xev"], env=self.screen.env, stdout=subprocess.DEVNULL) as other:
            self.other = screen.wait_until("another program", lambda: self.screen.windows(
                "Event Tester"))[0]
            window, starts, acts = self.run_game(), 1, 0
            while acts < EVENTS:
                # A batch breaks off where the window has gone, to a successor's most often.
                batch = [word for _ in range(BATCH) for word in self.act(dice, window)]
                if subprocess.run(["xdotool", *batch], env=self.screen.env, stderr=subprocess.PIPE,
                                  check=False).returncode == 0:
                    acts += BATCH
                if self.ended():
                    window, starts = self.run_game(), starts + 1
                window = self.of(self.pids()) or window
            print("acts: %d, starts by hand: %d" % (acts, starts))
            other.kill()
        self.screen.run("xdotool", "mouseup", "1", *(w for key in PLAY for w in ("keyup", key)))
        self.play_on()

    def play_on(self):
        """Whatever is open is closed; then a new start is played as ever."""
        window = self.of(self.pids())
        if window:
            self.screen.run("xdotool", "windowsize", window, "800", "600", "windowfocus", window)
        for _ in range(40):
            if self.ended():
                break
            if self.screen.windows("(Tumbledeep|Open)"):
                self.screen.run("xdotool", "key", "Escape")
            else:
                first = self.pids()
                self.screen.run("xdotool", "windowfocus", "--sync", self.of(first) or "0",
                                "key", "Escape", "Escape", "alt+f", "sleep", "0.2", "key", "r")
                time.sleep(0.5)
                if self.screen.windows("Tumbledeep"):
                    self.screen.key("Return")
                    self.wait_for_successor(first)
                    break
            time.sleep(0.2)
        if not self.pids():
            self.run_game()
        screen.wait_until("the player", self.you, 10)
        self.walk("d")

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
        self.assertEqual(0, self.first.wait())
        print("descriptors and memory in KiB:", seen[0], seen[-1])
        self.assertEqual(seen[1][0], seen[-1][0], "descriptors")
        self.assertLess(seen[-1][1], seen[1][1] * 1.1, "memory")
        self.walk("d")

"""Measures the game in its window on a virtual screen: start to first painted board, the change
from map to map, the processor time of quiet and busy boards, and whether the clock keeps its pace.
What one paint costs is measured by tumbledeep-paint-bench. Figures for people, no test.

usage: TUMBLEDEEP=build/release/tumbledeep python3 bench/desktop/measure.py
"""

import os
import pathlib
import re
import statistics
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent.parent / "tests" / "desktop"))

import screen  # noqa: E402

TICKS_PER_SECOND = os.sysconf("SC_CLK_TCK")
SECONDS = 5.0
# A run long enough to time, and its ticks: 51 of the 301 ticks of a cycle read a held arrow.
STEPS = 240
TICKS_OF_RUN = STEPS * 301 / 51


class Measure(screen.GameTest):
    screen_size = "1920x1080"

    def runTest(self):
        pass

    # Boards.

    def room(self, cols, rows, extra=""):
        """A walled room with the player in it and a gem that nobody takes."""
        lines = ["you %d %d" % (rows // 2 * 360, cols // 2 * 360)]
        for col in range(cols):
            lines += ["harddirt 0 %d" % (col * 360),
                      "harddirt %d %d" % ((rows - 1) * 360, col * 360)]
        for row in range(1, rows - 1):
            lines += ["harddirt %d 0" % (row * 360),
                      "harddirt %d %d" % (row * 360, (cols - 1) * 360)]
        lines.append("gem1type %d 360" % ((rows - 2) * 360))
        (self.dir / "M.TBM").write_text("\n".join(lines) + "\n" + extra)

    def walkers(self, count, cols, step=4):
        """L mines that circle in the open, far from the middle's row."""
        lines, at = [], 0
        while len(lines) < count:
            col, row = 3 + at % ((cols - 6) // step) * step, 3 + at // ((cols - 6) // step) * step
            at += 1
            if abs(row - 150) < 3 and cols > 100:
                continue
            lines.append("movingmineL %d %d R" % (row * 360, col * 360))
        return "\n".join(lines) + "\n"

    def corridors(self, size):
        """Corridors with 4,000 L mines, walls and dirt between them; the player's has a gem."""
        middle, lines = size // 2 | 1, []
        for row in range(size):
            line = "harddirt" if row % 4 == 0 else "dirt"
            cols = range(size) if row % 2 == 0 else (0, size - 1)
            lines += ["%s %d %d" % (line, row * 360, col * 360) for col in cols]
            mines = range(5, size - 5, 11) if row % 2 and row != middle else ()
            lines += ["movingmineL %d %d R" % (row * 360, col * 360) for col in mines]
        lines += ["you %d %d" % (middle * 360, 30 * 360),
                  "gem1type %d %d" % (middle * 360, (30 + STEPS) * 360)]
        (self.dir / "M.TBM").write_text("\n".join(lines) + "\n")

    # Figures.

    def cpu(self, seconds=SECONDS):
        """Per cent of one core over that time."""
        def used():
            fields = pathlib.Path("/proc/%d/stat" % self.pids()[0]).read_text().rsplit(")", 1)[1]
            return sum(int(n) for n in fields.split()[11:13]) / TICKS_PER_SECOND
        begin, start = used(), time.monotonic()
        time.sleep(seconds)
        return 100 * (used() - begin) / (time.monotonic() - start)

    def switches(self, seconds=SECONDS):
        """How often a second the process has gone to sleep, all of its threads together."""
        def count():
            return sum(int(re.search(r"^voluntary\D*(\d+)", status.read_text(), re.M)[1])
                       for status in pathlib.Path("/proc/%d/task" % self.pids()[0]).glob("*/status"))
        before = count()
        time.sleep(seconds)
        return (count() - before) / seconds

    def start_maximised(self):
        """Starts the game as a successor; milliseconds to its word that the board is painted."""
        read, write = os.pipe()
        start = time.monotonic()
        self.first = subprocess.Popen(
            [str(screen.PROGRAM), "--shown-pipe", str(write), "--dir", str(self.dir)],
            env=self.screen.env, pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        os.read(read, 1)
        elapsed = 1000 * (time.monotonic() - start)
        os.close(read)
        return elapsed

    def start_to_paint(self):
        elapsed = self.start_maximised()
        self.kill_games()
        return elapsed

    def change_of_map(self):
        """Milliseconds from Yes to the next board painted, and without a window on the screen."""
        self.start("--scale", "2")
        spot = self.screen.middle(self.screen.windows("Tumble Deep.*")[0])
        self.wait_for_paint(spot)
        first = self.pids()
        self.screen.key("alt+f")
        time.sleep(0.2)
        self.screen.key("r")
        self.screen.open_dialog()
        pixel, corner = self.screen.pixels, (self.screen.pixels.width - 200, 200)
        # A hand that is ready: only the key itself is timed, not the start of xdotool.
        hand = subprocess.Popen(["xdotool", "-"], env=self.screen.env, stdin=subprocess.PIPE)
        time.sleep(0.3)
        bare, start = 0.0, time.monotonic()
        hand.stdin.write(b"key --delay 0 Return\n")
        hand.stdin.close()
        # The successor is maximised, so its board's floor reaches the corner.
        while pixel.at(*corner) != screen.WHITE and time.monotonic() - start < 5:
            before, gone = time.monotonic(), pixel.at(*spot) == screen.DESKTOP
            time.sleep(0.0005)  # the other processor's work is what is measured
            bare += time.monotonic() - before if gone else 0
        elapsed = 1000 * (time.monotonic() - start)
        hand.wait()
        self.wait_for_successor(first)
        self.kill_games()
        return elapsed, 1000 * bare

    def wait_for_paint(self, spot):
        screen.wait_until("the board", lambda: self.screen.pixels.at(*spot) != (128, 128, 128))

    def board_cpu(self, what, mode, keys=()):
        self.write_settings("M.TBM", "True" if mode else "False", mode or 2)
        self.start()
        time.sleep(1.0)
        for key in keys:
            self.screen.run("xdotool", *key)
        time.sleep(0.3)
        print("%-52s %5.1f %% of one core" % (what, self.cpu()))
        self.screen.run("xdotool", "keyup", "Right")
        self.kill_games()

    def paused(self, what):
        self.write_settings("M.TBM")
        self.start_maximised()
        time.sleep(1.0)
        self.screen.key("p")
        time.sleep(1.0)
        print("%-52s %5.1f %% of one core, asleep and awake %.1f times a second" % (
            what, self.cpu(), self.switches()))
        self.kill_games()

    def pace(self, what, mode):
        """A run along a corridor to the gem that wins the map, in a maximised window."""
        self.write_settings("M.TBM", "True" if mode else "False", mode or 2)
        self.start_maximised()
        time.sleep(1.0)
        self.screen.hands("keydown", "Right")
        start = time.monotonic()
        time.sleep(1.0)
        per_cent = self.cpu()
        # At full pace it ends no sooner; looking for the box takes processor time itself.
        time.sleep(start + TICKS_OF_RUN / 100 - time.monotonic())
        screen.wait_until("the box at the end", lambda: self.screen.windows("Tumbledeep"))
        ticks = TICKS_OF_RUN / (time.monotonic() - start)
        self.screen.run("xdotool", "keyup", "Right")
        print("%-52s %5.1f %% of one core, %5.1f ticks a second" % (what, per_cent, ticks))
        self.kill_games()


def main():
    run = Measure()
    run.setUp()
    try:
        run.room(40, 30)
        run.write_settings("M.TBM")
        starts = sorted(run.start_to_paint() for _ in range(9))
        print("%-52s %5.0f ms (%.0f to %.0f)" % ("start to first painted board, median of 9",
              statistics.median(starts), starts[0], starts[-1]))
        run.room(150, 150)
        run.write_settings("M.TBM")
        changes = [run.change_of_map() for _ in range(7)]
        print("%-52s %5.0f ms (%.0f to %.0f), bare desktop %.1f ms" % (
            "Yes to next board painted, median of 7", statistics.median(c[0] for c in changes),
            min(c[0] for c in changes), max(c[0] for c in changes), max(c[1] for c in changes)))
        run.room(40, 30)
        run.board_cpu("40 by 30, paused", 0, [("key", "p")])
        run.board_cpu("40 by 30, idle", 0)
        # 200 mines that move at every tenth tick: 20 cells a tick.
        run.room(100, 80, run.walkers(200, 100))
        run.board_cpu("100 by 80, 20 changes a tick, still view", 0)
        run.room(301, 301, run.walkers(4000, 301))
        run.board_cpu("301 by 301, 4,000 mines, still view", 0)
        run.board_cpu("301 by 301, 4,000 mines, gliding", 2, [("keydown", "Right")])
        run.room(301, 301)
        run.board_cpu("301 by 301, gliding", 2, [("keydown", "Right")])
        run.corridors(300)
        run.pace("300 by 300, mines in corridors, still view", 0)
        run.pace("300 by 300, mines in corridors, gliding", 2)
        run.paused("300 by 300, mines in corridors, paused")
    finally:
        run.doCleanups()


if __name__ == "__main__":
    main()

"""Measures the game in its window on a virtual screen: start to first painted board, the change
from map to map, and the processor time of quiet and busy boards. Figures for people, no test.

usage: TUMBLEDEEP=build/release/tumbledeep python3 bench/desktop/measure.py
"""

import os
import pathlib
import statistics
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent.parent / "tests" / "desktop"))
os.environ.setdefault("TUMBLEDEEP_LEVELS", str(HERE.parent.parent / "levels"))

import screen  # noqa: E402

TICKS_PER_SECOND = os.sysconf("SC_CLK_TCK")
SECONDS = 5.0


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

    # Figures.

    def cpu(self, seconds=SECONDS):
        """Per cent of one core over that time."""
        def used():
            fields = pathlib.Path("/proc/%d/stat" % self.pids()[0]).read_text().rsplit(")", 1)[1]
            return sum(int(n) for n in fields.split()[11:13]) / TICKS_PER_SECOND
        begin, start = used(), time.monotonic()
        time.sleep(seconds)
        return 100 * (used() - begin) / (time.monotonic() - start)

    def start_to_paint(self):
        """Milliseconds from the start of the process to its word that the board is painted."""
        read, write = os.pipe()
        start = time.monotonic()
        self.first = subprocess.Popen(
            [str(screen.PROGRAM), "--shown-pipe", str(write), "--dir", str(self.dir)],
            env=self.screen.env, pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        os.read(read, 1)
        elapsed = 1000 * (time.monotonic() - start)
        os.close(read)
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
    finally:
        run.doCleanups()


if __name__ == "__main__":
    main()

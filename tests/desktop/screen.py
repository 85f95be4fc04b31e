"""A virtual screen with a window manager, the game on it, and a player's hands and eyes."""

import mmap
import os
import pathlib
import re
import shutil
import signal
import struct
import subprocess
import tempfile
import time
import unittest

PROGRAM = pathlib.Path(os.environ["TUMBLEDEEP"])
LEVELS = pathlib.Path(os.environ["TUMBLEDEEP_LEVELS"])
CELL = 24

WHITE = (255, 255, 255)
WALL = (0, 0, 0)
DIRT = (192, 192, 192)
YOU = (255, 192, 192)
DESKTOP = (32, 64, 96)  # behind all windows, no colour of the game's


def wait_until(what, condition, seconds=10.0):
    """Returns what the condition gives once it is true; fails with `what` if it never is."""
    end = time.monotonic() + seconds
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise AssertionError("waited in vain for: " + what)
        time.sleep(0.02)


class Shot:
    """A screenshot; pixels are (red, green, blue)."""

    def __init__(self, width, height, data):
        self.width, self.height, self.data = width, height, data

    def at(self, x, y):
        i = 3 * (y * self.width + x)
        return tuple(self.data[i:i + 3])

    def row(self, y, x0=0, x1=None):
        return [self.at(x, y) for x in range(x0, self.width if x1 is None else x1)]

    def find(self, colour):
        """The first pixel of that colour, by rows."""
        wanted, at = bytes(colour), -1
        while (at := self.data.find(wanted, at + 1)) >= 0:
            if at % 3 == 0:
                return (at // 3) % self.width, at // 3 // self.width
        return None


class FrameBuffer:
    """The X server's memory of the screen, read as it stands: a file in XWD format."""

    def __init__(self, path):
        with open(path, "rb") as file:
            self.memory = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        head = struct.unpack(">25I", self.memory[:100])
        self.width, self.height, self.line = head[4], head[5], head[12]
        self.start = head[0] + 12 * head[19]

    def at(self, x, y):
        i = self.start + y * self.line + 4 * x
        blue, green, red = self.memory[i:i + 3]
        return red, green, blue

    def shot(self):
        raw = self.memory[self.start:self.start + self.line * self.height]
        data = bytearray(3 * self.width * self.height)
        for colour in range(3):
            data[colour::3] = raw[2 - colour::4]
        return Shot(self.width, self.height, bytes(data))


class Screen:
    """An X server of its own, so that tests disturb neither a desktop nor one another."""

    def __init__(self, size="1280x900"):
        read, write = os.pipe()
        self.memory_dir = tempfile.mkdtemp(prefix="tumbledeep-screen-")
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", size + "x24", "-nolisten", "tcp",
             "-fbdir", self.memory_dir],
            pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            self.env = dict(os.environ, DISPLAY=":" + number.readline().strip(),
                            XDG_RUNTIME_DIR=tempfile.gettempdir(), QT_QPA_PLATFORM="xcb",
                            LC_ALL="C.UTF-8", HOME=tempfile.gettempdir())
        self.pixels = FrameBuffer(pathlib.Path(self.memory_dir) / "Xvfb_screen0")
        self.env.pop("WAYLAND_DISPLAY", None)
        self.env.pop("QT_SCALE_FACTOR", None)
        self.manager = None
        wait_until("the window manager", self.is_managed)
        self.run("xsetroot", "-solid", "#%02x%02x%02x" % DESKTOP)
        # Out of the picture: the server draws the pointer into its memory.
        self.run("xdotool", "mousemove", *size.split("x"))

    def is_managed(self):
        if self.manager is None or self.manager.poll() is not None:
            self.manager = subprocess.Popen(["openbox", "--sm-disable"], env=self.env,
                                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return "window id" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")

    def close(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()
        shutil.rmtree(self.memory_dir)

    def run(self, *words):
        return subprocess.run(words, env=self.env, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, check=False).stdout.decode()

    def shot(self):
        return self.pixels.shot()

    def still_shot(self):
        """A screenshot of a screen that has come to rest."""
        last = self.shot()
        while True:
            time.sleep(0.1)
            now = self.shot()
            if now.data == last.data:
                return now
            last = now

    def key(self, *keys):
        self.run("xdotool", "key", *keys)

    def windows(self, name):
        """The visible windows whose title is exactly that."""
        return self.run("xdotool", "search", "--onlyvisible", "--name", "^" + name + "$").split()

    def place(self, window):
        """Left, top, width and height of a window, without its frame."""
        text = self.run("xdotool", "getwindowgeometry", "--shell", window)
        return [int(re.search(name + r"=(\d+)", text).group(1))
                for name in ("X", "Y", "WIDTH", "HEIGHT")]

    def middle(self, window):
        left, top, width, height = self.place(window)
        return left + width // 2, top + height // 2

    def dialogs(self):
        return self.windows("Tumbledeep")

    def focused(self, name):
        """The window that has the keyboard if its title is that, else None."""
        window = self.run("xdotool", "getwindowfocus").strip()
        return window if window in self.windows(name) else None

    def wait_for_focus(self):
        """Until the game, or a dialog of its, has the keyboard."""
        wait_until("the focus", lambda: self.focused("(Tumble Deep.*|Tumbledeep|Open)"))

    def open_dialog(self):
        """The dialog that is open and has the keyboard."""
        return wait_until("a dialog", lambda: self.focused("Tumbledeep"))

    def answer(self, *keys):
        """Presses keys in the dialog that is open, and waits until it has gone."""
        dialog = self.open_dialog()
        self.key(*keys)
        wait_until("the dialog to close", lambda: dialog not in self.dialogs())


class GameTest(unittest.TestCase):
    """A test with a screen and a directory for maps and settings of its own."""

    screen_size = "1280x900"

    def setUp(self):
        self.screen = Screen(self.screen_size)
        self.addCleanup(self.screen.close)
        self.dir = pathlib.Path(tempfile.mkdtemp(prefix="tumbledeep-test-"))
        self.addCleanup(shutil.rmtree, self.dir)
        self.first = None
        self.addCleanup(self.kill_games)

    # The game and its successors: their own directory tells them from any other.

    def pids(self):
        found = subprocess.run(["pgrep", "-f", "--", "--dir " + str(self.dir)],
                               stdout=subprocess.PIPE, check=False).stdout.split()
        alive = []
        for pid in found:
            try:
                state = pathlib.Path("/proc/%d/stat" % int(pid)).read_text().rsplit(")", 1)[1]
            except OSError:
                continue
            if state.split()[0] != "Z":
                alive.append(int(pid))
        return alive

    def kill_games(self):
        for pid in self.pids():
            os.kill(pid, signal.SIGKILL)
        if self.first:
            self.first.wait()
        wait_until("an empty screen", lambda: not self.screen.windows("Tumble Deep.*"))

    def start(self, *words, **environment):
        self.first = subprocess.Popen([str(PROGRAM), "--dir", str(self.dir), *words],
                                      env=dict(self.screen.env, **environment),
                                      stderr=subprocess.DEVNULL)
        self.screen.wait_for_focus()
        return self.screen.windows("Tumble Deep.*")[0]

    def wait_for_end(self):
        wait_until("the end of the process", lambda: not self.pids())
        self.first.wait()

    def wait_for_successor(self, old):
        """The process that follows, alone on the screen."""
        def alone():
            now = self.pids()
            return now if len(now) == 1 and now != old else None
        pid = wait_until("the next process", alone)
        self.screen.wait_for_focus()
        return pid

    # Maps and settings.

    def write_map(self, name, rows, extra=""):
        """A map from a picture: # wall, : dirt, O rock, * gem, @ player."""
        words = {"#": "harddirt", ":": "dirt", "O": "roundrock", "*": "gem1type", "@": "you"}
        lines = ["%s %d %d" % (words[c], row * 360, col * 360)
                 for row, text in enumerate(rows) for col, c in enumerate(text) if c in words]
        (self.dir / name).write_text("\n".join(lines) + "\n" + extra)

    def write_settings(self, load, move="False", mode=2):
        (self.dir / "Tumbledeep.ini").write_text(
            "[Level]\nLOAD=%s\n[AutoMove]\nMOVE=%s\nMODE=%s\n" % (load, move, mode))

    def setting(self, key):
        text = (self.dir / "Tumbledeep.ini").read_text()
        found = re.search("^" + key + "=(.*)$", text, re.M)
        return found.group(1) if found else None

    # What the board shows.

    def board(self, shot=None):
        """Where the board's top left wall begins on the screen."""
        shot = shot or self.screen.shot()
        window = self.screen.windows("Tumble Deep.*")[0]
        left, top, width, height = self.screen.place(window)
        run = bytes(WALL) * CELL
        for y in range(top + 30, min(top + height, shot.height)):
            start = 3 * (y * shot.width + left)
            line = shot.data[start:start + 3 * width]
            at = line.find(run)
            if at >= 0 and at % 3 == 0 and all(
                    shot.at(left + at // 3, y + d) == WALL for d in range(CELL)):
                return left + at // 3, y
        return None

    def cell_colour(self, board, col, row, shot):
        """The colour in the middle of a cell; columns and rows from 0."""
        return shot.at(board[0] + col * CELL + CELL // 2, board[1] + row * CELL + CELL // 2)

    def you(self, shot=None):
        """The player's cell, as seen on a board whose top left wall can be seen."""
        shot = shot or self.screen.shot()
        board, spot = self.board(shot), shot.find(YOU)
        if not board or not spot:
            return None
        return (spot[0] - board[0]) // CELL, (spot[1] + 2 - board[1]) // CELL

    def wait_for_you(self, cell):
        wait_until("the player at %s" % (cell,), lambda: self.you() == cell)

"""A virtual screen with a window manager, the game on it, and a player's hands and eyes."""

import ctypes
import mmap
import os
import pathlib
import re
import struct
import subprocess
import tempfile
import time
import unittest

PROGRAM = pathlib.Path(os.environ["TUMBLEDEEP"])
LEVELS = PROGRAM.parent  # the build puts the maps and lists beside the program
SOLUTIONS = pathlib.Path(__file__).resolve().parents[2] / "levels" / "solutions"
CELL = 24

WHITE = (255, 255, 255)
WALL = (0, 0, 0)
DIRT = (192, 192, 192)
YOU = (255, 192, 192)
DIMMED = {WALL: (11, 12, 21), YOU: (154, 120, 129)}  # while the game is paused
DESKTOP = (32, 64, 96)  # behind all windows, no colour of the game's

ROOM = ["##########",
        "#@       #",
        "#:::::::*#",
        "##########"]


def wait_until(what, condition, seconds=60.0):
    """Returns what the condition gives once it is true; fails with `what` if it never is."""
    end = time.monotonic() + seconds
    while not (result := condition()):
        if time.monotonic() > end:
            raise AssertionError("waited in vain for: " + what)
        time.sleep(0.02)
    return result


class Shot:
    """A screenshot; pixels are (red, green, blue)."""

    def __init__(self, width, data):
        self.width, self.data = width, data

    def row(self, y, x0, x1):
        """The bytes of a row from x0 to before x1."""
        return self.data[3 * (y * self.width + x0):3 * (y * self.width + x1)]

    def find(self, colour, count=1):
        """Where so many pixels of that colour, or of a paused game's, first stand side by side, by
        rows; else None."""
        for seen in filter(None, (colour, DIMMED.get(colour))):
            wanted, at = bytes(seen) * count, -1
            while (at := self.data.find(wanted, at + 1)) >= 0:
                if at % 3 == 0:
                    return at // 3 % self.width, at // 3 // self.width
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
        return tuple(self.memory[i:i + 3][::-1])

    def shot(self):
        raw = self.memory[self.start:self.start + self.line * self.height]
        data = bytearray(3 * self.width * self.height)
        for colour in range(3):
            data[colour::3] = raw[2 - colour::4]
        return Shot(self.width, bytes(data))


class Screen:
    """An X server of its own, so that tests disturb neither a desktop nor one another."""

    def __init__(self, size):
        read, write = os.pipe()
        self.folder = tempfile.TemporaryDirectory(prefix="tumbledeep-screen-")
        # It would begin anew whenever its last client goes, and take a starting one's place away.
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", size + "x24", "-nolisten", "tcp",
             "-noreset", "-fbdir", self.folder.name], pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            display = ":" + number.readline().strip()
        kept = {k: v for k, v in os.environ.items() if not k.startswith(("QT_", "WAYLAND_"))}
        self.env = dict(kept, DISPLAY=display, QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8",
                        HOME=self.folder.name, XDG_RUNTIME_DIR=self.folder.name)
        self.pixels = FrameBuffer(pathlib.Path(self.folder.name) / "Xvfb_screen0")
        config = pathlib.Path(__file__).with_name("openbox.xml")
        self.manager = subprocess.Popen(["openbox", "--sm-disable", "--config-file", config],
                                        env=self.env, stderr=subprocess.DEVNULL)
        wait_until("the window manager", lambda: "window id" in self.run(
            "xprop", "-root", "_NET_SUPPORTING_WM_CHECK"))
        self.run("xsetroot", "-solid", "#%02x%02x%02x" % DESKTOP)
        # Without the server's repeat, only the game's own polling can move a held key on.
        self.run("xset", "r", "off")
        # Out of the picture: the server draws the pointer into its memory.
        self.run("xdotool", "mousemove", *size.split("x"))

    def close(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()
        self.folder.cleanup()

    def run(self, *words):
        return subprocess.run(words, env=self.env, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, check=False).stdout.decode()

    def hands(self, *words):
        """What xdotool does with these words, once a window of the game's has the keyboard."""
        self.wait_for_focus()
        self.run("xdotool", *words)

    def key(self, *keys):
        self.hands("key", *keys)

    def windows(self, name):
        """The visible windows whose title is exactly that."""
        return self.run("xdotool", "search", "--onlyvisible", "--name", "^" + name + "$").split()

    def close_window(self, window):
        """Asks the window manager to close it, as a task bar does: also while a menu is open."""
        x11 = ctypes.CDLL("libX11.so.6")
        x11.XOpenDisplay.restype = ctypes.c_void_p
        x11.XDefaultRootWindow.restype = x11.XInternAtom.restype = ctypes.c_ulong
        display = ctypes.c_void_p(x11.XOpenDisplay(self.env["DISPLAY"].encode()))
        root = ctypes.c_ulong(x11.XDefaultRootWindow(display))
        client_message, of_words, to_managers = 33, 32, 3 << 19
        event = (ctypes.c_ulong * 24)(client_message, 0, 1, 0, int(window), x11.XInternAtom(
            display, b"_NET_CLOSE_WINDOW", 0), of_words)
        x11.XSendEvent(display, root, 0, ctypes.c_long(to_managers), event)
        x11.XCloseDisplay(display)

    def middle(self, window):
        text = self.run("xdotool", "getwindowgeometry", "--shell", window)
        x, y, width, height = map(int, re.findall(r"=(.*)", text)[1:5])
        return x + width // 2, y + height // 2

    def wait_for_focus(self, name="(Tumble Deep.*|Tumbledeep|Open)"):
        """The window of that title that has the keyboard."""
        return wait_until("the focus", lambda: {
            self.run("xdotool", "getwindowfocus").strip()}.intersection(self.windows(name))).pop()

    def open_dialog(self):
        return self.wait_for_focus("Tumbledeep")

    def answer(self, *keys):
        """Presses keys in the dialog that is open, and waits until it has gone."""
        dialog = self.open_dialog()
        self.key(*keys)
        wait_until("the dialog to close", lambda: dialog not in self.windows("Tumbledeep"))


class GameTest(unittest.TestCase):
    """A test with a screen and a directory for maps and settings of its own."""

    screen_size = "1280x900"

    def setUp(self):
        self.screen = Screen(self.screen_size)
        self.addCleanup(self.screen.close)
        self.dir = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.addCleanup(self.kill_games)
        self.first = None

    def pids(self):
        """The game and its successors: their own directory tells them from any other."""
        return [int(pid) for pid in self.screen.run("pgrep", "-f", str(self.dir)).split()]

    def kill_games(self):
        self.screen.run("kill", "-9", *map(str, self.pids()))
        if self.first:
            self.first.wait()
        wait_until("an empty screen", lambda: not self.screen.windows("Tumble Deep.*"))

    def start(self, *words, cwd=None, **environment):
        """Starts the game; returns its window once it or a dialog of its has the keyboard."""
        self.first = subprocess.Popen([PROGRAM, "--dir", self.dir, *words], cwd=cwd,
                                      env=dict(self.screen.env, **environment))
        self.screen.wait_for_focus()
        return self.screen.windows("Tumble Deep.*")[0]

    def begin(self, rows, *words, mode=None, **environment):
        """Starts the game on that map; returns its window once the player can be seen."""
        self.write_map("M.TBM", rows)
        self.write_settings("M.TBM", str(mode is not None), mode or 2)
        window = self.start(*words, **environment)
        wait_until("the player", self.spot)
        return window

    def wait_for_end(self):
        wait_until("the end of the process", lambda: not self.pids())
        self.assertEqual(0, self.first.wait())

    def wait_for_successor(self, old, meanwhile=lambda: None):
        """Until the process that follows is alone on the screen."""
        wait_until("the next process",
                   lambda: meanwhile() or len(now := self.pids()) == 1 and now != old)
        self.screen.wait_for_focus()

    def write_map(self, name, rows):
        """A map from a picture: # wall, : dirt, O rock, * gem, @ player."""
        words = {"#": "harddirt", ":": "dirt", "O": "roundrock", "*": "gem1type", "@": "you"}
        lines = ["%s %d %d" % (words[c], row * 360, col * 360)
                 for row, text in enumerate(rows) for col, c in enumerate(text) if c in words]
        (self.dir / name).write_text("\n".join(lines) + "\n")

    def write_settings(self, load, move="False", mode=2):
        (self.dir / "Tumbledeep.ini").write_text(
            "[Level]\nLOAD=%s\n[AutoMove]\nMOVE=%s\nMODE=%s\n" % (load, move, mode))

    def setting(self, key):
        found = re.search("^" + key + "=(.*)$", (self.dir / "Tumbledeep.ini").read_text(), re.M)
        return found[1] if found else None

    def spot(self):
        return self.screen.pixels.shot().find(YOU)

    def board(self, shot=None, length=6 * CELL):
        """Where the board's top wall begins on the screen."""
        return (shot or self.screen.pixels.shot()).find(WALL, length)

    def you(self):
        """The player's column and row, as seen on a board whose top wall can be seen."""
        shot = self.screen.pixels.shot()
        board, spot = self.board(shot), shot.find(YOU)
        return board and spot and ((spot[0] - board[0]) // CELL, (spot[1] + 2 - board[1]) // CELL)

    def wait_for_you(self, *cell):
        wait_until("the player at %s" % (cell,), lambda: self.you() == cell)

    def walk(self, keys):
        """Steps by letters, each once the last has been seen."""
        for key in keys:
            before = self.you()
            self.screen.key(key)
            wait_until("a step by " + key, lambda: self.you() != before)

"""The package as the system takes it, and the game played from it by an ordinary user.

The package is laid over the system's own /usr, which nobody can write to meanwhile.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "desktop"))
import screen  # pylint: disable=wrong-import-position

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ["TUMBLEDEEP"]).parent
MIME = "/usr/share/mime"
NOBODY = 65534
# In a name space of its own; as root first, then as somebody else.
INSIDE = ["unshare", "-m"] if os.geteuid() == 0 else ["unshare", "-rm"]
LAY = 'mount -t overlay -o "lowerdir=$0/usr:/usr" none /usr && exec "$@"'
AS_USER = ["setpriv", "--reuid=%d" % NOBODY, "--regid=%d" % NOBODY, "--clear-groups"]


def setUpModule():
    packages = pathlib.Path(unittest.enterModuleContext(tempfile.TemporaryDirectory()))
    Package.deb, Package.archive = make(packages, "DEB"), make(packages, "TGZ")
    Package.tree = packages / "tree"
    run("dpkg-deb", "-x", Package.deb, Package.tree)
    for types in pathlib.Path(MIME, "packages").glob("*.xml"):
        shutil.copy(types, Package.tree / MIME[1:] / "packages")
    run("update-mime-database", Package.tree / MIME[1:])
    run("update-desktop-database", Package.tree / "usr/share/applications")
    packages.chmod(0o755)


def make(folder, kind):
    run("cpack", "--config", BUILD / "CPackConfig.cmake", "-G", kind, "-B", folder / kind)
    return next((folder / kind).glob("tumbledeep*.*"))


def run(*words, **options):
    done = subprocess.run(words, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          check=False, **options)
    if done.returncode:
        raise AssertionError("%s: %s" % (words, done.stdout))
    return done.stdout


class Package(screen.GameTest):
    deb = archive = tree = None

    def setUp(self):
        super().setUp()
        self.home = self.dir / "home"
        self.home.mkdir()
        self.dir.chmod(0o755)
        if os.geteuid() == 0:
            os.chown(self.home, NOBODY, NOBODY)
        self.screen.env.update(HOME=str(self.home), PATH="/usr/bin:/bin:/usr/games",
                               XDG_CURRENT_DESKTOP="X-Generic")
        self.screen.run("xhost", "+local:")

    def pids(self):
        """The programs behind the windows of this screen: somebody else's game plays on."""
        return [int(self.screen.run("xdotool", "getwindowpid", window))
                for window in self.screen.windows("Tumble Deep.*")]

    def start_installed(self, *words):
        user = AS_USER if os.geteuid() == 0 else []
        self.first = subprocess.Popen([*INSIDE, "sh", "-c", LAY, self.tree, *user, *words],
                                      env=self.screen.env, stderr=subprocess.DEVNULL)
        self.screen.wait_for_focus()

    def settings(self):
        return (self.home / ".local/share/tumbledeep/Tumbledeep.ini").read_text()

    def test_it_plays_at_once_and_opens_a_map_by_a_double_click(self):
        if subprocess.run([*INSIDE, "sh", "-c", LAY, self.tree, "true"],
                          stderr=subprocess.DEVNULL, check=False).returncode:
            self.skipTest("this machine lets nobody lay one folder over another")
        self.start_installed("tumbledeep")
        for keys in (["Return"], ["Return"], ["2", "Return"]):  # title, move?, how?
            self.screen.answer(*keys)
        screen.wait_until("the player", self.spot)
        before = self.screen.pixels.shot().data
        self.screen.key("d")
        screen.wait_until("a step", lambda: self.screen.pixels.shot().data != before)
        self.assertIn("LOAD=First steps.TBM", self.settings())
        self.kill_games()

        maps = self.home / "maps"
        maps.mkdir()
        shutil.copy(self.tree / "usr/share/games/tumbledeep/Grapes.TBM", maps / "My map.TBM")
        self.start_installed("gio", "open", maps / "My map.TBM")
        self.screen.answer("Return")
        screen.wait_until("the player", self.spot)
        self.assertIn("LOAD=My map.TBM", self.settings())
        self.kill_games()
        written = {path.relative_to(self.home).as_posix() for path in self.home.rglob("*")
                   if path.is_file() and ".cache" not in path.parts}
        self.assertEqual({"maps/My map.TBM", ".local/share/tumbledeep/Tumbledeep.ini"}, written)

    def test_the_archive_keeps_all_beside_itself(self):
        run("tar", "-xf", self.archive, "-C", self.dir)
        folder = next(self.dir.glob("tumbledeep-*"))
        self.first = subprocess.Popen([folder / "tumbledeep"], env=self.screen.env)
        self.screen.answer("Return")
        self.assertIn("LOAD=First steps.TBM", (folder / "Tumbledeep.ini").read_text())
        self.screen.run("kill", *self.screen.run("pgrep", "-f", str(folder)).split())
        self.first.wait()
        self.assertFalse((self.home / ".local").exists())

    def test_validators_find_nothing(self):
        desktop = ROOT / "packaging/desktop"
        self.assertEqual("", run("desktop-file-validate", desktop / "tumbledeep.desktop"))
        # The game has no domain, which a name turned round would need.
        run("appstreamcli", "validate", "--no-net", "--override=cid-desktopapp-is-not-rdns=info",
            desktop / "tumbledeep.metainfo.xml")
        for page in (ROOT / "packaging/man").iterdir():
            warnings = subprocess.run(["man", "--warnings", "-EUTF-8", "-l", "-Tutf8", "-Z", page],
                                      stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, check=True)
            self.assertEqual(b"", warnings.stderr)
        self.assertEqual("", run("lintian", "--allow-root", "--fail-on=error,warning", self.deb))


if __name__ == "__main__":
    unittest.main()

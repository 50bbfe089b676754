"""A home, a display and items of its own for what is measured."""

import contextlib
import json
import os
import pathlib
import shutil
import subprocess
import tempfile

# Kinds of files that a user's list has.
ENDINGS = (".txt", ".pdf", ".png", ".odt", "", ".mp3", ".jpg", ".cpp", ".zip", ".csv")


class Place(contextlib.ExitStack):
    """A home of its own on the disk, a display nobody sees, and a session bus with nobody on it."""

    def __init__(self):
        super().__init__()
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="velmora-bench-"))
        self.callback(shutil.rmtree, self.home, ignore_errors=True)
        self.environment = {
            "PATH": os.environ["PATH"], "LANG": "C.UTF-8", "HOME": str(self.home),
            "XDG_SESSION_TYPE": "x11", "NO_AT_BRIDGE": "1", "GIO_USE_VFS": "local",
        }
        for name in ("CONFIG_HOME", "DATA_HOME", "CACHE_HOME", "STATE_HOME", "RUNTIME_DIR"):
            self.environment["XDG_" + name] = str(self.home / name)
            (self.home / name).mkdir(mode=0o700)
        display = self.start("Xvfb", "-displayfd", "1", "-screen", "0", "1600x1200x24", "-noreset",
                             "-nolisten", "tcp")
        self.environment["DISPLAY"] = ":" + display.stdout.readline().strip()
        bus = self.start("dbus-daemon", "--session", "--nofork", "--print-address=1")
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()

    def start(self, *command):
        """Starts a program that is ended with the place."""
        process = subprocess.Popen(command, env=self.environment, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.callback(end, process)
        return process

    def items(self, count, folder_size=1000):
        """Paths of that many files, made where they are missing, so many in one folder."""
        paths = []
        for number in range(count):
            folder = self.home / f"items-of-{folder_size}" / f"part-{number // folder_size:03}"
            if number % folder_size == 0:
                folder.mkdir(parents=True, exist_ok=True)
            # In no order that a sort could make use of.
            scattered = number * 7919 % 1_000_003
            paths.append(folder / f"Paper_{scattered:07}{ENDINGS[number % len(ENDINGS)]}")
            paths[-1].touch()
        return paths

    def store(self, paths, **entries):
        """Makes the paths the stored list."""
        records = [{"filePath": str(path), "fileTitle": path.name, "visible": "1"}
                   for path in paths]
        folder = pathlib.Path(self.environment["XDG_CONFIG_HOME"], "velmora")
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(mode=0o700)
        (folder / "defaults.json").write_text(json.dumps({"fileListView_List": records, **entries}))


def end(process):
    process.kill()
    process.wait()

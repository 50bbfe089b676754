"""A home, a display and items of its own for what is measured."""

import contextlib
import json
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile

# Kinds of files that a user's list has.
ENDINGS = (".txt", ".pdf", ".png", ".odt", "", ".mp3", ".jpg", ".cpp", ".zip", ".csv")
FOLDER_SIZE = 1000


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
        for name, folder in (("CONFIG", ".config"), ("DATA", ".local/share"), ("CACHE", ".cache"),
                             ("STATE", ".local/state"), ("RUNTIME", ".runtime")):
            path = self.home / folder
            path.mkdir(mode=0o700, parents=True)
            suffix = "DIR" if name == "RUNTIME" else "HOME"
            self.environment[f"XDG_{name}_{suffix}"] = str(path)
        read, write = os.pipe()
        self.start("Xvfb", "-displayfd", str(write), "-screen", "0", "1600x1200x24", "-noreset", "-nolisten",
                   "tcp", pass_fds=(write,))
        os.close(write)
        with os.fdopen(read) as answer:
            self.environment["DISPLAY"] = f":{answer.readline().strip()}"
        bus = self.start("dbus-daemon", "--session", "--nofork", "--print-address=1",
                         stdout=subprocess.PIPE, text=True)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()

    def start(self, *command, **options):
        """Starts a program that is ended with the place."""
        process = subprocess.Popen(command, env=self.environment, stdin=subprocess.DEVNULL,
                                   **{"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL,
                                      "start_new_session": True, **options})
        self.callback(end, process)
        return process

    def items(self, count, folder_size=FOLDER_SIZE):
        """Paths of that many files, made where they are missing, so many in one folder."""
        paths = []
        for number in range(count):
            folder = self.home / f"items-of-{folder_size}" / f"part-{number // folder_size:03}"
            if number % folder_size == 0:
                folder.mkdir(parents=True, exist_ok=True)
            # In no order that a sort could make use of.
            scattered = number * 7919 % 1_000_003
            path = folder / f"Paper_{scattered:07}{ENDINGS[number % len(ENDINGS)]}"
            paths.append(path)
            if not path.exists():
                path.touch()
        return paths

    def store(self, paths, **entries):
        """Makes the paths the stored list."""
        records = [{"filePath": str(path), "fileTitle": path.name, "visible": "1"}
                   for path in paths]
        folder = self.home / ".config" / "velmora"
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(mode=0o700)
        text = json.dumps({"fileListView_List": records, **entries})
        (folder / "defaults.json").write_text(text)


def end(process):
    with contextlib.suppress(ProcessLookupError):
        os.killpg(process.pid, signal.SIGTERM)
        try:
            process.wait(5)
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            process.wait()

"""A private desktop for one test file: a virtual display with a window manager and a session bus,
and drivers for the real programs on it. Nothing of the user's own session or home is touched."""
import contextlib, ctypes, functools, json, os, pathlib, shutil, signal, subprocess, sys, tempfile
import time, unittest

PROGRAM = pathlib.Path()  # the velmora under test, companions in ../libexec/velmora beside it
ROOM = pathlib.Path()     # every file of this run, removed at its end
BOUND = ["setpriv", "--pdeathsig", "KILL", "--"]  # what we start does not outlive us


def wait(question, what, timeout=20):
    """Asks until the answer is true, and returns it."""
    end = time.monotonic() + timeout
    while True:
        while GLib.MainContext.default().iteration(False):
            pass
        try:
            if answer := question():
                return answer
        except (GLib.Error, LookupError, OSError):  # what was looked at has just gone
            pass
        if time.monotonic() > end:
            raise AssertionError(f"not within {timeout} s: {what() if callable(what) else what}")
        time.sleep(0.02)


def xdotool(*words, check=True):
    return subprocess.run(["xdotool", *map(str, words)], check=check, capture_output=True,
                          text=True, timeout=60).stdout


def key(*keys):
    xdotool("key", "--delay", 5, *keys)


def type_text(text):
    xdotool("type", "--delay", 2, text)


def middle(node):
    box = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    return box.x + box.width // 2, box.y + box.height // 2


def click(node, *more):
    xdotool("mousemove", *middle(node), *more, "click", 1)


def drag(nodes, target):
    """Drags what the nodes show, with one gesture of the mouse."""
    if nodes[1:]:  # two presses in one place would be a double-click
        click(nodes[0])
    for node in nodes[1:]:
        xdotool("keydown", "ctrl", "mousemove", *middle(node), "click", 1, "keyup", "ctrl")
    (x, y), (tx, ty) = middle(nodes[0]), middle(target)
    xdotool("mousemove", x, y, "mousedown", 1)
    for step in range(1, 19):  # a drag goes through many small moves, each answered by the target
        xdotool("mousemove", x + (tx - x) * min(step, 12) // 12 + step % 2,
                y + (ty - y) * min(step, 12) // 12)
    xdotool("mouseup", 1)


def has(node, *states):
    found = node.getState()
    return all(found.contains(getattr(pyatspi, f"STATE_{state}")) for state in states)


def walk(node):
    """A control with all that shows in it."""
    yield node
    for child in node:
        if child is not None and has(child, "SHOWING"):
            yield from walk(child)


def heard(*kinds):
    """What assistive technology is told from now on: kinds with names, and values or texts."""
    events = []

    def hear(event):
        name = event.source.name if event.source else None
        text = "text-changed" in event.type and event.any_data
        kind = f"{event.type}".rstrip(":").split(":")[-1]
        events.append((kind, name, text or event.detail1))
    pyatspi.Registry.registerEventListener(hear, *kinds)
    return events


def act(node, name):
    """What assistive technology does in place of a press."""
    action = node.queryAction()
    action.doAction([action.getName(index) for index in range(action.nActions)].index(name))


def copied(program, folder):
    """The program with its companions, in another folder."""
    shutil.copytree(program.parent.parent / "libexec/velmora", f"{folder}/libexec/velmora")
    (pathlib.Path(folder) / "bin").mkdir()
    return pathlib.Path(shutil.copy2(program, f"{folder}/bin"))


class Home:
    """The folders and the environment of one user."""

    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(dir=ROOM))
        self.files, self.bin = self.folder / "files", self.folder / "bin"
        for name in "files", "bin", "config", "data", "cache", "state", "run", "tmp":
            (self.folder / name).mkdir(mode=0o700)
        self.environment = {
            **os.environ, "HOME": str(self.folder), "PATH": f"{self.bin}:{os.environ['PATH']}",
            "TMPDIR": str(self.folder / "tmp"), "XDG_RUNTIME_DIR": str(self.folder / "run"),
            **{f"XDG_{name.upper()}_HOME": str(self.folder / name)
               for name in ("config", "data", "cache", "state")}}
        self.recorded = self.folder / "recorded"
        self.store = self.folder / "config/velmora/defaults.json"

    def make(self, *names):
        """Makes files, and folders where the name ends in a slash."""
        made = [self.files / name for name in names]
        for path, name in zip(made, names):
            path.mkdir() if name.endswith("/") else path.write_bytes(b"x" * 8192)
        return [str(path) for path in made]

    def seed(self, *paths, visible="1", **keys):
        """Stores a list of these paths, and other keys."""
        self.store.parent.mkdir(mode=0o700, exist_ok=True)
        self.store.write_text(json.dumps({"fileListView_List": [
            {"filePath": path, "fileTitle": os.path.basename(path), "visible": visible}
            for path in paths], **keys}))

    def recorder(self, *commands, folder=None, then="true"):
        """Puts commands in place that note how they were called before they do `then`."""
        for command in commands:
            script = (folder or self.bin) / command
            script.unlink(missing_ok=True)
            script.write_text("#!/bin/sh\n{ printf '%s' \"${0##*/}\"; printf '|%s' \"$@\"; echo; }"
                              f" >>'{self.recorded}'\n{then}\n")
            script.chmod(0o755)

    def recording_program(self, *commands, then="true"):
        """A copy of the program with recording companions."""
        program = copied(PROGRAM, tempfile.mkdtemp(dir=self.folder))
        companions = program.parent.parent / "libexec/velmora"
        self.recorder(*commands, folder=companions, then=then)
        return program

    def records(self):
        return self.recorded.read_text().splitlines() if self.recorded.exists() else []

    def hidden(self, path):
        """What the desktop's own file library says."""
        said = subprocess.run(["gio", "info", "-a", "standard::is-hidden", path], check=True,
                              env=self.environment, capture_output=True, text=True).stdout
        return "standard::is-hidden: TRUE" in said


class Application:
    """A running program, seen and moved through its windows alone."""

    def __init__(self, home, *command):
        self.home = home
        self.log_file = home.folder / f"{pathlib.Path(command[0]).name}.log"
        with open(self.log_file, "ab") as log:
            self.process = subprocess.Popen([*BOUND, *command], env=home.environment, stderr=log,
                                            cwd=home.files, stdin=subprocess.DEVNULL, stdout=log)
        self.tree = wait(self._tree, f"{command[0]} is on the desktop")

    def _tree(self):
        assert self.process.poll() is None, f"ended with {self.process.returncode}: {self.log()}"
        for application in pyatspi.Registry.getDesktop(0):
            if application is not None and application.get_process_id() == self.process.pid \
                    and application.childCount:
                return application

    def log(self):
        return self.log_file.read_text(errors="replace")

    def shown(self, name, *roles):
        """The showing controls of this name, those of the front window first."""
        windows = sorted(self.tree, key=lambda window: not has(window, "ACTIVE"))
        return [node for window in windows for node in walk(window)
                if node.name == name and (not roles or node.getRoleName() in roles)]

    def find(self, name, *roles):
        return wait(lambda: self.shown(name, *roles), f"“{name}” shows")[0]

    def press(self, name, *roles):
        click(self.find(name, *roles))

    def window(self):
        """The identifiers of its windows on the screen."""
        return xdotool("search", "--onlyvisible", "--pid", self.process.pid, check=False).split()

    def place(self, x, y, width, height):
        window = wait(self.window, "the window is on the screen")[0]
        xdotool("windowsize", window, width, height, "windowmove", window, x, y)
        wait(lambda: abs(self.tree[0].queryComponent().getExtents(0).x - x) < 20,
             f"the window is at {x}")

    def ended(self):
        """Waits for the program to end by itself; its exit status."""
        wait(lambda: self.process.poll() is not None, "the program ends")
        return self.process.returncode

    def stop(self):
        if self.process.poll() is None:
            self.process.terminate()
        return self.ended()


class Velmora(Application):
    """The program under test."""

    def __init__(self, home, program=None):
        super().__init__(home, str(program or PROGRAM))
        self.items = wait(lambda: [node for window in self.tree for node in walk(window)
                                   if node.getRoleName() == "list"], "the list shows")[0]
        # On a locked start it may be the dialog's by now; without a keyboard no window has it.
        wait(lambda: "DISPLAY" not in home.environment or
             any(has(window, "ACTIVE") for window in self.tree), "it has the focus")

    def store(self):
        return json.loads(self.home.store.read_text()) if self.home.store.exists() else {}

    def stored(self):
        """The stored list as pairs of title and visibility."""
        return [(record["fileTitle"], record["visible"])
                for record in self.store().get("fileListView_List", [])]

    def row_nodes(self):
        return [row for row in self.items if row.getRoleName() == "list item"]

    def rows(self):
        return [row.name for row in self.row_nodes()]

    def row(self, title):
        return wait(lambda: [row for row in self.row_nodes() if row.name.startswith(f"{title}, ")],
                    f"the row of {title}")[0]

    def current(self):
        return [row.name for row in self.row_nodes() if has(row, "SELECTED")]

    def pane(self):
        """The information pane: its captions with their values."""
        texts = [node.name for node in walk(self.tree[0]) if node.getRoleName() == "label"]
        return {text: texts[index + 1] for index, text in enumerate(texts) if text.endswith(":")}

    def checked(self, name):
        return has(self.find(name, "check box"), "CHECKED")

    def says(self, text):
        """Waits for a text that holds this one."""
        wait(lambda: any(text in node.name for window in self.tree for node in walk(window)),
             f"“{text}” is told")

    def menu(self, title, choose=None):
        """Opens a menu and chooses a command, or else returns the titles with whether they can be
        chosen, those with a check mark under "checked"."""
        menu = self.find(title, "menu item")
        click(menu)
        items = wait(lambda: [item for item in walk(menu) if item.name and item != menu],
                     f"the menu {title} opens")
        if choose:
            click(next(item for item in items if item.name == choose))
            return None
        offered = {item.name: has(item, "ENABLED") for item in items}
        offered["checked"] = [item.name for item in items if has(item, "CHECKED")]
        key("Escape", "Escape")
        return offered


class Story(unittest.TestCase):
    """A test with a home of its own. When it fails, what the screen and the logs held is kept."""

    def __init__(self, name):
        super().__init__(name)
        setattr(self, name, functools.partial(self.keeping, name, getattr(self, name)))

    def keeping(self, name, test):
        try:
            test()
        except BaseException:
            kept = tempfile.mkdtemp(prefix=f"velmora-failure-{name}-", dir="/tmp")
            subprocess.run(["import", "-window", "root", f"{kept}/screen.png"], check=False)
            for log in self.home.folder.glob("*.log"):
                shutil.copy(log, kept)
            print(f"\n{name} failed: see {kept}", file=sys.stderr)
            raise

    def setUp(self):
        self.home = Home()

    def start(self, program=None):
        velmora = Velmora(self.home, program)
        self.addCleanup(lambda: self.assertEqual(velmora.stop(), 0, velmora.log()))
        return velmora

    def browse(self, folder):
        manager = Application(self.home, "pcmanfm-qt", str(folder))
        self.addCleanup(manager.stop)
        return manager

    def eventually(self, question, expected):
        """Waits for an answer, and shows the last one when it never comes."""
        last = []

        def asked():
            last[:] = [question()]
            return last[0] == expected
        wait(asked, lambda: f"expected {expected!r}, last seen {last}")

    def quit(self, velmora, *by):
        key(*by or ["alt+F4"])
        self.assertEqual(velmora.ended(), 0, velmora.log())


def _end_all():
    """Ends all that this process started; what loses its parent by that becomes our own child."""
    children = pathlib.Path(f"/proc/self/task/{os.getpid()}/children")
    while pids := children.read_text().split():
        for pid in map(int, pids):
            os.kill(pid, signal.SIGKILL)
            os.waitpid(pid, 0)


def _run_as_nobody(program):
    """Runs the calling file again as an ordinary user, from where that one may read."""
    with tempfile.TemporaryDirectory(dir="/tmp") as copy:
        os.chmod(copy, 0o755)
        program = copied(program, copy)
        tests = shutil.copytree(pathlib.Path(sys.argv[0]).parent, f"{copy}/tests")
        user = "--reuid=nobody", "--regid=nogroup", "--clear-groups"
        return subprocess.call(["setpriv", *user, *BOUND[1:], sys.executable, "-B",
                                f"{tests}/{pathlib.Path(sys.argv[0]).name}",
                                program, *sys.argv[1:]], cwd="/")


@contextlib.contextmanager
def session(program, screen="1400x900"):
    """The private desktop, for the program that is to be driven on it."""
    global PROGRAM, ROOM, GLib, pyatspi
    PROGRAM = pathlib.Path(program).resolve()
    ctypes.CDLL(None).prctl(36, 1)  # orphans of what we start become our children
    ROOM = pathlib.Path(tempfile.mkdtemp(prefix="velmora-end-to-end-", dir="/tmp"))
    try:
        os.environ.update(LC_ALL="C.UTF-8", GSETTINGS_BACKEND="keyfile", QT_QPA_PLATFORM="xcb",
                          QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", NO_AT_BRIDGE="0",
                          XDG_CURRENT_DESKTOP="X-Test")
        os.environ.update(Home().environment)
        reading, writing = os.pipe()
        subprocess.Popen([*BOUND, "Xvfb", "-displayfd", str(writing), "-ac", "-nolisten", "tcp",
                          "-screen", "0", f"{screen}x24"], pass_fds=[writing],
                         stderr=subprocess.DEVNULL)
        os.close(writing)
        os.environ["DISPLAY"] = ":" + os.fdopen(reading).readline().strip()
        bus = subprocess.Popen([*BOUND, "dbus-daemon", "--session", "--nofork", "--print-address"],
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        managers = []

        def managed():  # one that starts beside others' displays was seen to give up
            if not managers or managers[-1].poll() is not None:
                managers.append(subprocess.Popen([*BOUND, "openbox"], stdout=subprocess.DEVNULL,
                                                 stderr=subprocess.DEVNULL))
            return b"window id" in subprocess.run(
                ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True).stdout
        managed()
        from gi.repository import GLib  # these two connect to the bus that they find
        import pyatspi
        pyatspi.Registry.getDesktop(0).set_cache_mask(pyatspi.Atspi.Cache.NONE)
        wait(managed, "a window manager runs")
        yield
    finally:
        _end_all()
        shutil.rmtree(ROOM, ignore_errors=True)


def main(ordinary_user=False):
    """Runs the tests of the calling file: FILE PROGRAM [unittest arguments]"""
    program = pathlib.Path(sys.argv.pop(1)).resolve()
    if ordinary_user and os.geteuid() == 0:  # whom no permission is refused
        sys.exit(_run_as_nobody(program))
    with session(program):
        tests = unittest.main(module="__main__", exit=False, verbosity=2, warnings="ignore")
    sys.exit(not tests.result.wasSuccessful())

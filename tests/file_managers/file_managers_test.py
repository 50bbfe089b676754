#!/usr/bin/python3
"""The real program beside each real file manager: does its open window agree after a press?

Usage: file_managers_test.py PROGRAM FileManagers.test_NAME

With VELMORA_TABLE=FILE in the environment, what was seen is written into the table of that
document, in the row of this manager and release. Ends with status 77 where the manager is missing.
"""
import contextlib, os, pathlib, platform, re, shutil, subprocess, sys, time, typing

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "end_to_end"))
import desktop
from desktop import Application, Story, act, click, has, wait, xdotool

PAIR = "com.apple.finder", "AppleShowAllFiles"
ITEM, REVEALED, OTHER, DOT = "velmora.txt", "velmora 100% ümlaut.txt", "velmora other", ".velmora"
MEMORY = 15  # seconds: for so long file managers remember what is hidden in a folder
PATIENCE = 20
BEGIN, END = "<!-- seen: begin -->\n", "<!-- seen: end -->\n"


def setting(schema, key):
    return lambda home: subprocess.run(["gsettings", "set", schema, key, "true"], check=True)


def file(name, text):
    def write(home):
        path = home.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
    return write


def thunar(home):
    # Its icon view tells assistive technology nothing of its items, its list view does.
    for name, kind, value in (("last-view", "string", "ThunarDetailsView"),
                              ("last-show-hidden", "bool", "true")):
        subprocess.run(["xfconf-query", "-c", "thunar", "-p", f"/{name}", "-n", "-t", kind,
                        "-s", value], check=True)


class Manager(typing.NamedTuple):
    """What is to be seen with one file manager."""
    name: str
    show_all: typing.Callable
    reveal: str            # "selected", or "listed" where it does not tell what is selected
    windows: bool = True   # whether it knows hidden items and its windows can be reached
    program = property(lambda self: self.name.lower())


MANAGERS = {manager.program.replace("-", "_"): manager for manager in (
    Manager("PCManFM-Qt", file("config/pcmanfm-qt/default/settings.conf",
                               "[FolderView]\nMode=icon\nShowHidden=true\n"), "selected"),
    Manager("Thunar", thunar, "selected"),
    Manager("Nautilus", setting("org.gtk.gtk4.Settings.FileChooser", "show-hidden"), "listed"),
    Manager("Nemo", setting("org.nemo.preferences", "show-hidden-files"), "listed"),
    Manager("Caja", setting("org.mate.caja.preferences", "show-hidden-files"), "listed"),
    Manager("Dolphin", file("data/dolphin/view_properties/global/.directory",
                            "[Dolphin]\nVersion=4\n\n[Settings]\nHiddenFilesShown=true\n"),
            "selected"),
    Manager("PCManFM", file("config/pcmanfm/default/pcmanfm.conf",
                            "[ui]\nview_mode=list\nshow_hidden=1\n"), None, windows=False))}


class Browser(Application):
    """A running file manager."""

    def listed(self):
        """What its windows list, by name, and whether that is selected. Not every toolkit tells
        what shows, so all of it is looked at."""
        found = {}

        def look(node, depth=0):
            if node.getRoleName() in ("menu bar", "tool bar") or depth > 25:
                return
            name = node.name.split("\n")[0].strip()
            if "velmora" in name and node.getRoleName() not in ("frame", "page tab", "label"):
                found[name] = found.get(name, False) or has(node, "SELECTED")
            for child in node:
                if child is not None:
                    look(child, depth + 1)
        for program in desktop.pyatspi.Registry.getDesktop(0):
            with contextlib.suppress(desktop.GLib.Error, LookupError):  # changes as it is walked
                if program.name == self.tree.name:  # it may have started another of its kind
                    look(program)
        return found

    def until(self, limit, **listed):
        """Waits until it lists these (True) or not (False), and goes on so: a window that reads
        its folder anew is empty for a moment. The time when it began to."""
        names = {"item": ITEM, "dot": DOT}
        wanted = {names[name]: there for name, there in listed.items()} | {OTHER: True}

        def agrees():
            now = self.listed()
            return all((name in now) == there for name, there in wanted.items())
        end = time.monotonic() + limit
        while True:
            wait(agrees, lambda: f"{wanted}; it lists {self.listed()}", end - time.monotonic())
            since = time.monotonic()
            while agrees():
                if time.monotonic() > since + 0.5:
                    return since

    def quit(self):
        """As a user would: it gets to write what it writes at its end."""
        xdotool("windowactivate", "--sync", self.window()[-1], "key", "alt+F4")
        with contextlib.suppress(AssertionError):
            wait(lambda: self.process.poll() is not None, "the manager ends", 2)
        self.stop()


class FileManagers(Story):
    def open(self, manager):
        home = self.home
        # Without this cache, the accessibility library can wait for itself when a GTK 3 program
        # announces what is new in it.
        desktop.pyatspi.Registry.getDesktop(0).set_cache_mask(desktop.pyatspi.Atspi.Cache.STATES)
        if manager.program == "pcmanfm":  # GTK 2
            home.environment["GTK_MODULES"] = "gail:atk-bridge"
        for last in False, True:  # Nautilus 43 was seen to load its first folder without end
            browser = Browser(home, manager.program, str(home.folder / "velmora-sample"))
            self.addCleanup(browser.process.kill)
            try:
                wait(lambda: OTHER in browser.listed(), "the folder is listed", 15)
                break
            except AssertionError:
                if last:
                    raise
                browser.stop()
        browser.place(0, 30, 640, 500)
        return browser

    def read_setting(self):
        return subprocess.run([desktop.PROGRAM.parent.parent / "libexec/velmora/defaults", "read",
                               *PAIR], env=self.home.environment, capture_output=True,
                              text=True).stdout.strip()

    def press(self, shown):
        """The time of the press."""
        switch = self.velmora.find("Visible", "check box")
        start = time.monotonic()
        click(switch)
        self.eventually(lambda: self.velmora.checked("Visible"), shown)
        return start

    def note(self, manager):
        cells = self.see(manager)
        write_row(manager, cells)
        print(manager.name, *cells, sep=" | ")

    def setUp(self):
        super().setUp()
        os.environ.update({name: value for name, value in self.home.environment.items()
                           if name.startswith("XDG_") or name == "HOME"})
        subprocess.run(["dbus-update-activation-environment", "--all"], check=True)

    def see(self, manager):
        """The cells of the row: opening, hide, show, reset, reveal."""
        home = self.home
        folder, aside = home.folder / "velmora-sample", home.folder / "aside"
        for path in folder / ITEM, folder / OTHER, folder / DOT, aside / REVEALED:
            path.parent.mkdir(exist_ok=True)
            path.touch()
        home.seed(str(folder / ITEM), str(aside / REVEALED))
        self.velmora = self.start()
        self.velmora.place(700, 30, 680, 500)
        self.velmora.tree.set_cache_mask(desktop.pyatspi.Atspi.Cache.NONE)
        self.press(shown=False)
        if not manager.windows:
            file("config/pcmanfm/default/pcmanfm.conf", "[ui]\nview_mode=list\n")(home)
            browser = self.open(manager)
            browser.until(5, item=True, dot=False)
            browser.quit()
        # Nautilus 43 follows the setting when it changes and not when it starts.
        late = manager.program == "nautilus"
        if not late:
            manager.show_all(home)
        browser = self.open(manager)
        if late:
            manager.show_all(home)
        browser.until(5, item=True, dot=True)
        self.assertEqual(self.read_setting(), "YES")

        start = self.press(shown=True)  # turns the show-all setting off as well
        self.eventually(self.read_setting, "NO")
        if not manager.windows:
            browser.until(5, dot=True)
            browser.quit()
            self.assertEqual(self.read_setting(), "YES")
            return "no", "no", "no", "setting, which its open windows write back", "no"
        reset = browser.until(5, dot=False) - start
        # The window has just read its folder, and remembers that the item was hidden.
        show = browser.until(PATIENCE, item=True, dot=False) - start
        time.sleep(MEMORY)  # the passing of time itself
        start = self.press(shown=False)
        hide = browser.until(5, item=False, dot=False) - start  # by the first telling
        reveal = self.reveal(manager, browser)
        time.sleep(MEMORY)  # for as long as it is told again
        browser.until(1, item=False, dot=False)
        self.assertEqual(self.read_setting(), "NO")
        browser.quit()
        self.assertEqual(self.read_setting(), "NO")
        self.open(manager).until(5, item=False, dot=False)
        return ("yes", f"{hide:.1f} s", f"{show:.1f} s",
                f"setting and open windows, {reset:.1f} s", reveal)

    def reveal(self, manager, browser):
        act(self.velmora.row(REVEALED), "Reveal")
        wait(lambda: REVEALED in browser.listed(), "the folder of the item opens")
        if manager.reveal == "selected":
            wait(lambda: browser.listed().get(REVEALED), "the item is selected")
        return manager.reveal


def write_row(manager, cells):
    """Puts the row into the table in place of the one of the same manager and release."""
    if "VELMORA_TABLE" not in os.environ:
        return
    document = pathlib.Path(os.environ["VELMORA_TABLE"])
    release = platform.freedesktop_os_release()
    system = f"{release['NAME'].split()[0]} {release['VERSION_ID']}"
    version = subprocess.run(["dpkg-query", "-W", "-f", "${Version}", manager.program], check=True,
                             capture_output=True, text=True).stdout
    version = re.search(r"[\d.]*\d", version.split(":")[-1])[0]
    before, rest = document.read_text().split(BEGIN)
    head, line, *rows = rest.split(END)[0].splitlines()
    rows = [row for row in rows if not row.startswith(f"| {manager.name} | {system} ")]
    rows.append(f"| {manager.name} | {system} | " + " | ".join([version, *cells]) + " |")
    text = "\n".join([head, line, *sorted(rows, key=str.lower)]) + "\n"
    document.write_text(before + BEGIN + text + END + rest.split(END)[1])


for name, manager in MANAGERS.items():
    setattr(FileManagers, f"test_{name}", lambda self, manager=manager: self.note(manager))


if __name__ == "__main__":
    wanted = sys.argv[-1].removeprefix("FileManagers.test_")
    if wanted in MANAGERS and shutil.which(MANAGERS[wanted].program) is None:
        print(f"{MANAGERS[wanted].name} is not installed")
        sys.exit(77)
    desktop.main()

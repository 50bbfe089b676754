#!/usr/bin/python3
"""The entry of Velmora in the context menu of each real file manager, chosen there.

Usage: context_menus_test.py PROGRAM ContextMenus.test_NAME
Ends with status 77 where the manager, or the package that shows its entry, is missing.
"""
import contextlib, json, pathlib, shutil, subprocess, sys

from file_managers_test import ITEM, MANAGERS, OTHER, PATIENCE, FileManagers, desktop, file
from desktop import has, key, wait, xdotool

MENUS = pathlib.Path(__file__).resolve().parents[2] / "packaging/menus"
ENTRY = "Hide with Velmora"
# What is pressed in the menu. Where that does not tell assistive technology its place, keys choose.
WAYS = {"thunar": ["Send To", ENTRY], "caja": ["Caja-Actions actions", ENTRY], "nemo": [ENTRY],
        "pcmanfm": [ENTRY]}
SHOWN_BY = {"nautilus": "python3-nautilus", "caja": "caja-actions", "pcmanfm": "libfm-modules"}


def is_ours(entry):
    """GTK 4.18 gives no entry a name: there, ours is the one alone in its part, without a key."""
    return entry.getRoleName() == "menu item" and (
        entry.name == ENTRY or (not entry.name and entry.parent.childCount == 1 and
                                "keyshortcuts:" in entry.getAttributes()))


class ContextMenus(FileManagers):
    nameless = False

    def lists(self, names, there=True):
        wait(lambda: all((name in self.browser.listed()) == there for name in names),
             lambda: f"{names}: {there}; it lists {self.browser.listed()}", PATIENCE)

    def select(self, items):
        """All that the window lists. While it reads its folder anew that may be less than these."""
        xdotool("mousemove", 560, 430, "click", 1)  # free ground, below the items
        key("Home", "ctrl+a")
        listed = self.browser.listed()
        return all(listed.get(item) for item in items)

    def choose(self, way):
        key("Menu")
        for name in way:
            self.browser.press(name, "menu", "menu item")
        for _ in range(0 if way else 40):
            self.focused.clear()
            key("Down")
            with contextlib.suppress(AssertionError):  # some are passed over in silence
                entry = wait(lambda: [node for node in self.focused if has(node, "FOCUSED")],
                             "an entry", timeout=1)[-1]
                self.nameless = not entry.name
                if is_ours(entry):
                    return key("Return")
        self.assertTrue(way, f"“{ENTRY}” is not among the entries")

    def hide(self, name, items, status=0):
        """Chooses the entry once these are listed; the calls of the program, with what it said."""
        self.lists(items)
        before = len(self.home.records())

        def ended():
            new = self.home.records()[before:]
            calls = [line for line in new if line.startswith("velmora|--hide|--|")]
            return calls and new.count(f"ended {status}") == len(calls) and new
        for left in range(3, -1, -1):  # a window that reads its folder anew can close its menu
            if self.nameless:  # a key that comes when the menu has closed would open the items
                wait(lambda: subprocess.run(["pgrep", "-f", "libexec/velmora/refresh"],
                                            stdout=subprocess.DEVNULL).returncode,
                     "the windows are told no more", 60)
            if name in ("nautilus", "dolphin", "pcmanfm_qt"):  # which do not tell it each time
                self.select(items)
            else:
                wait(lambda: self.select(items), lambda: f"{items} are selected")
            try:
                self.choose(WAYS.get(name, ()))
                wait(lambda: self.home.records()[before:], "it is called", 5)
                break
            except AssertionError:
                if not left:
                    raise
                key("Escape", "Escape")
        return wait(ended, lambda: f"ended {status}: {self.home.records()[before:]}")

    def hidden(self, items):
        """Each of them is hidden, and listed once; nothing else is listed, but for the file of
        their names where that was shown and so chosen with them."""
        paths = sorted(str(self.folder / item) for item in items)
        records = json.loads(self.home.store.read_text())["fileListView_List"]
        listed = sorted(record["filePath"] for record in records)
        self.assertEqual([path for path in listed if not path.endswith("/.hidden")], paths)
        self.assertTrue(all(map(self.home.hidden, paths)))

    def hide_all(self, name, manager):
        home, chosen = self.home, []
        self.focused, self.folder = [], home.folder / "velmora-sample"
        desktop.pyatspi.Registry.registerEventListener(
            lambda event: self.focused.extend([event.source][:event.detail1]),
            "object:state-changed:focused")
        shutil.copytree(MENUS, home.folder / "data", dirs_exist_ok=True)
        home.recorder("velmora", then=f"exec >>'{home.recorded}' 2>&1\n"
                                      f"'{desktop.PROGRAM}' \"$@\"; echo ended $?")
        if name == "thunar":
            manager.show_all(home)
        file("config/pcmanfm/default/pcmanfm.conf", "[ui]\nview_mode=list\n")(home)
        (self.folder / OTHER).mkdir(parents=True)
        self.browser = self.open(manager)
        for items in [OTHER], ['velmora "50%" & $HOME'], ["velmora 1", "velmora 2"]:
            [(self.folder / item).touch() for item in items if item != OTHER]
            self.assertEqual(len(self.hide(name, items)), 2)  # one call, which says nothing
            chosen += items
            self.hidden(chosen)
            self.lists(items, there=not manager.windows)
        if manager.windows:  # a second time, and with them the file of their names
            if name in ("nautilus", "caja"):
                manager.show_all(home)
            else:
                key("alt+period" if name == "dolphin" else "ctrl+h")
            self.hide(name, chosen)
            self.hidden(chosen)
            if name not in ("pcmanfm_qt", "thunar"):  # which may keep that setting to themselves
                self.lists(chosen, there=False)
        home.seed(*chosen, password="secret", requirePassword="1")
        (self.folder / ITEM).touch()
        said = self.hide(name, [ITEM], status=1)
        self.assertEqual(len(said), 3 * sum(line.startswith("velmora|") for line in said), said)
        self.assertNotIn(ITEM, home.store.read_text())
        self.assertFalse(home.hidden(self.folder / ITEM))


for name, manager in MANAGERS.items():
    setattr(ContextMenus, f"test_{name}",
            lambda self, name=name, manager=manager: self.hide_all(name, manager))


if __name__ == "__main__":
    name = sys.argv[-1].removeprefix("ContextMenus.test_")
    shown_by = [MANAGERS[name].program, SHOWN_BY.get(name, "dpkg")]
    if subprocess.run(["dpkg-query", "--show", "--showformat=${db:Status-Status} ", *shown_by],
                      capture_output=True, text=True).stdout.split() != ["installed"] * 2:
        print(*shown_by, "are not both installed")
        sys.exit(77)
    desktop.main()

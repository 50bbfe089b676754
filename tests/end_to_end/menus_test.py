"""Every command of the menus and the keys, and what it does."""
from pathlib import Path
import subprocess

import desktop
from desktop import Story, act, click, has, key, middle, wait, walk, xdotool


class Menus(Story):
    ITEM = "Open", "Reveal in File Manager", "Remove"

    def offered(self, velmora):
        return {title: able for title, able in velmora.menu("File").items()
                if title not in ("Add…", "Close", "checked")}

    def test_the_item_commands_follow_the_selection(self):
        self.home.recorder("xdg-open")
        velmora = self.start()
        self.assertEqual(self.offered(velmora), dict.fromkeys(("Hide", *self.ITEM), False))
        self.quit(velmora)
        self.home.seed(*self.home.make("a", "b"))
        velmora = self.start()
        velmora.menu("File", "Hide")
        self.eventually(velmora.rows, ["a, Hidden", "b, Visible"])
        hidden = {"Show": True, **dict.fromkeys(self.ITEM, False)}
        visible = dict.fromkeys(("Hide", *self.ITEM), True)
        self.assertEqual(self.offered(velmora), hidden)
        key("ctrl+Return", "ctrl+r", "Delete")
        click(velmora.row("b"))
        self.eventually(velmora.current, ["b, Visible"])
        self.assertEqual(self.offered(velmora), visible)
        click(velmora.row("a"))
        self.eventually(velmora.current, ["a, Hidden"])
        self.assertEqual(self.offered(velmora), hidden)
        velmora.menu("File", "Show")
        self.eventually(velmora.rows, ["a, Visible", "b, Visible"])
        self.assertEqual(self.offered(velmora), visible)
        for left in ["b, Visible"], []:
            velmora.menu("File", "Remove")
            self.eventually(velmora.rows, left)
        self.assertEqual(velmora.pane()["Where:"], str(self.home.files / "b"))
        # The pane keeps the removed item; no command and no key reaches beyond the list.
        self.assertEqual(self.offered(velmora), {**visible, **dict.fromkeys(self.ITEM, False)})
        key("ctrl+Return", "ctrl+r", "Delete", "ctrl+h", "Down", "End")
        self.eventually(velmora.stored, [])
        velmora.menu("File", "Hide")
        self.assertEqual(self.home.records(), [])
        self.quit(velmora)

    def test_item_commands(self):
        self.home.recorder("xdg-open")
        _, file, _, folder = self.home.make("x/", "x/a b#", "y/", "y/folder/")
        self.home.seed(file, folder)
        manager = self.browse(self.home.files)
        manager.place(700, 30, 600, 300)
        velmora = self.start()
        velmora.place(0, 30, 600, 500)
        velmora.menu("File", "Open")
        uris = [f"xdg-open|{Path(path).as_uri()}" for path in (file, folder)]
        self.eventually(self.home.records, uris[:1])
        velmora.menu("File", "Reveal in File Manager")
        wait(lambda: has(manager.find("a b#"), "SELECTED"), "the file is revealed")
        xdotool("mousemove", *middle(velmora.row("folder")))
        velmora.press("Reveal folder")
        wait(lambda: has(manager.find("folder"), "SELECTED"), "the folder is revealed")
        self.assertIn(f"search:{folder}\n", velmora.log())
        click(velmora.row("folder"))
        self.eventually(velmora.current, ["folder, Visible"])
        key("ctrl+Return")
        self.eventually(self.home.records, uris)

        velmora.menu("File", "Close")
        velmora.menu("View", "Show Item Info")
        self.eventually(velmora.pane, {})
        self.assertEqual(velmora.menu("View")["checked"], [])
        velmora.press("Show item Info")
        self.eventually(lambda: velmora.pane().get("Where:"), folder)
        velmora.menu("View", "Show Item Info")
        self.eventually(velmora.pane, {})
        self.assertEqual(velmora.menu("View")["checked"], ["Show Item Info"])

    def test_window_and_application_commands(self):
        self.home.recorder("xdg-open")
        velmora = self.start()
        velmora.place(300, 200, 800, 500)
        zoomed = lambda: velmora.tree[0].queryComponent().getExtents(0).width > 1300
        velmora.menu("Window", "Zoom")
        self.eventually(zoomed, True)
        velmora.menu("Window", "Zoom")
        self.eventually(zoomed, False)
        velmora.menu("Window", "Bring All to Front")
        self.assertFalse(any(velmora.menu("Edit").values()))  # no text field has the focus

        for command, text in ("Acknowledgments", "Qt"), ("License Agreement", "Permission"):
            velmora.menu("Help", command)
            document = [node.queryText().getText(0, -1) for node in
                        walk(velmora.find(command, "dialog")) if node.getRoleName() == "label"]
            self.assertIn(text, document[0])
            velmora.press("Close", "push button", "button")
            self.eventually(lambda: len(velmora.shown(command, "dialog")), 0)
        velmora.menu("Velmora", "About Velmora")
        velmora.find("Version 1.5.0")
        key("Escape")
        self.eventually(lambda: velmora.shown("Version 1.5.0"), [])
        velmora.menu("Velmora", "Check for Updates…")
        velmora.find("You're up-to-date.")
        velmora.find("Velmora v1.5 is currently the newest version available.")
        velmora.press("OK")
        velmora.menu("Help", "Velmora Help")
        wait(self.home.records, "the help page opens")
        self.assertRegex(self.home.records()[0], "^xdg-open.https://.*how-to")
        velmora.menu("Window", "Minimize")
        wait(lambda: not velmora.window(), "the window is minimised")
        # A second start brings the first one's window back.
        subprocess.run([desktop.PROGRAM], env=self.home.environment, check=True, timeout=20)
        wait(velmora.window, "the window is back")

    def test_add(self):
        a, b = self.home.make("a", "b")
        self.home.seed(a, b)
        velmora = self.start()
        velmora.menu("File", "Add…")
        name = velmora.find("File name:", "text")
        for keys, text in (("z", "z"), ("ctrl+a ctrl+c End ctrl+v", "zz"), ("ctrl+z", "z"),
                           ("ctrl+y ctrl+a ctrl+x", "")):
            key(*keys.split())
            self.eventually(lambda: name.queryText().getText(0, -1), text)
        click(velmora.find("a", "table cell"))
        xdotool("keydown", "ctrl", "mousemove", *middle(velmora.find("b", "table cell")),
                "click", 1, "keyup", "ctrl")
        velmora.press("OK")
        self.eventually(velmora.stored, [("a", "1"), ("b", "1"), ("a", 1), ("b", 1)])
        self.assertEqual(velmora.rows(), ["a, Visible", "b, Visible"] * 2)
        self.assertEqual([has(row, "SELECTED") for row in velmora.row_nodes()],
                         [False, False, False, True])
        self.assertIn(f"selectPaths:({a}, {b})\n", velmora.log())
        key("Home")
        self.eventually(lambda: has(velmora.row_nodes()[0], "SELECTED"), True)
        velmora.press("Add")
        velmora.find("select a file")
        key("Escape")
        self.eventually(lambda: has(velmora.row_nodes()[3], "SELECTED"), True)
        self.assertIn("selectPaths:(null)\n", velmora.log())

    def test_keys(self):
        self.home.seed(*self.home.make("alpha", "beta", "gamma"))
        velmora = self.start()
        for keys, title in (("End", "gamma"), ("Up", "beta"), ("Home", "alpha"), ("Down", "beta"),
                            ("g", "gamma"), ("Up", "beta")):
            key(keys)
            self.eventually(velmora.current, [f"{title}, Visible"])
        switch = velmora.find("Visible", "check box")
        wait(lambda: has(switch, "FOCUSED") or key("Tab"), "the switch has the focus")
        for way, state in (("space", "Hidden"), ("Return", "Visible"), ("ctrl+h", "Hidden"),
                           ("Delete", "Hidden")):
            key(way)
            self.eventually(velmora.current, [f"beta, {state}"])
        act(switch, "Toggle")
        self.eventually(velmora.current, ["beta, Visible"])
        key("Delete")
        self.eventually(velmora.rows, ["alpha, Visible", "gamma, Visible"])
        act(velmora.row("gamma"), "Remove")
        self.eventually(velmora.rows, ["alpha, Visible"])
        velmora.menu("Velmora", "Quit Velmora")
        self.assertEqual(velmora.ended(), 0)


if __name__ == "__main__":
    desktop.main()

"""Every command of the menus and the keys, and what it does."""
from pathlib import Path
import subprocess

import desktop
from desktop import Story, click, has, key, middle, wait, walk, xdotool


class Menus(Story):
    COMMANDS = "Show", "Open", "Reveal in File Manager", "Remove"

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
        wait(lambda: has(manager.find("a b#"), "SELECTED"), "it is revealed")
        xdotool("mousemove", *middle(velmora.row("folder")))
        velmora.press("Reveal folder")
        wait(lambda: has(manager.find("folder"), "SELECTED"), "it is revealed")
        self.assertIn(f"search:{folder}\n", velmora.log())
        click(velmora.row("folder"))
        self.eventually(velmora.current, ["folder, Visible"])
        key("ctrl+Return")
        self.eventually(self.home.records, uris)
        velmora.menu("File", "Hide")
        self.eventually(velmora.current, ["folder, Hidden"])
        offered = velmora.menu("File")
        self.assertEqual([offered[title] for title in self.COMMANDS], [True, False, False, False])
        key("ctrl+Return", "ctrl+r", "Delete")
        velmora.menu("File", "Show")
        self.eventually(velmora.current, ["folder, Visible"])
        self.assertEqual(self.home.records(), uris)

        velmora.menu("File", "Close")
        for checked in [], ["Show Item Info"]:
            velmora.menu("View", "Show Item Info")
            self.eventually(velmora.pane, {})
            self.assertEqual(velmora.menu("View")["checked"], checked)
            velmora.press("Show item Info")
            self.eventually(lambda: velmora.pane().get("Where:"), folder)

    def test_window_and_application_commands(self):
        self.home.recorder("xdg-open")
        velmora = self.start()
        velmora.place(300, 200, 800, 500)
        for zoomed in True, False:
            velmora.menu("Window", "Zoom")
            self.eventually(lambda: velmora.tree[0].queryComponent().getExtents(0).width > 1300,
                            zoomed)
        velmora.menu("Window", "Bring All to Front")
        self.assertFalse(any(velmora.menu("Edit").values()))  # no text field has the focus

        for command, text in ("Acknowledgments", "Qt"), ("License Agreement", "Permission"):
            velmora.menu("Help", command)
            document = [node.queryText().getText(0, -1) for node in
                        walk(velmora.find(command, "dialog")) if node.getRoleName() == "label"]
            self.assertIn(text, document[0])
            velmora.press("Close", "push button", "button")
            self.eventually(lambda: len(velmora.shown(command, "dialog")), 0)
        for command, text in ("About Velmora", "Version 1.5.0"), (
                "Check for Updates…", "Velmora v1.5 is currently the newest version available."):
            velmora.menu("Velmora", command)
            velmora.find(text)
            key("Escape")
            self.eventually(lambda: velmora.shown(text), [])
        velmora.menu("Help", "Velmora Help")
        wait(self.home.records, "the help page opens")
        guide = self.home.records()[0].removeprefix("xdg-open|file://")
        self.assertIn("<title>Velmora: how to", Path(guide).read_text())
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
        velmora.press("Add")
        velmora.find("select a file")
        key("Escape")
        wait(lambda: "selectPaths:(null)\n" in velmora.log(), "nothing is chosen")


if __name__ == "__main__":
    desktop.main()

"""The preferences: each box is kept, and does what it says."""
from pathlib import Path
import subprocess

import desktop
from desktop import Story, act, click, key, wait

BOXES = {"Make visible all the listed items at launch": "Makevisibleallthelisteditemsatlaunch",
         "Make invisible all the listed items on quit": "Makeinvisibleallthelisteditemsonquit",
         "Open visible items on double click":
             "Makevisibleandopenhiddenitemsondoubleclick",
         "Use Alternating Colors For the Items List Rows":
             "UseAlternatingColorsFortheItemsListRows"}
LAUNCH, QUIT, OPEN, COLOURS = BOXES
BLUE, WHITE, GREY = (1, 92, 220), (255, 255, 255), (245, 245, 245)


class Preferences(Story):
    def setUp(self):
        super().setUp()
        self.paths = self.home.make("a", "b c", "d")
        self.home.seed(*self.paths)

    def hidden(self):
        return [self.home.hidden(path) for path in self.paths]

    def ticked(self, velmora):
        return [title for title in BOXES if velmora.checked(title)]

    def close(self, velmora, by="Escape"):
        key(by)
        self.eventually(lambda: velmora.shown(LAUNCH), [])

    def colours(self, velmora):
        """The ground of the rows, on the screen."""
        found = []
        for row in velmora.row_nodes():
            box = row.queryComponent().getExtents(0)
            point = f"1x1+{box.x + 3}+{box.y + box.height // 2}"
            command = ["import", "-window", "root", "-crop", point, "-depth", "8", "rgb:-"]
            found.append(tuple(subprocess.run(command, check=True, capture_output=True).stdout))
        return found

    def test_boxes_are_kept(self):
        real = desktop.PROGRAM.parent.parent / "libexec/velmora/chflags"
        program = self.home.recording_program("chflags", then=f"exec '{real}' \"$@\"")
        all_visible = ["a, Visible", "b c, Visible", "d, Visible"]
        self.home.recorder("xdg-open")
        velmora = self.start(program)
        velmora.place(100, 100, 900, 600)
        click(velmora.row("d"), "click", "1")  # opens nothing yet
        self.eventually(velmora.current, ["d, Visible"])
        key("Home")
        act(velmora.find("Settings"), "Press")  # answers before the window is closed
        velmora.find(LAUNCH)
        self.assertEqual(self.ticked(velmora), [])
        self.assertEqual(self.colours(velmora), [BLUE, WHITE, WHITE])
        for number, (title, name) in enumerate(BOXES.items(), 1):
            velmora.press(title, "check box")
            self.eventually(lambda: velmora.store().get(name), True)
            self.assertIn(f" {number} state:1\n", velmora.log())
        self.eventually(lambda: self.colours(velmora), [BLUE, GREY, WHITE])
        self.close(velmora, "alt+F4")
        self.quit(velmora, "alt+F4", "ctrl+q", "alt+F4")
        # At quit, the shell makes words of a path with a blank.
        self.assertEqual(self.home.records(), [f"chflags|hidden|{'|'.join(path.split())}"
                                               for path in self.paths])
        self.assertEqual(self.hidden(), [True, False, True])
        self.assertEqual(velmora.stored(), [("a", "0"), ("b c", "0"), ("d", "0")])

        velmora = self.start(program)
        self.assertEqual(velmora.rows(), all_visible)
        self.assertEqual(self.hidden(), [False] * 3)
        self.assertEqual(self.colours(velmora), [BLUE, GREY, WHITE])
        velmora.press("Visible", "check box")
        self.eventually(velmora.rows, ["a, Hidden", *all_visible[1:]])
        self.assertEqual(velmora.stop(), 0)  # from outside: nothing more is hidden
        self.assertEqual(velmora.stored(), [("a", "0"), ("b c", "1"), ("d", "1")])
        self.assertEqual(self.hidden(), [True, False, False])

        velmora = self.start(program)
        velmora.menu("Velmora", "Preferences…")
        velmora.find(LAUNCH)
        self.assertEqual(self.ticked(velmora), list(BOXES))
        for title, name in BOXES.items():
            act(velmora.find(title, "check box"), "Toggle")
            self.eventually(lambda: velmora.store().get(name), False)
        velmora.press(OPEN, "check box")
        self.close(velmora)
        self.home.recorded.unlink()
        click(velmora.row("b c"), "click", "1")
        uri = Path(self.paths[1]).as_uri()
        self.eventually(self.home.records, [f"xdg-open|{uri}"])
        self.eventually(lambda: self.colours(velmora), [WHITE, BLUE, WHITE])
        velmora.press("Visible", "check box")
        self.eventually(velmora.current, ["b c, Hidden"])
        click(velmora.row("b c"), "click", "1")  # opens what is visible alone
        click(velmora.items, "click", "1")  # below the last row
        wait(lambda: "exception was raised" in velmora.log(), "the failure is logged")
        self.eventually(velmora.current, ["a, Visible"])
        self.assertEqual([record for record in self.home.records() if "xdg-open" in record],
                         [f"xdg-open|{uri}"])
        self.quit(velmora, "ctrl+q")
        self.assertEqual(self.hidden(), [False, True, False])


if __name__ == "__main__":
    desktop.main()

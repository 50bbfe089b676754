"""The preferences: each box is kept, and does what it says."""
from pathlib import Path
import subprocess

import desktop
from desktop import Story, click, key, wait

BOXES = {"Make visible all the listed items at launch": "Makevisibleallthelisteditemsatlaunch",
         "Make invisible all the listed items on quit": "Makeinvisibleallthelisteditemsonquit",
         "Make visible and open hidden items on double click":
             "Makevisibleandopenhiddenitemsondoubleclick",
         "Use Alternating Colors For the Items List Rows":
             "UseAlternatingColorsFortheItemsListRows"}
LAUNCH, QUIT, OPEN, COLOURS = BOXES
BLUE, WHITE, GREY = (1, 92, 220), (255, 255, 255), (245, 245, 245)


class Preferences(Story):
    def setUp(self):
        super().setUp()
        self.paths = self.home.make("a", "b", "c")
        self.home.seed(*self.paths)

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
        velmora = self.start()
        velmora.press("Settings")
        velmora.find(LAUNCH)
        self.assertEqual(self.ticked(velmora), [])
        for number, (title, name) in enumerate(BOXES.items(), 1):
            velmora.press(title, "check box")
            self.eventually(lambda: velmora.store().get(name), True)
            self.assertIn(f" {number} state:1\n", velmora.log())
        self.close(velmora, "alt+F4")
        self.quit(velmora)
        self.assertEqual([self.home.hidden(path) for path in self.paths], [True] * 3)
        self.assertEqual(velmora.stored(), [("a", "0"), ("b", "0"), ("c", "0")])
        velmora = self.start()
        self.assertEqual(velmora.rows(), ["a, Visible", "b, Visible", "c, Visible"])
        self.assertEqual([self.home.hidden(path) for path in self.paths], [False] * 3)
        self.assertEqual(self.colours(velmora), [BLUE, GREY, WHITE])
        velmora.menu("Velmora", "Preferences…")
        velmora.find(LAUNCH)
        self.assertEqual(self.ticked(velmora), list(BOXES))
        for title, name in BOXES.items():
            velmora.press(title, "check box")
            self.eventually(lambda: velmora.store().get(name), False)
        self.close(velmora)
        self.quit(velmora)
        self.assertEqual([self.home.hidden(path) for path in self.paths], [False] * 3)

    def test_alternating_colours_show_at_once(self):
        velmora = self.start()
        self.assertEqual(self.colours(velmora), [BLUE, WHITE, WHITE])
        velmora.press("Settings")
        for colours in [BLUE, GREY, WHITE], [BLUE, WHITE, WHITE]:
            velmora.press(COLOURS, "check box")
            self.eventually(lambda: self.colours(velmora), colours)
        key("Escape")
        click(velmora.row("b"))
        self.eventually(lambda: self.colours(velmora), [WHITE, BLUE, WHITE])

    def test_a_double_click_opens_what_is_visible(self):
        self.home.recorder("xdg-open")
        velmora = self.start()
        click(velmora.row("c"), "click", "1")
        self.eventually(velmora.current, ["c, Visible"])
        velmora.menu("Velmora", "Preferences…")
        velmora.press(OPEN, "check box")
        self.close(velmora)
        click(velmora.row("b"), "click", "1")
        uri = Path(self.paths[1]).as_uri()
        self.eventually(self.home.records, [f"xdg-open|{uri}"])
        velmora.press("Visible", "check box")
        self.eventually(velmora.current, ["b, Hidden"])
        click(velmora.row("b"), "click", "1")
        click(velmora.items, "click", "1")  # below the last row
        wait(lambda: "exception was raised" in velmora.log(), "the failure is logged")
        self.eventually(velmora.current, ["a, Visible"])
        self.assertEqual(self.home.records(), [f"xdg-open|{uri}"])
        self.quit(velmora)


if __name__ == "__main__":
    desktop.main()

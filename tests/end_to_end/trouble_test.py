"""Bad input and bad luck: nothing crashes, nothing is lost, and a person is told what matters."""
import json
import random
import time

import desktop
from desktop import Story, click, key, wait


class Trouble(Story):
    def press(self, velmora, row):
        """Selects an item and presses the switch; returns what the row then says."""
        click(velmora.row(row))
        wait(lambda: velmora.current() == [velmora.row(row).name], f"{row} is current")
        before = velmora.current()
        velmora.press("Visible", "check box")
        wait(lambda: velmora.current() != before, f"{row} is switched")
        return velmora.current()[0].rpartition(", ")[2]

    def test_a_corrupt_store_gives_way_to_the_last_good_copy(self):
        self.home.seed(*self.home.make("a", "b"))
        velmora = self.start()
        self.press(velmora, "b")
        self.quit(velmora)
        file = self.home.store
        torn = file.read_bytes()[:-40]
        file.write_bytes(torn)
        velmora = self.start()
        self.assertEqual(velmora.rows(), ["a, Visible", "b, Hidden"])
        velmora.says("and the last good copy is used")
        self.quit(velmora)
        self.assertEqual(velmora.stored(), [("a", "1"), ("b", "0")])
        aside = [other for other in file.parent.iterdir() if other.read_bytes() == torn]
        self.assertEqual(len(aside), 1, list(file.parent.iterdir()))

    def test_odd_content_is_carried_along(self):
        a, b = self.home.make("a", "b")
        odd = [{"filePath": a, "fileTitle": "title", "visible": "yes", "more": [1, {"x": None}]},
               {"filePath": b, "visible": 2.5}]
        self.home.seed()
        lost = [{"fileTitle": "no path", "visible": "0"}, {"filePath": 7}, "text", 7, [[]]]
        self.home.store.write_text(json.dumps({
            "fileListView_List": [lost[0], odd[0], *lost[1:], odd[1]], "password": 12,
            "requirePassword": [1], "Makeinvisibleallthelisteditemsonquit": "no",
            "its own": {"k": 1}}))
        velmora = self.start()
        # A flag that is no number is read as hidden in the row, and as visible beside it.
        self.assertEqual(velmora.rows(), ["title, Hidden", ", Hidden"])
        self.assertTrue(velmora.checked("Visible"))
        velmora.press("Visible", "check box")
        self.eventually(lambda: velmora.store()["fileListView_List"],
                        [{**odd[0], "visible": "0"}, odd[1]])
        key("Down", "ctrl+h", "Up", "ctrl+h", "Down")
        velmora.press("Item")
        self.quit(velmora)
        store = velmora.store()
        self.assertEqual((store["its own"], store["password"]), ({"k": 1}, 12))
        self.assertEqual(store["missingItems"], lost)

    def test_a_list_of_the_wrong_kind_is_kept_aside(self):
        self.home.seed(fileListView_List="text")
        velmora = self.start()
        self.assertEqual(velmora.rows(), [])
        self.quit(velmora)
        kept = [file.read_text() for file in self.home.store.parent.glob("*.json*")]
        self.assertTrue(any('"text"' in content for content in kept), kept)

    def test_names(self):
        longest = "n" * 255
        hidden = ["b c", longest, "名前 ü Ж", "-n", "$(touch x)", "a;b*\"", "%@ %1"]
        paths = self.home.make(*hidden, "it's", "line\nbreak")
        self.home.seed(*paths)
        velmora = self.start()
        for name, path in zip(hidden, paths):
            self.assertEqual(self.press(velmora, name), "Hidden")
            self.assertTrue(self.home.hidden(path), name)
        for name, reason in ("it's", "apostrophe"), ("line\nbreak", "line break"):
            self.assertEqual(self.press(velmora, name), "Hidden")
            velmora.says(reason)
        self.assertIn("line break", velmora.log())
        self.eventually(lambda: {visible for _, visible in velmora.stored()}, {"0"})
        self.quit(velmora)
        self.assertEqual(self.start().current(), ["b c, Hidden"])

    def test_folders_that_cannot_be_written(self):
        item, = self.home.make("a")
        self.home.seed(item)
        store = self.home.store.parent
        velmora = self.start()
        for folder, told in (self.home.files, "still visible: its folder cannot be written"), (
                store, "could not be saved"):
            self.addCleanup(folder.chmod, 0o700)
            folder.chmod(0o500)
            self.press(velmora, "a")
            velmora.says(told)
            self.assertEqual(self.home.hidden(item), folder == store)
            folder.chmod(0o700)
            self.press(velmora, "a")
            self.eventually(lambda: [node.name for node in desktop.walk(velmora.tree[0])
                                     if told in node.name], [])
        self.eventually(velmora.stored, [("a", "1")])
        self.assertFalse(self.home.hidden(item))

    def test_killed_at_any_moment_the_store_is_whole(self):
        self.home.seed(*self.home.make("a", "b"))
        for _ in range(5):
            velmora = desktop.Velmora(self.home)
            key(*["ctrl+h"] * random.randint(1, 6))
            time.sleep(random.random() / 20)  # any moment will do
            velmora.process.kill()
            velmora.process.wait()
            self.assertEqual([title for title, _ in velmora.stored()], ["a", "b"])


if __name__ == "__main__":
    desktop.main(ordinary_user=True)

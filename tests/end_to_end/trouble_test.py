"""Bad input and bad luck: nothing crashes, nothing is lost, and a person is told what matters."""
import contextlib
import json
import os
import re
import signal
import stat
import subprocess
import time

import desktop
from desktop import Story, click, key, middle, wait, xdotool


class Trouble(Story):
    def press(self, velmora, row):
        """Selects an item and presses the switch; returns what the row then says."""
        click(velmora.row(row))
        wait(lambda: velmora.current() == [velmora.row(row).name], f"{row} is current")
        before = velmora.current()
        velmora.press("Visible", "check box")
        wait(lambda: velmora.current() != before, f"{row} is switched")
        return velmora.current()[0].rpartition(", ")[2]

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

    def test_a_log_that_is_not_read(self):
        """Standard input and output are closed; the log's reader stops reading, and then goes."""
        self.home.seed(*self.home.make("a"))
        log = self.home.folder / "log"
        os.mkfifo(log)
        reader = os.open(log, os.O_RDONLY | os.O_NONBLOCK)
        velmora = desktop.Application(self.home, "/bin/sh", "-c",
                                      f"exec '{desktop.PROGRAM}' 2>'{log}' <&- >&-")
        self.addCleanup(velmora.stop)
        for number in 0, 1:  # no file of the program's has the number of a closed stream
            self.assertEqual(os.readlink(f"/proc/{velmora.process.pid}/fd/{number}"), "/dev/null")
        writer = os.open(log, os.O_WRONLY | os.O_NONBLOCK)
        with contextlib.suppress(BlockingIOError):
            while True:
                os.write(writer, bytes(4096))
        os.close(writer)
        for gone, now in (False, "Hidden"), (True, "Visible"):
            if gone:
                os.close(reader)
            velmora.press("Visible", "check box")
            velmora.find(f"a, {now}", "list item")
        key("alt+F4")
        self.assertEqual(velmora.ended(), 0)

    def test_a_log_whose_reader_is_gone_at_the_start(self):
        """Without a bus, whose library would ignore the signal by itself."""
        self.home.seed(*self.home.make("a"))
        reader, writer = os.pipe()
        os.close(reader)
        velmora = subprocess.Popen(
            [*desktop.BOUND, desktop.PROGRAM], stderr=writer,
            env={**self.home.environment, "QT_QPA_PLATFORM": "offscreen",
                 "DBUS_SESSION_BUS_ADDRESS": "disabled:"})
        os.close(writer)
        handled = f"/proc/{velmora.pid}/status"
        wait(lambda: velmora.poll() is not None or int(re.search(
            r"SigCgt:\s*(\w+)", open(handled).read())[1], 16) >> (signal.SIGTERM - 1) & 1,
             "it handles its end")
        velmora.terminate()
        self.assertEqual(velmora.wait(20), 0)

    def test_a_second_start_that_gets_no_answer_says_so(self):
        velmora = self.start()
        wait(lambda: (self.home.store.parent / "instance.lock").read_bytes(), "the first listens")
        self.assertEqual(stat.S_IMODE(self.home.store.parent.stat().st_mode), 0o700)
        velmora.process.send_signal(signal.SIGSTOP)
        self.addCleanup(velmora.process.send_signal, signal.SIGCONT)
        second = desktop.Application(self.home, str(desktop.PROGRAM))
        wait(lambda: second.shown("OK"), "a window says something")
        self.assertIn("running already, but does not answer",
                      " ".join(node.name for node in desktop.walk(second.tree[0])))
        second.press("OK")
        self.assertEqual(second.ended(), 0)
        velmora.process.send_signal(signal.SIGCONT)

    def test_a_command_that_does_not_end(self):
        a, b = self.home.make("a", "b")
        self.home.seed(a, b)
        slow = self.home.recording_program("chflags", then="sleep 2")
        velmora = self.start(slow)
        switch = velmora.find("Visible", "check box")
        place = middle(velmora.row("b"))
        click(switch)
        wait(self.home.records, "the command runs")
        xdotool("mousemove", *place, "click", 1)
        key("Down", "ctrl+h")
        self.eventually(velmora.current, ["a, Hidden"])  # what came meanwhile is forgotten
        self.assertEqual(len(self.home.records()), 1)
        velmora.says("still visible")
        velmora.stop()

        velmora = self.start(self.home.recording_program("chflags", then="sleep 60"))
        self.home.recorded.unlink()
        velmora.press("Visible", "check box")
        wait(self.home.records, "the command runs")
        began = time.monotonic()
        self.assertEqual(velmora.stop(), 0)
        self.assertLess(time.monotonic() - began, 10)
        self.assertEqual(velmora.stored(), [("a", "1"), ("b", "1")])


if __name__ == "__main__":
    desktop.main(ordinary_user=True)

"""Bad input and bad luck: nothing crashes, nothing is lost, and a person is told what matters."""
import contextlib, json, os, pathlib, signal, subprocess

import desktop
from desktop import Story, click, key, wait, walk, xdotool


class Trouble(Story):
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

    def test_what_cannot_be_hidden_is_told(self):
        names = "a", "it's", "line\nbreak"
        self.home.seed(*self.home.make(*names))
        item, store = self.home.files / "a", self.home.store.parent
        velmora = self.start()

        def press(name, mark):
            click(velmora.row(name))
            self.eventually(lambda: [row.rpartition(", ")[0] for row in velmora.current()], [name])
            velmora.press("Visible", "check box")
            self.eventually(velmora.current, [f"{name}, {mark}"])

        for name, reason in zip(names[1:], ("apostrophe", "line break")):
            press(name, "Hidden")
            velmora.says(reason)
        self.assertIn("line break", velmora.log())
        for folder, told in (self.home.files, "still visible: its folder cannot be written"), (
                store, "could not be saved"):
            self.addCleanup(folder.chmod, 0o700)
            folder.chmod(0o500)
            press("a", "Hidden")
            velmora.says(told)
            self.assertEqual(self.home.hidden(item), folder == store)
            folder.chmod(0o700)
            press("a", "Visible")
            self.eventually(lambda: [node.name for node in walk(velmora.tree[0])
                                     if told in node.name], [])
        self.eventually(velmora.stored, list(zip(names, "100")))
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
            env={**self.home.environment, "DBUS_SESSION_BUS_ADDRESS": "disabled:"})
        os.close(writer)
        wait(lambda: velmora.poll() is not None or xdotool(
            "search", "--onlyvisible", "--pid", velmora.pid, check=False), "its window is there")
        velmora.terminate()
        self.assertEqual(velmora.wait(20), 0)

    def test_a_second_start_that_gets_no_answer_says_so(self):
        velmora = self.start()
        wait(lambda: (self.home.store.parent / "instance.lock").read_bytes(), "the first listens")
        velmora.process.send_signal(signal.SIGSTOP)
        self.addCleanup(velmora.process.send_signal, signal.SIGCONT)
        second = desktop.Application(self.home, str(desktop.PROGRAM))
        ok = second.find("OK")
        self.assertIn("running already, but does not answer",
                      " ".join(node.name for node in walk(second.tree[0])))
        click(ok)
        self.assertEqual(second.ended(), 0)
        velmora.process.send_signal(signal.SIGCONT)

    def test_a_command_that_does_not_end(self):
        self.home.seed(*self.home.make("a", "b"))
        velmora = self.start(self.home.recording_program("chflags", then="sleep 60"))
        velmora.press("Visible", "check box")
        wait(self.home.records, "the command runs")
        velmora.process.terminate()
        self.assertEqual(velmora.process.wait(10), 0)
        self.assertEqual(velmora.stored(), [("a", "0"), ("b", "1")])

    def test_long_passes(self):
        """The window of a pass is a program of its own, and of a locked list it tells no name."""
        items = self.home.make(*"abcdefgh")
        program = self.home.recording_program("chflags", then="sleep 0.5")

        def shown():  # the program itself does not answer during a pass
            return [node.name for application in desktop.pyatspi.Registry.getDesktop(0)
                    if application is not None and b"/progress" in pathlib.Path(
                        f"/proc/{application.get_process_id()}/cmdline").read_bytes()
                    for node in walk(application)]

        self.home.seed(*items, password="x", requirePassword="1",
                       Makevisibleallthelisteditemsatlaunch=True)
        started = subprocess.Popen([*desktop.BOUND, program], env=self.home.environment,
                                   stderr=subprocess.DEVNULL)
        self.addCleanup(started.wait, 20)
        self.addCleanup(started.terminate)
        wait(lambda: any(" of 8" in name for name in shown()), "the pass is shown")
        self.assertFalse({*"abcdefgh", "Stop"} & {*shown()})
        key("Escape")
        wait(lambda: not shown(), "the pass is over")
        started.terminate()
        self.assertEqual(started.wait(20), 0)

        self.home.seed(*items, Makeinvisibleallthelisteditemsonquit=True)
        held = self.home.folder / "held"
        held.touch()
        velmora = self.start(self.home.recording_program(
            "chflags", then=f"sleep 0.5; case $2 in */c) [ -e '{held}' ] && sleep 60;; esac"))
        key("alt+F4")
        wait(lambda: {"Stop", "c"} <= {*shown()}, "the pass is shown")
        key("Escape")
        wait(lambda: not shown(), "the pass is stopped, and the command with it")
        self.eventually(velmora.stored, list(zip("abcdefgh", "00011111")))
        self.eventually(velmora.rows, [f"{name}, {'Hidden' if name < 'd' else 'Visible'}"
                                       for name in "abcdefgh"])
        self.assertFalse(velmora.checked("Visible"))
        held.unlink()
        velmora.place(100, 100, 900, 600)
        self.quit(velmora)
        self.assertEqual({visible for _, visible in velmora.stored()}, {"0"})

    def test_log_out_in_the_middle_of_a_pass(self):
        self.home.seed(*self.home.make(*"abcdef"), Makeinvisibleallthelisteditemsonquit=True)
        program = self.home.recording_program("chflags", then="sleep 60")
        (self.home.folder / ".xsmstartup").write_text(f"{program}\n")
        manager = subprocess.Popen([*desktop.BOUND, "xsm"], env=self.home.environment,
                                   stderr=subprocess.DEVNULL)
        self.addCleanup(manager.kill)
        wait(lambda: xdotool("getactivewindow", "getwindowname", check=False) == "Velmora\n",
             "it is started")
        key("alt+F4")
        wait(self.home.records, "the pass has begun")
        manager.terminate()  # ends the session
        wait(lambda: self.home.store.read_text().count('"0"') == 1, "the marks so far are stored")
        self.assertEqual(manager.wait(20), 0)
        self.assertEqual(len(self.home.records()), 1)


if __name__ == "__main__":
    desktop.main(ordinary_user=True)

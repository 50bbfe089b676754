"""What is asked from outside the window: files and options, with and without a running program."""
import subprocess, urllib.parse

import desktop
from desktop import Story, key, type_text, wait

BUS = ["gdbus", "call", "--session", "--dest", "com.velmora.Velmora"]


class Requests(Story):
    def velmora(self, *arguments, program=None):
        """The status and what was said on standard error."""
        done = subprocess.run([program or desktop.PROGRAM, *arguments], capture_output=True,
                              text=True, timeout=60, env=self.home.environment,
                              cwd=self.home.files, check=False)
        return done.returncode, done.stderr

    def both(self, items):
        """The requests that are answered in the same way with and without a window. What was not
        done is told the desktop too, once each time: nobody reads standard error."""
        log = self.home.folder / "told"
        with open(log, "wb") as told:
            monitor = subprocess.Popen([*desktop.BOUND, "dbus-monitor", "member=Notify"],
                                       stdout=told)
        self.addCleanup(monitor.wait)
        self.addCleanup(monitor.kill)
        wait(log.read_bytes, "it listens")
        self.assertEqual(self.velmora("--hide", "--", "b c", "-d\"% ü", "b c"), (0, ""))
        self.assertEqual([self.home.hidden(item) for item in items], [False, True, True])
        self.assertEqual(self.velmora("--hide", "-d", "nope")[0], 2)
        status, said = self.velmora("--hide", "nope", f"file://{urllib.parse.quote(items[1])}")
        self.assertEqual((status, "“nope” does not exist." in said), (1, True), said)
        self.assertEqual(self.velmora("--show", "b c"), (0, ""))
        self.assertEqual(self.velmora("--show", "e")[0], 1)
        self.assertEqual([self.home.hidden(item) for item in items], [False, False, True])
        self.assertEqual(self.velmora("--show-all"), (0, ""))
        self.assertFalse(any(map(self.home.hidden, items)))
        self.assertEqual(self.velmora("--hide", "a"), (0, ""))
        wait(lambda: log.read_text().count("“e” is not in the list.") == 1, log.read_text)
        self.assertEqual(log.read_text().count("member=Notify"), 2)

    def test_without_a_window(self):
        items = self.home.make("a", "b c", "-d\"% ü")
        self.home.seed(items[0], Makeinvisibleallthelisteditemsonquit=True,
                       Makevisibleallthelisteditemsatlaunch=True)
        self.both(items)
        store = desktop.json.loads(self.home.store.read_text())["fileListView_List"]
        self.assertEqual([(record["fileTitle"], record["visible"]) for record in store],
                         [("a", "0"), ("b c", "1"), ("-d\"% ü", "1")])

    def test_asked_to_end(self):
        items = self.home.make("a", "b")
        self.home.seed(*items)
        program = self.home.recording_program("chflags", then="sleep 60")
        process = subprocess.Popen([program, "--hide", *items], env=self.home.environment,
                                   stderr=subprocess.DEVNULL)
        wait(self.home.records, "the first command runs")
        process.terminate()
        self.assertEqual(process.wait(20), 1)
        store = desktop.json.loads(self.home.store.read_text())["fileListView_List"]
        self.assertEqual([record["visible"] for record in store], ["0", "1"])

    def test_beside_a_window(self):
        items = self.home.make("a", "b c", "-d\"% ü", "new", "newer")
        self.home.seed(items[0])
        velmora = self.start()
        self.both(items[:3])
        self.assertEqual(velmora.rows(), ["a, Hidden", "b c, Visible", "-d\"% ü, Visible"])
        self.assertFalse(velmora.checked("Visible"))
        # A second start, and the desktop's own call; what is listed is made current.
        self.assertEqual(self.velmora("new", "b c"), (0, ""))
        wait(lambda: velmora.current() == ["b c, Visible"], "it is current")
        odd = ["file:///nowhere", "http://elsewhere/a", "", "a", "file:///a%00b",
               *["x:"] * 10_000]
        subprocess.run([*BUS, "--object-path", "/com/velmora/Velmora", "--method",
                        "org.freedesktop.Application.Open", str([*odd, f"file://{items[4]}"]),
                        "{}"], check=True, env=self.home.environment, stdout=subprocess.DEVNULL)
        wait(lambda: velmora.current() == ["newer, Visible"], "it is added and current")
        velmora.says("does not exist")
        self.assertEqual(len(velmora.rows()), 5)
        # While a dialog is open they wait for its end.
        velmora.press("Settings")
        wait(lambda: velmora.shown("Settings", "dialog", "frame", "window") or
             len(velmora.window()) > 1, "the preferences are open")
        waiting = subprocess.Popen([desktop.PROGRAM, "--hide", "new"], cwd=self.home.files,
                                   env=self.home.environment)
        self.assertEqual(self.velmora("b c"), (0, ""))
        self.assertEqual(velmora.current(), ["newer, Visible"])
        key("Escape")
        wait(lambda: velmora.current() == ["b c, Visible"], "it is current")
        self.assertEqual(waiting.wait(20), 0)
        self.assertTrue(self.home.hidden(items[3]))

    def test_while_locked(self):
        items = self.home.make("a", "b")
        self.home.seed(items[0], password="x", requirePassword="1")
        before = self.home.store.read_bytes()
        status, said = self.velmora("--hide", "b")
        self.assertEqual((status, "locked" in said), (1, True), said)
        # The window that it has started asks for the password.
        window = wait(lambda: [application for application in desktop.pyatspi.Registry.getDesktop(0)
                               if application.name == "velmora"], "it is started")[0]
        wait(lambda: any(node.getRoleName() == "password text" for node in desktop.walk(window)),
             "it asks")
        self.assertEqual(self.velmora("b")[0], 0)  # waits for the dialog, and holds up nobody
        for arguments in ["--show-all"], ["--hide", "a", "b"]:
            self.assertEqual(self.velmora(*arguments)[0], 1)
        self.assertEqual(self.home.store.read_bytes(), before)
        self.assertFalse(any(map(self.home.hidden, items)))
        type_text("x")
        key("Return")
        wait(lambda: any(node.name == "a, Visible" for node in desktop.walk(window)), "unlocked")
        self.assertEqual(self.velmora("--hide", "b"), (0, ""))
        self.assertTrue(self.home.hidden(items[1]))


if __name__ == "__main__":
    desktop.main()

#!/usr/bin/python3
"""The program that tells the file managers: what it answers, and what goes on after that.
refresh_test.py REFRESH [unittest arguments]"""

import os, pathlib, shutil, signal, socket, subprocess, sys, tempfile, time, unittest

from gi.repository import Gio, GLib

REFRESH = os.path.abspath(sys.argv.pop(1))
REPEAT = 7  # seconds between the tellings


class RefreshTest(unittest.TestCase):
    def setUp(self):
        self.home = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.home)
        self.addCleanup(lambda: [os.kill(pid, signal.SIGKILL) for pid in self.alive()])
        self.session = self.new_session()

    def new_session(self):
        return {"PATH": os.environ["PATH"], "HOME": str(self.home),
                "XDG_RUNTIME_DIR": tempfile.mkdtemp(dir=self.home)}

    def item(self, name):
        path = self.home / name
        path.touch()
        return path

    def refresh(self, *items, session=None):
        """What it prints. Returns when nothing that it started holds its output any more."""
        done = subprocess.run([REFRESH], input=b"".join(bytes(item) + b"\0" for item in items),
                              env=session or self.session, capture_output=True, timeout=15)
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        return done.stdout.decode()

    def alive(self):
        """The processes in the background that still run, with their folders. What one of them
        starts for each telling has not its own session."""
        found = {}
        for process in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                if os.readlink(process / "exe") == REFRESH and \
                        os.getsid(int(process.name)) == int(process.name) and \
                        f"HOME={self.home}".encode() in (process / "environ").read_bytes():
                    found[int(process.name)] = os.readlink(process / "cwd")
            except OSError:
                pass  # has ended, or is another user's
        return found

    def until(self, question, limit):
        end = time.monotonic() + limit
        while not question():
            self.assertLess(time.monotonic(), end, "not in time")
            time.sleep(0.01)

    def test_beside_a_silent_bus_it_answers_and_goes_on_alone(self):
        item, link = self.item("name\n with 100% ü"), self.home / "link"
        link.symlink_to("nowhere")
        address = str(self.home / "silent")
        with socket.socket(socket.AF_UNIX) as silent:
            silent.bind(address)
            silent.listen()
            self.session["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={address}"
            before = [path.lstat().st_ctime_ns for path in (item, link)]
            self.assertEqual(self.refresh(item, link, self.home / "missing"), "")
            self.assertTrue(all(path.lstat().st_ctime_ns > told
                                for path, told in zip((item, link), before)))
            self.assertEqual(list(self.alive().values()), ["/"])

    def test_a_new_one_takes_over(self):
        first, second, other = items = [self.item(name) for name in ("first", "second", "other")]
        self.refresh(first)
        old, = self.alive()
        self.refresh(other, session=self.new_session())
        others = self.alive().keys() - {old}
        told = first.stat().st_ctime_ns
        self.refresh(second)
        self.until(lambda: old not in self.alive(), 5)
        self.assertEqual(len(self.alive().keys() - others), 1)
        self.assertTrue(others <= self.alive().keys())  # another session's is left alone
        self.until(lambda: first.stat().st_ctime_ns > told, 5)
        start, last, tellings = time.monotonic(), {}, {}

        def ended():
            for item in items:
                now = item.stat().st_ctime_ns
                if last.setdefault(item, now) != now:
                    last[item] = now
                    times = tellings.setdefault(item.name, [])
                    times.append(round((time.monotonic() - start) / REPEAT))
            return not self.alive()
        self.until(ended, 30)
        self.assertEqual(tellings, dict.fromkeys(("first", "second", "other"), [1, 2]))

    def test_names_who_cannot_be_reached(self):
        bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address"],
                               env=self.session, stdout=subprocess.PIPE, text=True,
                               stderr=subprocess.DEVNULL)
        self.addCleanup(bus.stdout.close)
        self.addCleanup(bus.wait)
        self.addCleanup(bus.terminate)
        address = self.session["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        managers = Gio.DBusConnection.new_for_address_sync(
            address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT |
            Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
        managers.set_exit_on_close(False)
        for name in "org.gnome.Nautilus", "org.mate.Caja", "org.Nemo", "org.xfce.Thunar":
            managers.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus",
                               "org.freedesktop.DBus", "RequestName",
                               GLib.Variant("(su)", (name, 0)), None, 0, -1)
        # Neither accessibility services nor a display here.
        self.assertEqual(self.refresh(self.item("item")),
                         "Nautilus\tF5\nCaja\tF5\nNemo\tF5\nThunar\tCtrl+H\n")


if __name__ == "__main__":
    unittest.main()

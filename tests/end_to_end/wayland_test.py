"""A start, a press and an end on a Wayland display, where only assistive technology has hands."""
import subprocess

import desktop
from desktop import BOUND, Application, Story, Velmora, act, wait


class OnWayland(Velmora):
    """The program on a display without a keyboard, so that no window of it has the focus."""

    def __init__(self, home):
        Application.__init__(self, home, str(desktop.PROGRAM))
        self.items = self.find("Items")


class Wayland(Story):
    def setUp(self):
        super().setUp()
        run = self.home.folder / "run"
        with open(self.home.folder / "weston.log", "wb") as log:
            weston = subprocess.Popen(
                [*BOUND, "weston", "--backend=headless-backend.so", "--socket=wayland-test",
                 "--idle-time=0", "--no-config"],
                env=self.home.environment, stdout=log, stderr=log)
        self.addCleanup(weston.wait)
        self.addCleanup(weston.terminate)
        wait((run / "wayland-test").exists, "the display is there")
        del self.home.environment["DISPLAY"]
        self.home.environment.update(QT_QPA_PLATFORM="wayland", WAYLAND_DISPLAY="wayland-test")

    def test_start_press_and_end(self):
        path, = self.home.make("file")
        self.home.seed(path)
        velmora = OnWayland(self.home)
        self.addCleanup(velmora.stop)
        self.eventually(velmora.rows, ["file, Visible"])
        act(velmora.find("Visible", "check box"), "Toggle")
        self.eventually(velmora.rows, ["file, Hidden"])
        self.assertTrue(self.home.hidden(path))
        menu, = velmora.find("Velmora", "menu item")
        act(next(item for item in menu if item.name == "Quit Velmora"), "Press")
        self.assertEqual(velmora.ended(), 0, velmora.log())
        self.assertEqual(velmora.stored(), [("file", "0")])


if __name__ == "__main__":
    desktop.main()

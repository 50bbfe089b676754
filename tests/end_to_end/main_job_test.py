"""The main job: items dragged in from a file manager, hidden, shown, sorted, removed, kept."""
import contextlib, os, subprocess

import desktop
from desktop import (BOUND, Story, act, click, drag, has, heard, key, middle, type_text, wait,
                     xdotool)


class MainJob(Story):
    def expect_listed(self, *expected):
        """What a file manager shows that is started now."""
        manager = self.browse(self.home.files)
        for name in expected:
            manager.find(name)
        self.assertEqual([name for name in ("alpha.txt", "beta", "end.txt")
                          if manager.shown(name)], list(expected))
        manager.stop()

    def test_hide_and_show_what_was_dragged_in(self):
        home = self.home
        settings = home.folder / "config/pcmanfm-qt/default/settings.conf"
        settings.parent.mkdir(parents=True)
        settings.write_text("[FolderView]\nShowHidden=true\n")
        velmora = self.start()
        velmora.place(600, 30, 780, 500)
        velmora.press("Visible", "check box")  # also without an item, hidden ones are shown no more
        self.eventually(settings.read_text, "[FolderView]\nShowHidden=false\n")
        self.assertTrue(velmora.checked("Visible"))
        file, folder, _ = home.make("alpha.txt", "beta/", "end.txt")
        manager = self.browse(home.files)
        manager.place(0, 30, 560, 500)
        drag([manager.find("alpha.txt"), manager.find("beta")], velmora.items)
        self.eventually(velmora.rows, ["alpha.txt, Visible", "beta, Visible"])
        self.assertEqual(velmora.current(), ["alpha.txt, Visible"])
        self.assertEqual([velmora.pane()[caption] for caption in ("Kind:", "Where:", "Size:")],
                         ["public.plain-text", file, "1.000000 K"])
        self.eventually(velmora.stored, [("alpha.txt", "1"), ("beta", "1")])
        manager.stop()

        velmora.press("Visible", "check box")
        self.eventually(velmora.rows, ["alpha.txt, Hidden", "beta, Visible"])
        click(velmora.row("beta"))
        self.eventually(velmora.current, ["beta, Visible"])
        velmora.press("Visible", "check box")
        self.eventually(velmora.rows, ["alpha.txt, Hidden", "beta, Hidden"])
        self.assertEqual([home.hidden(file), home.hidden(folder)], [True, True])
        self.expect_listed("end.txt")
        self.eventually(velmora.stored, [("alpha.txt", "0"), ("beta", "0")])

        velmora.press("Visible", "check box")
        self.eventually(velmora.rows, ["alpha.txt, Hidden", "beta, Visible"])
        self.assertEqual([home.hidden(file), home.hidden(folder)], [True, False])
        self.expect_listed("beta", "end.txt")

        xdotool("mousemove", *middle(velmora.row("beta")))
        velmora.press("Remove beta")
        self.eventually(velmora.rows, ["alpha.txt, Hidden"])
        self.eventually(velmora.stored, [("alpha.txt", "0")])
        self.quit(velmora)

        velmora = self.start()
        self.eventually(velmora.rows, ["alpha.txt, Hidden"])
        self.assertFalse(velmora.checked("Visible"))
        self.quit(velmora)
        os.unlink(file)
        velmora = self.start()
        self.assertEqual(velmora.rows(), [])
        velmora.find("Drag files and folders here from your file manager,\nor press “+” below to add files.")
        self.eventually(velmora.stored, [])

    def tab_to(self, control):
        for _ in range(20):
            with contextlib.suppress(AssertionError):  # the next Tab only when this one has done
                return wait(lambda: has(control, "FOCUSED"), "it has the focus", 0.3)
            key("Tab")
        self.fail(f"Tab does not reach {control.name}")

    def test_by_keyboard_alone(self):
        _, beta, _ = self.home.make("alpha/", "beta", "gamma")
        manager = self.browse(self.home.files)
        manager.find("gamma")
        key("ctrl+a")
        manager.find("3 item(s) selected")
        key("ctrl+c")
        velmora = self.start()
        key("ctrl+v")
        self.eventually(velmora.rows, ["alpha, Visible", "beta, Visible", "gamma, Visible"])
        for keys, title in (("End", "gamma"), ("Up", "beta"), ("Home", "alpha"), ("g", "gamma"),
                            ("Up", "beta")):
            key(keys)
            self.eventually(velmora.current, [f"{title}, Visible"])
        told = heard("object:state-changed:selected", "object:state-changed:focused",
                     "object:property-change:accessible-name")
        rows = lambda: [event for event in told if ", " in event[1]]
        key("Down")
        moved = [("selected", "beta, Visible", 0), ("selected", "gamma, Visible", 1),
                 ("focused", "gamma, Visible", 1)]
        self.eventually(rows, moved)
        key("ctrl+h")
        self.eventually(rows, [*moved, ("accessible-name", "gamma, Hidden", 0)])
        key("Up")
        switch = velmora.find("Visible", "check box")
        for control, ways in (switch, ("space", "Return", "ctrl+h", "Delete")), (
                velmora.row("beta"), ("shift+F10 Down Return", "Menu Down Return")):
            self.tab_to(control)
            for way in ways:
                shown = velmora.checked("Visible")
                key(*way.split())
                self.eventually(lambda: (velmora.checked("Visible"), self.home.hidden(beta)),
                                (shown == (way == "Delete"), shown != (way == "Delete")))
        act(switch, "Toggle")
        self.eventually(velmora.current, ["beta, Visible"])
        key("ctrl+c", "Delete")
        self.eventually(velmora.rows, ["alpha, Visible", "gamma, Hidden"])
        key("ctrl+v")
        self.eventually(velmora.rows, ["alpha, Visible", "gamma, Hidden", "beta, Visible"])
        act(velmora.row("gamma"), "Remove")

        key("ctrl+comma")
        self.tab_to(velmora.find("Make invisible all the listed items on quit", "check box"))
        key("space")
        self.eventually(
            lambda: velmora.store().get("Makeinvisibleallthelisteditemsonquit"), True)
        key("Escape")
        self.tab_to(velmora.find("Password protection", "check box"))
        key("space")
        velmora.find("Password:", "password text")
        type_text("x")
        key("Return")
        self.eventually(lambda: velmora.store().get("requirePassword"), "1")
        key("F10")
        velmora.find("Quit Velmora")
        key("q")
        self.assertEqual(velmora.ended(), 0)
        self.assertTrue(self.home.hidden(beta))
        velmora = self.start()
        velmora.find("Password:", "password text")
        type_text("x")
        key("Return")
        self.eventually(velmora.rows, ["alpha, Hidden", "beta, Hidden"])
        wait(lambda: has(velmora.row("alpha"), "FOCUSED"), "the focus is in the list")
        self.quit(velmora, "ctrl+q")

    def test_on_wayland_where_only_assistive_technology_has_hands(self):
        with open(self.home.folder / "weston.log", "wb") as log:
            weston = subprocess.Popen(
                [*BOUND, "weston", "--backend=headless-backend.so", "--socket=wayland-test",
                 "--idle-time=0", "--no-config"],
                env=self.home.environment, stdout=log, stderr=log)
        self.addCleanup(weston.wait)
        self.addCleanup(weston.terminate)
        wait((self.home.folder / "run/wayland-test").exists, "the display is there")
        del self.home.environment["DISPLAY"]
        self.home.environment.update(QT_QPA_PLATFORM="wayland", WAYLAND_DISPLAY="wayland-test")
        path, = self.home.make("file")
        self.home.seed(path)
        velmora = self.start()
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

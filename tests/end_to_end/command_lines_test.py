"""What quit and the switch do through the shell: to which items, and in which order."""
import os
import subprocess

import desktop
from desktop import Story, key

AT_QUIT = "Makeinvisibleallthelisteditemsonquit"


class Quit(Story):
    def setUp(self):
        super().setUp()
        self.paths = self.home.make("a", "b c", "d")
        real = desktop.PROGRAM.parent.parent / "libexec/velmora/chflags"
        self.program = self.home.recording_program("chflags", then=f"exec '{real}' \"$@\"")

    def hidden(self):
        return [self.home.hidden(path) for path in self.paths]

    def test_quitting_hides_all_but_a_path_with_a_blank(self):
        a, blank, d = self.paths
        for ways in ["alt+F4"], ["ctrl+q"], ["alt+F4", "ctrl+q", "alt+F4"]:
            self.home.seed(*self.paths, **{AT_QUIT: True})
            velmora = self.start(self.program)
            key(*ways)
            self.assertEqual(velmora.ended(), 0, velmora.log())
            self.assertEqual(self.hidden(), [True, False, True])
            self.assertEqual(velmora.stored(), [("a", "0"), ("b c", "0"), ("d", "0")])
            self.assertEqual(self.home.records(), [f"chflags|hidden|{'|'.join(words)}" for words in
                                                   ([a], blank.split(), [d])])
            self.home.recorded.unlink()
            os.unlink(self.home.files / ".hidden")

    def test_ended_from_outside_all_is_stored_and_nothing_more_is_hidden(self):
        self.home.seed(*self.paths, **{AT_QUIT: True})
        velmora = self.start(self.program)
        velmora.press("Visible", "check box")
        self.eventually(velmora.rows, ["a, Hidden", "b c, Visible", "d, Visible"])
        velmora.process.terminate()
        self.assertEqual(velmora.ended(), 0, velmora.log())
        self.assertEqual(velmora.stored(), [("a", "0"), ("b c", "1"), ("d", "1")])
        self.assertEqual(self.hidden(), [True, False, False])


class ShowAllReset(Story):
    def setting(self, *value):
        return subprocess.run(
            ["gsettings", "set" if value else "get", "org.gtk.gtk4.Settings.FileChooser",
             "show-hidden", *value], env=self.home.environment, check=True, capture_output=True,
            text=True).stdout.strip()

    def test_a_press_turns_the_desktops_setting_off(self):
        profile = self.home.folder / "config/pcmanfm-qt/default"
        profile.mkdir(parents=True)
        for paths in [], self.home.make("a", "b"):
            (profile / "settings.conf").write_text("[FolderView]\nShowHidden=true\n")
            self.setting("true")
            self.home.seed(*paths)
            velmora = self.start()
            velmora.press("Visible", "check box")
            self.eventually(self.setting, "false")
            self.assertEqual(velmora.checked("Visible"), not paths)
            velmora.stop()
        manager = self.browse(self.home.files)
        manager.find("b")
        self.assertEqual(manager.shown("a"), [])


if __name__ == "__main__":
    desktop.main()

"""The main job: items dragged in from a file manager, hidden, shown, sorted, removed, kept."""
import os

import desktop
from desktop import Story, click, drag, middle, wait, xdotool


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
        file, folder, _ = home.make("alpha.txt", "beta/", "end.txt")
        manager = self.browse(home.files)
        manager.place(0, 30, 560, 500)
        velmora = self.start()
        velmora.place(600, 30, 780, 500)
        drag([manager.find("alpha.txt"), manager.find("beta")], velmora.items)
        self.eventually(velmora.rows, ["alpha.txt, Visible", "beta, Visible"])
        self.assertEqual(velmora.current(), ["alpha.txt, Visible"])
        self.assertEqual([velmora.pane()[caption] for caption in ("Kind:", "Where:", "Size:")],
                         ["public.plain-text", file, "1.000000 K"])
        self.eventually(velmora.stored, [("alpha.txt", "1"), ("beta", "1")])
        manager.stop()
        self.expect_listed("alpha.txt", "beta", "end.txt")

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

        velmora.press("Item", "push button", "button")
        self.eventually(velmora.rows, ["alpha.txt, Hidden", "beta, Visible"])
        velmora.press("Item")
        self.eventually(velmora.rows, ["beta, Visible", "alpha.txt, Hidden"])
        # The current row stays where it is, and nothing is stored yet.
        self.assertEqual(velmora.current(), ["alpha.txt, Hidden"])
        self.assertEqual(velmora.stored(), [("alpha.txt", "0"), ("beta", "1")])

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
        velmora.find("Drag files and folders here\nfrom your file manager")
        self.eventually(velmora.stored, [])


if __name__ == "__main__":
    desktop.main()

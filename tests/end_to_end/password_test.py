"""The password: how the list is locked and unlocked, walked through state by state."""
import time

import desktop
from desktop import Story, act, has, heard, key, type_text, wait

SWITCH = "Password protection", "check box"
ROWS = ["a, Visible", "b, Visible"]


class Password(Story):
    def seeded(self, require=None):
        lock = {} if require is None else {"password": "Pass 1", "requirePassword": require}
        self.home.seed(*self.home.make("a", "b"), **lock)
        return self.start()

    def answer(self, velmora, text, way="Return", mode="Password:", done=True):
        """Types into the dialog in place of what is there, and ends it with keys or a button."""
        field = velmora.find(mode, "password text")
        wait(lambda: has(field, "FOCUSED"), "the field has the focus")
        key("ctrl+a", "BackSpace")
        type_text(text)
        velmora.press(way) if way in ("OK", "Cancel") else key(way)
        if done:
            self.eventually(lambda: velmora.shown(mode, "password text"), [])

    def fail(self, velmora, wrong):
        self.answer(velmora, wrong, done=False)
        velmora.find("Wrong password")
        velmora.find("\nThe password is not correct. Please try again.")
        key("Return")
        self.eventually(lambda: velmora.shown("Wrong password"), [])
        field = velmora.find("Password:", "password text")
        self.assertEqual(field.queryText().characterCount, len(wrong))
        if wrong:
            self.assertEqual(field.queryText().getSelection(0), (0, len(wrong)))

    def expect(self, velmora, *expected):
        """Protection as shown and as stored, whether the password can be changed, the rows."""
        def state():
            commands = velmora.menu("Velmora")
            return (velmora.checked(SWITCH[0]), velmora.store().get("requirePassword"),
                    commands.get("Change Password…", commands.get("Set Password…")),
                    velmora.rows())
        self.eventually(state, expected)

    def expect_add(self, velmora, allowed):
        before = velmora.log().count("removeMenuItem.enabled")
        velmora.press("Add")
        wait(lambda: velmora.log().count("removeMenuItem.enabled") > before, "the press is taken")
        if allowed:
            velmora.find("select a file", "dialog")
            key("Escape")
        velmora.menu("File")  # out of reach while a panel is open

    def test_set_quit_start_and_enter(self):
        velmora = self.seeded()
        self.expect(velmora, False, None, True, ROWS)
        velmora.press(*SWITCH)
        typed = heard("object:text-changed")
        self.answer(velmora, "Pass 1", "OK")
        self.expect(velmora, True, "1", True, ROWS)
        self.assertEqual(velmora.store()["password"], "Pass 1")
        self.assertEqual([text for *_, text in typed], ["•"] * 6)
        self.assertIn("password:Pass 1\n", velmora.log())
        self.assertIn("Change Password…", velmora.menu("Velmora"))
        self.quit(velmora)

        began = time.monotonic()
        velmora = self.start()
        self.assertEqual(velmora.rows(), [])
        velmora.find("Password:", "password text")
        self.assertGreater(time.monotonic() - began, 1)
        self.fail(velmora, "pass 1")
        self.fail(velmora, "")
        self.answer(velmora, "Pass 1")
        self.expect(velmora, True, "1", True, ROWS)
        self.assertEqual(velmora.current(), ROWS[:1])
        self.expect_add(velmora, True)

    def test_from_locked_to_unlocked_and_back(self):
        velmora = self.seeded("1")
        self.answer(velmora, "", "Escape")
        self.expect(velmora, True, "1", False, [])
        velmora.says("The list is locked.\n")
        velmora.press(*SWITCH)
        self.answer(velmora, "nothing", "alt+F4")
        self.expect(velmora, True, "1", False, [])
        self.assertEqual(velmora.stored(), [("a", "1"), ("b", "1")])
        # The right text without Save loads the list, which stays locked but can be switched.
        velmora.press(*SWITCH)
        self.answer(velmora, "Pass 1", "Cancel")
        self.expect(velmora, True, "1", False, ROWS)
        velmora.says("The list is locked: ")
        self.expect_add(velmora, False)
        velmora.press("Visible", "check box")
        self.eventually(velmora.rows, ["a, Hidden", "b, Visible"])
        velmora.press("Visible", "check box")
        # Once Save was pressed, it unlocks, whatever ends the dialog.
        velmora.press(*SWITCH)
        self.fail(velmora, "wrong")
        self.answer(velmora, "Pass 1", "Cancel")
        self.expect(velmora, True, "1", True, ROWS)
        velmora.press(*SWITCH)  # without a dialog
        self.expect(velmora, False, "0", True, ROWS)
        velmora.press(*SWITCH)
        velmora.menu("Velmora", "Change Password…")
        velmora.find("Change Password", "dialog")
        self.answer(velmora, " ", "OK", "New password:")
        self.expect(velmora, True, "1", True, ROWS)
        self.quit(velmora)
        self.assertEqual(velmora.store()["password"], " ")

    def test_started_unprotected(self):
        velmora = self.seeded("0")
        self.expect(velmora, False, "0", True, ROWS)
        velmora.press(*SWITCH)
        shown = heard("object:state-changed:showing", "object:announcement")
        self.answer(velmora, "", "Cancel")
        closed = "Drag and drop is closed until a password is entered or Velmora starts again."
        velmora.find(closed, "notification")
        wait(lambda: closed in [name for _, name, _ in shown], "it is told")
        self.expect(velmora, False, "0", True, ROWS)
        velmora.press("Visible", "check box")
        self.eventually(velmora.rows, ["a, Hidden", "b, Visible"])
        act(velmora.row("a"), "Remove")  # tells more on a line that is shown already
        wait(lambda: any("“a” stays hidden" in name for _, name, _ in shown), "it is told")
        act(velmora.row("b"), "Remove")
        velmora.says("Press “+” below to add files. Drag and drop is closed\n")
        velmora.press(*SWITCH)
        self.answer(velmora, "Pass 1", "OK")
        self.expect(velmora, True, "1", True, [])
        velmora.says("Drag files and folders here")


if __name__ == "__main__":
    desktop.main()

#!/usr/bin/python3
"""The defaults companion against the file managers' real settings, in a home of its own:
defaults_test.py DEFAULTS [unittest arguments]"""

import os, pathlib, socket, subprocess, sys, tempfile, unittest

DEFAULTS = os.path.abspath(sys.argv.pop(1))
PAIR = ["com.apple.finder", "AppleShowAllFiles"]
MISSING = "The domain/default pair of (com.apple.finder, AppleShowAllFiles) does not exist\n"
SCHEMAS = {
    "org.gtk.gtk4.Settings.FileChooser": "show-hidden",
    "org.gnome.nautilus.preferences": "show-hidden-files",
    "org.mate.caja.preferences": "show-hidden-files",
    "org.nemo.preferences": "show-hidden-files",
}
# file below the home, its text with the setting on, the same with it off
FILES = [
    (".config/pcmanfm-qt/default/settings.conf",
     *("# kept\n\n[Desktop]\nShowHidden=true\nFont=\"Sans Serif,10\"\n\n[FolderView]\nMode=icon\n"
       f"ShowHidden={on}\n\n[Window]\nState=@ByteArray(\\0\\xff)\nTitle[de]=Gr\xfc\xdfe; \n"
       for on in ("true", "false"))),
    (".config/pcmanfm-qt/lxqt/settings.conf", "[FolderView]\r\nShowHidden = true \r\n\n[A]\nB=1",
     "[FolderView]\nShowHidden=false\n\n[A]\nB=1\n"),
    (".config/pcmanfm/LXDE/pcmanfm.conf", "[ui]\nshow_hidden=1\nsort=name;ascending;\n",
     "[ui]\nshow_hidden=0\nsort=name;ascending;\n"),
    (".local/share/dolphin/view_properties/global/.directory",
     "[Dolphin]\nVersion=4\n# n\xe4me\n\n[Settings]\nHiddenFilesShown=true\n",
     "[Dolphin]\nVersion=4\n# n\xe4me\n\n[Settings]\nHiddenFilesShown=false\n"),
]
CHANNEL = ('<?xml version="1.0" encoding="UTF-8"?>\n\n<channel name="thunar" version="1.0">\n'
           '  <property name="last-view" type="string" value="ThunarIconView"/>\n'
           '  <property name="last-show-hidden" type="bool" value="true"/>\n</channel>\n')


class DefaultsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = pathlib.Path(folder.name)
        # The settings service caches nothing here: GLib's own file stands in for its database.
        self.environment = {"PATH": os.environ["PATH"], "HOME": str(self.home),
                            "XDG_RUNTIME_DIR": str(self.home), "GSETTINGS_BACKEND": "keyfile",
                            "XDG_DATA_DIRS": str(self.home / "none"),
                            "XDG_CONFIG_DIRS": str(self.home / "none")}

    def ask(self, *command):
        return subprocess.check_output(command, env=self.environment, text=True)

    def write(self, name, text):
        path = self.home / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(text.encode("latin-1"))
        return path

    def run_(self, *arguments, status=0, error=None, timeout=30):
        result = subprocess.run([DEFAULTS, *arguments], env=self.environment, text=True,
                                capture_output=True, timeout=timeout)
        self.assertEqual(result.returncode, status, result.stderr)
        self.said = result.stderr
        if error is not None:
            self.assertEqual(self.said, error)
        return result.stdout

    def read(self):
        return self.run_("read", *PAIR, error="")

    def turnOff(self, value="NO"):
        self.assertEqual(self.run_("write", *PAIR, value, error=""), "")

    def testNothingIsSetAnywhere(self):
        self.assertEqual(self.run_("read", *PAIR, status=1, error=MISSING), "")
        self.turnOff()
        self.assertEqual([p for p in self.home.rglob("*") if p.is_file()], [])

    def testOtherFormsAreRefused(self):
        other = "The domain/default pair of (com.apple.dock, x) does not exist\n"
        self.assertEqual(self.run_("read", "com.apple.dock", "x", status=1, error=other), "")
        path = self.write(*FILES[1][:2])
        for arguments in ([], ["read"], ["delete", *PAIR], ["write", *PAIR],
                          ["write", *PAIR, "YES"], ["write", *PAIR, ""], ["read", *PAIR, "NO"]):
            with self.subTest(arguments):
                self.assertEqual(self.run_(*arguments, status=1), "")
        self.assertEqual(path.read_bytes(), FILES[1][1].encode())

    def testFiles(self):
        for number, (name, on, off) in enumerate(FILES):
            with self.subTest(name):
                path = self.write(name, on)
                path.chmod(0o640)
                self.assertEqual(self.read(), "YES\n")
                self.turnOff(["NO", "0", "false", "No"][number])
                self.assertEqual(path.read_bytes(), off.encode("latin-1"))
                self.assertEqual(path.stat().st_mode & 0o7777, 0o640)
                self.assertEqual(list(path.parent.iterdir()), [path])
                self.assertEqual(self.read(), "NO\n")
                # A link to it stays one.
                target = path.rename(self.home / "target")
                target.write_bytes(on.encode("latin-1"))
                path.symlink_to(target)
                self.turnOff()
                self.assertTrue(path.is_symlink())
                self.assertEqual(target.read_bytes(), off.encode("latin-1"))

    def testWhatCannotBeUnderstoodIsLeftAlone(self):
        text = "no line of a settings file\n[FolderView]\nShowHidden=true\n"
        path, other = self.write(FILES[0][0], text), self.write(*FILES[1][:2])
        for name in FILES[2][0], FILES[3][0]:
            (self.home / name).mkdir(parents=True)
        self.run_("write", *PAIR, "NO", status=1)
        for name in (FILES[index][0] for index in (0, 2, 3)):
            self.assertIn(str(self.home / name), self.said)
        self.assertEqual(path.read_text(), text)
        self.assertEqual(other.read_text(), FILES[1][2])  # the others are turned off all the same
        self.assertEqual(self.read(), "NO\n")

    def testSettings(self):
        folder = self.home / "schemas"
        folder.mkdir()
        for schema, key in SCHEMAS.items():
            (folder / f"{schema}.gschema.xml").write_text(
                f'<schemalist><schema id="{schema}" path="/{schema.replace(".", "/")}/">'
                f'<key name="{key}" type="b"><default>false</default></key></schema></schemalist>')
        self.environment["GSETTINGS_SCHEMA_DIR"] = str(folder)
        self.ask("glib-compile-schemas", folder)
        self.assertEqual(self.read(), "NO\n")
        for schema, key in SCHEMAS.items():
            with self.subTest(schema):
                self.ask("gsettings", "set", schema, key, "true")
                self.assertEqual(self.read(), "YES\n")
                self.turnOff()
                self.assertEqual(self.ask("gsettings", "get", schema, key), "false\n")
                self.assertEqual(self.read(), "NO\n")

    def testWithoutABusAndWithASilentOne(self):
        path = self.write(".config/xfce4/xfconf/xfce-perchannel-xml/thunar.xml", CHANNEL)
        self.assertEqual(self.read(), "YES\n")
        self.run_("write", *PAIR, "NO", status=1)  # nobody there to store it
        self.assertEqual(path.read_text(), CHANNEL)
        address = str(self.home / "silent")
        with socket.socket(socket.AF_UNIX) as silent:
            silent.bind(address)
            silent.listen()
            self.environment["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={address}"
            self.run_("read", *PAIR, status=1, timeout=10)
            self.write(*FILES[0][:2])
            self.assertEqual(self.read(), "YES\n")


if __name__ == "__main__":
    unittest.main()

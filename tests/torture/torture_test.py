"""Ends and spoils the store and chflags at every one of their file calls, cuts a stored file short
at many places, and hides from many processes at once: torture_test.py FAULTS STORE_USER
CHFLAGS_LOADING CHFLAGS [unittest arguments]"""
import collections, errno, os, pathlib, shutil, subprocess, sys, tempfile, unittest

FAULTS, STORE_USER, LOADING, CHFLAGS = sys.argv[1:5]
del sys.argv[1:5]
COUNTS = collections.Counter()
LEAST = {"kills": 460, "faults": 59, "truncations": 148, "names at once": 1000}
ERRORS = errno.EIO, errno.ENOSPC, errno.EACCES
EVER = 10**6
GOOD = "old", "new", "newer"
DAMAGES = [b" \n", bytes(4096), b"{}" + bytes(10), b"{}{}", b"[{}]", b"1", b'{"a":"\xfc"}',
           b'{"a":"\xf4', b'{"a":"\xed\xa0\x80"}', b'{"a":"\\ud800"}', b'{"a":"b",}',
           b'{"a":1.7976931348623159e308}', b'{"a":' + b"[" * 10**6,
           b'{"a":' + b"[" * 300000 + b"]" * 300000 + b"}"]


def content(file):
    return file.read_bytes() if file.exists() else None


def reports(done):
    return [line.split("\t") for line in done.stdout.splitlines()]


class Torture(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="torture-"))
        self.addCleanup(shutil.rmtree, self.root)
        self.folder = self.root / "below"

    def run_(self, *command, fault="none 1 0 0"):
        return subprocess.run(command, capture_output=True, text=True, timeout=60, cwd=self.root,
                              env={**os.environ, "LD_PRELOAD": FAULTS, "FAULT": fault,
                                   "BELOW": str(self.folder)})

    def walk(self, prepare, check, *command, more=()):
        """From the same beginning, each fault in each call; `more` is what the command is asked to
        do after the calls that are walked."""
        prepare()
        calls = self.run_(*command, fault=f"name 1 {EVER} 0").stderr.split()
        changes = [n for n, call in enumerate(calls, 1) if call in ("rename", "unlink")]
        made = max(n for n in range(changes[0]) if n == 0 or calls[n - 1] == "open")
        for number, call in enumerate(calls, 1):
            error = ERRORS[number % 3]
            kinds = (["error"] + ["before", "after"] * (call != "stat") +
                     ["short"] * (call in ("read", "write") and number < changes[-1]) +
                     ["torn", "none"] * (call == "write"))
            faults = [(kind, number) for kind in kinds] + [("error", EVER)] * (call != "stat")
            for kind, last in faults:
                with self.subTest(call=call, number=number, kind=kind, last=last, error=error):
                    prepare()
                    done = self.run_(*command, *more, fault=f"{kind} {number} {last} {error}")
                    killed = kind in ("before", "after", "torn")
                    COUNTS["kills" if killed else "faults"] += 1
                    self.assertIn(done.returncode, [-9] if killed else [0, 1], done)
                    # No file takes the place of another before all of it is there for sure.
                    told = (kind in ("error", "none") and made < number <= changes[0] and
                            call in ("write", "fsync", "close", "rename"))
                    check(done, killed, last == EVER, told)


class Store(Torture):
    def setUp(self):
        super().setUp()
        self.file, self.copy = self.folder / "defaults.json", self.folder / "defaults.json.bak"
        self.known = {None: None, "": b"{}"}
        for name in GOOD:
            self.use(name)
            self.known[name] = content(self.file)
        self.old = self.known["old"]
        self.known.update(cut=self.old[:-1], short=self.old[:-2])
        self.labels = {known: label for label, known in self.known.items()}

    def use(self, *names):
        return reports(self.run_(STORE_USER, self.file, *names))

    def look(self, file):
        return self.labels.get(content(file), "torn")

    def put(self, main, copy, link=False):
        shutil.rmtree(self.folder)
        if link or main is not None or copy is not None:
            (self.folder / "else").mkdir(parents=True)
        if link:
            self.file.symlink_to("else/mine")
        for file, put in (self.file, main), (self.copy, copy):
            if put is not None:
                file.write_bytes(put)

    def startAgain(self):
        """Finds what is there, all of it, tells when that was not in order, and tidies up."""
        found = self.look(self.file), self.look(self.copy)
        wanted = [label for label in found if label in GOOD] + [""]
        (_, name, _, problem), = self.use()
        self.assertEqual(name, wanted[0])
        self.assertEqual(problem == "", found[0] in (*GOOD, "") or found == (None, None), problem)
        self.assertEqual(list(self.folder.rglob("*.new-*")), [])
        for path in filter(os.path.exists, (self.file, self.copy)):
            self.assertEqual(path.stat().st_mode & 0o77, 0, path)  # for its owner alone
        self.assertEqual(self.look(self.file) or "", name)

    def walkStore(self, main, copy, link=False):
        def check(done, killed, ever, told):
            now, spare = self.look(self.file), self.look(self.copy)
            self.assertIn(now, [main, *GOOD])
            self.assertIn(spare, [copy, *GOOD])
            self.assertEqual(self.file.is_symlink(), link)
            kept = [self.look(file) for file in self.folder.glob("defaults.json*")]
            self.assertLessEqual({main, copy} & {"cut", "short"}, {*kept})
            if not killed:
                (*_, problem), *changes = reports(done)
                self.assertTrue(problem or main in GOOD or not (main or copy))
                self.assertFalse(told and changes[0][0] == "1", changes)
                for wanted, (saved, name, stored, problem) in zip(GOOD[1:], changes):
                    self.assertIn(name, [wanted] + [""] * (saved == "0"), changes)
                    self.assertTrue(stored in (name, "unread") if saved == "1" else problem, changes)
                self.assertTrue(saved == "1" or ever, changes)
                self.assertTrue(saved == "0" or now == "newer", changes)
            if kept != ["newer", "newer"]:
                self.startAgain()

        self.walk(lambda: self.put(self.known[main], self.known[copy], link), check,
                  STORE_USER, self.file, "new", more=["newer"])

    def test_every_call(self):
        for link in False, True:
            self.walkStore("old", "old", link)
            self.walkStore(None, None, link)
        for main, copy in (None, "old"), (None, "cut"), ("cut", "old"), ("cut", None), ("cut", "short"):
            self.walkStore(main, copy)

    def test_damage(self):
        """Cut short or other than it should be, the file is kept under another name, and told."""
        cuts = [self.old[:place] for place in range(0, len(self.old), len(self.old) // 160)]
        for damage in cuts + DAMAGES:
            with self.subTest(damage=damage[:30], size=len(damage)):
                self.put(damage, None)
                self.startAgain()
                self.file.write_bytes(damage)  # once more, in the same second
                self.copy.write_bytes(self.old)
                self.startAgain()
                self.assertEqual(self.folder.stat().st_mode & 0o77, 0)
                aside = self.folder.glob("defaults.json.2*")
                self.assertEqual([content(each) == damage for each in aside], [True, True])
                COUNTS["truncations"] += damage in cuts


class Chflags(Torture):
    def setUp(self):
        super().setUp()
        self.list = self.folder / ".hidden"

    def walkList(self, old, flag, new, link=False):
        def prepare():
            shutil.rmtree(self.folder, ignore_errors=True)
            (self.folder / "else").mkdir(parents=True)
            for name in "a", "b":
                (self.folder / name).touch()
            if old == b"a\n":  # made by the command, which removes it when it is empty
                subprocess.run([CHFLAGS, "hidden", "a"], cwd=self.folder, check=True)
            elif link:
                (self.folder / "else/.hidden").write_bytes(old)
                self.list.symlink_to("else/.hidden")
            elif old:
                self.list.write_bytes(old)
            if self.list.exists():
                os.utime(self.list, (1, 1))  # the clock's grain must not change what is called

        def check(done, killed, ever, told):
            now = content(self.list) or None
            self.assertIn(now, [old, new])
            self.assertEqual(self.list.is_symlink(), link)
            if not killed:
                self.assertEqual(now, old if done.returncode else new)
                self.assertFalse(told and done.returncode == 0)
                self.assertEqual(done.stderr.startswith("chflags: "), done.returncode == 1)
            # The next one takes away what is left.
            subprocess.run([CHFLAGS, "hidden", "b"], cwd=self.folder, check=True)
            self.assertEqual(content(self.list), (now or b"") + b"b\n")
            self.assertEqual(list(self.folder.rglob(".hidden.*")), [])

        self.walk(prepare, check, LOADING, flag, self.folder / "a")

    def test_every_call(self):
        try:
            os.setxattr(self.root, "user.velmora.test", b"")
        except OSError as error:
            self.skipTest(f"what is left cannot be marked here: {error}")
        long = b"".join(b"line %d\n" % number for number in range(5000))
        self.walkList(None, "hidden", b"a\n")
        self.walkList(long, "hidden", long + b"a\n")
        self.walkList(b"x\na\ny\n", "nohidden", b"x\ny\n")
        self.walkList(b"a\n", "nohidden", None)
        self.walkList(b"x\n", "hidden", b"x\na\n", link=True)

    def test_many_at_once(self):
        names = [b"%03d" % number for number in range(1000)]
        self.folder.mkdir()
        for name in names:
            (self.folder / os.fsdecode(name)).touch()
        self.list.write_bytes(b"x\n")
        for flag, wanted in ("hidden", names + [b"x"]), ("nohidden", [b"x"]):
            script = f'for name; do "$0" {flag} "$name" || exit 1; done'
            runs = [subprocess.Popen(["/bin/sh", "-c", script, CHFLAGS, *names[start::8]],
                                     cwd=self.folder) for start in range(8)]
            self.assertEqual([run.wait() for run in runs], [0] * 8)
            self.assertEqual(sorted(content(self.list).split()), sorted(wanted))
        COUNTS["names at once"] += len(names)


if __name__ == "__main__":
    whole = len(sys.argv) == 1
    good = unittest.main(exit=False).result.wasSuccessful()
    print(*(f"{COUNTS[name]} {name}" for name in LEAST), sep=", ")
    sys.exit(not good or (whole and any(COUNTS[name] < LEAST[name] for name in LEAST)))

"""Drives the real chflags as a process: chflags_test.py COMMAND [unittest arguments]"""
import ctypes, errno, fcntl, os, pathlib, resource, shutil, stat, subprocess, sys, tempfile, time
import unittest

COMMAND = ""
MARK = "user.velmora.created"
HIDDEN_BIT = 2
MISSING = "No such file or directory"


def run(*arguments, status=0, says="", **options):
    done = subprocess.run([COMMAND, *arguments], capture_output=True, timeout=60, **options)
    assert (done.returncode, done.stdout, os.fsdecode(done.stderr)) == (status, b"", says), done


def refuse(item, problem, **options):
    run("hidden", item, status=1, says=f"chflags: {os.fsdecode(item)}: {problem}\n", **options)


class Folder(unittest.TestCase):
    def setUp(self):
        self.enter(pathlib.Path(tempfile.mkdtemp(prefix="chflags-test-")))
        self.addCleanup(shutil.rmtree, self.folder)
        self.folder.chmod(0o755)

    def enter(self, folder):
        self.folder, self.list = folder, folder / ".hidden"

    def make(self, *names, content=b""):
        for name in names:
            (self.folder / name).write_bytes(content)
        return [self.folder / name for name in names]

    def mount(self, *arguments, on="mounted"):
        """Mounts another file system in the folder; skips where that cannot be had."""
        point = self.folder / on
        point.mkdir()
        done = subprocess.run(["mount", *arguments, point], capture_output=True, text=True)
        if done.returncode != 0:
            self.skipTest(done.stderr.strip())
        self.addCleanup(subprocess.run, ["umount", point], check=True)
        return point

    def needMarks(self):
        try:
            os.setxattr(self.folder, MARK, b"")
        except OSError as error:
            self.skipTest(f"files cannot be marked here: {error}")


class CommandLine(Folder):
    def test_other_forms_are_errors(self):
        item, = self.make("a")
        for arguments in [], ["hidden"], ["-R", "hidden", item], ["-h"], ["--", "hidden", item]:
            run(*arguments, status=1, says="usage: chflags hidden|nohidden file ...\n")
        for flag in "uchg", "hide", "", "Hidden", "hidden,nohidden":
            run(flag, item, status=1, says=f"chflags: invalid flag: {flag}\n")
        self.assertFalse(self.list.exists())

    def test_the_others_are_done_and_messages_keep_the_order(self):
        self.make("a", "b", "li\nne", "\udcff", "n" * 255)
        (self.folder / "c").mkdir()
        (self.folder / "dangling").symlink_to("nowhere")
        run("hidden", "gone", "a", "", "/", "b", "li\nne", "c/..", "./c//", "a/x", "n" * 256, "a",
            b"\xff", "dangling", "n" * 255, cwd=self.folder, status=1,
            says=f"chflags: gone: {MISSING}\nchflags: : {MISSING}\n"
            "chflags: /: The path does not end in a name\n"
            "chflags: li\nne: Names with a line break cannot be hidden or shown\n"
            "chflags: c/..: The path does not end in a name\n"
            f"chflags: a/x: Not a directory\nchflags: {'n' * 256}: File name too long\n")
        (self.folder / "a").unlink()
        run("nohidden", "a", cwd=self.folder, status=1, says=f"chflags: a: {MISSING}\n")
        # No message may end in a file that took the place of a closed standard error.
        subprocess.run(["/bin/sh", "-c", '"$0" nohidden a b 2>&-', COMMAND], cwd=self.folder)
        self.assertEqual(self.list.read_bytes(), b"a\n\xff\ndangling\n" + b"n" * 255 + b"\nc\n")

    def test_a_path_longer_than_the_system_takes_at_once(self):
        deep = os.open(self.folder, os.O_RDONLY)
        for _ in range(20):
            os.mkdir("d" * 250, dir_fd=deep)
            deep = os.open("d" * 250, os.O_RDONLY, dir_fd=deep)
        os.close(os.open("a", os.O_CREAT, dir_fd=deep))
        run("hidden", self.folder.joinpath(*["d" * 250] * 20, "a"))
        self.assertEqual(os.read(os.open(".hidden", os.O_RDONLY, dir_fd=deep), 9), b"a\n")
        os.closerange(3, deep + 2)


class TheList(Folder):
    def test_only_a_file_made_here_is_removed_when_emptied(self):
        self.needMarks()
        a, = self.make("a")
        for content in None, b"":  # made by the command, and by the user
            for flag in "hidden", "nohidden":
                run(flag, a)
            self.assertEqual(self.list.read_bytes() if self.list.exists() else None, content)
            self.make(".hidden")
        self.enter(self.mount("-t", "ramfs", "none"))  # where files cannot be marked
        a, b = self.make("a", "b")
        self.make(".hidden", content=b"a\nb\n")
        run("nohidden", a, b)
        self.assertFalse(self.list.exists())

    def test_mode_owner_and_attributes_stay(self):
        self.needMarks()
        a, = self.make("a")
        self.make(".hidden", content=b"x\n")
        os.chmod(self.list, 0o640)
        os.setxattr(self.list, "user.note", b"mine")
        if os.geteuid() == 0:
            os.chown(self.list, 12345, 54321)
        before = os.stat(self.list)[:1] + os.stat(self.list)[4:6]
        for flag in "hidden", "nohidden":
            run(flag, a)
            self.assertEqual(os.lstat(self.list)[:1] + os.lstat(self.list)[4:6], before)
            self.assertEqual(os.listxattr(self.list), ["user.note"])

    def test_a_link_leads_to_another_list_of_the_user_alone(self):
        a, key = self.make("a", "key", content=b"x\n")
        other = self.folder / "else"
        other.mkdir()
        self.make("else/.hidden", content=b"x\n")
        (other / "again").symlink_to(".hidden")
        for target in f"{other}/.hidden", "else/again", "else/.hidden":
            with self.subTest(target):
                self.list.symlink_to(target)
                for flag, content in ("hidden", b"x\na\n"), ("nohidden", b"x\n"):
                    run(flag, a)
                    self.assertEqual(os.readlink(self.list), target)
                    self.assertEqual(self.list.read_bytes(), content)
                self.list.unlink()
        # Emptied, it stays: what it was is for its own folder to say.
        (other / ".hidden").unlink()
        run("hidden", *self.make("else/b"))
        self.list.symlink_to("else/.hidden")
        run("nohidden", *self.make("b"))
        self.assertEqual(self.list.read_bytes(), b"")

        (other / ".hidden").unlink()
        strange, = self.make("else/.hidden", content=b"x\n")
        (self.folder / "empty").mkdir()
        not_followed = "The .hidden beside it is a link that is not followed"
        targets = dict.fromkeys(["key", key, "nowhere", "empty/.hidden", ".hidden"], not_followed)
        targets |= dict.fromkeys(["missing/.hidden", "else/gone/../.hidden"], MISSING)
        if os.geteuid() == 0:
            os.chown(strange, 12345, 12345)
            targets["else/.hidden"] = not_followed
        for target, problem in targets.items():
            with self.subTest(target):
                self.list.unlink()
                self.list.symlink_to(target)
                before = sorted(os.walk(self.folder))
                refuse(a, problem)
                self.assertEqual(sorted(os.walk(self.folder)), before)
                self.assertEqual([key.read_bytes(), strange.read_bytes()], [b"x\n"] * 2)

    def test_what_is_no_file_is_left_alone(self):
        a, = self.make("a")
        for make, remove in (os.mkfifo, os.remove), (os.mkdir, os.rmdir):
            make(self.list)
            refuse(a, "The .hidden beside it is not a file")
            remove(self.list)

    def test_a_file_of_the_temporary_name_stays(self):
        a, own = self.make("a", ".hidden.velmora", content=b"mine")
        run("hidden", a)
        self.assertEqual(own.read_bytes(), b"mine")
        self.assertEqual(len(os.listdir(self.folder)), 3)

    def test_the_time_always_gets_later(self):
        a, = self.make("a")
        self.make(".hidden", content=b"x\n")
        for ahead in 0, 3600, -3600:
            os.utime(self.list, (1, time.time() + ahead))
            for flag in ["hidden", "nohidden"] * 5:
                before = os.stat(self.list).st_mtime_ns
                run(flag, a)
                after = os.stat(self.list)
                self.assertGreaterEqual(after.st_mtime_ns - before, 10**6)
                run(flag, a)  # nothing to change
                again = os.stat(self.list)
                self.assertEqual([again.st_ino, again.st_mtime_ns, again.st_ctime_ns],
                                 [after.st_ino, after.st_mtime_ns, after.st_ctime_ns])


class TheItem(Folder):
    def test_it_reports_a_change_and_has_none(self):
        libc = ctypes.CDLL(None)
        item, = self.make("a")
        os.chmod(item, 0o2751)
        (self.folder / "link").symlink_to(item)
        events = libc.inotify_init1(os.O_NONBLOCK)
        self.addCleanup(os.close, events)
        libc.inotify_add_watch(events, bytes(item), 4)  # IN_ATTRIB
        for flag in "hidden", "nohidden":
            run(flag, item)
            self.assertEqual(len(os.read(events, 4096)), 16)
            # Nothing to change, and what a link points to is not the item.
            run(flag, item, self.folder / "link")
            self.assertRaises(BlockingIOError, os.read, events, 4096)
            self.assertEqual(stat.S_IMODE(os.stat(item).st_mode), 0o2751)

    def test_the_bit_of_other_systems(self):
        def bits(path, kind):
            if kind == "ntfs-3g":
                return int.from_bytes(os.getxattr(path, "system.ntfs_attrib_be"), "big")
            file = os.open(path, os.O_RDONLY)
            self.addCleanup(os.close, file)
            read_attributes = 0x80047210  # FAT_IOCTL_GET_ATTRIBUTES
            return int.from_bytes(fcntl.ioctl(file, read_attributes, bytes(4)), sys.byteorder)

        outside = self.folder
        for kind, *maker in [("vfat", "mkfs.vfat"), ("exfat", "mkfs.exfat"),
                             ("ntfs-3g", "mkntfs", "-Fq")]:
            with self.subTest(kind):
                self.enter(outside)
                image, = self.make(kind, content=bytes(8 << 20))
                maker[0] = shutil.which(maker[0], path=os.defpath + ":/sbin:/usr/sbin")
                if not maker[0]:
                    self.skipTest("it cannot be made")
                subprocess.run([*maker, image], check=True, capture_output=True)
                self.enter(self.mount("-t", kind, "-o", "loop", image, on=f"disk {kind}"))
                items = self.make("file") + [self.folder / "folder"]
                items[1].mkdir()
                before = [bits(item, kind) for item in items]
                run("hidden", *items)
                hidden = [bits(item, kind) for item in items]
                self.assertEqual(hidden, [each | HIDDEN_BIT for each in before])
                self.assertEqual(self.list.read_bytes(), b"file\nfolder\n")
                time_before = os.stat(self.list).st_mtime_ns
                run("nohidden", items[0])
                self.assertGreater(os.stat(self.list).st_mtime_ns, time_before)
                run("nohidden", items[1])
                self.assertEqual([bits(item, kind) for item in items], before)
                self.assertFalse(self.list.exists())


class Trouble(Folder):
    def test_a_folder_that_somebody_keeps_locked(self):
        a, = self.make("a")
        folder = os.open(self.folder, os.O_RDONLY)
        self.addCleanup(os.close, folder)
        fcntl.flock(folder, fcntl.LOCK_EX)
        began = time.monotonic()
        refuse(a, os.strerror(errno.EWOULDBLOCK))
        self.assertLess(time.monotonic() - began, 4)

    def test_a_file_that_gets_too_large(self):
        self.make(".hidden", content=b"x" * 9999)
        refuse(*self.make("a" * 200), os.strerror(errno.EFBIG),
               preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (10000, 10000)))

    def test_a_folder_that_may_not_be_written(self):
        listed, other = self.make("a", "b")
        self.make(".hidden", content=b"a\n")
        command = shutil.copy(COMMAND, self.folder / "command")
        os.chmod(self.folder, 0o555)
        user = {"user": 65534, "group": 65534, "extra_groups": []} if os.geteuid() == 0 else {}
        for flag, done, not_done in ("hidden", listed, other), ("nohidden", other, listed):
            told = subprocess.run([command, flag, listed, other], capture_output=True, **user)
            self.assertEqual((told.returncode, told.stderr.decode()),
                             (1, f"chflags: {not_done}: Permission denied\n"))
            self.assertEqual(subprocess.run([command, flag, done], **user).returncode, 0)
        os.chmod(self.folder, 0o755)


if __name__ == "__main__":
    COMMAND = os.path.abspath(sys.argv.pop(1))
    unittest.main()

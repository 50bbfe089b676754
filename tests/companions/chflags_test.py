"""Drives the real chflags as a process: chflags_test.py COMMAND [unittest arguments]"""
import ctypes, errno, fcntl, os, resource, shutil, stat, subprocess, sys, tempfile, time
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
        self.enter(os.fsencode(tempfile.mkdtemp(prefix="chflags-test-")))
        self.addCleanup(shutil.rmtree, self.folder)
        os.chmod(self.folder, 0o755)

    def enter(self, folder):
        self.folder, self.list = folder, os.path.join(folder, b".hidden")

    def make(self, *names, content=b""):
        for name in names:
            with open(os.path.join(self.folder, name), "wb") as file:
                file.write(content)
        return [os.path.join(self.folder, name) for name in names]

    def read(self):
        with open(self.list, "rb") as file:
            return file.read()

    def mount(self, *arguments, on=b"mounted"):
        """Mounts another file system in the folder; skips where that cannot be had."""
        point = os.path.join(self.folder, on)
        os.mkdir(point)
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
        item, = self.make(b"a")
        for arguments in [], ["hidden"], ["-R", "hidden", item], ["-h"], ["--", "hidden", item]:
            run(*arguments, status=1, says="usage: chflags hidden|nohidden file ...\n")
        for flag in "uchg", "hide", "", "Hidden", "hidden,nohidden":
            run(flag, item, status=1, says=f"chflags: invalid flag: {flag}\n")
        self.assertFalse(os.path.exists(self.list))

    def test_the_others_are_done_and_messages_keep_the_order(self):
        self.make(b"a", b"b", b"li\nne", b"\xff", b"n" * 255)
        os.mkdir(self.folder + b"/c")
        os.symlink(b"nowhere", self.folder + b"/dangling")
        run("hidden", "gone", "a", "", "/", "b", "li\nne", "c/..", "./c//", "a/x", "n" * 256, "a",
            b"\xff", "dangling", "n" * 255, cwd=self.folder, status=1,
            says=f"chflags: gone: {MISSING}\nchflags: : {MISSING}\n"
            "chflags: /: The path does not end in a name\n"
            "chflags: li\nne: Names with a line break cannot be hidden or shown\n"
            "chflags: c/..: The path does not end in a name\n"
            f"chflags: a/x: Not a directory\nchflags: {'n' * 256}: File name too long\n")
        os.remove(self.folder + b"/a")
        run("nohidden", "a", cwd=self.folder, status=1, says=f"chflags: a: {MISSING}\n")
        # No message may end in a file that took the place of a closed standard error.
        subprocess.run(["/bin/sh", "-c", '"$0" nohidden a b 2>&-', COMMAND], cwd=self.folder)
        self.assertEqual(self.read(), b"a\n\xff\ndangling\n" + b"n" * 255 + b"\nc\n")

    def test_a_path_longer_than_the_system_takes_at_once(self):
        deep = os.open(self.folder, os.O_RDONLY)
        for _ in range(20):
            os.mkdir("d" * 250, dir_fd=deep)
            deep = os.open("d" * 250, os.O_RDONLY, dir_fd=deep)
        os.close(os.open("a", os.O_CREAT, dir_fd=deep))
        run("hidden", b"/".join([self.folder] + [b"d" * 250] * 20 + [b"a"]))
        self.assertEqual(os.read(os.open(".hidden", os.O_RDONLY, dir_fd=deep), 9), b"a\n")
        os.closerange(3, deep + 2)


class TheList(Folder):
    def test_only_a_file_made_here_is_removed_when_emptied(self):
        self.needMarks()
        a, = self.make(b"a")
        for content in None, b"":  # made by the command, and by the user
            for flag in "hidden", "nohidden":
                run(flag, a)
            self.assertEqual(self.read() if os.path.exists(self.list) else None, content)
            self.make(b".hidden")
        self.enter(self.mount("-t", "ramfs", "none"))  # where files cannot be marked
        a, b = self.make(b"a", b"b")
        self.make(b".hidden", content=b"a\nb\n")
        run("nohidden", a, b)
        self.assertFalse(os.path.exists(self.list))

    def test_mode_owner_and_attributes_stay(self):
        self.needMarks()
        a, = self.make(b"a")
        self.make(b".hidden", content=b"x\n")
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
        a, key = self.make(b"a", b"key", content=b"x\n")
        other = self.folder + b"/else"
        os.mkdir(other)
        self.make(b"else/.hidden", content=b"x\n")
        os.symlink(b".hidden", other + b"/again")
        for target in other + b"/.hidden", b"else/again", b"else/.hidden":
            with self.subTest(target):
                os.symlink(target, self.list)
                for flag, content in ("hidden", b"x\na\n"), ("nohidden", b"x\n"):
                    run(flag, a)
                    self.assertEqual((os.readlink(self.list), self.read()), (target, content))
                os.remove(self.list)
        # Emptied, it stays: what it was is for its own folder to say.
        os.remove(other + b"/.hidden")
        run("hidden", *self.make(b"else/b"))
        os.symlink(b"else/.hidden", self.list)
        run("nohidden", *self.make(b"b"))
        self.assertEqual(self.read(), b"")

        os.remove(other + b"/.hidden")
        strange, = self.make(b"else/.hidden", content=b"x\n")
        os.mkdir(self.folder + b"/empty")
        not_followed = "The .hidden beside it is a link that is not followed"
        targets = dict.fromkeys([b"key", key, b"nowhere", b"empty/.hidden", b".hidden"],
                                not_followed)
        targets |= dict.fromkeys([b"missing/.hidden", b"else/gone/../.hidden"], MISSING)
        if os.geteuid() == 0:
            os.chown(strange, 12345, 12345)
            targets[b"else/.hidden"] = not_followed
        for target, problem in targets.items():
            with self.subTest(target):
                os.remove(self.list)
                os.symlink(target, self.list)
                before = sorted(os.walk(self.folder))
                refuse(a, problem)
                self.assertEqual(sorted(os.walk(self.folder)), before)
                for file in key, strange:
                    with open(file, "rb") as stays:
                        self.assertEqual(stays.read(), b"x\n")

    def test_what_is_no_file_is_left_alone(self):
        a, = self.make(b"a")
        makers = [(os.mkfifo, os.remove), (os.mkdir, os.rmdir)]
        if os.geteuid() == 0:
            makers.append((lambda path: os.mknod(path, stat.S_IFCHR | 0o666, os.makedev(1, 3)),
                           os.remove))
        for make, remove in makers:
            make(self.list)
            refuse(a, "The .hidden beside it is not a file")
            remove(self.list)

    def test_a_file_of_the_temporary_name_stays(self):
        a, own = self.make(b"a", b".hidden.velmora", content=b"mine")
        run("hidden", a)
        with open(own, "rb") as file:
            self.assertEqual(file.read(), b"mine")
        self.assertEqual(len(os.listdir(self.folder)), 3)

    def test_the_time_always_gets_later(self):
        a, = self.make(b"a")
        self.make(b".hidden", content=b"x\n")
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
        item, = self.make(b"a")
        os.chmod(item, 0o2751)
        os.symlink(item, self.folder + b"/link")
        events = libc.inotify_init1(os.O_NONBLOCK)
        self.addCleanup(os.close, events)
        libc.inotify_add_watch(events, item, 4)  # IN_ATTRIB
        for flag in "hidden", "nohidden":
            run(flag, item)
            self.assertEqual(len(os.read(events, 4096)), 16)
            # Nothing to change, and what a link points to is not the item.
            run(flag, item, self.folder + b"/link")
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
                image, = self.make(kind.encode(), content=bytes(8 << 20))
                maker[0] = shutil.which(maker[0], path=os.defpath + ":/sbin:/usr/sbin")
                if not maker[0]:
                    self.skipTest("it cannot be made")
                subprocess.run([*maker, image], check=True, capture_output=True)
                self.enter(self.mount("-t", kind, "-o", "loop", image, on=b"disk " + kind.encode()))
                items = self.make(b"file") + [self.folder + b"/folder"]
                os.mkdir(items[1])
                before = [bits(item, kind) for item in items]
                run("hidden", *items)
                hidden = [bits(item, kind) for item in items]
                self.assertEqual(hidden, [each | HIDDEN_BIT for each in before])
                self.assertEqual(self.read(), b"file\nfolder\n")
                time_before = os.stat(self.list).st_mtime_ns
                run("nohidden", items[0])
                self.assertGreater(os.stat(self.list).st_mtime_ns, time_before)
                run("nohidden", items[1])
                self.assertEqual([bits(item, kind) for item in items], before)
                self.assertFalse(os.path.exists(self.list))


class Trouble(Folder):
    def test_a_folder_that_somebody_keeps_locked(self):
        a, = self.make(b"a")
        folder = os.open(self.folder, os.O_RDONLY)
        self.addCleanup(os.close, folder)
        fcntl.flock(folder, fcntl.LOCK_EX)
        began = time.monotonic()
        refuse(a, os.strerror(errno.EWOULDBLOCK))
        self.assertLess(time.monotonic() - began, 4)

    def test_a_file_that_gets_too_large(self):
        self.make(b".hidden", content=b"x" * 9999)
        refuse(*self.make(b"a" * 200), os.strerror(errno.EFBIG),
               preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (10000, 10000)))

    def test_a_folder_that_may_not_be_written(self):
        listed, other = self.make(b"a", b"b")
        self.make(b".hidden", content=b"a\n")
        command = shutil.copy(COMMAND, self.folder + b"/command")
        os.chmod(self.folder, 0o555)
        user = {"user": 65534, "group": 65534, "extra_groups": []} if os.geteuid() == 0 else {}
        for flag, done, not_done in ("hidden", listed, other), ("nohidden", other, listed):
            told = subprocess.run([command, flag, listed, other], capture_output=True, **user)
            self.assertEqual(told.stderr, b"chflags: " + not_done + b": Permission denied\n")
            self.assertEqual(told.returncode, 1)
            self.assertEqual(subprocess.run([command, flag, done], **user).returncode, 0)
        os.chmod(self.folder, 0o755)


if __name__ == "__main__":
    COMMAND = os.path.abspath(sys.argv.pop(1))
    unittest.main()

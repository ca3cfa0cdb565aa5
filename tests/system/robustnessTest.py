#!/usr/bin/env python3
"""What happens to themes and packages when the disk is full or read-only, or the program is killed.

    robustnessTest.py ZDT

Runs the real program. Disks are small file systems in memory, mounted in a namespace of this script's own, for which
it starts itself again under `unshare`. Where that isn't allowed, the parts that need it are skipped, and said so.
"""

import json
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest
import zipfile

ZDT = os.path.realpath(sys.argv[1])
IN_NAMESPACE = "ZDT_TEST_NAMESPACE"
SECONDS = 120


def zdt(root, *arguments):
    return subprocess.run([ZDT, "--root", root, *arguments], capture_output=True, text=True, timeout=SECONDS)


def content(path):
    with open(path, "rb") as file:
        return file.read()


def snapshot(folder):
    """Each file below a folder with its content."""
    files = {}
    for path, _, names in os.walk(folder):
        for name in names:
            files[os.path.relpath(os.path.join(path, name), folder)] = content(os.path.join(path, name))
    return files


class StoreTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.mkdtemp(prefix="zdt-system-")
        self.addCleanup(shutil.rmtree, self.folder, True)

    def must(self, root, *arguments):
        result = zdt(root, *arguments)
        self.assertEqual((result.returncode, result.stderr), (0, ""), arguments)
        return result.stdout

    def refused(self, root, *arguments):
        result = zdt(root, *arguments)
        self.assertEqual(result.returncode, 1, (arguments, result.stdout, result.stderr))
        self.assertRegex(result.stderr, r"\Azdt: [^\n]+\n\Z")
        return result.stderr

    def path(self, name):
        return os.path.join(self.folder, name)


@unittest.skipUnless(os.environ.get(IN_NAMESPACE), "file systems can't be mounted here")
class DiskTest(StoreTest):
    def mount(self, name, size):
        path = self.path(name)
        os.mkdir(path)
        subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={size}", "tmpfs", path], check=True)
        self.addCleanup(subprocess.run, ["umount", "-l", path])
        return path

    def fill(self, path, leave=0):
        """Fills the file system, but for some bytes."""
        filler = os.path.join(path, "filler")
        with open(filler, "wb", buffering=0) as file:
            try:
                while file.write(b"\0" * 65536):
                    pass
            except OSError:
                pass
        if leave:
            os.truncate(filler, max(0, os.path.getsize(filler) - leave))

    def test_full_disk_leaves_no_half_theme_and_loses_no_value(self):
        root = self.mount("disk", "40m")
        self.must(root, "new", "Old", "--generation", "9")
        picture = os.path.join(self.folder, "icon.png")
        shutil.copy(os.path.join(root, "res/Old/icons/com.android.email.png"), picture)
        before = snapshot(os.path.join(root, "res"))
        for leave in (0, 4096, 100000, 1000000):
            with self.subTest(leave=leave):
                self.fill(root, leave)
                self.refused(root, "new", "Fresh", "--generation", "8")
                self.assertEqual(zdt(root, "list").stdout, "Old\n")
                if leave == 0:
                    self.refused(root, "set", "Old", "title", "New title")
                    self.refused(root, "set", "Old", "icons/system/static/com.android.browser.png", picture)
                self.refused(root, "export", "Old", os.path.join(root, "Old.zdt"))
                self.assertEqual(snapshot(os.path.join(root, "res")), before)
                self.assertFalse(os.path.exists(os.path.join(root, "Old.zdt")))
                os.remove(os.path.join(root, "filler"))
                shutil.rmtree(os.path.join(root, "tmp"), True)
        self.must(root, "check", "Old")

    def test_full_destination_keeps_the_package_that_stood_there(self):
        root = self.path("root")
        self.must(root, "new", "T", "--generation", "9")
        disk = self.mount("disk", "1m")
        package = os.path.join(disk, "T.zdt")
        with open(package, "w") as file:
            file.write("an older package")
        self.refused(root, "export", "T", package)
        self.assertEqual(snapshot(disk), {"T.zdt": b"an older package"})

    def test_full_disk_keeps_the_theme_that_an_import_would_replace(self):
        other = self.path("other")
        self.must(other, "new", "T", "--generation", "8")
        self.must(other, "export", "T", self.path("T.zdt"))
        root = self.mount("disk", "20m")
        self.must(root, "new", "T", "--generation", "9", "--small")
        before = snapshot(os.path.join(root, "res"))
        self.fill(root, 1000000)
        self.refused(root, "import", "--replace", self.path("T.zdt"))
        self.assertEqual(snapshot(os.path.join(root, "res")), before)
        os.remove(os.path.join(root, "filler"))
        self.assertEqual(json.loads(self.must(root, "info", "T", "--json"))["generation"], 2)

    def test_read_only_store_can_be_read_and_refuses_changes(self):
        root = self.mount("disk", "40m")
        self.must(root, "new", "T", "--generation", "9")
        before = snapshot(root)
        subprocess.run(["mount", "-o", "remount,ro", root], check=True)
        self.must(root, "info", "T")
        self.must(root, "tree", "T")
        self.must(root, "check", "T")
        icon = os.path.join(root, "res/T/icons/com.android.email.png")
        for arguments in (
            ("set", "T", "title", "x"),
            ("set", "T", "launcher/text/checked", "#123456"),
            ("set", "T", "icons/system/static/com.android.browser.png", icon),
            ("new", "U", "--generation", "9"),
            ("generation", "T", "8"),
            ("dynamic", "T", "clock", "on"),
            ("delete", "T"),
            ("export", "T", self.path("T.zdt")),
        ):
            self.refused(root, *arguments)
        self.assertEqual(snapshot(root), before)


class ConcurrencyTest(StoreTest):
    """Several runs of the program on one store at once."""

    def run_all(self, root, commands):
        runs = [subprocess.Popen([ZDT, "--root", root, *command], stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
                for command in commands]
        return [(run.communicate(timeout=SECONDS)[1].decode(), run.returncode) for run in runs]

    def test_each_of_many_values_is_kept(self):
        root = self.path("root")
        self.must(root, "new", "T", "--generation", "9")
        keys = [node["key"] for node in json.loads(self.must(root, "tree", "T", "--json"))
                if node["key"].startswith("contacts/text/") and node["applicable"]][:20]
        results = self.run_all(root, [("set", "T", key, f"#0000{index:02x}") for index, key in enumerate(keys)])
        self.assertEqual(results, [("", 0)] * len(keys))
        for index, key in enumerate(keys):
            self.assertEqual(self.must(root, "get", "T", key), f"#0000{index:02x}\n")

    def test_each_package_of_two_exports_is_whole(self):
        root = self.path("root")
        self.must(root, "new", "T", "--generation", "9")
        self.must(root, "export", "T", self.path("whole.zdt"))
        names = sorted(zipfile.ZipFile(self.path("whole.zdt")).namelist())
        for _ in range(5):
            packages = [self.path("a.zdt"), self.path("b.zdt")]
            self.assertEqual(self.run_all(root, [("export", "T", package) for package in packages]), [("", 0)] * 2)
            for package in packages:
                self.assertEqual(sorted(zipfile.ZipFile(package).namelist()), names)

    def test_one_of_several_makers_of_a_theme_wins(self):
        root = self.path("root")
        results = self.run_all(root, [("new", "T", "--generation", generation) for generation in "589"])
        self.assertEqual(sorted(code for _, code in results), [0, 1, 1])
        self.must(root, "check", "T")


class OutputTest(StoreTest):
    def test_output_that_cannot_be_written_is_a_failure(self):
        root = self.path("root")
        self.must(root, "new", "T", "--generation", "9")
        with open("/dev/full", "w") as full:
            result = subprocess.run([ZDT, "--root", root, "tree", "T"], stdout=full, stderr=subprocess.PIPE, text=True,
                                    timeout=SECONDS)
        self.assertEqual((result.returncode, result.stderr), (1, "zdt: standard output: it couldn't be written\n"))


class KillTest(StoreTest):
    """The program is killed at moments spread over its run."""

    ROUNDS = 25

    def run_and_kill(self, root, *arguments, after):
        process = subprocess.Popen(
            [ZDT, "--root", root, *arguments], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL
        )
        try:
            process.wait(timeout=after)
        except subprocess.TimeoutExpired:
            process.send_signal(signal.SIGKILL)
            process.wait()

    def seconds_of(self, root, *arguments):
        start = os.times().elapsed
        self.must(root, *arguments)
        return os.times().elapsed - start + 0.01

    def test_killed_set_leaves_the_old_or_the_new_value(self):
        root = self.path("root")
        self.must(root, "new", "T", "--generation", "9")
        titles = ["Old" + "o" * 3000, "New" + "n" * 3000]
        icons = [os.path.join(root, "res/T/icons", name) for name in ("com.android.mms.png", "com.android.email.png")]
        allowed = [content(icon) for icon in icons]
        key = "icons/system/static/com.android.browser.png"
        run_time = self.seconds_of(root, "set", "T", "title", titles[0], key, icons[0])
        for turn in range(self.ROUNDS):
            self.run_and_kill(root, "set", "T", "title", titles[turn % 2], key, icons[turn % 2],
                              after=run_time * turn / self.ROUNDS)
            self.assertIn(self.must(root, "get", "T", "title").strip(), titles)
            self.assertIn(content(self.must(root, "get", "T", key).strip()), allowed)
        self.must(root, "check", "T")
        leftovers = [name for name in snapshot(os.path.join(root, "res")) if name.endswith(".part")]
        self.assertLessEqual(len(leftovers), 1, "a file has a temporary name only while it takes its place")

    def test_killed_export_leaves_the_old_or_the_new_package(self):
        root = self.path("root")
        self.must(root, "new", "T", "--generation", "9")
        package = self.path("out/T.zdt")
        os.mkdir(os.path.dirname(package))
        run_time = self.seconds_of(root, "export", "T", package)
        before = snapshot(os.path.join(root, "res"))
        for turn in range(self.ROUNDS):
            self.run_and_kill(root, "export", "T", package, after=run_time * turn / self.ROUNDS)
            self.assertIsNone(zipfile.ZipFile(package).testzip())
            self.assertEqual(os.listdir(os.path.dirname(package)), ["T.zdt"])
        self.assertEqual(snapshot(os.path.join(root, "res")), before)
        self.must(root, "export", "T", package)

    def test_killed_import_leaves_a_whole_theme(self):
        root = self.path("root")
        self.must(root, "new", "T", "--generation", "9")
        self.must(root, "export", "T", self.path("T.zdt"))
        run_time = self.seconds_of(root, "import", "--replace", self.path("T.zdt"))
        for turn in range(self.ROUNDS):
            self.run_and_kill(root, "import", "--replace", self.path("T.zdt"), after=run_time * turn / self.ROUNDS)
            self.assertEqual(self.must(root, "list"), "T\n")
            self.must(root, "check", "T")

    def test_killed_delete_leaves_a_whole_theme_or_none(self):
        root = self.path("root")
        self.must(root, "new", "T", "--generation", "9")
        self.must(root, "export", "T", self.path("T.zdt"))
        run_time = self.seconds_of(root, "delete", "T")
        for turn in range(self.ROUNDS):
            self.must(root, "import", "--replace", self.path("T.zdt"))
            self.run_and_kill(root, "delete", "T", after=run_time * turn / self.ROUNDS)
            if self.must(root, "list"):
                self.must(root, "check", "T")
        self.must(root, "new", "U", "--generation", "9")
        self.assertFalse([name for name in os.listdir(os.path.join(root, "tmp")) if name.endswith(".part")],
                         "what killed runs left is swept away")

    def test_killed_new_leaves_a_whole_theme_or_none(self):
        root = self.path("root")
        run_time = self.seconds_of(root, "new", "First", "--generation", "5", "--small")
        for turn in range(self.ROUNDS):
            self.run_and_kill(root, "new", "T", "--generation", "5", "--small", after=run_time * turn / self.ROUNDS)
            if "T" in self.must(root, "list").split("\n"):
                self.must(root, "check", "T")
                self.must(root, "delete", "T")


def enter_namespace():
    """Starts this script again where it may mount; gives up where that isn't allowed."""
    for wrapper in (["unshare", "--mount"], ["unshare", "--map-root-user", "--mount"]):
        probe = wrapper + ["sh", "-c", "mount -t tmpfs tmpfs /mnt"]
        if shutil.which("unshare") and subprocess.run(probe, capture_output=True).returncode == 0:
            os.environ[IN_NAMESPACE] = "1"
            os.execvp(wrapper[0], wrapper + [sys.executable, *sys.argv])


if __name__ == "__main__":
    if IN_NAMESPACE not in os.environ:
        enter_namespace()
    unittest.main(argv=[sys.argv[0], *sys.argv[2:]])

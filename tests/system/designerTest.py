#!/usr/bin/env python3
"""Starts the real designer without a screen: a second start, a crash and the start after it, and damaged skins.

    designerTest.py DESIGNER
"""

import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

DESIGNER = os.path.abspath(sys.argv.pop(1))
PROGRAM_FOLDER = os.path.dirname(DESIGNER)
SKIN = os.path.join(PROGRAM_FOLDER, "skin")
STARTED = 20  # seconds that a start may take on a busy machine


def content(path):
    with open(path, "rb") as file:
        return file.read()


def write(path, data):
    with open(path, "wb") as file:
        file.write(data)


class DesignerTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        self.runtime = os.path.join(self.folder, "runtime")
        os.mkdir(self.runtime, 0o700)
        self.program = os.path.join(self.folder, "program")
        os.mkdir(self.program)
        shutil.copy(DESIGNER, self.program)
        shutil.copytree(SKIN, os.path.join(self.program, "skin"))

    def start(self):
        # Signs of this start alone.
        for path in (self.lock_path(), self.config_path()):
            if os.path.exists(path) and not self.lock_held:
                os.remove(path)
        environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", XDG_RUNTIME_DIR=self.runtime)
        process = subprocess.Popen([os.path.join(self.program, "zdtheme-designer")], env=environment, cwd="/",
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        self.addCleanup(self.end, process)
        return process

    def end(self, process):
        if process.poll() is None:
            process.kill()
        process.communicate()

    def wait_for(self, condition, what):
        until = time.monotonic() + STARTED
        while not condition():
            self.assertLess(time.monotonic(), until, what)
            time.sleep(0.02)

    lock_held = False

    def lock_path(self):
        return os.path.join(self.runtime, "CSZDDesigne")

    def config_path(self):
        return os.path.join(self.program, "skin", "ZDThemeDesign", "config.ini")

    def runs(self, process, writes_language=True):
        """Whether it took the lock, wrote down the language that its window chose, and still runs a while later."""
        sign = self.config_path() if writes_language else self.lock_path()
        self.wait_for(lambda: os.path.exists(sign) or process.poll() is not None, "no sign of a start")
        time.sleep(0.5)
        return process.poll() is None

    def test_a_second_start_ends_quietly_and_leaves_the_first_alone(self):
        first = self.start()
        self.assertTrue(self.runs(first))
        self.lock_held = True
        second = self.start()
        output, errors = second.communicate(timeout=STARTED)
        self.assertEqual((second.returncode, output, errors), (0, "", ""))
        self.assertIsNone(first.poll())

    def test_a_crash_leaves_a_dump_and_the_next_start_works(self):
        for number in (signal.SIGSEGV, signal.SIGABRT):
            process = self.start()
            self.assertTrue(self.runs(process))
            process.send_signal(number)
            self.assertEqual(process.wait(STARTED), -number)
            time.sleep(1)  # Dumps are named by the second.
        dumps = [name for name in os.listdir(self.program) if name.endswith(".dmp")]
        self.assertEqual(len(dumps), 2)
        for name in dumps:
            self.assertRegex(name, r"^\d{4}\.\d\d\.\d\d_\d\d\.\d\d\.\d\d\.dmp$")
        self.assertTrue(self.runs(self.start()))

    def test_damaged_skins_are_told_and_survived(self):
        skin = os.path.join(self.program, "skin", "ZDThemeDesign")
        whole = {name: content(os.path.join(skin, name)) for name in os.listdir(skin)
                 if re.search(r"\.(xml|qss|ini)$", name)}
        damages = {"missing": lambda path, data: os.remove(path),
                   "empty": lambda path, data: write(path, b""),
                   "cut": lambda path, data: write(path, data[:len(data) // 2]),
                   "noise": lambda path, data: write(path, os.urandom(4096))}
        for kind, damage in damages.items():
            for name in ("skin.xml", "start.xml", "style.qss", "English.ini", "Key.ini"):
                with self.subTest(kind=kind, name=name):
                    path = os.path.join(skin, name)
                    damage(path, whole[name])
                    process = self.start()
                    self.assertTrue(self.runs(process, name != "skin.xml"))
                    process.kill()
                    errors = process.communicate()[1]
                    if name == "skin.xml":
                        self.assertIn("skin.xml", errors)
                    write(path, whole[name])
        shutil.rmtree(os.path.join(self.program, "skin"))
        self.assertTrue(self.runs(self.start(), False))

    def test_a_lock_that_nobody_holds_is_taken(self):
        self.lock_held = True  # It is left as it is.
        write(self.lock_path(), b"")
        os.remove(self.config_path())
        self.assertTrue(self.runs(self.start()))


if __name__ == "__main__":
    unittest.main()

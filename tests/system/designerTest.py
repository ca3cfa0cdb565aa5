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

    def lock(self):
        return os.path.exists(os.path.join(self.runtime, "CSZDDesigne"))

    def runs(self, process):
        """Whether it took the lock, wrote the language that it chose, and still runs a while later."""
        self.wait_for(lambda: self.lock() or process.poll() is not None, "no lock")
        time.sleep(0.5)
        return process.poll() is None

    def test_a_second_start_ends_quietly_and_leaves_the_first_alone(self):
        first = self.start()
        self.assertTrue(self.runs(first))
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
        dumps = [name for name in os.listdir(self.program) if name.endswith(".dmp")]
        self.assertTrue(dumps)
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
            for name in ("skin.xml", "start.xml", "style.qss", "English.ini", "Key.ini", "config.ini"):
                with self.subTest(kind=kind, name=name):
                    path = os.path.join(skin, name)
                    damage(path, whole[name])
                    process = self.start()
                    self.assertTrue(self.runs(process))
                    process.kill()
                    errors = process.communicate()[1]
                    if name == "skin.xml":
                        self.assertIn("skin.xml", errors)
                    write(path, whole[name])
        shutil.rmtree(os.path.join(self.program, "skin"))
        self.assertTrue(self.runs(self.start()))


if __name__ == "__main__":
    unittest.main()

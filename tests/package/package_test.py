#!/usr/bin/env python3
"""The package that is handed over: what is in it, and that it comes out the same every time.

    tests/package/package_test.py     (the release program, icons and samples must have been built)
"""
import glob
import os
import pathlib
import shutil
import subprocess
import tempfile
import time
import unittest
import zipfile

ROOT = os.path.realpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
BUILD = os.path.join(ROOT, "build", "release")

CONFIGURATION_SIZE = 5449
FEWEST_OF_A_KIND = 12
ICON_SIZES = [16, 24, 32, 48, 64]


def in_shell(command, *arguments):
    return subprocess.run(["bash", "-ec", "source tools/pack.sh; " + command, "pack", *arguments], cwd=ROOT,
                          check=True, stdout=subprocess.PIPE, text=True).stdout


def pack(build, scratch):
    """The path of a package of what `build` holds."""
    in_shell('pack "$1" "$2/content" "$2/package.zip"', build, scratch)
    return os.path.join(scratch, "package.zip")


def copy_made_otherwise(scratch):
    """The parts of the build folder again, as another computer might have made them: younger files in
    another order, with other permissions."""
    copy = os.path.join(scratch, "build")
    for pattern in ("Samples/*", "Icons/*", "VWizard.exe"):
        for name in sorted(glob.glob(pattern, root_dir=BUILD), reverse=True):
            os.makedirs(os.path.dirname(os.path.join(copy, name)), exist_ok=True)
            shutil.copyfile(os.path.join(BUILD, name), os.path.join(copy, name))
            os.chmod(os.path.join(copy, name), 0o600)
    return copy


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.scratch.cleanup)
        cls.file = pack(BUILD, os.path.join(cls.scratch.name, "first"))
        cls.zip = zipfile.ZipFile(cls.file)
        cls.addClassCleanup(cls.zip.close)
        cls.names = cls.zip.namelist()

    def test_holds_the_program_its_notes_icons_and_samples(self):
        folders = {"Icons": [], "Samples": [], "": []}
        for name in self.names:
            folders[os.path.dirname(name)].append(name)
        self.assertEqual(folders[""], ["README.txt", "VWizard.exe"])
        self.assertEqual(self.zip.read("VWizard.exe"), pathlib.Path(BUILD, "VWizard.exe").read_bytes())
        self.assertIn("Icons/VDNC32.ICO", folders["Icons"])
        self.assertGreaterEqual(min(len(folders["Icons"]), len(folders["Samples"])), FEWEST_OF_A_KIND)
        for name in folders["Icons"]:
            icon = self.zip.read(name)
            self.assertEqual((icon[:4], [icon[6 + 16 * i] for i in range(icon[4])]), (b"\0\0\1\0", ICON_SIZES), name)
        for name in folders["Samples"]:
            sample = self.zip.read(name)
            self.assertEqual((sample[:9], len(sample)), (b"VDNCW32A ", CONFIGURATION_SIZE), name)

    def test_notes_for_administrators(self):
        text = self.zip.read("README.txt").decode("ascii")
        self.assertRegex(text, r"^Varnel DNC Setup and Configuration Wizard \d+\.\d+\.\d+\r\n([^\n@]*\r\n)+$")
        for switch in ("/NDW", "/SHIFT", "/VCONFIG"):
            self.assertIn(switch, text)

    def test_holds_nothing_of_the_time_and_place_of_packing(self):
        self.assertEqual(self.names, sorted(self.names))
        committed = time.gmtime(int(in_shell("source_time")) + 1 & ~1)  # kept in even seconds, rounded up
        for entry in self.zip.infolist():
            self.assertEqual((entry.date_time, entry.extra), (committed[:6], b""), entry.filename)

    def test_comes_out_the_same_every_time(self):
        second = os.path.join(self.scratch.name, "second")
        again = pack(copy_made_otherwise(second), second)
        self.assertEqual(pathlib.Path(self.file).read_bytes(), pathlib.Path(again).read_bytes())


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""The finished program: what it asks of Windows and what it tells about itself.

    tests/package/program_test.py     (build/release/VWizard.exe must have been built)
"""
import os
import re
import subprocess
import unittest

ROOT = os.path.realpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
PROGRAM = os.path.join(ROOT, "build", "release", "VWizard.exe")
LARGEST = 640 * 1024

# Every one is part of Windows itself since version 7.
SYSTEM_LIBRARIES = {
    "advapi32.dll", "comctl32.dll", "gdi32.dll", "kernel32.dll", "msvcrt.dll", "ole32.dll",
    "oleacc.dll", "oleaut32.dll", "shell32.dll", "user32.dll",
}


def read(name):
    with open(os.path.join(ROOT, name), "rb") as file:
        return file.read()


def told_by(tool, *arguments):
    return subprocess.run(["i686-w64-mingw32-" + tool, *arguments, PROGRAM], check=True, stdout=subprocess.PIPE,
                          text=True, errors="replace").stdout


class Program(unittest.TestCase):
    headers = told_by("objdump", "-p")
    data = read(PROGRAM)

    def test_is_a_small_32_bit_program_with_windows(self):
        for words in (r"file format pei-i386\b", r"^\t32 bit words", r"^Magic\s+010b\b", r"^Subsystem\s+00000002\b"):
            self.assertRegex(self.headers, re.compile(words, re.M))
        self.assertNotRegex(self.headers, r"\tDLL\n")
        self.assertLessEqual(len(self.data), LARGEST)

    def test_needs_nothing_but_windows(self):
        libraries = {name.lower() for name in re.findall(r"DLL Name: (\S+)", self.headers)}
        self.assertIn("kernel32.dll", libraries)
        self.assertEqual(libraries - SYSTEM_LIBRARIES, set())

    def test_is_loaded_at_random_addresses_and_never_runs_data(self):
        self.assertRegex(self.headers, r"DllCharacteristics.*\n\s+DYNAMIC_BASE\n\s+NX_COMPAT\n")
        # Without relocations the loader has no choice of address, whatever the flag says.
        self.assertNotIn("relocations stripped", self.headers)
        self.assertGreater(sum(map(int, re.findall(r"Number of fixups (\d+)", self.headers))), 1000)

    def test_manifest(self):
        manifest = read("res/VWizard.manifest")
        self.assertIn(manifest, self.data)
        for words in (rb'level="asInvoker"', rb"<dpiAware[^>]*>true<",
                      rb'name="Microsoft.Windows.Common-Controls"\s+version="6.0.0.0"'):
            self.assertRegex(manifest, words)

    def test_version(self):
        version = re.search(rb"project\(VWizard VERSION (\d+\.\d+\.\d+)", read("CMakeLists.txt")).group(1).decode()
        resource = told_by("windres", "-J", "coff", "-O", "rc")
        for place in ("FILEVERSION", "PRODUCTVERSION"):
            self.assertIn(f"{place} {version.replace('.', ', ')}, 0\n", resource)
        self.assertEqual(dict(re.findall(r'VALUE "(\w+)", "(.*)"', resource)), {
            "CompanyName": "Varnel", "FileDescription": "Varnel DNC Setup and Configuration Wizard",
            "FileVersion": version, "ProductVersion": version, "InternalName": "VWizard",
            "OriginalFilename": "VWizard.exe", "ProductName": "Varnel DNC"})

    def test_tells_nothing_about_the_computer_that_built_it(self):
        places = {ROOT, os.path.expanduser("~") + "/", "/usr/", "/tmp/", "/home/", "/root/", "/build/"}
        for place in sorted(places):
            for encoding in ("ascii", "utf-16-le"):
                self.assertNotIn(place.encode(encoding), self.data, f"{place} in {encoding}")


if __name__ == "__main__":
    unittest.main()

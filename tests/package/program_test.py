#!/usr/bin/env python3
"""The finished program: what it asks of Windows and what it tells about itself.

    tests/package/program_test.py     (build/release/VWizard.exe must have been built)
"""
import os
import re
import struct
import unittest
import xml.etree.ElementTree as xml

import pe

ROOT = os.path.realpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
PROGRAM = os.path.join(ROOT, "build", "release", "VWizard.exe")

# Every one is part of Windows itself since version 7.
SYSTEM_LIBRARIES = {
    "advapi32.dll", "comctl32.dll", "gdi32.dll", "kernel32.dll", "msvcrt.dll", "ole32.dll",
    "oleacc.dll", "oleaut32.dll", "shell32.dll", "user32.dll",
}

LARGEST = 640 * 1024

# characteristics of the file, of the image
RELOCATIONS_STRIPPED, MACHINE_32_BIT, LIBRARY = 0x0001, 0x0100, 0x2000
DYNAMIC_BASE, NX_COMPAT = 0x0040, 0x0100
MACHINE_I386, SUBSYSTEM_GUI = 0x014C, 2


def read(name):
    with open(os.path.join(ROOT, name), "rb") as file:
        return file.read()


def product_version():
    return re.search(r"project\(VWizard VERSION (\d+\.\d+\.\d+)", read("CMakeLists.txt").decode()).group(1)


class Program(unittest.TestCase):
    image = pe.Image(PROGRAM)

    def test_is_a_small_32_bit_program_with_windows(self):
        self.assertEqual(self.image.machine, MACHINE_I386)
        self.assertTrue(self.image.characteristics & MACHINE_32_BIT)
        self.assertFalse(self.image.characteristics & LIBRARY)
        self.assertEqual(self.image.subsystem, SUBSYSTEM_GUI)
        self.assertLessEqual(len(self.image.data), LARGEST)

    def test_needs_nothing_but_windows(self):
        self.assertEqual(self.image.imported_libraries() - SYSTEM_LIBRARIES, set())

    def test_is_loaded_at_random_addresses_and_never_runs_data(self):
        self.assertTrue(self.image.dll_characteristics & DYNAMIC_BASE)
        self.assertTrue(self.image.dll_characteristics & NX_COMPAT)
        # Without relocations the loader has no choice of address, whatever the flag says.
        self.assertFalse(self.image.characteristics & RELOCATIONS_STRIPPED)
        self.assertGreater(self.image.relocations(), 1000)

    def test_manifest(self):
        manifest = self.image.resource(pe.RT_MANIFEST)
        self.assertEqual(manifest, read("res/VWizard.manifest"))
        tree = xml.fromstring(manifest)
        found = {element.tag.split("}")[1]: element for element in tree.iter()}
        self.assertEqual(found["requestedExecutionLevel"].get("level"), "asInvoker")
        self.assertEqual(found["dpiAware"].text, "true")
        controls = found["dependentAssembly"][0]
        self.assertEqual((controls.get("name"), controls.get("version")),
                         ("Microsoft.Windows.Common-Controls", "6.0.0.0"))

    def test_version(self):
        version = product_version()
        blocks = list(pe.version_blocks(self.image.resource(pe.RT_VERSION)))
        texts = {key: value.decode("utf-16-le").rstrip("\0") for key, value, is_text in blocks if is_text}
        self.assertEqual({key: text for key, text in texts.items() if text}, {
            "CompanyName":      "Varnel",
            "FileDescription":  "Varnel DNC Setup and Configuration Wizard",
            "FileVersion":      version,
            "InternalName":     "VWizard",
            "OriginalFilename": "VWizard.exe",
            "ProductName":      "Varnel DNC",
            "ProductVersion":   version,
        })
        fixed = next(value for key, value, _ in blocks if key == "VS_VERSION_INFO")
        signature, file_high, file_low, product_high, product_low = struct.unpack_from("<I4x4I", fixed)
        major, minor, patch = (int(part) for part in version.split("."))
        numbers = (major << 16 | minor, patch << 16)
        self.assertEqual(signature, 0xFEEF04BD)
        self.assertEqual((file_high, file_low), numbers)
        self.assertEqual((product_high, product_low), numbers)

    def test_tells_nothing_about_the_computer_that_built_it(self):
        places = {ROOT, os.path.expanduser("~") + "/", "/usr/", "/tmp/", "/home/", "/root/", "/build/"}
        for place in sorted(places):
            for encoding in ("ascii", "utf-16-le"):
                self.assertNotIn(place.encode(encoding), self.image.data, f"{place} in {encoding}")


if __name__ == "__main__":
    unittest.main()

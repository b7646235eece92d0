#!/usr/bin/python3
"""Makes releases of a build, and of folders that are none, and looks at them as whoever publishes one does.

    release.py BUILD
"""

import hashlib
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

BUILD = Path(sys.argv[1])
SOURCES = Path(__file__).parents[2]
KEYS = SOURCES / "sandbox/data/release"
PUBLIC_KEY = (KEYS / "loomstreet-sandbox.pub").read_text().splitlines()[1]
NO_SESSION = {**os.environ, "DBUS_SESSION_BUS_ADDRESS": "unix:path=/none"}
for name in ("DISPLAY", "WAYLAND_DISPLAY", "LD_LIBRARY_PATH"):
    NO_SESSION.pop(name, None)


def output(*command, **options):
    return subprocess.run(command, check=True, capture_output=True, text=True, **options).stdout


def make_release(folder, file, **options):
    given = {"folder": folder, "version": "1.2.10", "build": 7, "key": KEYS / "loomstreet-sandbox.key", "output": file,
             "level": 1, **options}
    arguments = [text for name, value in given.items() if value is not None for text in (f"--{name}", str(value))]
    return subprocess.run([SOURCES / "packaging/make-release", *arguments], capture_output=True, text=True,
                          env={**os.environ, "SOURCE_DATE_EPOCH": "1790000000"})


class InFolder(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.work = Path(folder.name)

    def small_folder(self, name="small"):
        folder = self.work / name
        for program in ("bin/loomstreet", "libexec/loomstreet-updater"):
            (folder / program).parent.mkdir(parents=True)
            (folder / program).write_text(f"#!/bin/sh\necho {program}\n")
            (folder / program).chmod(0o755)
        return folder


class OfTheBuild(InFolder):
    def test_it_holds_what_is_installed_and_says_which_release_it_is(self):
        output("cmake", "--install", BUILD, "--strip", "--prefix", self.work / "installed")
        [folder] = {path.parents[1] for path in self.work.glob("**/bin/loomstreet") if not path.is_symlink()}
        installed = {str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file()}
        self.assertLess({"bin/loomstreet", "libexec/loomstreet-updater", "qml/Loomstreet/Web/qmldir"}, installed)

        image = self.work / "it's a release.squashfs"
        record = json.loads(make_release(folder, image, url="https://www.example.com/it").stdout)
        content = image.read_bytes()
        self.assertEqual(record, {"latest": "1.2.10", "build": 7, "url": "https://www.example.com/it",
                                  "sha256": hashlib.sha256(content).hexdigest(), "size": len(content)})
        told = output("minisign", "-V", "-Q", "-H", "-P", PUBLIC_KEY, "-m", image)
        self.assertEqual(told, "loomstreet 1.2.10 build 7\n")
        rows = [line.split(None, 5) for line in output("unsquashfs", "-lln", image).splitlines()]
        self.assertEqual({owner for _, owner, *_ in rows}, {"0/0"})
        self.assertEqual({rights for rights, *_ in rows}, {"drwxr-xr-x", "-rwxr-xr-x", "-rw-r--r--"})

        moved = self.work / "elsewhere"
        output("unsquashfs", "-quiet", "-no-progress", "-dest", moved, image)
        unpacked = {str(path.relative_to(moved)) for path in moved.rglob("*") if path.is_file()}
        self.assertEqual(unpacked, installed | {"release.json"})
        self.assertEqual(json.loads((moved / "release.json").read_text()), {"version": "1.2.10", "build": 7})
        shutil.rmtree(self.work / "installed")
        self.assertRegex(output(moved / "bin/loomstreet", "--version", env=NO_SESSION), r"^LOOMSTREET \d+\.\d+\.\d+\n$")
        for binary in (moved / "bin/loomstreet", moved / "libexec/loomstreet-updater", *moved.rglob("*.so")):
            self.assertNotRegex(output("readelf", "--dynamic", "--wide", binary), r"\((RPATH|RUNPATH)\)", binary)
            self.assertNotIn("not found", output("ldd", binary, env=NO_SESSION), binary)


class OfAFolder(InFolder):
    def test_the_same_folder_makes_the_same_release(self):
        folder = self.small_folder()
        (folder / "release.json").write_text("of an earlier release")
        copy = self.work / "copy"
        shutil.copytree(folder, copy)
        for path in copy.rglob("*"):
            os.utime(path, (1, 1))
        made = [self.work / "one.squashfs", self.work / "new" / "two.squashfs"]
        for source, file in zip((folder, copy), made):
            make_release(source, file).check_returncode()
        self.assertEqual(made[0].read_bytes(), made[1].read_bytes())
        self.assertEqual(*(Path(f"{file}.minisig").read_bytes() for file in made))
        self.assertEqual((folder / "release.json").read_text(), "of an earlier release")
        self.assertEqual(output("unsquashfs", "-cat", made[0], "release.json"), '{"version": "1.2.10", "build": 7}\n')

    def test_what_no_installation_could_take_is_not_made(self):
        folder = self.small_folder()
        linked = self.small_folder("linked")
        (linked / "bin/passwords").symlink_to("/etc/passwd")
        helpless = self.small_folder("helpless")
        (helpless / "libexec/loomstreet-updater").chmod(0o644)
        cases = [{"key": None}, {"key": self.work / "missing"}, {"key": KEYS / "loomstreet-sandbox.pub"},
                 {"version": "1.0-beta"}, {"version": ""}, {"build": "-1"}, {"build": "07"}, {"build": None},
                 {"url": "http://www.example.com/"}, {"folder": linked}, {"folder": helpless}, {"folder": self.work},
                 {"folder": None}]
        for case in cases:
            run = make_release(**{"folder": folder, "file": self.work / "out/image", **case})
            self.assertNotEqual(run.returncode, 0, case)
            self.assertEqual(run.stdout, "", case)
            left = self.work / "out"
            self.assertEqual(list(left.iterdir()) if left.exists() else [], [], case)


class Secrets(InFolder):
    """What a build of the sandbox's believes, and with that which releases it takes."""

    def setUp(self):
        super().setUp()
        shutil.copytree(SOURCES / "scripts", self.work / "scripts")
        shutil.copytree(KEYS, self.work / "sandbox/data/release")
        self.file = self.work / "resources/Secrets.plist"

    def prepare(self):
        output("bash", "-ec", "source scripts/lib.sh; prepare_secrets", cwd=self.work)
        text = self.file.read_text()
        return re.search(r"<key>UpdatePublicKey</key>\s*<string>(.*)</string>", text), text

    def test_a_build_of_the_sandbox_trusts_its_key_from_now_on_and_is_left_alone_when_it_does(self):
        key, text = self.prepare()
        self.assertEqual(key.group(1), PUBLIC_KEY)
        os.utime(self.file, (1, 1))
        self.prepare()
        self.assertEqual(self.file.stat().st_mtime, 1)
        self.file.write_text(text.replace("UpdatePublicKey", "Unknown"))
        self.assertEqual(self.prepare()[1], text)

    def test_a_build_of_another_store_stays_one(self):
        values = {"SHOPIFY_DOMAIN": "shop.example.com", "SHOPIFY_STOREFRONT_TOKEN": "t", "SUPPORT_KEY": "k",
                  "SUPPORT_BASE": "https://service.example.com"}
        sync = [self.work / "scripts/sync-secrets.sh"]
        output(*sync, env={**os.environ, **values})
        self.assertIsNone(self.prepare()[0])
        wrong = subprocess.run(sync, env={**os.environ, **values, "UPDATE_PUBLIC_KEY": "RWshort"}, capture_output=True)
        self.assertEqual(wrong.returncode, 1)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])

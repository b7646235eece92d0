#!/usr/bin/python3
"""Looks at a Debian package that was made, and has dpkg install, upgrade and purge it in a folder of its own.

    package.py PACKAGE
"""

import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PACKAGE = Path(sys.argv[1]).resolve()
# Whoever looks for a display or a bus here finds none.
NO_SESSION = {**os.environ, "DBUS_SESSION_BUS_ADDRESS": "unix:path=/none"}
for name in ("DISPLAY", "WAYLAND_DISPLAY"):
    NO_SESSION.pop(name, None)


def output(*command, **options):
    return subprocess.run(command, check=True, capture_output=True, text=True, **options).stdout


def files(folder):
    return {str(path.relative_to(folder)) for path in folder.rglob("*")}


class Package(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name) / "root"
        self.root.mkdir()

    def dpkg(self, *arguments):
        # What it depends on is not in that folder.
        as_root = () if os.geteuid() == 0 else ("unshare", "--map-root-user")
        output(*as_root, "dpkg", f"--root={self.root}", "--force-depends", *arguments)

    def test_lintian_has_nothing_to_say(self):
        self.assertEqual(output("lintian", "--allow-root", PACKAGE), "")

    def test_every_file_is_the_systems_and_in_its_place(self):
        for line in output("dpkg-deb", "--contents", PACKAGE).splitlines():
            self.assertRegex(line, r"^(-rw-r--r--|[-d]rwxr-xr-x|lrwxrwxrwx) root/root .* \./(usr/.*)?$")
            self.assertNotIn("updater", line) # the system's package manager replaces it

    def test_the_program_is_of_the_version_that_the_package_says(self):
        output("dpkg-deb", "--extract", PACKAGE, self.root)
        version = output("dpkg-deb", "--field", PACKAGE, "Version").strip()
        self.assertEqual(output(self.root / "usr/bin/loomstreet", "--version", env=NO_SESSION), f"LOOMSTREET {version}\n")

    def test_upgrading_and_purging_leave_nothing_but_what_the_shopper_has(self):
        database = self.root / "var/lib/dpkg"
        for name in ("info", "updates"):
            (database / name).mkdir(parents=True)
        (database / "status").touch()
        kept = self.root / "home/jane/.local/share/LOOMSTREET/lst_wishlist.json"
        kept.parent.mkdir(parents=True)
        kept.touch()
        before = files(self.root)

        self.dpkg("--install", PACKAGE)
        first = files(self.root / "usr")
        self.assertIn("bin/loomstreet", first)

        later = self.root.parent / "later"
        output("dpkg-deb", "--raw-extract", PACKAGE, later)
        control = later / "DEBIAN/control"
        control.write_text(re.sub(r"^Version: .*", "Version: 9999", control.read_text(), flags=re.M))
        (later / "usr/share/fish/vendor_completions.d/loomstreet.fish").unlink() # as a later one may do without it
        output("dpkg-deb", "--root-owner-group", "-Znone", "--build", later, f"{later}.deb")
        self.dpkg("--install", f"{later}.deb")
        self.assertEqual(first - files(self.root / "usr"), {"share/fish/vendor_completions.d/loomstreet.fish"})

        self.dpkg("--purge", "loomstreet")
        of_dpkg = {name for name in files(self.root) if name.startswith("var/")}
        self.assertEqual(files(self.root) - of_dpkg, {name for name in before if not name.startswith("var/")})
        self.assertEqual([name for name in of_dpkg if "loomstreet" in name], [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])

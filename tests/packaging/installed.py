#!/usr/bin/python3
"""Installs a build into a folder of its own, and looks at it as a desktop and a shell do.

    installed.py BUILD QMLIMPORTSCANNER
"""

import json
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

BUILD = Path(sys.argv[1])
SCANNER = sys.argv[2]
SOURCES = Path(__file__).parents[2]
APPLICATION = "com.loomstreet.Loomstreet"
# Whoever looks for a display or a bus here finds none.
NO_SESSION = {**os.environ, "DBUS_SESSION_BUS_ADDRESS": "unix:path=/none"}
for name in ("DISPLAY", "WAYLAND_DISPLAY"):
    NO_SESSION.pop(name, None)


def output(*command, **options):
    return subprocess.run(command, check=True, capture_output=True, text=True, **options).stdout


def options_in(text):
    """Of a text, whose way to write a long option is one of those below."""
    text = re.sub(r" -l ([a-z-]+)", r" --\1", text.replace("\\-", "-")).replace(",--", " --")
    return set(re.findall(r"--([a-z]+(?:-[a-z]+)*)", text))


class Installed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        output("cmake", "--install", BUILD, env={**os.environ, "DESTDIR": folder.name})
        cls.root = Path(folder.name)
        [cls.command] = [path for path in cls.root.glob("**/bin/loomstreet") if path.is_symlink()]
        cls.share = cls.command.parents[1] / "share"

    def test_the_program_finds_what_it_loads_from_beside_it(self):
        self.assertFalse(os.path.isabs(os.readlink(self.command)), "the folder can be moved")
        module = self.command.resolve().parent / "../qml/Loomstreet/Web"
        plugin = re.search(r"^(?:optional )?plugin (\w+)$", (module / "qmldir").read_text(), re.M).group(1)
        self.assertTrue((module / f"lib{plugin}.so").is_file())

    def test_the_bus_starts_the_command_that_is_installed(self):
        service = (self.share / f"dbus-1/services/{APPLICATION}.service").read_text()
        program = re.search(r"^Exec=/(\S+) --service$", service, re.M).group(1)
        self.assertEqual(self.root / program, self.command)

    def test_every_name_an_entry_gives_leads_to_a_file(self):
        entry = (self.share / f"applications/{APPLICATION}.desktop").read_text()
        icon = re.search(r"^Icon=(.+)$", entry, re.M).group(1)
        for file in (f"scalable/apps/{icon}.svg", f"symbolic/apps/{icon}-symbolic.svg"):
            self.assertTrue((self.share / "icons/hicolor" / file).is_file(), file)
        metainfo = (self.share / f"metainfo/{APPLICATION}.metainfo.xml").read_text()
        self.assertIn(f">{APPLICATION}.desktop</launchable>", metainfo)

    def test_help_manual_and_completions_know_the_same_options(self):
        options = options_in(output(self.command, "--help", env=NO_SESSION))
        self.assertLess({"help", "version", "new-window", "quit", "safe-mode"}, options)
        self.assertEqual(options_in(output("gzip", "-dc", self.share / "man/man1/loomstreet.1.gz")), options)
        for name in ("bash-completion/completions/loomstreet", "zsh/vendor-completions/_loomstreet",
                     "fish/vendor_completions.d/loomstreet.fish"):
            self.assertEqual(options_in((self.share / name).read_text()), options, name)

    def test_bash_completes_what_the_desktop_entry_offers(self):
        entry = (self.share / f"applications/{APPLICATION}.desktop").read_text()
        actions = re.search(r"^Actions=(.+);$", entry, re.M).group(1).split(";")
        script = self.share / "bash-completion/completions/loomstreet"

        def completed(*words):
            ask = f'. "{script}"; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _loomstreet; echo "${{COMPREPLY[@]}}"'
            return output("bash", "-c", ask, "bash", "loomstreet", *words).split()

        self.assertEqual(completed("--action", ""), actions)
        self.assertEqual(completed("--sa"), ["--safe-mode"])
        self.assertEqual(completed("--", "--sa"), [])

    def test_what_needs_no_window_needs_no_session_and_starts_nothing(self):
        self.assertRegex(output(self.command, "--version", env=NO_SESSION), r"^LOOMSTREET \d+\.\d+\.\d+\n$")
        with tempfile.TemporaryDirectory() as home:
            variables = ("HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME")
            self.assertEqual(output(self.command, "--quit", env={**NO_SESSION, **dict.fromkeys(variables, home)}), "")
            self.assertEqual(os.listdir(home), [])

    def test_every_module_a_page_imports_is_a_dependency(self):
        system = output("qtpaths6", "--query", "QT_INSTALL_QML").strip()
        imports = json.loads(output(SCANNER, "-rootPath", SOURCES / "src/ui", "-importPath", system))
        folders = sorted({module["path"] for module in imports if module.get("path", "").startswith(system)})
        self.assertGreater(len(folders), 5)
        owners = output("dpkg", "-S", *(f"{folder}/qmldir" for folder in folders))
        packages = {line.split(":")[0] for line in owners.splitlines()}
        configuration = (BUILD / "CPackConfig.cmake").read_text()
        depends = re.search(r'CPACK_DEBIAN_PACKAGE_DEPENDS "(.+)"', configuration).group(1).split(", ")
        self.assertLessEqual(packages, set(depends))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])

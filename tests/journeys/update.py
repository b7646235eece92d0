#!/usr/bin/python3
"""Updates the real application: installs a release in a folder of its own, and looks at what becomes of it when the
store announces others, good and bad.

Run in a D-Bus session, on a display, with a sandbox store:

    tests/journeys/in-sandbox --bus tests/journeys/update.py build/dev
"""

import json
import os
import shutil
import signal
import subprocess
import sys
from pathlib import Path

import pyatspi

from accessibility import Shopper, expect, wait_for, walk
from sandbox import order, told

BUILD = Path(sys.argv[1]).resolve()
SOURCES = Path(__file__).parents[2]
WORK = Path(os.environ["HOME"]) / "releases"
FOLDER = Path(os.environ["HOME"]) / "applications" / "loomstreet"
PROGRAM = FOLDER / "bin" / "loomstreet"
UPDATES = Path(os.environ["XDG_DATA_HOME"]) / "LOOMSTREET" / "updates"

# Answers for its version, and dies soon after it has begun to run. What it becomes in the end is spared.
DYING = """#!/bin/sh
case "$1" in --version) exec "$(dirname "$0")/loomstreet.real" --version ;; esac
own=$(readlink -f "$(dirname "$0")")/loomstreet.real
(sleep 4; [ "$(readlink "/proc/$$/exe")" = "$own" ] && kill -9 $$) &
exec "$own" "$@"
"""


def release(folder, version, build):
    image = WORK / f"loomstreet-{version}.squashfs"
    subprocess.run([SOURCES / "packaging/make-release", "--folder", folder, "--version", version, "--build", str(build),
                    "--key", SOURCES / "sandbox/data/release/loomstreet-sandbox.key", "--output", image, "--level", "1"],
                   check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return {"image": str(image), "version": version, "build": build}


def announce(made, **wrong):
    order("/release")
    order("/release", made | {"notes": {"en": "Calmer pages."}} | wrong)


def installed():
    """What lies in the application's place, which is never empty."""
    said = json.loads((FOLDER / "release.json").read_text())["version"]
    expect("what the program says", subprocess.run([PROGRAM, "--version"], capture_output=True, text=True).stdout,
           f"LOOMSTREET {said}\n")
    return said


def beside():
    """What lies next to the application."""
    return sorted(path.name for path in FOLDER.parent.iterdir() if path != FOLDER)


def running():
    """The processes of the application."""
    found = []
    for process in Path("/proc").glob("[0-9]*"):
        try:
            if (process / "exe").readlink().parent == PROGRAM.parent:
                found.append(int(process.name))
        except OSError:
            pass
    return found


class Run(Shopper):
    """The application while it runs, however it came to."""

    def __init__(self, *, starts=True):
        if starts:
            subprocess.Popen([PROGRAM], env=dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1"))
        super().__init__()

    def await_button(self, name):
        return self.await_item(pyatspi.ROLE_PUSH_BUTTON, name)

    def await_text(self, text):
        return wait_for(lambda: next((item for item in walk(self.application) if text in item.name), None), text)

    def gone(self):
        wait_for(lambda: not self._find_application() and not running(), "the application to be gone")

    def quit(self):
        subprocess.run([PROGRAM, "--quit"], check=True)
        self.gone()


def relaunch_to_the_next(next_release):
    announce(next_release)
    run = Run()
    run.press("Update")
    run.await_text("Ready to install")
    [before] = running()
    run.press("Relaunch to Update")
    wait_for(lambda: before not in running(), "the application to be gone")
    wait_for(lambda: installed() == next_release["version"], "the next release")
    wait_for(running, "the next release to be started")
    return Run(starts=False)


def look_at_the_new_one(run):
    """It finds nothing newer, and once it has run a while the one before is gone."""
    run.press("Menu")
    run.press("Help")
    run.press("Check for Updates…")
    run.await_text("You're up to date")
    wait_for(lambda: not beside(), "the release before to be gone")
    wait_for(lambda: not list(UPDATES.glob("*.squashfs")), "the image to be gone")
    run.quit()


def install_when_it_quits(next_release):
    announce(next_release)
    run = Run()
    run.await_button("Update")
    wait_for(lambda: list(UPDATES.glob("*.squashfs")), "the image")
    run.press("Update")
    run.await_text("Ready to install")
    run.quit()
    wait_for(lambda: installed() == next_release["version"], "the next release")
    expect("what runs after quitting", running(), [])


def fail_in_every_way(next_release):
    """One start, and one thing after the other that is wrong with the image; the release stays what it is."""
    before, neighbours = installed(), beside()
    # Automatic checks would fetch the image before anything is pressed.
    order("/config", {"features": {"autoUpdate": False}})
    announce(next_release)
    run = Run()
    run.press("Menu")
    run.press("Help")
    run.press("Check for Updates…")
    run.await_text(f"{next_release['version']} is ready to install")
    changed = "The download was incomplete or changed on the way. Try again."
    foreign = "The download isn't signed by LOOMSTREET, so it wasn't opened."
    button = "Download and Install"
    for wrong, sentence in [({"signature": "impostor"}, foreign), ({"signature": "missing"}, foreign),
                            ({"signature": "comment"}, foreign), ({"cut": 100000}, changed)]:
        announce(next_release, **wrong)
        run.press(button)
        run.await_text(sentence)
        expect("what is installed", installed(), before)
        button = "Try again"
    announce(next_release)
    run.press(button)
    run.await_text("Ready to install")
    ranges = [download["range"] for download in told("/release")["downloads"] if download["kind"] == "image"]
    expect("whether it goes on where it was cut", any(ranges), True)
    # The helper is handed another image than was verified.
    [image] = UPDATES.glob("*.squashfs")
    image.write_bytes(image.read_bytes()[:-1] + b"x")
    run.quit()
    wait_for(lambda: (UPDATES / "install-result.json").exists(), "the helper to end")
    expect("what is installed", installed(), before)
    expect("what lies beside it", beside(), neighbours)
    run = Run()
    run.press("Update")
    run.await_text("LOOMSTREET couldn't replace itself on this Mac. Install the new version from the disk image instead. "
                   "It takes a few seconds.")
    run.quit()
    order("/config")


def come_back_from_one_that_dies(dying):
    before = installed()
    shutil.rmtree(UPDATES.parent)
    install_when_it_quits(dying)
    for _ in range(2):
        run = Run()
        run.gone()
        expect("what is installed", installed(), dying["version"])
    run = Run()
    run.await_page("Explore")
    expect("what is installed", installed(), before)
    run.press("Update")
    run.await_text("LOOMSTREET couldn't replace itself on this Mac. Install the new version from the disk image instead. "
                   "It takes a few seconds.")
    wait_for(lambda: not beside(), "the release that died to be gone")
    run.quit()


def main():
    WORK.mkdir()
    subprocess.run(["cmake", "--install", BUILD, "--strip", "--prefix", WORK / "installed"], check=True,
                   stdout=subprocess.DEVNULL)
    [program] = [path for path in (WORK / "installed").glob("**/bin/loomstreet") if not path.is_symlink()]
    built = program.parents[1]
    shutil.copytree(built, FOLDER)
    (FOLDER / "release.json").write_text('{"version": "0.1.0", "build": 1}')
    releases = [release(built, f"0.{number}.0", number) for number in range(2, 5)]
    (program.with_name("loomstreet.real")).write_bytes(program.read_bytes())
    program.with_name("loomstreet.real").chmod(0o755)
    program.write_text(DYING)
    dying = release(built, "0.9.0", 9)

    look_at_the_new_one(relaunch_to_the_next(releases[0]))
    print("relaunched", flush=True)
    install_when_it_quits(releases[1])
    print("installed when it quit", flush=True)
    fail_in_every_way(releases[2])
    print("failed in every way", flush=True)
    come_back_from_one_that_dies(dying)


if __name__ == "__main__":
    try:
        main()
    finally:
        for process in running():
            os.kill(process, signal.SIGKILL)

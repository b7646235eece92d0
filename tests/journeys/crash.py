#!/usr/bin/python3
"""Kills the real application, and looks at what the store is told of it and at what comes back.

Run in a D-Bus session, on a display, with a sandbox store:

    tests/journeys/in-sandbox --bus tests/journeys/crash.py build/dev/bin/loomstreet
"""

import json
import os
import signal
import subprocess
import sys
from pathlib import Path

import pyatspi

from accessibility import Shopper, expect, wait_for, walk
from sandbox import told

PROGRAM = sys.argv[1]
HOME = Path(os.environ["HOME"])
FOLDER = Path(os.environ["XDG_DATA_HOME"]) / "LOOMSTREET"
CALLS = "/api/support/widget/app-version"
PIECE = "Sabine bias slip dress"
DRAFT = "Would this do for a garden wedding"
# What a dying process may have had in its hands.
WORDS = f"uncaught exception St13runtime_error\nno room for {HOME}/notes of jane@mail.example, token: Qm9vZ2ll"


def asked(path):
    """How often the store was asked for one of the calls about the application."""
    return sum(request["path"] == CALLS + path for request in told("/requests"))


def reports():
    return [entry["report"] for entry in told("/crash-reports")]


def kept(name):
    """What a file of the application holds; nothing while there is none."""
    try:
        return json.loads((FOLDER / name).read_text())
    except FileNotFoundError:
        return {}


def marks():
    """Those of a run: what it was, and when it was alive last."""
    words = FOLDER / "lst_last_words"
    return (kept("lst_preferences.json").get("lst_running_session"), words.exists() and words.stat().st_mtime_ns)


class Run(Shopper):
    """A start of the application, until it is ended."""

    last = None  # to be ended in any case

    def __init__(self, *links):
        self.configured = asked("/config")
        environment = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self.process = Run.last = subprocess.Popen([PROGRAM, *links], env=environment)
        super().__init__()

    def await_sending(self):
        """Until whatever is to be sent can only be under way or wait in its file."""
        wait_for(lambda: asked("/config") > self.configured, "the application to ask what the store wants")

    def end(self, how):
        self.process.send_signal(how)
        status = self.process.wait()
        wait_for(lambda: not self._find_application(), "the application to be forgotten")
        return status

    def tabs(self):
        row = self.await_item(pyatspi.ROLE_PAGE_TAB_LIST, "Tabs")
        names = [item.name for item in walk(row)]
        return [name for name in names if f"Close {name}" in names]

    def draft(self):
        return self.await_item(pyatspi.ROLE_TEXT, "Write to Mira").queryText().getText(0, -1)


def start_beside(*arguments):
    """A start that hands over what it is for, and leaves no mark of its own."""
    before = marks()
    expect(f"a start with {arguments}", subprocess.run([PROGRAM, *arguments], check=False).returncode, 0)
    expect(f"the marks after a start with {arguments}", marks(), before)


def leave_things_behind():
    """Two tabs, a piece in the bag and words that were not sent, until the run is killed."""
    run = Run("/products/sabine-bias-slip-dress")
    run.await_page(PIECE)
    run.press("S", role=pyatspi.ROLE_RADIO_BUTTON)
    run.press("Add to Cart")
    run.await_item(pyatspi.ROLE_LIST, "1 item in your cart")
    run.press("Continue Shopping")
    start_beside("--version")
    start_beside("/collections/bags")
    run.await_page("Bags")
    run.press("Mira")
    field = run.await_item(pyatspi.ROLE_TEXT, "Write to Mira")
    wait_for(lambda: field.getState().contains(pyatspi.STATE_FOCUSED), "the keyboard to be at the words to Mira")
    subprocess.run(["xdotool", "type", DRAFT], check=True)
    wait_for(lambda: kept("lst_mira_draft.json").get("text") == DRAFT, "the draft to be written down")
    wait_for(lambda: kept("lst_windows.json")[0]["tabs"][-1]["section"] == "mira", "the tabs to be written down")
    begun = marks()
    run.end(signal.SIGKILL)
    expect("the marks of a killed run", marks(), begun)
    with open(FOLDER / "lst_last_words", "a", encoding="utf-8") as words:
        words.write(WORDS)
    return begun[0]


def look_at_report(report, begun):
    expect("the kind", (report["kind"], report["summary"]), ("abnormal_exit", "App did not quit normally"))
    details = report["payload"]
    expect("the run", [details[f"previous{key}"] for key in ("Version", "Build")], [begun["version"], begun["build"]])
    expect("the start", details["startedAt"], begun["startedAt"])
    expect("the words", details["exception"].startswith("uncaught exception std::runtime_error: no room for ["), True)
    text = json.dumps(report)
    cart = kept("lst_preferences.json")["shopify_cart_id"]
    secrets = [str(HOME), "jane", "Qm9vZ2ll", DRAFT, cart.split("?")[0], kept("lst_guide_token.json")["token"]]
    expect("what is private in a report", [secret for secret in secrets if secret in text], [])


def main():
    FOLDER.mkdir(parents=True)
    (FOLDER / "lst_preferences.json").write_text('{"lst_privacy_consent": "all"}')
    begun = leave_things_behind()
    expect("reports before the next start", reports(), [])

    run = Run()
    run.await_page("Mira")
    expect("the tabs", run.tabs(), [PIECE, "Mira"])
    wait_for(lambda: run.draft() == DRAFT, "the draft to come back")
    run.press("Shopping bag")
    run.await_item(pyatspi.ROLE_LIST, "1 item in your cart")
    wait_for(lambda: run.find(pyatspi.ROLE_LIST_ITEM, f"{PIECE}, Sage / S, $248.00"), "the bag to come back")
    [report] = wait_for(reports, "a report")
    look_at_report(report, begun)
    wait_for(lambda: not kept("lst_crash_reports.json"), "the report to be forgotten")
    expect("how the application quits", run.end(signal.SIGTERM), 0)
    expect("the marks of a run that quit", marks(), (None, False))

    run = Run()
    run.await_sending()
    expect("what waits after a run that quit", kept("lst_crash_reports.json"), {})
    run.end(signal.SIGKILL)

    preferences = kept("lst_preferences.json")
    (FOLDER / "lst_preferences.json").write_text(json.dumps(preferences | {"lst_privacy_consent": "essential"}))
    run = Run()
    run.await_sending()
    expect("what waits without consent", kept("lst_crash_reports.json"), {})
    expect("how the application quits", run.end(signal.SIGTERM), 0)
    expect("how many reports were sent", asked("/crash-reports"), 1)
    expect("the marks without consent", marks(), (None, False))


if __name__ == "__main__":
    try:
        main()
    finally:
        if Run.last:
            Run.last.kill()

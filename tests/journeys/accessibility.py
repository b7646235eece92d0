#!/usr/bin/python3
"""Shops with nothing but what assistive tools are given: goes through the real application by names and presses, over
AT-SPI, and looks at every control of every page on the way.

Run in a D-Bus session, on a display, with a sandbox store:

    tests/journeys/in-sandbox --bus tests/journeys/accessibility.py build/dev/bin/loomstreet
"""

import os
import subprocess
import sys
import time

import pyatspi
from gi.repository import GLib

PATIENCE = 30  # seconds; only a broken application lets anyone wait so long

# What a shopper presses, by its role alone.
CONTROLS = {
    pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_TOGGLE_BUTTON, pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_RADIO_BUTTON,
    pyatspi.ROLE_MENU_ITEM, pyatspi.ROLE_CHECK_MENU_ITEM, pyatspi.ROLE_RADIO_MENU_ITEM, pyatspi.ROLE_PAGE_TAB,
    pyatspi.ROLE_LINK, pyatspi.ROLE_LIST_ITEM, pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_PUSH_BUTTON_MENU,
}
# What takes the keyboard and hands it to something in it, or is typed or scrolled in.
HOLDERS = {
    pyatspi.ROLE_LIST, pyatspi.ROLE_PAGE_TAB_LIST, pyatspi.ROLE_GROUPING, pyatspi.ROLE_PANEL, pyatspi.ROLE_TABLE,
    pyatspi.ROLE_DIALOG, pyatspi.ROLE_ALERT, pyatspi.ROLE_FRAME, pyatspi.ROLE_WINDOW, pyatspi.ROLE_ENTRY,
    pyatspi.ROLE_TEXT, pyatspi.ROLE_SCROLL_BAR, pyatspi.ROLE_MENU, pyatspi.ROLE_POPUP_MENU, pyatspi.ROLE_MENU_BAR,
    pyatspi.ROLE_SCROLL_PANE,
}
NAMELESS_ROLES = {pyatspi.ROLE_UNKNOWN, pyatspi.ROLE_INVALID, pyatspi.ROLE_FILLER}
PRESSES = {"Press", "Toggle", "ShowMenu", "Increase"}


def wait_for(find, what):
    """What `find` finds, once it finds something. Items may go while they are looked at."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            found = find()
            if found:
                return found
        except (GLib.Error, LookupError):
            pass
        # What is new is told to this process' own event loop.
        while GLib.MainContext.default().iteration(False):
            pass
        time.sleep(0.05)
    raise SystemExit(f"waited in vain for {what}")


def expect(what, found, wanted):
    if found != wanted:
        raise SystemExit(f"{what}: {found} instead of {wanted}")


def walk(item):
    """An item and all that can be seen in it."""
    yield item
    for child in list(item):
        if child is not None and child.getState().contains(pyatspi.STATE_VISIBLE):
            yield from walk(child)


def actions(item):
    try:
        action = item.queryAction()
    except NotImplementedError:
        return []
    return [action.getName(i) for i in range(action.nActions)]


def place(item):
    """Where an item is, by the roles and names above it."""
    parts = []
    while item is not None and item.getRole() != pyatspi.ROLE_APPLICATION:
        parts.append(f"{item.getRoleName()} “{item.name}”")
        item = item.parent
    return " in ".join(parts[:4])


class Shopper:
    def __init__(self):
        self.faults = []
        self.looked_at = 0
        self.application = wait_for(self._find_application, "the application to be known to assistive tools")

    @staticmethod
    def _find_application():
        return next((app for app in pyatspi.Registry.getDesktop(0) if app and app.name == "LOOMSTREET"), None)

    def find(self, role, name=None, below=None):
        """The first item of this role, or of one of these roles, and of this name."""
        roles = role if isinstance(role, set) else {role}
        for item in walk(below or self.application):
            if item.getRole() in roles and name in (None, item.name):
                return item
        return None

    def await_item(self, role, name=None, below=None):
        return wait_for(lambda: self.find(role, name, below), f"{role} “{name}”")

    def press(self, name, below=None, role=None):
        # Qt 6.4 calls everything a button that is built on one: tabs, and the sections at the side.
        item = self.await_item(role or CONTROLS, name, below)
        names = actions(item)
        if "Press" not in names:
            raise SystemExit(f"cannot be pressed: {place(item)}")
        item.queryAction().doAction(names.index("Press"))

    def await_page(self, title):
        self.await_item(pyatspi.ROLE_FRAME, f"{title} – LOOMSTREET")

    def look(self, page, item=None):
        """Every control of what is shown has a name, a role and something to do."""
        count = 0
        for item in walk(item or self.application):
            role = item.getRole()
            focusable = item.getState().contains(pyatspi.STATE_FOCUSABLE)
            # Qt calls every text focusable.
            if role not in CONTROLS and (not focusable or role in (pyatspi.ROLE_LABEL, pyatspi.ROLE_FRAME)):
                continue
            count += 1
            wrong = []
            if not item.name.strip():
                wrong.append("has no name")
            if role in NAMELESS_ROLES:
                wrong.append("has no role")
            if role not in HOLDERS and not PRESSES & set(actions(item)):
                wrong.append("cannot be pressed")
            if wrong:
                self.faults.append(f"{page}: {place(item)} {' and '.join(wrong)}")
        print(f"{page}: {count} controls", flush=True)
        self.looked_at += count
        if count < 3:
            self.faults.append(f"{page}: there is next to nothing in it")


def shop(shopper):
    shopper.await_page("Explore")
    rail = shopper.await_item(pyatspi.ROLE_LIST, "For you")
    wait_for(lambda: shopper.find(pyatspi.ROLE_PUSH_BUTTON, below=rail), "what is recommended")
    shopper.look("Explore")

    shopper.press("Women")
    shopper.await_page("Women")
    shopper.press("Dresses")
    shopper.await_page("Dresses")
    pieces = shopper.await_item(pyatspi.ROLE_LIST, "Pieces")
    # A card says its designer, its title and its price.
    card = wait_for(lambda: next((item for item in walk(pieces) if ", $" in item.name), None), "a card")
    shopper.look("collection")

    title = card.name.split(", ")[1]
    shopper.press(card.name, pieces)
    beside = shopper.await_item(pyatspi.ROLE_PANEL, "Side panel")
    shopper.await_item(pyatspi.ROLE_RADIO_BUTTON, below=beside)
    shopper.look("piece beside the page", beside)
    shopper.press("Open full page", beside)
    shopper.await_page(title)
    shopper.await_item(pyatspi.ROLE_RADIO_BUTTON)
    shopper.look("piece")

    shopper.press(f"{title}, picture 1", role=pyatspi.ROLE_IMAGE)
    lightbox = shopper.await_item(pyatspi.ROLE_DIALOG, title)
    shopper.look("enlarged picture", lightbox)
    shopper.press("Close", lightbox)
    wait_for(lambda: not shopper.find(pyatspi.ROLE_DIALOG, title), "the enlarged picture to go")

    shopper.press("Back")
    shopper.await_page("Dresses")

    shopper.press("Menu")
    shopper.press("File")
    shopper.await_item(pyatspi.ROLE_MENU_ITEM, "Settings")
    shopper.look("menu")
    shopper.press("Settings")
    settings = shopper.await_item(pyatspi.ROLE_FRAME, "Settings")
    for tab, control in (("General", None), ("Appearance", "Dark"), ("Privacy", None)):
        shopper.press(tab, settings)
        if control:
            shopper.await_item(pyatspi.ROLE_RADIO_BUTTON, control, settings)
        shopper.look(f"settings, {tab}", settings)


def main():
    program = sys.argv[1]
    environment = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
    application = subprocess.Popen([program], env=environment)
    try:
        shopper = Shopper()
        shop(shopper)
    finally:
        application.terminate()
        application.wait()
    for fault in shopper.faults:
        print(fault)
    print(f"{shopper.looked_at} controls, {len(shopper.faults)} faults")
    return 1 if shopper.faults else 0


if __name__ == "__main__":
    sys.exit(main())

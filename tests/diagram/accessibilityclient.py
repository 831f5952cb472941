#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
"""Works the diagram of a host as an accessibility client does: lists its parts, moves handles, and hears of it.

    xvfb-run --auto-servernum dbus-run-session -- accessibilityclient.py <host>

Needs a session bus and an X server of its own, xdotool, and Debian's at-spi2-core, gir1.2-atspi-2.0 and python3-gi.
"""
import os
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

PATIENCE = 15.0  # seconds
GREEN = "Target: green primary"
HANDLES = ["Target: red primary", GREEN, "Target: blue primary", "Target: white point"]

failures = []
heard = []  # (type, name of the source, its description)


def check(fact, what):
    print(("ok    " if fact else "FAIL  ") + what)
    if not fact:
        failures.append(what)


def pump(seconds=0.05):
    """Lets events arrive."""
    end = time.monotonic() + seconds
    while True:
        while GLib.MainContext.default().iteration(False):
            pass
        if time.monotonic() >= end:
            return
        time.sleep(0.01)


def wait_for(condition):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            found = condition()
        except GLib.Error:  # what was just there is gone
            found = None
        if found:
            return found
        pump()
    return None


def xdotool(*arguments):
    subprocess.run(["xdotool", *arguments], check=True, timeout=PATIENCE, stdout=subprocess.DEVNULL)


def switch_accessibility(on):
    Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
        "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
        GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", on))),
        None, Gio.DBusCallFlags.NONE, -1, None)


def children(parent):
    return [child for child in (parent.get_child_at_index(i) for i in range(parent.get_child_count())) if child]


def find(parent, accepts):
    if accepts(parent):
        return parent
    for child in children(parent):
        found = find(child, accepts)
        if found:
            return found
    return None


def find_application(process):
    desktop = Atspi.get_desktop(0)
    desktop.clear_cache()
    for application in children(desktop):
        if application.get_process_id() == process.pid:
            return application
    return None


def part(diagram, name):
    """A child of that name, asked for anew."""
    diagram.clear_cache()
    for child in children(diagram):
        child.clear_cache()
        if child.get_name() == name:
            return child
    return None


def described(diagram, name):
    return part(diagram, name).get_description()


def numbers(text):
    """x 0.2650  y 0.6900"""
    words = text.split()
    return float(words[1]), float(words[3])


def act(handle, name):
    for i in range(Atspi.Action.get_n_actions(handle)):
        if Atspi.Action.get_action_name(handle, i) == name:
            return Atspi.Action.do_action(handle, i)
    return False


def listen(event):
    try:
        heard.append((event.type, event.source.get_name(), event.source.get_description()))
    except GLib.Error:
        pass


def heard_of(kind, name):
    return any(event[0].startswith(kind) and event[1] == name for event in heard)


def is_active(frame):
    frame.clear_cache()
    return frame.get_state_set().contains(Atspi.StateType.ACTIVE)


def work(diagram):
    print(diagram.get_role_name(), repr(diagram.get_name()), repr(diagram.get_description()))
    check(diagram.get_name() == "Chromaticity diagram, CIE 1931 x, y", "the diagram has a name")
    parts = children(diagram)
    for child in parts:
        print(" ", child.get_role_name(), repr(child.get_name()), repr(child.get_description()))
    handles = [child for child in parts if child.get_role() == Atspi.Role.SLIDER]
    gamuts = [child for child in parts if child.get_role() == Atspi.Role.IMAGE]
    check([handle.get_name() for handle in handles] == HANDLES, "each handle is listed by name, as a slider")
    check(len(gamuts) == 4 and all(gamut.get_name() for gamut in gamuts), "each gamut is listed by name, as an image")
    check(all("x 0." in child.get_description() for child in parts), "each has its coordinates")
    check(numbers(described(diagram, GREEN)) == (0.2650, 0.6900), "green is where the host has put it")
    states = part(diagram, GREEN).get_state_set()
    check(states.contains(Atspi.StateType.FOCUSABLE) and states.contains(Atspi.StateType.SHOWING),
          "a handle can get the focus and is seen")
    place = Atspi.Component.get_extents(part(diagram, GREEN), Atspi.CoordType.SCREEN)
    check(24 <= place.width <= 40 and 24 <= place.height <= 40, "a handle has a place on the screen")

    x, y = numbers(described(diagram, GREEN))
    check(act(part(diagram, GREEN), "Increase"), "there is an action to increase x")
    check(wait_for(lambda: numbers(described(diagram, GREEN))[0] > x), "it moves the handle to the right")
    check(numbers(described(diagram, GREEN))[1] == y, "and not upwards")
    check(act(part(diagram, GREEN), "MoveUp"), "there is an action to move up")
    check(wait_for(lambda: numbers(described(diagram, GREEN))[1] > y), "it moves the handle upwards")
    Atspi.Value.set_current_value(part(diagram, GREEN), 0.3)
    check(wait_for(lambda: numbers(described(diagram, GREEN))[0] == 0.3), "a value that is set moves the handle there")
    coordinates = children(part(diagram, GREEN))
    check([coordinate.get_name() for coordinate in coordinates] == [GREEN + ", x", GREEN + ", y"],
          "both coordinates of a handle are parts of it")
    Atspi.Value.set_current_value(coordinates[1], 0.65)
    check(wait_for(lambda: numbers(described(diagram, GREEN)) == (0.3, 0.65)), "and each can be set")

    check(act(part(diagram, GREEN), "SetFocus"), "there is an action to give the focus to a handle")
    check(wait_for(lambda: part(diagram, GREEN).get_state_set().contains(Atspi.StateType.FOCUSED)), "which gets it")
    heard.clear()
    xdotool("key", "Right")
    check(wait_for(lambda: numbers(described(diagram, GREEN))[0] > 0.3), "an arrow key moves it")
    check(wait_for(lambda: heard_of("object:property-change:accessible-value", GREEN)), "and its new value is told")
    check(wait_for(lambda: heard_of("object:property-change:accessible-description", GREEN)),
          "and that its coordinates are others")
    heard.clear()
    xdotool("key", "Tab")
    check(wait_for(lambda: heard_of("object:state-changed:focused", "Target: blue primary")),
          "Tab goes to the next handle, and tells of it")


def main():
    environment = dict(os.environ, QT_QPA_PLATFORM="xcb")
    environment.pop("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", None)
    process = subprocess.Popen([sys.argv[1]], env=environment)
    try:
        window = ["search", "--sync", "--onlyvisible", "--name", "Chromaticity diagram"]
        xdotool(*window)
        # Some versions of Qt tell of themselves before they are connected. The second time they are.
        for on in [True, False, True]:
            switch_accessibility(on)
            pump(0.5)
        Atspi.init()
        listener = Atspi.EventListener.new(listen)
        for kind in ["object:property-change:accessible-value", "object:property-change:accessible-description",
                     "object:state-changed:focused"]:
            listener.register(kind)
        application = wait_for(lambda: find_application(process))
        check(application, "the host is found")
        diagram = application and wait_for(lambda: find(application, lambda o: o.get_role() == Atspi.Role.CHART))
        check(diagram, "the diagram is found")
        if diagram:
            # Without a window manager nobody else gives the keyboard to the window.
            xdotool(*window, "windowfocus")
            frame = application.get_child_at_index(0)
            check(wait_for(lambda: is_active(frame)), "its window is active")
            work(diagram)
    finally:
        process.kill()
        process.wait()
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())

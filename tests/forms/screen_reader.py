#!/usr/bin/python3
"""What a screen reader hears of a program, a line for each event on standard output:

  window ROLE: TITLE; TEXTS         a window has come to the front, with the texts of its labels
  focus ROLE: NAME; DESCRIPTION     a control has got the focus
  change ROLE: NAME; DESCRIPTION    what is told of a control has changed
  nameless ROLE: in TITLE           a control of the window that can be clicked and has no name

A line "press NAME" on standard input presses a button of the window that came to the front last, as
somebody does who cannot see it.
"""
import sys

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402
import pyatspi  # noqa: E402

PROGRAM = sys.argv[1]
CLICKABLE = {
    pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_TOGGLE_BUTTON, pyatspi.ROLE_CHECK_BOX,
    pyatspi.ROLE_RADIO_BUTTON, pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_SLIDER, pyatspi.ROLE_TEXT,
    pyatspi.ROLE_PAGE_TAB, pyatspi.ROLE_MENU_ITEM, pyatspi.ROLE_CHECK_MENU_ITEM,
    pyatspi.ROLE_LIST, pyatspi.ROLE_TREE,
}


def tell_that_somebody_listens():
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    for setting in ("IsEnabled", "ScreenReaderEnabled"):
        bus.call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
            GLib.Variant("(ssv)", ("org.a11y.Status", setting, GLib.Variant("b", True))),
            None, Gio.DBusCallFlags.NONE, -1, None)


def say(*words):
    print(*words, flush=True)


def told(source):
    role = source.getRoleName()
    return f"{role}: {source.name}; {source.description}".replace("\n", " ").replace("\r", "")


def shown_below(source, depth=0):
    if depth > 12:
        return
    for child in source:
        if child is None or not child.getState().contains(pyatspi.STATE_SHOWING):
            continue
        yield child
        yield from shown_below(child, depth + 1)


def texts_of(window):
    labels = [c.name for c in shown_below(window) if c.getRole() == pyatspi.ROLE_LABEL and c.name]
    return "; ".join(labels).replace("\n", " ").replace("\r", "")


front = None


def press(name):
    for child in shown_below(front) if front else ():
        if child.getRole() == pyatspi.ROLE_PUSH_BUTTON and child.name == name:
            child.queryAction().doAction(0)
            say("pressed", name)


def on_command(channel, _condition):
    line = channel.readline().strip()
    if not line:
        return False
    try:
        press(line.removeprefix("press "))
    except GLib.Error:
        pass  # it is gone already
    return True


def can_be_clicked(control):
    is_picture = control.getRole() == pyatspi.ROLE_IMAGE
    return control.getRole() in CLICKABLE or (
        is_picture and control.getState().contains(pyatspi.STATE_FOCUSABLE))


def on_event(event):
    global front
    source = event.source
    try:
        if source is None or event.host_application.name != PROGRAM:
            return
        if event.type == "window:activate":
            front = source
            say(f"window {source.getRoleName()}: {source.name}; {texts_of(source)}")
            for child in shown_below(source):
                if can_be_clicked(child) and not child.name:
                    say(f"nameless {child.getRoleName()}: in {source.name}")
        elif event.type == "object:state-changed:focused":
            if event.detail1:
                say("focus", told(source))
        else:
            say("change", told(source))
    except (GLib.Error, AttributeError):
        pass  # it is gone already


tell_that_somebody_listens()
pyatspi.Registry.registerEventListener(
    on_event, "window:activate", "object:state-changed:focused",
    "object:property-change:accessible-name", "object:property-change:accessible-description")
GLib.io_add_watch(sys.stdin, GLib.IO_IN, on_command)
say("listening")
pyatspi.Registry.start()

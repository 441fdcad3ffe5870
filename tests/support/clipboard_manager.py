#!/usr/bin/python3
"""A clipboard manager: when the owner of the clipboard asks for it (SAVE_TARGETS), it fetches what is
there as PNG and SVG, and is the clipboard from then on. It says "ready" when it can be asked and
"saved" with the kinds that it has fetched."""
from Xlib import X, Xatom, display
from Xlib.protocol import event

KINDS = ("image/png", "image/svg+xml")

connection = display.Display()
root = connection.screen().root
window = root.create_window(0, 0, 1, 1, 0, connection.screen().root_depth)
window.change_attributes(event_mask=X.PropertyChangeMask)
atom = connection.intern_atom
CLIPBOARD, MANAGER, INCR = atom("CLIPBOARD"), atom("CLIPBOARD_MANAGER"), atom("INCR")
SAVE_TARGETS, TARGETS, PLACE = atom("SAVE_TARGETS"), atom("TARGETS"), atom("ZEL_TEST")
saved = {}
waiting = []  # events that came while something was fetched


def next_event(kind):
    while True:
        came = connection.next_event()
        if came.type == kind:
            return came
        waiting.append(came)


def take_property():
    value = window.get_full_property(PLACE, X.AnyPropertyType)
    window.delete_property(PLACE)
    return value


def fetch(target):
    window.convert_selection(CLIPBOARD, target, PLACE, X.CurrentTime)
    if next_event(X.SelectionNotify).property == X.NONE:
        return None
    value = take_property()
    if value.property_type != INCR:
        return value
    # It comes in parts, each of which is asked for by taking the one before away.
    data = b""
    while True:
        came = next_event(X.PropertyNotify)
        if came.atom != PLACE or came.state != X.PropertyNewValue:
            continue
        part = take_property()
        if part is None or not len(part.value):
            break
        data += bytes(part.value)
    value.value = data
    return value


def save():
    offered = list(fetch(TARGETS).value)
    for kind in KINDS:
        if atom(kind) in offered:
            saved[atom(kind)] = bytes(fetch(atom(kind)).value)
    window.set_selection_owner(CLIPBOARD, X.CurrentTime)
    print("saved", *(kind for kind in KINDS if atom(kind) in saved), flush=True)


def answer(request):
    done = request.property or request.target
    if request.selection == MANAGER and request.target == SAVE_TARGETS:
        save()
    elif request.target == TARGETS:
        request.requestor.change_property(done, Xatom.ATOM, 32, [TARGETS, *saved])
    elif request.target in saved:
        request.requestor.change_property(done, request.target, 8, saved[request.target])
    else:
        done = X.NONE
    request.requestor.send_event(event.SelectionNotify(
        time=request.time, requestor=request.requestor, selection=request.selection,
        target=request.target, property=done))
    connection.flush()


window.set_selection_owner(MANAGER, X.CurrentTime)
connection.sync()
print("ready", flush=True)
while True:
    came = waiting.pop(0) if waiting else connection.next_event()
    if came.type == X.SelectionRequest:
        answer(came)

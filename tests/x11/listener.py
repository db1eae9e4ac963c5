"""An assistive program: hears what programs tell of themselves, reads their windows and presses what is in them.

It is asked by lines of JSON on its input, and answers each with one. It needs pyatspi, which comes with Debian's
own Python, so that it is a process apart from the stories.
"""

import json
import sys

import pyatspi
from gi.repository import Atspi, GLib

HEARD = ("window:activate", "object:state-changed:focused",
         "object:property-change:accessible-description")

heard = []


def told(accessible):
    return {"role": accessible.getRoleName(), "name": accessible.name, "description": accessible.description}


def hear(event):
    try:
        heard.append(told(event.source) | {"event": str(event.type), "on": bool(event.detail1)})
    except (GLib.Error, LookupError):
        # What an event tells of may have gone since.
        pass


def states_of(accessible):
    return [pyatspi.stateToString(state) for state in accessible.getState().getStates()]


def is_on_show(accessible):
    return accessible.getState().contains(pyatspi.STATE_SHOWING)


def labels_of(accessible):
    return [relation.getTarget(i).name for relation in accessible.getRelationSet()
            if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY
            for i in range(relation.getNTargets())]


def actions_of(accessible):
    try:
        action = accessible.queryAction()
    except NotImplementedError:
        return []
    return [action.getName(i) for i in range(action.nActions)]


def report(accessible):
    return told(accessible) | {"states": states_of(accessible), "labels": labels_of(accessible),
                               "actions": actions_of(accessible)}


def front_window():
    """The active window of the program."""
    for program in pyatspi.Registry.getDesktop(0):
        # What was read before may have changed without an event.
        program.set_cache_mask(Atspi.Cache.NONE)
        for window in program:
            if window and window.getState().contains(pyatspi.STATE_ACTIVE):
                return window
    return None


def below(accessible):
    """What shows in it, itself first."""
    if not accessible or not is_on_show(accessible):
        return
    yield accessible
    for child in accessible:
        yield from below(child)


def those(role, name=None):
    return (each for each in below(front_window())
            if each.getRoleName() == role and name in (None, each.name))


def press(role, name):
    action = next(those(role, name)).queryAction()
    names = [action.getName(i) for i in range(action.nActions)]
    return action.doAction(names.index("Press"))


ANSWERS = {
    "all": lambda role: [report(each) for each in those(role)],
    "find": lambda role, name: next((report(each) for each in those(role, name)), None),
    "press": press,
    "heard": lambda: heard,
    "forget": heard.clear,
}


def answer(source, _):
    line = source.readline()
    if not line:
        loop.quit()
        return False
    question, *words = json.loads(line)
    try:
        given = ANSWERS[question](*words)
    except (GLib.Error, LookupError, StopIteration):
        # What it was looking at went meanwhile; whoever asks will ask again.
        given = None
    print(json.dumps(given), flush=True)
    return True


for kind in HEARD:
    pyatspi.Registry.registerEventListener(hear, kind)
loop = GLib.MainLoop()
GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IO_IN | GLib.IO_HUP, answer)
print(json.dumps("ready"), flush=True)
loop.run()

"""reader.py PROGRAM NEWDB DATA: plays a screen reader. It listens on the accessibility bus while keys are pressed in the real program,
and checks what a keeper would hear: names, roles, cells with their headings, sentences."""
import os
import subprocess
import sys
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

PATIENCE = 60  # seconds, for the slowest machine; nothing waits longer than it must

faults = []
heard = []  # what has the focus or a new name, as (name, description, role), the latest last


def check(holds, what):
    if not holds:
        faults.append(what)
        print("FAILED:", what, flush=True)


def listen(event):
    try:
        if event.type.startswith("object:property-change") or event.detail1:
            heard.append((event.source.get_name(), event.source.get_description(), event.source.get_role_name()))
    except GLib.Error:
        pass  # its window is gone


def until(what, find):
    """Waits until `find` returns something, and returns that."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):
            pass
        try:
            found = find()
            if found:
                return found
        except (GLib.Error, AttributeError):
            pass  # a window is not there yet, or went meanwhile
        time.sleep(0.02)
    sys.exit(f"FAILED: {what} did not come. The last that was heard: {heard[-5:]}")


def below(place):
    """What is visible in a place, but no rows of tables."""
    yield place
    if place.get_role() in (Atspi.Role.TABLE, Atspi.Role.MENU):
        return
    for i in range(place.get_child_count()):
        child = place.get_child_at_index(i)
        if child and child.get_state_set().contains(Atspi.StateType.SHOWING):
            yield from below(child)


def find(place, role=None, **texts):
    """The first thing in a place with that role, name or description."""
    for thing in below(place):
        if role in (None, thing.get_role_name()) and all(getattr(thing, "get_" + of)() == text for of, text in texts.items()):
            return thing
    return None


def press(*keys):
    heard.clear()
    subprocess.run(["xdotool", "key", "--delay", "20", *keys], check=True)


def hear(what, fits):
    return until(what, lambda: next((words for words in heard if fits(*words)), None))


def tab_to(role):
    for _ in range(30):
        press("Tab")
        words = hear("something with the focus", lambda *_: True)
        if words[2] == role:
            return words
    sys.exit(f"FAILED: Tab reaches no {role}.")


def window(title):
    """A dialog or a child of the main window."""
    return until(f"the window {title}", lambda: find(desk(), name=title))


def desk():
    programs = [Atspi.get_desktop(0).get_child_at_index(i) for i in range(Atspi.get_desktop(0).get_child_count())]
    return next((program for program in programs if program and program.get_name() == "ostrelmark"), None)


def check_names(place):
    """Whatever takes the focus has a name and a role."""
    for thing in below(place):
        role = thing.get_role_name()
        if thing.get_state_set().contains(Atspi.StateType.FOCUSABLE) and role != "filler":  # that one has tabs, and they the focus
            check(thing.get_name() and role not in ("invalid", "unknown"), f"a {role} in {place.get_name()} has a name")


def make_folder(newdb, data):
    folder = tempfile.mkdtemp(dir=os.environ["HOME"])
    subprocess.run([newdb, os.path.join(folder, "OM.MDB")], check=True)
    for name, lines in {
        "tanks": "tank,water_type\nBowl,freshwater\nReef,reef\n",
        "water": "tank,date,time,ph,temp,comment\nReef,2026-03-01,09:30:00,8.1,77,clear\nReef,2026-03-02,09:30:00,8.3,78,\n",
    }.items():
        with open(os.path.join(folder, name + ".csv"), "w") as file:
            file.write(lines)
        subprocess.run([data, "--folder", folder, "import", file.name], check=True, stdout=subprocess.DEVNULL)
    settings = os.path.join(os.environ["XDG_CONFIG_HOME"], "ostrelmark")
    os.makedirs(settings)
    with open(os.path.join(settings, "OMK.ini"), "w") as file:
        file.write("[SETTINGS]\nShow_Tips=No\n")
    return folder


def logbook():
    until("the sentence of the empty work area",
          lambda: any(thing.get_description().startswith("Open the logbook") for thing in below(desk())))
    press("ctrl+l")
    book = window("Logbook")
    tree = until("the tree of tanks", lambda: find(book, "tree", name="Tanks"))
    until("the sentence of the log of all tanks",
          lambda: any(thing.get_description().startswith("Choose a tank on the left") for thing in below(book)))
    check(tree, "the tanks are a tree")
    press("r")
    hear("the tank", lambda name, description, role: name == "Reef")
    check_names(book)
    return book


def cells(book):
    """Left and right in a row tell the cells with their headings; those out of sight come into it."""
    table = until("the water log", lambda: find(book, "table", name="Water Quality Log"))
    first = tab_to("table cell")
    check("03/01/26" in first[0] and first[1] == "Date", f"the list begins with the date of the first test: {first}")
    press("Down")  # the first one selects the row with the frame
    told = []
    for _ in range(Atspi.Table.get_n_columns(table) - 1):
        press("Right")
        told.append(hear("a cell", lambda name, description, role: role == "table cell"))
    check(("8.10", "ph") in [words[:2] for words in told], f"the pH is told with its heading: {told}")
    check(told[-1][:2] == ("clear", "Comments"), f"the comment is told last: {told[-1]}")
    check(len({words[1] for words in told}) == len(told), f"each cell has a heading of its own: {told}")


def letters():
    press("alt+t")
    hear("the open menu", lambda name, description, role: (name, role) == ("Tank Setup", "menu item"))
    press("n")
    names = window("Common and Latin Names Reference")
    check_names(names)
    press("t")
    first = hear("a name", lambda name, description, role: role == "table cell")
    check(first[0][:1].lower() == "t" and first[1] == "Common Name", f"T goes to a name that begins so: {first}")


def sentences():
    press("ctrl+e")
    list_of = window("Maintenance Scheduling")
    until("the sentence of the empty list",
          lambda: any(thing.get_description().startswith("There are no reminders yet") for thing in below(list_of)))
    press("Insert")
    editor = window("Reminder Recurrence")
    sentence = until("the sentence", lambda: find(editor, description="The reminder in words"))
    before = sentence.get_name()
    check(before and sentence.get_role_name() == "label", f"the reminder's sentence is a label with its text: {before}")
    check_names(editor)
    tab_to("radio button")
    press("Down")
    hear("another sentence", lambda name, description, role: description == "The reminder in words" and name != before)
    press("Escape")


def wizard():
    press("ctrl+d")
    pages = window("Disease Diagnosis Wizard")
    check_names(pages)
    press("Return")
    answers = until("the answers", lambda: find(pages, "radio button"))
    frame = answers.get_parent()
    check(find(pages, "label", name=frame.get_description()), f"the question is told with its answers: {frame.get_description()}")
    press("Escape")
    until("the end of the wizard", lambda: not find(desk(), name="Disease Diagnosis Wizard"))


def graph():
    press("ctrl+g")
    chart = until("the graph", lambda: find(window("Water Quality Graphing"), description="Page 1, 2 of 2 entries"))
    check(chart.get_name(), "the graph has a name")
    check_names(window("Water Quality Graphing"))
    check(Atspi.Table.get_n_rows(chart) == 2, f"the graph is a table of two entries: {Atspi.Table.get_n_rows(chart)}")
    value = Atspi.Table.get_accessible_at(chart, 1, 0).get_name()
    check(value.startswith("3/2, "), f"a value is told with its date: {value}")
    for _ in range(30):
        press("Tab")
        if hear("something with the focus", lambda *_: True)[0] == chart.get_name():
            break
    press("Right")
    hear("the first value of the graph", lambda name, description, role: name.startswith("3/1, "))
    press("Right")
    hear("the next value", lambda name, description, role: name == value)


def main(program, newdb, data):
    for event in ("object:state-changed:focused", "object:property-change:accessible-name"):
        Atspi.EventListener.new(listen).register(event)
    folder = make_folder(newdb, data)
    process = subprocess.Popen([program, folder], env={**os.environ, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"})
    try:
        until("the main window", lambda: find(desk(), "frame").get_state_set().contains(Atspi.StateType.ACTIVE))
        cells(logbook())
        letters()
        sentences()
        wizard()
        graph()
    finally:
        process.terminate()
        process.wait()
    sys.exit(1 if faults else 0)


main(*sys.argv[1:])

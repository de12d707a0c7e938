"""A client of AT-SPI that compares what a program exposes with a table of expectations.

Usage: check.py SCENE-PROGRAM EXPECTATIONS.json, on a display and a session bus of its own.
"""

import json
import subprocess
import sys
import time
from pathlib import Path

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 20  # seconds that anything may take on a busy machine
QUIET = 0.5  # seconds without any event after which none is expected to come
# The second is Qt's answer to a client that asks after an item of a window that has just closed.
HARMLESS = ("Failed to set fd limit", "qt.accessibility.atspi: Could not find accessible on path")
# Names that changed between versions of AT-SPI.
ROLE_NAMES = {"push button": "button"}


class Failure(Exception):
    pass


def happens(condition):
    """Runs the event loop until condition() gives something true or patience ends, and returns what it gave."""
    deadline = time.monotonic() + PATIENCE
    while not (result := condition()) and time.monotonic() < deadline:
        GLib.MainContext.default().iteration(False)
        time.sleep(0.005)
    return result


def wait_for(condition, what):
    result = happens(condition)
    if not result:
        raise Failure(f"waited in vain for {what}")
    return result


def role_of(accessible):
    name = accessible.get_role_name()
    return ROLE_NAMES.get(name, name)


def children(accessible):
    for index in range(accessible.get_child_count()):
        child = accessible.get_child_at_index(index)
        if child is not None:
            yield child


def descendants(accessible):
    for child in children(accessible):
        yield child
        yield from descendants(child)


def actions(accessible):
    return [Atspi.Action.get_action_name(accessible, i) for i in range(Atspi.Action.get_n_actions(accessible))]


def states(accessible):
    return {state.value_nick for state in accessible.get_state_set().get_states()}


def find_application(pid):
    for candidate in children(Atspi.get_desktop(0)):
        try:
            if candidate.get_process_id() == pid and candidate.get_child_count() > 0:
                return candidate
        except GLib.Error:
            pass  # one that is starting or ending
    return None


class Test:
    def __init__(self, program, expectations_file):
        self.expectations = json.loads(expectations_file.read_text(encoding="utf-8"))
        self.scene = expectations_file.with_name(self.expectations["scene"])
        self.program = program
        self.failures = []
        self.events = []
        self.last_event = time.monotonic()
        self.application = None

    def on_event(self, event):
        self.last_event = time.monotonic()
        try:
            record = {"type": event.type, "role": role_of(event.source), "from": event.source.get_name()}
            shows = event.detail1
        except GLib.Error:
            return  # its object is gone already
        if event.type == "object:announcement":
            record["text"] = event.any_data
        elif not shows and event.type.startswith("object:state-changed"):
            return  # a state that ends
        elif event.type == "object:state-changed:showing" and record["role"] != "notification":
            return  # of all that shows, only notifications are speech
        self.events.append(record)

    def find(self, name):
        def search():
            try:
                return next((d for d in descendants(self.application) if d.get_name() == name), None)
            except GLib.Error:
                return None

        return wait_for(search, f'an item named "{name}"')

    def check(self, what, actual, expected):
        if actual != expected:
            self.failures.append(f"{what}: got {actual!r}, expected {expected!r}")

    def check_item(self, row):
        item = self.find(row["name"])
        what = f'"{row["name"]}"'
        self.check(f"role of {what}", role_of(item), row["role"])
        if "description" in row:
            self.check(f"description of {what}", item.get_description(), row["description"])
        wanted = set(row.get("states", []))
        happens(lambda: wanted <= states(item))
        self.check(f"states of {what}", sorted(states(item) & wanted), sorted(wanted))
        self.check(f"states of {what} that it must not have", sorted(states(item) & set(row.get("absentStates", []))), [])
        if "actions" in row:
            of_interest = [action for action in actions(item) if action == "Press" or action in row["actions"]]
            self.check(f"actions of {what}", sorted(of_interest), sorted(row["actions"]))
        if "pressed" in row:
            heard = {"type": "object:announcement", "text": row["pressed"], "from": row["name"]}
            self.run_step({"why": f"{what} is pressed once", "on": row["name"], "action": "Press", "events": [heard]})

    def do_action(self, item, name):
        if name not in actions(item):
            raise Failure(f'"{item.get_name()}" has no action "{name}"')
        Atspi.Action.do_action(item, actions(item).index(name))

    def focus(self, item):
        item.grab_focus()
        wait_for(lambda: "focused" in states(item), "the focus")

    def run_step(self, step):
        self.events.clear()
        if "focus" in step:
            self.focus(self.find(step["focus"]))
        if "keys" in step:
            subprocess.run(["xdotool", "key", *step["keys"].split()], check=True)
        else:
            self.do_action(self.find(step["on"]), step["action"])
        expected = step["events"]
        self.last_event = time.monotonic()
        happens(lambda: len(self.events) >= len(expected))
        # Surplus events can only be seen by giving them the time to come.
        wait_for(lambda: time.monotonic() - self.last_event > QUIET, "the events to end")
        # Which kind comes first differs between versions of Qt; within a kind the order matters.
        self.events.sort(key=lambda event: event["type"])
        expected = sorted(expected, key=lambda event: event["type"])
        actual = [{key: event.get(key) for key in row} for event, row in zip(self.events, expected)]
        actual += self.events[len(expected) :]
        self.check(f"events of the step \"{step['why']}\"", actual, expected)

    def run(self):
        listener = Atspi.EventListener.new(self.on_event)
        for name in self.expectations["listen"]:
            listener.register(name)
        scene = subprocess.Popen([self.program, str(self.scene)], stderr=subprocess.PIPE, text=True)
        try:
            self.application = wait_for(lambda: find_application(scene.pid), "the program to appear")
            for row in self.expectations["items"]:
                self.check_item(row)
            for step in self.expectations["steps"]:
                self.run_step(step)
            if scene.poll() is not None:
                raise Failure(f"the program ended with {scene.returncode}")
        except (Failure, GLib.Error) as failure:
            self.failures.append(str(failure))
        finally:
            scene.terminate()
            output = scene.communicate()[1]
        messages = [line for line in output.splitlines() if line and not line.startswith(HARMLESS)]
        self.check("messages of the program", messages, [])
        return self.failures


def main():
    failures = Test(sys.argv[1], Path(sys.argv[2])).run()
    for failure in failures:
        print("FAIL:", failure)
    print(f"{len(failures)} failures" if failures else "passed")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())

"""A window of the program, for the storms: driven by keys, and read as a screen reader does it."""

import re
import subprocess
import time

import pyatspi
from gi.repository import GLib

PATIENCE = 60  # seconds, on a machine that has other work to do
QUESTION = "ZY Setup - Changed by Another Program"


GONE = GLib.GError, TypeError  # raised by whoever looks at a window that is just going


def wait_for(look, what):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        found = look()
        if found:
            return found
        time.sleep(0.01)
    raise TimeoutError(f"Waited in vain for {what}")


def xdotool(*arguments):
    return subprocess.run(["xdotool", *map(str, arguments)], check=True, capture_output=True, text=True).stdout


class Window:
    """One program with its window. Its letter begins every mark that it writes.

    The number of the program is that of its process, unless another one runs it.
    """

    def __init__(self, process, files, letter, number=None):
        self.process, self.files, self.letter = process, files, letter
        self.program = number or process.pid
        self.number = wait_for(self.find_number, f"the window {files.title}")
        self.accessible = wait_for(self.find_accessible, f"the accessible window {files.title}")
        self.save = pyatspi.findDescendant(
            self.accessible, lambda each: each.getRoleName() == "push button" and each.name == "Save")
        self.status = None
        self.questions = 0
        if files.keys_at_start:
            self.press(*files.keys_at_start)

    def end(self):
        self.process.kill()
        self.process.wait()

    def find_number(self, title=None):
        found = subprocess.run(["xdotool", "search", "--all", "--onlyvisible", "--pid", str(self.program), "--name",
                                "^" + (title or self.files.title) + "$"], capture_output=True, text=True).stdout.split()
        return found[0] if found else None

    def application(self):
        for each in pyatspi.Registry.getDesktop(0):
            if each is not None and each.get_process_id() == self.program:
                return each
        return None

    def find_accessible(self):
        application = self.application()
        return application and next((each for each in application if each.name == self.files.title), None)

    def text(self):
        """What the status bar says."""
        if self.status is None:
            self.status = self.find_status()
        self.status.clear_cache()
        return self.status.name

    def find_status(self):
        def look():
            self.accessible.clear_cache()
            return pyatspi.findDescendant(self.accessible, lambda each: each.getRoleName() == "notification" and
                                          re.match(r"\d+ (rule|unit|user)|Saved", each.name or ""))
        return wait_for(look, "the status bar")

    def can_save(self):
        self.save.clear_cache()
        return self.save.getState().contains(pyatspi.STATE_SENSITIVE)

    def box(self):
        """The text of a box that stands before the window; nothing when there is none. The question is none."""
        application = self.application()
        for each in application or []:
            if each is not None and each.name not in (self.files.title, QUESTION):
                labels = pyatspi.findAllDescendants(each, lambda part: part.getRoleName() == "label")
                return "\n".join(label.name for label in labels) or each.name
        return None

    def press(self, *keys):
        xdotool("windowactivate", "--sync", self.number, "key", "--delay", 20, *keys)

    def change(self, mark):
        """Puts a mark into the first row, and waits until there is something to save."""
        self.mark = mark
        self.press(*self.files.keys_to_first_row)
        xdotool("type", "--delay", 10, mark)
        if self.files.keys_behind_mark:
            xdotool("key", *self.files.keys_behind_mark)
        wait_for(self.has_change, f"the change {mark}")
        self.changed = self.text()

    def has_change(self):
        return "edited" in self.text() if self.files.argument == "@RULES" else self.can_save()

    def outcome(self):
        """What the window says once its save has ended: (whether it saved, its words); nothing before that."""
        can_save = self.can_save()  # asked first: what is said comes after it
        text = self.text()
        if text != self.changed or not can_save:
            return (text.startswith("Saved") and "edited" not in text, text)
        if self.answer_question():
            return None
        box = self.box()
        return (False, box) if box else None

    def answer_question(self):
        """Overwrites what the other window wrote, where this one asks."""
        question = self.find_number(QUESTION)
        if question:
            self.questions += 1
            xdotool("windowactivate", "--sync", question, "key", "alt+o")
            wait_for(lambda: not self.find_number(QUESTION), "the end of the question")
        return question is not None

    def save_calmly(self, mark):
        self.change(mark)
        self.press("ctrl+s")
        said = wait_for(self.outcome, "a save that nobody disturbs")
        assert said[0], f"a save that nobody disturbs failed: {said[1]}"

#!/usr/bin/python3
"""What a screen reader gets to know of the program.

Runs the program on the display and the session bus that it finds itself on, and reads it through the bus for assistive
technology, as a screen reader does. The first argument is the program; the others go to unittest.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

import pyatspi

PATIENCE = 20  # seconds


def rule(code, description):
    fields = {"CODE": code, "MIN": "1", "MAX": "2", "COND": ">", "ZONE": "UCL", "DESC1": description,
              "DESC2": "", "DESC3": ""}
    return "[RULE]\r\n" + "".join(f"   {name:<12} = {value}\r\n" for name, value in fields.items())


class ScreenReader(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.mkdtemp(prefix="zyReader")
        self.addCleanup(shutil.rmtree, self.folder)

    def put(self, name, text):
        with open(os.path.join(self.folder, name), "w", encoding="cp1252", newline="") as file:
            file.write(text)

    def start(self, argument, title):
        """Starts the program and returns its window, once that has the keyboard."""
        environment = dict(os.environ, ZYSETUP_SYSTEM_DIR=self.folder, XDG_DATA_HOME=self.folder + "/data",
                           XDG_CONFIG_HOME=self.folder + "/config", LC_ALL="C.UTF-8")
        environment.pop("NO_AT_BRIDGE", None)
        printed = tempfile.TemporaryFile("w+", dir=self.folder)
        child = subprocess.Popen([PROGRAM, argument], env=environment, stdout=printed, stderr=printed)
        self.addCleanup(self.check_silence, printed)
        self.addCleanup(child.wait)
        self.addCleanup(child.kill)
        return self.wait_for(lambda: self.find_window(child.pid, title), f"the window {title}")

    def check_silence(self, printed):
        with printed:
            printed.seek(0)
            self.assertEqual(printed.read(), "")

    @staticmethod
    def find_window(process, title):
        for application in pyatspi.Registry.getDesktop(0):
            if application is not None and application.get_process_id() == process:
                for window in application:
                    if window.name == title and window.getState().contains(pyatspi.STATE_ACTIVE):
                        return window
        return None

    def wait_for(self, look, what):
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            found = look()
            if found:
                return found
            time.sleep(0.05)
        self.fail(f"Waited in vain for {what}")

    def find(self, window, role, name):
        def look():
            window.clear_cache()  # without a main loop nothing tells of a new name
            return pyatspi.findDescendant(window, lambda each: each.getRoleName() == role and each.name == name)

        return self.wait_for(look, f"the {role} {name}")

    def wait_for_focus(self, window, role, name):
        item = self.find(window, role, name)
        self.wait_for(lambda: item.getState().contains(pyatspi.STATE_FOCUSED), f"the focus on {name}")

    def names_of(self, window, role):
        return [each.name for each in pyatspi.findAllDescendants(window, lambda each: each.getRoleName() == role)
                if each.getState().contains(pyatspi.STATE_SHOWING)]

    @staticmethod
    def press(*keys):
        subprocess.run(["xdotool", "key", "--delay", "60", *keys], check=True)


class RulesTest(ScreenReader):
    def setUp(self):
        super().setUp()
        self.put("ZYRules.sys", rule("R1", "First") + rule("R2", "Second"))
        self.window = self.start("@RULES", "ZY Setup - Rules")

    def test_the_lists_cells_are_read_by_row_and_column(self):
        table = self.find(self.window, "table", "Current Rules List").queryTable()
        self.assertEqual((table.nRows, table.nColumns), (2, 6))
        cells = [[table.getAccessibleAt(row, column).name.rstrip() for column in range(6)] for row in range(2)]
        self.assertEqual(cells, [["R1", "1", "2", ">", "UCL", "First"], ["R2", "1", "2", ">", "UCL", "Second"]])
        headers = [table.getColumnDescription(column) for column in range(6)]
        self.assertEqual(headers, ["Rule ID", "Min", "Max", "Cond", "Zone", "Description"])

    def test_the_selected_row_follows_the_keyboard(self):
        table = self.find(self.window, "table", "Current Rules List").queryTable()
        self.press("Down")
        self.wait_for(lambda: list(table.getSelectedRows()) == [1], "the second row's selection")

    def test_every_box_is_labelled_by_the_text_beside_it(self):
        labels = []
        for box in pyatspi.findAllDescendants(
                self.window, lambda each: each.getRoleName() in ("text", "combo box") and each.getState().contains(
                    pyatspi.STATE_SHOWING)):
            targets = [relation.getTarget(0).name for relation in box.getRelationSet()
                       if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY]
            labels.append(targets)
        self.assertEqual(labels, [["Rule ID:"], ["Minimum:"], ["Maximum:"], ["Condition:"], ["Zone:"],
                                  ["Description:"]])

    def test_buttons_bear_their_names_and_the_status_bar_its_text(self):
        self.assertEqual(self.names_of(self.window, "push button"),
                         ["Move rule up", "Move rule down", "Add", "Delete", "Save", "Help"])
        self.assertIn("2 rules", self.names_of(self.window, "panel"))


class GridTest(ScreenReader):
    """The grid is one item that stands for its current cell: a reader gets no table of the others."""

    def test_the_current_cell_of_the_units_grid_is_told(self):
        self.put("ZYUNITS.SYS", "Kilograms,kg\r\nMetres,m\r\n")
        window = self.start("@UNITS", "ZY Setup - Units of Measure")
        self.press("Down")  # no cell is current before
        self.wait_for_focus(window, "table cell", "Unit kg, row 1 of 2")
        self.press("Down", "Right")
        self.wait_for_focus(window, "table cell", "Unit Description Metres, row 2 of 2")
        self.press("F2")
        self.wait_for_focus(window, "text", "Unit Description")

    def test_the_current_cell_of_the_users_grid_is_told(self):
        window = self.start("@SECURITY", "ZY Setup - Security")
        self.wait_for_focus(window, "table cell", "User Name NewUser, row 1 of 1")
        self.press("Right", "Right")
        self.wait_for_focus(window, "table cell", "Status A, row 1 of 1")
        self.assertEqual(self.names_of(window, "push button"), ["Add", "Delete", "Save", "Help"])


if __name__ == "__main__":
    if "DISPLAY" not in os.environ:
        sys.exit("The program's windows need an X display with a window manager: start this with tests/with-display "
                 "in front of the command, as ./test does.")
    PROGRAM = os.path.abspath(sys.argv.pop(1))
    unittest.main()

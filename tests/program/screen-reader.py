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
import threading
import time
import unittest

import pyatspi
from gi.repository import GLib

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
                           XDG_CONFIG_HOME=self.folder + "/config", XDG_STATE_HOME=self.folder + "/state",
                           LC_ALL="C.UTF-8")
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
    def find_focused(window, role):
        window.clear_cache()
        return pyatspi.findDescendant(
            window, lambda each: each.getRoleName() == role and each.getState().contains(pyatspi.STATE_FOCUSED))

    def notices_while(self, act, count):
        """Does something, and returns the notices that came into sight by it, of which there have to be so many."""
        seen = []

        def note(event):
            if event.source.getRoleName() == "notification" and event.detail1:
                seen.append(event.source.name)
            if len(seen) == count:
                pyatspi.Registry.stop()

        pyatspi.Registry.registerEventListener(note, "object:state-changed:showing")
        limit = threading.Timer(PATIENCE, pyatspi.Registry.stop)
        limit.start()
        act()
        pyatspi.Registry.start()
        limit.cancel()
        pyatspi.Registry.deregisterEventListener(note, "object:state-changed:showing")
        return seen

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
        self.assertEqual(self.names_of(self.find(self.window, "status bar", "Status"), "notification"), ["2 rules"])

    def test_no_box_bears_the_caption_of_another_box(self):
        details = self.find(self.window, "panel", "Rule Details")
        self.assertEqual(list(details.getRelationSet()), [])

    def test_what_the_status_bar_newly_says_is_said_at_once(self):
        self.press("Tab", "Tab", "Tab", "Tab", "Tab", "Tab", "Tab")
        field = self.wait_for(lambda: self.find_focused(self.window, "text"), "the focus on a field")
        self.assertEqual(field.getRelationSet()[0].getTarget(0).name, "Rule ID:")
        said = self.notices_while(lambda: self.press("U4E2D"), 1)
        self.assertEqual(said, ["Rule ID: the character U+4E2D was not taken: the settings files cannot hold it"])


class DialogTest(ScreenReader):
    def test_about_is_a_dialog_whose_links_are_named_by_their_own_texts(self):
        self.start("@UNITS", "ZY Setup - Units of Measure")
        self.press("alt+h", "a")
        about = self.wait_for(lambda: self.find_dialog("About ZY Setup"), "the dialog")
        links = pyatspi.findAllDescendants(about, lambda each: each.getRoleName() == "link")
        self.assertEqual([each.name for each in links], ["http://www.norvale.example", "support@norvale.example"])
        self.assertEqual([list(each.getRelationSet()) for each in links], [[], []])

    def test_the_day_that_the_arrows_reach_has_its_whole_date_for_a_name(self):
        self.start("@SECURITY", "ZY Setup - Security")
        self.press("Right", "Right", "Right", "2", "6", "minus", "1", "2", "minus", "0", "1", "alt+Down")
        calendar = self.wait_for(lambda: self.find_dialog("Expiry Date"), "the calendar")
        fields = [self.find(calendar, "combo box", "Month"), self.find(calendar, "spin button", "Year")]
        self.assertEqual([list(each.getRelationSet()) for each in fields], [[], []])
        self.wait_for_focus(calendar, "calendar", "Tuesday, 1 December 2026")
        self.press("Left")
        self.wait_for_focus(calendar, "calendar", "Monday, 30 November 2026")
        self.assertEqual(self.find_focused(calendar, "calendar").description, "Expiry Date")

    @staticmethod
    def find_dialog(title):
        for application in pyatspi.Registry.getDesktop(0):
            for window in application or []:
                if (window.getRoleName(), window.name) == ("dialog", title) and window.getState().contains(
                        pyatspi.STATE_ACTIVE):
                    return window
        return None


class HelpTest(ScreenReader):
    def setUp(self):
        super().setUp()
        self.start("@UNITS", "ZY Setup - Units of Measure")
        self.press("F1")
        self.window = self.wait_for(self.find_help, "the help")
        self.page = self.find(self.window, "document frame", "ZY Setup Help")
        self.wait_for_focus(self.page, "heading", "ZY Setup Help")

    @staticmethod
    def find_help():
        for application in pyatspi.Registry.getDesktop(0):
            for window in application or []:
                if window.name == "ZY Setup - Help" and window.getState().contains(pyatspi.STATE_ACTIVE):
                    return window
        return None

    def test_a_page_is_read_by_its_paragraphs_and_headings(self):
        self.assertEqual([(part.getRoleName(), part.name) for part in self.page][2:8], [
            ("paragraph", "ZY Setup edits three lists that all users of the product share. Each one has its own editor:"),
            ("paragraph", "Editor"), ("paragraph", "Title of the window"), ("paragraph", "What you do with it"),
            ("link", "Rules"), ("paragraph", "ZY Setup - Rules")])
        headings = [part for part in self.page if part.getRoleName() == "heading"]
        self.assertEqual([(each.name, each.getAttributes()) for each in headings[:2]],
                         [("ZY Setup Help", ["level:1"]), ("I want to ...", ["level:2"])])
        self.press("ctrl+Down")
        self.wait_for_focus(self.page, "paragraph", self.page[1].name)

    def test_a_link_is_reached_by_tab_and_leads_to_its_page(self):
        self.press("Tab")
        self.wait_for_focus(self.page, "link", "Rules")
        before = self.page[1]
        self.press("Tab")
        self.wait_for_focus(self.page, "link", "Users")
        self.press("Return")
        self.wait_for_focus(self.find(self.window, "document frame", "Users editor"), "heading", "Users editor")
        self.assertTrue(before.getState().contains(pyatspi.STATE_DEFUNCT))

    def test_a_link_is_followed_by_its_action(self):
        link = self.find(self.page, "link", "Units of measure")
        link.queryAction().doAction(0)
        self.find(self.window, "document frame", "Units editor")

    def test_the_contents_are_the_entry_that_is_selected_in_them(self):
        self.press("Tab")
        self.wait_for_focus(self.page, "link", "Rules")
        self.press("shift+Tab")
        self.wait_for_focus(self.window, "tree item", "ZY Setup Help, open")
        self.press("Left")
        self.wait_for_focus(self.window, "tree item", "ZY Setup Help, closed")


class GridTest(ScreenReader):
    """The grid is a table whose cells are items of their own."""

    def open_units(self, lines):
        self.put("ZYUNITS.SYS", "".join(f"{line}\r\n" for line in lines))
        window = self.start("@UNITS", "ZY Setup - Units of Measure")
        return window, self.find(window, "table", "Units")

    def wait_for_state(self, item, state, is_set=True):
        def look():
            item.clear_cache()
            return item.getState().contains(state) == is_set

        self.wait_for(look, f"the state {state} of {item}")

    def wait_for_cell(self, window, row, column, text):
        """Waits until the current cell, which has the keyboard, is this one."""
        table = self.find(window, "table", "Units").queryTable()

        def look():
            cell = table.getAccessibleAt(row, column)
            return cell.name == text and cell.getState().contains(pyatspi.STATE_FOCUSED)

        self.wait_for(look, f"the focus on {text}")

    def test_its_cells_are_read_by_row_and_column(self):
        _, grid = self.open_units(["Kilograms,kg", "Metres,m"])
        table = grid.queryTable()
        self.assertEqual((table.nRows, table.nColumns, grid.childCount), (2, 2, 6))
        texts = [[table.getAccessibleAt(row, column).name for column in range(2)] for row in range(2)]
        self.assertEqual(texts, [["kg", "Kilograms"], ["m", "Metres"]])
        self.assertEqual([table.getColumnDescription(column) for column in range(2)], ["Unit", "Unit Description"])
        self.assertEqual(table.getColumnHeader(1).getRoleName(), "column header")
        self.assertTrue(grid.getState().contains(pyatspi.STATE_MANAGES_DESCENDANTS))

    def test_a_cell_knows_its_place_in_the_table_and_on_the_screen(self):
        _, grid = self.open_units(["Kilograms,kg", "Metres,m"])
        cell = grid.queryTable().getAccessibleAt(1, 1)
        self.assertEqual((cell.getRoleName(), cell.parent, cell.getIndexInParent()), ("table cell", grid, 5))
        self.assertEqual(grid.getChildAtIndex(5).name, "Metres")
        place = cell.queryTableCell()
        self.assertEqual(tuple(place.position)[-2:], (1, 1))
        self.assertEqual([header.name for header in place.columnHeaderCells], ["Unit Description"])
        self.assertEqual(place.table, grid)
        box = cell.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        around = grid.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        self.assertGreater(box.width * box.height, 0)
        self.assertTrue(around.x < box.x and box.y + box.height <= around.y + around.height)
        middle = (box.x + box.width // 2, box.y + box.height // 2, pyatspi.DESKTOP_COORDS)
        self.assertEqual(grid.queryComponent().getAccessibleAtPoint(*middle).name, "Metres")
        inside = cell.queryComponent().getExtents(pyatspi.WINDOW_COORDS)
        frame = grid.queryComponent().getExtents(pyatspi.WINDOW_COORDS)
        self.assertEqual((inside.x - frame.x, inside.y - frame.y), (box.x - around.x, box.y - around.y))

    def test_the_focus_is_on_the_current_cell_and_then_on_its_editor(self):
        window, grid = self.open_units(["Kilograms,kg", "Metres,m"])
        self.press("Down")  # no cell is current before
        self.wait_for_cell(window, 0, 0, "kg")
        self.press("Down", "Right")
        self.wait_for_cell(window, 1, 1, "Metres")
        self.press("F2")
        self.wait_for_focus(window, "text", "Unit Description, row 2 of 2")
        self.wait_for_state(grid.queryTable().getAccessibleAt(1, 1), pyatspi.STATE_FOCUSED, False)

    def test_a_block_is_told_at_its_first_cell(self):
        window, grid = self.open_units(["Kilograms,kg", "Metres,m", "Seconds,s"])
        self.press("Down", "shift+Down", "shift+Down")
        cell = grid.queryTable().getAccessibleAt(0, 0)

        def look():
            cell.clear_cache()
            return cell.description == "3 rows selected"

        self.wait_for(look, "the block")
        self.assertEqual(grid.querySelection().nSelectedChildren, 3)
        self.assertEqual(grid.querySelection().getSelectedChild(2).name, "s")

    def test_an_action_opens_a_cell_and_the_focus_can_be_put_on_one(self):
        window, grid = self.open_units(["Kilograms,kg", "Metres,m"])
        table = grid.queryTable()
        table.getAccessibleAt(1, 0).queryComponent().grabFocus()
        self.wait_for_cell(window, 1, 0, "m")
        action = table.getAccessibleAt(0, 1).queryAction()
        self.assertEqual((action.nActions, action.getName(0)), (1, "edit"))
        action.doAction(0)
        self.wait_for_focus(window, "text", "Unit Description, row 1 of 2")

    def test_rows_that_come_and_go_are_read_and_a_cell_without_a_row_is_defunct(self):
        window, grid = self.open_units(["Kilograms,kg", "Metres,m"])
        last = grid.queryTable().getAccessibleAt(1, 1)
        self.press("Down", "alt+d")
        self.find(window.parent, "push button", "Yes")
        self.press("alt+y")

        def rows():
            grid.clear_cache()
            return grid.queryTable().nRows

        self.wait_for(lambda: rows() == 1, "one row less")
        self.wait_for_state(last, pyatspi.STATE_DEFUNCT)
        self.press("alt+a")
        self.wait_for(lambda: rows() == 2, "one row more")

    def test_a_cell_that_is_a_list_tells_its_choices_and_its_action_drops_them_down(self):
        window = self.start("@SECURITY", "ZY Setup - Security")
        cell = self.find(window, "table", "Users").queryTable().getAccessibleAt(0, 2)
        self.assertEqual((cell.name, cell.description), ("A", "list of A, I"))
        cell.queryAction().doAction(0)

        def choices():
            application = window.parent
            application.clear_cache()
            return [each.name for each in pyatspi.findAllDescendants(
                application, lambda each: each.getRoleName() == "menu item" and each.name in ("A", "I"))]

        self.wait_for(lambda: choices() == ["A", "I"], "the list")

    def test_the_cells_of_a_long_table_are_lent_and_not_kept(self):
        _, grid = self.open_units([f"Unit number {number},u{number}" for number in range(1, 32767)])
        table = grid.queryTable()
        cell = table.getAccessibleAt(32765, 1)
        self.assertEqual(cell.name, "Unit number 32766")
        for row in range(0, 2000):
            self.assertEqual(table.getAccessibleAt(row, 0).name, f"u{row + 1}")

        def is_gone():
            cell.clear_cache()
            try:
                return not cell.name
            except GLib.Error as error:
                return "does not exist" in str(error)

        self.wait_for(is_gone, "the end of the lease")


if __name__ == "__main__":
    if "DISPLAY" not in os.environ:
        sys.exit("The program's windows need an X display with a window manager: start this with tests/with-display "
                 "in front of the command, as ./test does.")
    PROGRAM = os.path.abspath(sys.argv.pop(1))
    unittest.main()

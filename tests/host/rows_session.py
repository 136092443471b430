#!/usr/bin/env python3
"""Inserting and deleting records: rows_session.py HOST-PROGRAM WORK-FOLDER."""
import sessions
from sessions import RECORD, SELECTION, SIDE_HEADING, records

COUNT, SPIN, NO_UNDO_HINT = 1001, 1016, 2000  # controls of the dialog


class Rows(sessions.Session):
    def setUp(self):
        super().setUp()
        self.open_staff()
        self.before = records(self.path)

    def row_heading(self, row):
        """The middle of the heading of a row of the first screen, from 0."""
        left, top, right, _ = self.cells.area(SIDE_HEADING)
        if not hasattr(self, "row_height"):
            _, above, _, below = self.cells.current()
            self.row_height = below - above
        return (left + right) // 2, top + row * self.row_height + self.row_height // 2

    def saved(self):
        self.save_and_close()
        return records(self.path)

    def test_insert_a_typed_number_undo_and_redo(self):
        self.host.keys("Down", "Down", "ctrl+Insert")
        self.host.await_title("Insert Records")
        self.host.type("3")
        self.host.keys("Return")
        self.host.await_pane(RECORD, "Record 3 of 303")
        self.host.await_table("staff.dbf", modified=True)
        self.host.keys("ctrl+z")
        self.host.await_pane(RECORD, "Record 3 of 300")
        self.host.await_table("staff.dbf")
        self.host.keys("ctrl+y")
        self.host.await_pane(RECORD, "Record 3 of 303")
        after = self.saved()
        self.assertEqual(self.before[:3] + self.before[3:], after[:3] + after[6:])
        self.assertEqual([""] * 3, ["".join(record[2:6]).strip() for record in after[3:6]])

    def test_insert_a_number_set_with_the_arrows(self):
        self.host.keys("ctrl+Insert")
        self.host.await_title("Insert Records")
        left, top, right, bottom = self.host.await_window(id=SPIN)["rect"]
        for wanted in "23":
            self.host.click((left + right) / 2, top + 4)
            self.host.await_window(id=COUNT, text=wanted)
        self.host.click((left + right) / 2, bottom - 4)
        self.host.await_window(id=COUNT, text="2")
        self.host.click_window(text="&OK")
        self.host.await_pane(RECORD, "Record 1 of 302")

    def test_cancelled_dialog_changes_nothing(self):
        for key, title in (("ctrl+Insert", "Insert Records"), ("ctrl+Delete", "Delete Records")):
            self.host.keys(key)
            self.host.await_title(title)
            self.assertEqual(title == "Delete Records", self.host.find(id=NO_UNDO_HINT) is not None)
            self.host.keys("Escape")
            self.host.await_no_window(id=COUNT)
        self.host.await_pane(RECORD, "Record 1 of 300")
        self.host.await_table("staff.dbf")

    def test_delete_a_typed_number_and_undo(self):
        self.host.keys("Down", "ctrl+Delete")
        self.host.await_title("Delete Records")
        self.host.type("4")
        self.host.keys("Return")
        self.host.await_pane(RECORD, "Record 2 of 296")
        self.host.keys("ctrl+z")
        self.host.await_pane(RECORD, "Record 2 of 300")
        self.host.await_table("staff.dbf")
        self.host.keys("ctrl+y")
        self.host.await_pane(RECORD, "Record 2 of 296")
        self.assertEqual(self.before[:2] + self.before[6:], self.saved())

    def test_delete_more_than_there_are_goes_to_the_end(self):
        self.host.keys("ctrl+End", "Up", "Up", "ctrl+Delete")
        self.host.await_title("Delete Records")
        self.host.type("1000")
        self.host.keys("Return")
        self.host.await_pane(RECORD, "Record 297 of 297")

    def test_delete_records_selected_by_a_drag_over_their_headings(self):
        self.host.drag([self.row_heading(row) for row in (2, 3, 4, 5)])
        self.host.await_pane(SELECTION, "4 records")
        self.host.keys("ctrl+Delete")
        self.host.await_pane(RECORD, "Record 3 of 296")
        self.host.await_pane(SELECTION, "")
        self.host.keys("ctrl+z")
        self.host.await_pane(RECORD, "Record 3 of 300")
        self.host.await_table("staff.dbf")
        self.host.keys("ctrl+y")
        self.assertEqual(self.before[:3] + self.before[7:], self.saved())

    def test_delete_all_and_begin_anew(self):
        self.host.keys("ctrl+a")
        self.host.await_pane(SELECTION, "8 x 300 cells")
        self.host.keys("ctrl+Delete")
        self.host.await_pane(RECORD, "No records")
        self.host.keys("ctrl+Delete", "ctrl+c", "ctrl+x")  # nothing to act on
        self.host.keys("ctrl+Insert")
        self.host.await_title("Insert Records")
        self.host.type("2")
        self.host.keys("Return")
        self.host.await_pane(RECORD, "Record 1 of 2")
        self.host.keys("ctrl+z", "ctrl+z")
        self.host.await_pane(RECORD, "Record 1 of 300")
        self.host.await_table("staff.dbf")

    def test_context_menu_of_a_record_heading_selects_and_inserts(self):
        self.host.click(*self.row_heading(4), button=3)
        self.host.await_window(kind="#32768")
        self.host.await_pane(SELECTION, "1 record")
        self.host.keys("i")
        self.host.await_title("Insert Records")
        self.host.keys("Return")
        self.host.await_pane(RECORD, "Record 5 of 301")

    def test_context_menu_of_the_cells_by_keyboard(self):
        for key in ("Menu", "shift+F10"):
            self.host.keys("Down", key)
            self.host.await_window(kind="#32768")
            self.host.keys("d")
            self.host.await_title("Delete Records")
            self.host.keys("Return")
            self.host.await_no_window(id=COUNT)
        self.host.await_pane(RECORD, "Record 3 of 298")
        self.assertEqual(self.before[:2] + self.before[3:4] + self.before[5:], self.saved())

    def test_read_only_leaves_the_records_alone(self):
        heading = self.row_heading(3)
        self.host.keys("alt+e", "o", "ctrl+Insert", "ctrl+Delete", "Delete", "ctrl+x", "ctrl+v", "ctrl+n")
        self.host.click(*heading)
        self.host.keys("Delete", "ctrl+x")
        self.host.await_pane(SELECTION, "1 record")
        self.host.await_pane(RECORD, "Record 4 of 300")
        self.host.await_table("staff.dbf")


sessions.run()

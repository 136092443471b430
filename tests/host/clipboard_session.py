#!/usr/bin/env python3
"""Cells to and from other programs over the clipboard: clipboard_session.py HOST-PROGRAM WORK-FOLDER."""
import sessions
from hostdriver import wait_for
from sessions import EDIT_BOX, RECORD, SELECTION, records

ID, LASTNAME, FIRSTNAME, BORN = range(4)  # in a record as the reader gives it


class Clipboard(sessions.Session):
    def setUp(self):
        super().setUp()
        self.open_staff()
        self.before = records(self.path)

    def saved(self):
        self.save_and_close()
        return records(self.path)

    # On their way to programs of the display the system turns CR LF into LF.
    def await_clipboard(self, wanted):
        seen = [""]

        def holds():
            seen[0] = self.host.clipboard()
            return seen[0] == wanted

        try:
            wait_for("the clipboard", holds)
        except AssertionError:
            raise AssertionError(f"the clipboard holds {seen[0]!r}, not {wanted!r}")

    def select(self, right, down):
        """From the current cell on, with Shift and the arrows."""
        for _ in range(right):
            self.host.keys("shift+Right")
        for _ in range(down):
            self.host.keys("shift+Down")
        self.host.await_pane(SELECTION, f"{right + 1} x {down + 1} cells")

    def paste_block(self, line_end):
        self.host.set_clipboard(line_end.join(["Jörg\tÄnne", "Ólafur\t", "François\tZoë"]))
        self.host.keys("Tab", "Down", "ctrl+v")
        self.host.await_table("staff.dbf", modified=True)
        self.host.await_pane(SELECTION, "2 x 3 cells")
        after = self.saved()
        self.assertEqual([["Jörg", "Änne"], ["Ólafur", ""], ["François", "Zoë"]],
                         [[field.strip() for field in record[LASTNAME:FIRSTNAME + 1]] for record in after[2:5]])
        for record, old in zip(after[2:5], self.before[2:5]):
            old[LASTNAME:FIRSTNAME + 1] = record[LASTNAME:FIRSTNAME + 1]
        self.assertEqual(self.before, after)

    def test_text_with_crlf_line_ends_is_pasted_into_the_cells(self):
        self.paste_block("\r\n")

    def test_text_with_lf_line_ends_is_pasted_into_the_cells(self):
        self.paste_block("\n")

    def test_one_paste_is_one_step_of_undo(self):
        self.host.set_clipboard("a\tb\nc\td")
        self.host.keys("Tab", "ctrl+v")
        self.host.await_table("staff.dbf", modified=True)
        self.host.keys("ctrl+z")
        self.host.await_table("staff.dbf")
        self.host.keys("ctrl+y")
        self.assertEqual("a", self.saved()[1][LASTNAME].strip())

    def test_copied_cells_are_read_by_another_program(self):
        self.host.keys("Tab", *["Down"] * 16)  # Möller, Jörg and below Seidel, Zoë
        self.host.await_pane(RECORD, "Record 17 of 300")
        self.select(1, 1)
        self.host.keys("ctrl+c")
        self.await_clipboard("Möller\tJörg\nSeidel\tZoë")
        self.host.await_pane(SELECTION, "2 x 2 cells")
        self.host.await_table("staff.dbf")

    def test_current_cell_is_copied_also_after_an_edit_that_was_left(self):
        self.host.keys("Tab", "Right", "Escape", "ctrl+c")
        self.await_clipboard("Bachmann")
        self.host.set_clipboard("something else")
        self.host.keys("ctrl+c")
        self.await_clipboard("Bachmann")

    def test_cut_takes_the_texts_and_undo_brings_them_back(self):
        self.host.keys("Tab")
        self.select(1, 1)
        self.host.keys("ctrl+x")
        self.await_clipboard("Bachmann\tLena\nHaas\tBruno")
        self.host.await_table("staff.dbf", modified=True)
        self.host.keys("ctrl+z")
        self.host.await_table("staff.dbf")
        self.host.keys("ctrl+y")
        after = self.saved()
        self.assertEqual([""] * 4, [field.strip() for record in after[1:3] for field in record[LASTNAME:BORN]])
        self.assertEqual([record[BORN] for record in self.before[1:9]], [record[BORN] for record in after[1:9]])

    def test_cut_in_one_place_and_pasted_in_another_by_the_context_menu(self):
        self.host.keys("Tab")
        left, top, right, bottom = self.cells.current()
        x, y, height = (left + right) // 2, (top + bottom) // 2, bottom - top
        self.host.drag([(x, y), (x + 40, y + height), (x, y + 2 * height)])
        self.host.await_pane(SELECTION, "1 x 3 cells")
        self.host.click(x, y + height, button=3)  # inside the selection, which stays
        self.host.await_window(kind="#32768")
        self.host.keys("t")
        self.await_clipboard("Bachmann\nHaas\nBachmann")
        self.host.click(x, y + 10 * height, button=3)  # elsewhere: that cell becomes current
        self.host.await_window(kind="#32768")
        self.host.keys("p")
        self.host.await_pane(RECORD, "Record 11 of 300")
        self.host.await_pane(SELECTION, "1 x 3 cells")
        after = [record[LASTNAME].strip() for record in self.saved()[1:14]]
        self.assertEqual(["", "", ""], after[:3])
        self.assertEqual(["Bachmann", "Haas", "Bachmann"], after[10:])

    def test_delete_blanks_the_cells_and_leaves_the_clipboard_alone(self):
        self.host.set_clipboard("untouched")
        self.host.keys("Tab")
        self.select(0, 2)
        self.host.keys("Delete")
        self.host.await_table("staff.dbf", modified=True)
        self.await_clipboard("untouched")
        self.assertEqual([""] * 3, [record[LASTNAME].strip() for record in self.saved()[1:4]])

    def select_records(self, first, last):
        """By a drag over their headings; counted from 0 on the first screen."""
        left, top, right, _ = self.cells.area(sessions.SIDE_HEADING)
        _, above, _, below = self.cells.current()
        x, y, height = (left + right) // 2, top + (below - above) // 2, below - above
        self.host.drag([(x, y + first * height), (x, y + last * height)])
        self.host.await_pane(SELECTION, f"{last - first + 1} records")

    def test_whole_records_are_cut_and_pasted_as_new_ones(self):
        self.select_records(7, 8)  # without notes, which the file keeps elsewhere
        self.host.keys("ctrl+x")
        self.host.await_pane(RECORD, "Record 8 of 298")
        lines = wait_for("the records on the clipboard", self.host.clipboard).split("\n")
        self.assertEqual(["8", "9"], [line.split("\t")[0] for line in lines])
        self.host.keys("Up", "Up", "Up", "ctrl+v")
        self.host.await_pane(RECORD, "Record 5 of 300")
        order = [int(record[ID]) for record in self.saved()[1:11]]
        self.assertEqual([1, 2, 3, 4, 8, 9, 5, 6, 7, 10], order)

    def test_values_that_a_field_does_not_take_are_told_once(self):
        self.host.keys("End")
        self.host.set_clipboard("one\ntwo\nthree")
        self.host.keys("ctrl+v")
        self.host.await_message()
        self.host.keys("Return")
        self.host.await_no_message()
        self.host.await_pane(SELECTION, "1 x 3 cells")
        self.host.keys("Escape")
        self.host.await_pane(SELECTION, "")
        self.host.await_table("staff.dbf")

    def test_paste_beyond_the_last_record_adds_records(self):
        self.host.set_clipboard("x\ny\nz")
        self.host.keys("ctrl+End", "Tab", "ctrl+v")
        self.host.await_pane(RECORD, "Record 300 of 302")
        self.assertEqual(["x", "y", "z"], [record[LASTNAME].strip() for record in self.saved()[300:]])

    def test_paste_that_does_not_fit_is_told_and_changes_nothing(self):
        self.host.keys("Tab")
        self.host.set_clipboard("1\t2\t3\t4\t5\t6\t7\t8\t9")
        self.host.keys("ctrl+v")
        self.host.await_message()
        self.host.keys("Return")
        self.host.await_no_message()
        self.host.await_table("staff.dbf")

    def test_keys_in_the_edit_box_work_on_its_text(self):
        self.host.set_clipboard("ö")
        self.host.keys("Tab")
        self.host.type("abc")
        box = self.host.await_window(id=EDIT_BOX)
        self.host.keys("ctrl+v")
        self.host.await_window(id=EDIT_BOX, text="abcö")
        self.host.keys("Home", "Delete")
        text = "bcö"
        self.host.await_window(id=EDIT_BOX, text=text)
        self.host.keys("ctrl+Insert")  # the box's, not the table's
        self.host.keys("ctrl+a", "ctrl+c")
        self.host.keys("End", "ctrl+v")
        self.host.await_window(id=EDIT_BOX, text=text + text)
        self.host.keys("ctrl+z")
        self.host.await_window(id=EDIT_BOX, text=text)
        self.host.keys("ctrl+y")
        self.host.await_window(id=EDIT_BOX, text=text + text)
        self.host.keys("ctrl+a", "ctrl+x")
        self.host.await_window(id=EDIT_BOX, text="")
        self.await_clipboard(text + text)
        self.assertEqual(box["rect"], self.host.find(id=EDIT_BOX)["rect"])
        self.host.await_pane(RECORD, "Record 1 of 300")
        self.host.set_clipboard("one\ntwo")  # more than a cell: the box gives way to the table
        self.host.keys("ctrl+v")
        self.host.await_no_window(id=EDIT_BOX)
        self.host.await_pane(SELECTION, "1 x 2 cells")
        self.assertEqual(["one", "two"], [record[LASTNAME].strip() for record in self.saved()[1:3]])


sessions.run()

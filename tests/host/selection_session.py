#!/usr/bin/env python3
"""Selecting cells, columns and records: selection_session.py HOST-PROGRAM WORK-FOLDER."""
import sessions
from sessions import CELLS, CORNER, FIELD, RECORD, SELECTION


class Selecting(sessions.Session):
    def setUp(self):
        super().setUp()
        self.open_staff()
        self.left, self.top, self.right, self.bottom = self.cells.area(CELLS)
        _, above, _, below = self.cells.current()
        self.height = below - above
        self.side_x = self.left - 20
        self.heading_y = self.top - 8

    def row_y(self, row):
        return self.top + row * self.height + self.height // 2

    def shift_click(self, x, y):
        self.host.xdotool("keydown", "shift", "mousemove", str(x), str(y), "click", "1", "keyup", "shift")

    def test_columns_by_drag_shift_click_and_shift_arrows(self):
        self.host.drag([(self.left + 8, self.heading_y), (self.left + 40, self.heading_y),
                        (self.left + 200, self.heading_y)])  # ID to FIRSTNAME
        self.host.await_pane(SELECTION, "3 columns")
        self.host.keys("shift+Right")
        self.host.await_pane(SELECTION, "4 columns")
        self.host.keys("shift+Left", "shift+Left")
        self.host.await_pane(SELECTION, "2 columns")
        self.shift_click(self.left + 200, self.heading_y)
        self.host.await_pane(SELECTION, "3 columns")
        self.host.keys("Escape")
        self.host.await_pane(SELECTION, "")
        self.host.await_table("staff.dbf")

    def test_records_by_drag_shift_click_and_shift_arrows(self):
        self.host.drag([(self.side_x, self.row_y(row)) for row in (1, 2, 4)])
        self.host.await_pane(SELECTION, "4 records")
        self.host.keys("shift+Down", "shift+Down")
        self.host.await_pane(SELECTION, "6 records")
        self.shift_click(self.side_x, self.row_y(9))
        self.host.await_pane(SELECTION, "9 records")
        self.host.click(self.left + 8, self.row_y(3))
        self.host.await_pane(SELECTION, "")
        self.host.await_pane(RECORD, "Record 4 of 300")

    def record(self):
        words = self.host.status()[RECORD].split()
        return int(words[1])

    def test_record_drag_scrolls_below_the_last_row_and_back(self):
        start = (self.side_x, self.row_y(2))
        below = (self.side_x, self.bottom + 15)
        self.host.drag([start, (self.side_x, self.row_y(10)), below], until=lambda: self.record() > 120)
        self.host.await_pane(SELECTION, f"{self.record() - 2} records")
        reached = self.record()
        self.host.xdotool("mousemove", *map(str, start), "mousemove", str(self.left + 8), str(self.row_y(5)))
        self.assertEqual(reached, self.record(), "after the release nothing scrolls on")

    def test_column_drag_scrolls_beyond_the_edge(self):
        self.host.resize(500, 500)
        _, _, right, _ = self.cells.area(CELLS)
        self.host.drag([(self.left + 8, self.heading_y), (self.left + 150, self.heading_y),
                        (right + 10, self.heading_y)],
                       until=lambda: self.host.status()[FIELD].startswith("NOTES"))
        self.host.await_pane(SELECTION, "8 columns")

    def test_cells_by_drag_and_shift_arrows(self):
        self.host.drag([(self.left + 8, self.row_y(1)), (self.left + 60, self.row_y(2)),
                        (self.left + 60, self.row_y(4))])
        self.host.await_pane(SELECTION, "2 x 4 cells")
        self.host.keys("shift+Right", "shift+Up")
        self.host.await_pane(SELECTION, "3 x 3 cells")
        self.host.keys("Down")
        self.host.await_pane(SELECTION, "")

    def test_whole_table_by_corner_and_by_key(self):
        left, top, right, bottom = self.cells.area(CORNER)
        self.host.keys("Down", "Down")
        self.host.click((left + right) // 2, (top + bottom) // 2)
        self.host.await_pane(SELECTION, "8 x 300 cells")
        self.host.keys("Down")
        self.host.await_pane(SELECTION, "")
        self.host.keys("ctrl+a")
        self.host.await_pane(SELECTION, "8 x 300 cells")
        self.host.await_pane(RECORD, "Record 2 of 300")

    def test_right_click_after_a_selection_of_records_ends_it(self):
        self.host.drag([(self.side_x, self.row_y(1)), (self.side_x, self.row_y(3))])
        self.host.await_pane(SELECTION, "3 records")
        self.host.click(self.left + 60, self.row_y(8), button=3)
        self.host.await_window(kind="#32768")
        self.host.await_pane(RECORD, "Record 9 of 300")
        self.host.await_pane(SELECTION, "")
        self.host.keys("Escape")
        self.host.await_no_window(kind="#32768")
        self.host.keys("Delete")  # blanks the one cell, and deletes no record
        self.host.await_table("staff.dbf", modified=True)
        self.host.await_pane(RECORD, "Record 9 of 300")


sessions.run()

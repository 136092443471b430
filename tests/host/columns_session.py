#!/usr/bin/env python3
"""Hiding, showing, ordering and sizing columns: columns_session.py HOST-PROGRAM WORK-FOLDER."""
import os

import sessions
from hostdriver import wait_for
from sessions import CELLS, FIELD, SELECTION, TOP_HEADING

ALL = ["ID", "LASTNAME", "FIRSTNAME", "BORN", "DEPT", "SALARY", "ACTIVE", "NOTES"]


class Columns(sessions.Session):
    def setUp(self):
        super().setUp()
        self.open_staff()

    def await_shown(self, *fields):
        """The columns from left to right, as the dialog of their order lists them."""
        self.host.keys("alt+c", "o")
        items = self.host.await_window(kind="ListBox")["items"]
        self.host.keys("Escape")
        self.host.await_no_window(kind="ListBox")
        self.assertEqual(list(fields), items)

    def without(self, *hidden):
        return [field for field in ALL if field not in hidden]

    def heading_of(self, name):
        """The middle of the column's heading. Found by going there with Tab."""
        self.host.keys("Home")
        self.host.await_pane(FIELD, "ID, whole number 5")
        for _ in ALL:
            if self.host.status()[FIELD].startswith(name + ","):
                break
            self.host.keys("Tab")
        left, _, right, _ = self.cells.current()
        _, top, _, bottom = self.cells.area(TOP_HEADING)
        return (left + right) // 2, (top + bottom) // 2

    def width(self):
        left, _, right, _ = self.cells.current()
        return right - left

    def list_item(self, index):
        """A point on the box and one on the text of an entry of the dialog's list."""
        window = self.host.await_window(kind="ListBox")
        y = window["rect"][1] + 2 + (index - window["top"]) * window["itemHeight"] + window["itemHeight"] // 2
        return (window["rect"][0] + 8, y), (window["rect"][0] + 60, y)

    def test_hide_by_key_undo_and_redo(self):
        self.host.keys("Tab", "ctrl+h")
        self.host.await_pane(FIELD, "FIRSTNAME, character 15")
        self.host.keys("ctrl+z")
        self.host.await_pane(FIELD, "LASTNAME, character 20")
        self.await_shown(*ALL)
        self.host.keys("ctrl+y")
        self.await_shown(*self.without("LASTNAME"))
        self.host.await_table("staff.dbf")  # the view is no change of the data

    def test_hide_several_by_the_headings_context_menu(self):
        first, last = self.heading_of("FIRSTNAME"), self.heading_of("DEPT")
        self.host.click(*first)
        self.host.await_pane(SELECTION, "1 column")
        self.host.xdotool("keydown", "shift")
        self.host.click(*last)
        self.host.xdotool("keyup", "shift")
        self.host.await_pane(SELECTION, "3 columns")
        self.host.click((first[0] + last[0]) // 2, first[1], button=3)  # inside: the three stay selected
        self.host.await_window(kind="#32768")
        self.host.await_pane(SELECTION, "3 columns")
        self.host.keys("h")
        self.host.await_no_window(kind="#32768")
        self.await_shown(*self.without("FIRSTNAME", "BORN", "DEPT"))
        self.host.keys("ctrl+z")
        self.await_shown(*ALL)

    def test_right_click_on_another_heading_selects_it_first(self):
        salary = self.heading_of("SALARY")
        self.host.click(*self.heading_of("BORN"))
        self.host.click(*salary, button=3)
        self.host.await_window(kind="#32768")
        self.host.keys("h")
        self.await_shown(*self.without("SALARY"))

    def test_fields_hidden_and_shown_through_the_dialog_by_keyboard(self):
        self.host.keys("Tab", "alt+c", "s")
        self.host.await_title("Shown Fields")
        self.assertEqual(1, self.host.await_window(kind="ListBox")["selected"], "the current field is selected")
        self.host.keys("space", "Down", "space", "Return")  # LASTNAME and FIRSTNAME off
        self.host.await_no_window(kind="ListBox")
        self.await_shown(*self.without("LASTNAME", "FIRSTNAME"))
        self.host.keys("alt+c", "s")
        self.host.await_title("Shown Fields")
        self.host.keys("Home", "Down", "Down", "space", "Return")  # FIRSTNAME back, where it was
        self.host.await_no_window(kind="ListBox")
        self.await_shown(*self.without("LASTNAME"))
        self.host.keys("ctrl+z", "ctrl+z")
        self.await_shown(*ALL)
        self.host.keys("ctrl+y")
        self.await_shown(*self.without("LASTNAME", "FIRSTNAME"))

    def test_fields_hidden_and_shown_through_the_dialog_by_mouse(self):
        self.host.keys("alt+c", "s")
        self.host.await_title("Shown Fields")
        self.host.click_window(text="&Hide All")
        self.host.click(*self.list_item(2)[0])
        self.host.click(*self.list_item(5)[0])
        self.host.click(*self.list_item(6)[1])  # on the text it only selects
        self.host.click_window(text="OK")
        self.host.await_no_window(kind="ListBox")
        self.await_shown("FIRSTNAME", "SALARY")
        self.host.keys("alt+c", "s")
        self.host.await_title("Shown Fields")
        self.host.click(*self.list_item(0)[0])
        self.host.click_window(text="Cancel")
        self.host.await_no_window(kind="ListBox")
        self.await_shown("FIRSTNAME", "SALARY")
        self.host.keys("alt+c", "f")  # all fields as in the file
        self.await_shown(*ALL)

    def test_all_fields_hidden_can_be_shown_again(self):
        self.host.keys("alt+c", "s")
        self.host.await_title("Shown Fields")
        self.host.keys("alt+h", "Return")
        self.host.await_no_window(kind="ListBox")
        self.host.await_pane(FIELD, "")
        self.host.keys("ctrl+c", "Delete", "Down", "Tab", "ctrl+a", "ctrl+h", "ctrl+b")  # nothing to act on, and no harm
        left, top, right, bottom = self.cells.area(CELLS)
        self.host.click((left + right) // 2, (top + bottom) // 2, button=3)
        self.host.await_window(kind="#32768")
        self.host.keys("s")
        self.host.await_title("Shown Fields")
        self.host.keys("alt+s", "Return")
        self.host.await_no_window(kind="ListBox")
        self.await_shown(*ALL)

    def test_order_by_keys_buttons_and_drag(self):
        self.host.keys("Tab", "alt+c", "o")
        self.host.await_title("Order of Fields")
        self.host.keys("alt+Down", "ctrl+Down")  # LASTNAME to place 3
        self.host.click(*self.list_item(7)[1])
        self.host.click_window(text="&Top")
        self.host.click_window(text="&Down")
        window = self.host.await_window(kind="ListBox")
        self.assertEqual(["ID", "NOTES", "FIRSTNAME", "BORN", "LASTNAME", "DEPT", "SALARY", "ACTIVE"], window["items"])
        self.assertEqual(1, window["selected"])
        self.host.drag([self.list_item(5)[1], self.list_item(4)[1], self.list_item(3)[1], self.list_item(2)[1]])
        wanted = ["ID", "NOTES", "DEPT", "FIRSTNAME", "BORN", "LASTNAME", "SALARY", "ACTIVE"]
        wait_for("the dragged entry", lambda: self.host.find(kind="ListBox")["items"] == wanted)
        self.host.keys("Return")
        self.host.await_no_window(kind="ListBox")
        self.await_shown(*wanted)
        self.host.keys("ctrl+z")
        self.await_shown(*ALL)
        self.host.keys("ctrl+y")
        self.await_shown(*wanted)

    def test_order_keeps_to_its_ends_and_cancel_changes_nothing(self):
        self.host.keys("alt+c", "o")
        self.host.await_title("Order of Fields")
        self.assertFalse(self.host.find(text="&Up")["enabled"])
        self.host.keys("alt+Up", "alt+End", "alt+Down")
        window = self.host.await_window(kind="ListBox")
        self.assertEqual(("ID", 7), (window["items"][7], window["selected"]))
        self.assertFalse(self.host.find(text="&Bottom")["enabled"])
        self.host.keys("Escape")
        self.host.await_no_window(kind="ListBox")
        self.await_shown(*ALL)

    def test_width_dragged_at_the_headings_edge_and_undone(self):
        self.host.keys("Tab")
        left, _, right, _ = self.cells.current()
        _, top, _, bottom = self.cells.area(TOP_HEADING)
        y = (top + bottom) // 2
        self.host.drag([(right - 1, y), (right + 20, y), (right + 59, y)])
        self.assertEqual(right - left + 60, self.width())
        self.host.keys("ctrl+z")
        self.assertEqual(right - left, self.width())
        self.host.keys("ctrl+y")
        self.assertEqual(right - left + 60, self.width())
        self.host.click((left + right) // 2, y, times=2)  # a double click fits the column to what it holds
        self.assertEqual(right - left, self.width())
        self.host.keys("ctrl+z")
        self.assertEqual(right - left + 60, self.width())
        self.host.keys("ctrl+b")
        self.assertEqual(right - left, self.width())

    def test_view_is_back_when_the_file_is_opened_again(self):
        self.host.keys("Tab", "ctrl+h", "alt+c", "o")  # LASTNAME goes, FIRSTNAME is current
        self.host.await_title("Order of Fields")
        self.host.keys("alt+End", "Return")
        self.host.await_no_window(kind="ListBox")
        self.host.keys("End")
        self.host.await_pane(FIELD, "FIRSTNAME, character 15")
        left, _, right, _ = self.cells.current()
        _, top, _, bottom = self.cells.area(TOP_HEADING)
        self.host.drag([(right - 1, top + 8), (right + 10, top + 8), (right + 39, top + 8)])
        width = self.width()
        self.assertEqual(right - left + 40, width)
        before = sessions.bytes_of(self.path)
        self.host.keys("ctrl+F4")
        self.host.await_title("Orvane Tables")
        self.assertTrue(os.path.exists(os.path.join(self.folder, "staffdbf.@layout")))
        self.assertEqual(before, sessions.bytes_of(self.path), "the view changes nothing in the table")
        self.host.keys("alt+f", "1")  # the recent file
        self.host.await_table("staff.dbf")
        order = self.without("LASTNAME", "FIRSTNAME") + ["FIRSTNAME"]
        self.await_shown(*order)
        self.host.keys("End")
        self.assertEqual(width, self.width())
        self.host.keys("alt+c", "f")
        self.await_shown(*ALL)


sessions.run()

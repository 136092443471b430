#!/usr/bin/env python3
"""The cell types in the gallery, tried with keyboard and mouse: gallery_session.py HOST-PROGRAM WORK-FOLDER."""
import sessions
from hostdriver import wait_for
from sessions import EDIT_BOX, FIELD, HINT, MESSAGE, RECORD, TABS, TOP_HEADING, V_SCROLL, Cells

LIST = 238  # the child window of an open drop list
ROWS = {"Text": 0, "Aligned at the top": 1, "Mask": 9, "Check box": 10, "Drop list": 11, "Spin button": 12,
        "Ellipsis button": 13}
BUTTON = 8  # pixels from a cell's right edge to the middle of its button


class Gallery(sessions.Session):
    def setUp(self):
        super().setUp()
        self.host = self.start()
        self.host.await_title("Orvane Tables")
        self.host.keys("alt+h", "g")
        self.host.await_title("Orvane Tables - [Cell Type Gallery]")
        self.cells = Cells(self.host, "F2")

    def go_to(self, row, sample=1):
        self.host.keys("ctrl+Home", "Home", *["Down"] * ROWS[row], *["Right"] * (sample - 1))
        self.host.await_pane(RECORD, f"{row}, Sample {sample}")

    def cell(self, row, sample=1):
        """Left, top, right, bottom of a sample. Its column is learnt from a text, which fills its cell."""
        self.go_to("Aligned at the top", sample)
        left, _, right, _ = self.cells.current()
        self.go_to(row, sample)
        _, top, _, bottom = self.cells.current()
        return left, top, right, bottom

    def await_event(self, event):
        """What the status bar says that the program was told."""
        self.host.await_pane(MESSAGE, event)

    def await_copied(self, text):
        self.host.keys("ctrl+c")
        wait_for(f"{text!r} on the clipboard", lambda: self.host.clipboard() == text)

    def test_check_box_by_space_and_by_click(self):
        self.go_to("Check box")
        self.host.keys("space")
        self.await_event('Check box, Sample 1 holds "1"')
        self.host.keys("space")
        self.await_event('Check box, Sample 1 holds "0"')
        left, _, _, top = self.cell("Mask", 2)  # a check box has no edit box to learn its place from
        _, bottom, _, _ = self.cell("Drop list", 2)
        self.host.click(left + 10, (top + bottom) // 2)
        self.await_event('Check box, Sample 2 holds "0"')
        self.await_copied("0")
        self.host.click(left + 10, (top + bottom) // 2)
        self.await_event('Check box, Sample 2 holds "1"')
        self.host.click(left + 70, (top + bottom) // 2)  # beside the box
        self.await_copied("1")

    def test_drop_list_by_keys(self):
        self.go_to("Drop list")
        self.host.keys("Return")
        items = self.host.await_window(id=LIST)
        self.assertEqual(["Bergen", "Brest", "Cadiz", "Genoa", "Hamburg", "Odessa"], items["items"])
        self.assertEqual(0, items["selected"], "the cell's own text")
        self.host.keys("Down", "Down", "Return")
        self.host.await_no_window(id=LIST)
        self.await_event('Drop list, Sample 1 holds "Cadiz"')
        self.host.keys("ctrl+Down")
        self.assertEqual(2, self.host.await_window(id=LIST)["selected"])
        self.host.keys("End", "Escape")
        self.host.await_no_window(id=LIST)
        self.await_copied("Cadiz")

    def test_drop_list_by_mouse(self):
        left, top, right, bottom = self.cell("Drop list")
        self.host.click(right - BUTTON, (top + bottom) // 2)
        items = self.host.await_window(id=LIST)
        x, y = items["rect"][0] + 30, items["rect"][1] + 1 + items["itemHeight"] // 2
        self.host.click(x, y + 3 * items["itemHeight"])
        self.host.await_no_window(id=LIST)
        self.await_event('Drop list, Sample 1 holds "Genoa"')
        self.await_copied("Genoa")
        self.host.click(right - BUTTON, (top + bottom) // 2)
        self.host.await_window(id=LIST)
        self.host.click(left + 400, bottom + 100)  # elsewhere: closed, nothing chosen
        self.host.await_no_window(id=LIST)
        self.go_to("Drop list")
        self.await_copied("Genoa")

    def test_spin_button_halves(self):
        _, top, right, bottom = self.cell("Spin button")
        for wanted in (11, 12):
            self.host.click(right - BUTTON, top + 5)
            self.await_event(f'Spin button, Sample 1 holds "{wanted}"')
        for wanted in (11, 10, 9):
            self.host.click(right - BUTTON, bottom - 6)
            self.await_event(f'Spin button, Sample 1 holds "{wanted}"')
        self.await_copied("9")

    def test_ellipsis_button_tells_the_program(self):
        _, top, right, bottom = self.cell("Ellipsis button")
        self.host.click(right - BUTTON, (top + bottom) // 2)
        self.host.await_message()
        self.host.keys("Return")
        self.host.await_no_message()
        self.host.await_pane(RECORD, "Ellipsis button, Sample 1")

    def test_masked_cell_takes_what_its_mask_allows(self):
        self.go_to("Mask")
        self.host.type("5x6789")
        self.host.await_window(id=EDIT_BOX, text="56-78")
        self.host.keys("Return")
        self.await_event('Mask, Sample 1 holds "56-78"')
        self.host.keys("Escape")  # the box had gone on to the next cell
        self.go_to("Mask", 2)
        self.host.type("xy7")
        self.host.await_window(id=EDIT_BOX)
        self.host.keys("Escape")
        self.host.await_no_window(id=EDIT_BOX)
        self.await_copied("AB 123")

    def test_text_by_typing_tab_return_and_escape(self):
        self.go_to("Aligned at the top")
        self.host.type("one")
        self.host.keys("Tab")
        self.await_event('Aligned at the top, Sample 1 holds "one"')
        self.host.keys("Escape")
        self.host.await_no_window(id=EDIT_BOX)
        self.host.await_pane(RECORD, "Aligned at the top, Sample 2")
        self.host.type("two")
        self.host.keys("Return")
        self.await_event('Aligned at the top, Sample 2 holds "two"')
        self.host.keys("Escape")
        self.go_to("Aligned at the top", 3)
        self.host.type("three")
        self.host.await_window(id=EDIT_BOX, text="three")
        self.host.keys("Escape")
        self.host.await_no_window(id=EDIT_BOX)
        self.await_copied("right")
        self.host.await_pane(FIELD, "Text: right")

    def test_double_click_opens_the_edit_box_and_a_read_only_cell_stays_closed(self):
        left, top, right, bottom = self.cell("Text")
        self.host.click((left + right) // 2, (top + bottom) // 2, times=2)
        self.host.await_window(id=EDIT_BOX, text="Edit me")
        self.host.keys("End")
        self.host.type("!")
        self.host.keys("Down")
        self.await_event('Text, Sample 1 holds "Edit me!"')
        self.host.keys("Escape")
        self.go_to("Text", 2)
        self.host.type("x")
        self.await_copied("Read only")
        self.assertIsNone(self.host.find(id=EDIT_BOX))

    def test_column_is_sized_with_the_mouse(self):
        self.go_to("Text")
        left, _, right, _ = self.cells.current()
        _, top, _, bottom = self.cells.area(TOP_HEADING)
        y = (top + bottom) // 2
        self.host.drag([(right - 1, y), (right + 10, y), (right + 29, y)])
        self.await_event(f"Column 1 is {right - left + 30} pixels wide")
        new_left, _, new_right, _ = self.cells.current()
        self.assertEqual((left, right + 30), (new_left, new_right))

    def test_tab_is_clicked(self):
        left, top, _, bottom = self.cells.area(TABS)
        y = (top + bottom) // 2
        for x, name in ((225, "Highlighted Row"), (110, "Highlighted Cell"), (25, "Frame")):
            self.host.click(left + x, y)
            self.await_event("Tab: " + name)

    def test_wheel_and_scroll_bar_thumb_move_the_view(self):
        self.host.resize(1100, 420)
        self.host.await_window(id=V_SCROLL)
        left, top, right, bottom = self.cells.area()
        self.host.click((left + right) // 2, (top + bottom) // 2, button=5)
        self.await_event("At the top: Aligned at the bottom")
        self.host.click((left + right) // 2, (top + bottom) // 2, button=4)
        self.await_event("At the top: Text")
        left, top, right, bottom = self.host.await_window(id=V_SCROLL)["rect"]
        x = (left + right) // 2
        hints = []

        def hint_is_up():
            hints.append(self.host.find(id=HINT))
            return hints[-1] is not None

        self.host.drag([(x, top + 22), (x, top + 40), (x, bottom - 20)], until=hint_is_up)
        self.assertLess(hints[-1]["rect"][2], left + 1, "the hint stands beside the bar")
        self.host.await_no_window(id=HINT)
        wait_for("the view at the end", lambda: self.host.status()[MESSAGE].startswith("At the top: ") and
                 self.host.status()[MESSAGE] != "At the top: Text")

    def test_popup_menu_of_a_cell(self):
        left, top, _, bottom = self.cell("Aligned at the top", 2)
        self.host.click(left + 20, (top + bottom) // 2, button=3)
        left, top, right, bottom = self.host.await_window(kind="#32768")["rect"]
        self.host.click((left + right) // 2, top + (bottom - top) // 4)  # the upper of its two items
        self.await_event('"centre" copied')
        self.assertEqual("centre", self.host.clipboard())
        self.host.keys("Right")
        self.host.await_pane(RECORD, "Aligned at the top, Sample 3")
        self.host.click(left - 40, top, button=3)
        self.host.await_window(kind="#32768")
        self.host.keys("b")
        wait_for("a blanked cell", lambda: self.host.status()[MESSAGE].endswith('holds ""'))


sessions.run()

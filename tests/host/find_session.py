#!/usr/bin/env python3
"""Finding, replacing, going to a record and freezing fields: find_session.py HOST-PROGRAM WORK-FOLDER."""
import hostdriver
import sessions
from sessions import MESSAGE, RECORD, records

FIND, REPLACE, REGEX, COUNT = 1140, 1142, 1150, 1001  # controls of the dialogs
LAST_NAME = 2


class Find(sessions.Session):
    def setUp(self):
        super().setUp()
        sessions.forget("Find")
        self.open_staff()
        self.before = records(self.path)[1:]

    def numbers_of(self, name):
        """The numbers of the records with this last name, from 1."""
        return [i for i, record in enumerate(self.before, 1) if record[LAST_NAME - 1] == name]

    def dialog(self, key, title):
        self.host.keys(key)
        self.host.await_title(title)
        self.host.await_window(id=FIND)

    def await_record(self, number):
        self.host.await_pane(RECORD, f"Record {number} of 300")

    def test_find_goes_on_from_match_to_match(self):
        found = self.numbers_of("Ebner")
        self.assertGreater(len(found), 2)
        self.dialog("ctrl+f", "Find")
        self.host.type("ebn?r")
        for number in found[:2]:
            self.host.keys("Return")
            self.await_record(number)
        self.host.keys("Escape")
        self.host.await_no_window(id=FIND)
        self.host.keys("F3")
        self.await_record(found[2])

    def test_a_search_in_the_selected_cells_goes_on_in_them(self):
        found = self.numbers_of("Ebner")
        self.host.keys("ctrl+a")
        self.dialog("ctrl+f", "Find")
        self.host.type("ebn?r")
        for number in found:
            self.host.keys("Return")
            self.await_record(number)
        self.host.keys("Escape")
        self.host.await_no_window(id=FIND)
        self.host.keys("F3")
        self.host.await_window(text="The selected cells have been searched to their end.")
        self.host.keys("Return")
        self.host.await_no_message()
        self.host.keys("F3")
        self.await_record(found[0])

    def test_a_search_without_a_match_says_so_and_moves_nothing(self):
        self.dialog("ctrl+f", "Find")
        self.host.type("no such name")
        self.host.keys("Return")
        self.host.await_message()
        self.host.keys("Return")
        self.host.await_no_message()
        self.await_record(1)

    def test_an_expression_that_cannot_be_searched_says_why(self):
        self.dialog("ctrl+f", "Find")
        self.host.type(r"Eb\Kner")
        self.host.click_window(id=REGEX)
        self.host.keys("Return")
        self.host.await_window(text=r"\K cannot be used here: what is found cannot begin later than its match.")
        self.host.keys("Return")
        self.host.await_no_message()
        self.await_record(1)

    def test_replacements_are_counted_and_one_undo_takes_them_back(self):
        found = self.numbers_of("Ebner")
        self.dialog("ctrl+r", "Replace")
        self.host.type("Ebner")
        self.host.keys("Tab")
        self.host.type("Ebnerin")
        self.host.keys("Return")
        self.host.click_window(text="&All")
        self.host.await_pane(MESSAGE, f"Found and replaced {len(found)} string(s).")
        self.host.keys("Escape")
        self.host.await_table("staff.dbf", modified=True)
        self.host.keys("ctrl+z")
        self.host.await_table("staff.dbf")
        self.host.keys("ctrl+y", "ctrl+s")
        self.host.await_table("staff.dbf")
        after = records(self.path)[1:]
        self.assertEqual(found, [i for i, record in enumerate(after, 1) if record[LAST_NAME - 1] == "Ebnerin"])

    def test_go_to_a_record_by_its_number(self):
        self.host.keys("ctrl+g")
        self.host.await_title("Goto Record")
        self.host.type("123")
        self.host.keys("Return")
        self.await_record(123)

    def test_frozen_fields_stay_in_sight(self):
        self.host.keys("alt+c", "r")
        self.host.await_title("Freeze Fields")
        narrow = self.cells.area(sessions.SIDE_HEADING)
        self.host.type("2")
        self.host.keys("Return")
        self.host.await_no_window(id=COUNT)
        wide = self.cells.area(sessions.SIDE_HEADING)
        self.assertGreater(wide[2] - wide[0], narrow[2] - narrow[0] + 50)
        self.host.resize(700, 500) # too narrow for the fields that are not frozen
        frozen = [self.cells.area(part) for part in (sessions.SIDE_HEADING, sessions.CORNER)]
        before = [self.host.picture(area) for area in frozen]
        # The right end of the side heading is the second field as the cells show it, below the current record.
        self.host.keys("Tab")
        right, bottom = self.cells.current()[2:]
        self.host.keys("Home")
        strip = [right - 20, bottom, right, frozen[0][3]]
        end = [frozen[0][2] - 20, bottom, frozen[0][2], frozen[0][3]]
        self.assertEqual(self.host.picture(strip), self.host.picture(end))
        headings = self.cells.area(sessions.TOP_HEADING)
        first = self.host.picture(headings)
        self.host.keys("End")
        hostdriver.wait_for("the fields to scroll", lambda: self.host.picture(headings) != first)
        self.assertEqual(before, [self.host.picture(area) for area in frozen])


sessions.run()

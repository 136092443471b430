#!/usr/bin/env python3
"""Filters: made, chosen, kept, stepped over, saved by: filter_session.py HOST-PROGRAM WORK-FOLDER."""
import os
import re

import sessions
from hostdriver import Host, wait_for
from sessions import RECORD, records

FILTER = 6  # pane of the status bar
NAME, EXPRESSION, MISTAKE, LIST = 1151, 1152, 1154, 1155
OK, FILTERED_ONLY = 1, 1200
LAST_NAME = 1  # column
# Takes some tenths of a millisecond for each record.
SLOW = "length(replace(replace(LETTERS,'a',LETTERS),'a',LETTERS||LETTERS||LETTERS))>9"
COUNTED = re.compile(r"(\d+) of the first \1 records pass\.$")


class Filter(sessions.Session):
    def setUp(self):
        super().setUp()
        sessions.forget("Find")
        self.open_staff()
        self.before = records(self.path)[1:]

    def numbers(self, passes):
        return [i for i, record in enumerate(self.before, 1) if passes(record)]

    def new_filter(self, expression, name=""):
        """In the list of filters: a new one; its expression is typed, and its name."""
        self.host.keys("alt+n")
        self.host.await_window(id=EXPRESSION)
        self.host.type(expression)
        self.host.keys("alt+n")
        self.host.type(name)
        self.host.keys("Return")
        self.host.await_no_window(id=EXPRESSION)

    def attach(self, expression, number=1):
        self.host.keys("F7")
        self.host.await_title("Filters")
        self.new_filter(expression)
        self.host.keys("Return")
        self.host.await_no_window(id=LIST)
        self.host.await_pane(FILTER, f"Filter {number}")

    def await_mistake(self, text):
        self.host.await_window(id=MISTAKE, text=text)

    def await_record(self, number, of=300):
        self.host.await_pane(RECORD, f"Record {number} of {of}")

    def open_many(self):
        path = os.path.join(self.folder, "many.dbf")
        sessions.write_table(path, [("LETTERS", 20)], ["a" * 20] * 50000)
        self.host.keys("alt+F4")
        self.host.await_end()
        self.host = self.start(path)
        self.host.await_table("many.dbf")

    def begin_first_filter(self):
        self.host.keys("F7")
        self.host.await_title("Filters")
        self.host.keys("alt+n")
        self.host.await_title("Filter 1")

    def test_typing_does_not_wait_for_all_records_to_be_counted(self):
        self.open_many()
        self.begin_first_filter()
        self.host.type(SLOW)
        wait_for("a part of the records", lambda: COUNTED.match(self.host.await_window(id=MISTAKE)["text"]))

    def test_a_stop_ends_nothing_but_the_work_it_was_meant_for(self):
        self.open_many()
        self.search_endlessly()
        self.host.click_window(text="Stop (Esc)")
        self.host.await_no_window(text="Stop (Esc)")
        self.host.keys("Escape")
        self.host.await_table("many.dbf")
        self.host.set_clipboard("untouched")
        self.host.keys("ctrl+c")
        wait_for("the clipboard", lambda: self.host.clipboard() == "a" * 20)

    def test_escape_in_another_program_stops_nothing(self):
        self.open_many()
        self.search_endlessly()
        self.host.await_window(text="Stop (Esc)")
        other = Host("notepad")
        self.addCleanup(other.kill)
        other.await_title("Untitled - Notepad")
        other.xdotool("search", "--name", "Untitled - Notepad", "mousemove", "--window", "%1", "100", "100", "click", "1")
        other.xdotool("keydown", "Escape", "sleep", "0.5", "keyup", "Escape")
        self.assertIsNotNone(self.host.find(text="Stop (Esc)"))

    def test_a_mistake_is_named_as_it_is_typed(self):
        self.begin_first_filter()
        self.host.type("SALRY > 30")
        self.await_mistake('There is no field "SALRY".')
        self.assertFalse(self.host.await_window(id=OK, text="OK")["enabled"])
        self.host.keys("ctrl+a")
        self.host.type("LASTNAME like 'E%'")
        count = len(self.numbers(lambda record: record[LAST_NAME].startswith("E")))
        self.assertGreater(count, 3)
        self.await_mistake(f"{count} of 300 records pass.")
        self.assertTrue(self.host.await_window(id=OK, text="OK")["enabled"])

    def test_filters_are_kept_beside_the_file(self):
        self.host.keys("F7")
        self.host.await_title("Filters")
        self.new_filter("LASTNAME like 'E%'", "With E")
        self.new_filter("SALARY > 5000", "Well paid")
        self.host.keys("Escape")
        self.host.await_no_window(id=LIST)
        self.assertTrue(os.path.exists(os.path.join(self.folder, "staff.@filters")))
        self.host.keys("alt+F4")
        self.host.await_end()
        host = self.start(self.path)
        host.await_table("staff.dbf")
        host.keys("F7")
        host.await_title("Filters")
        host.keys("Down", "Return")
        host.await_pane(FILTER, "Filter 2")
        host.keys("shift+F7")
        host.await_pane(FILTER, "")

    def test_keys_step_over_records_that_fail(self):
        passing = self.numbers(lambda record: record[LAST_NAME].startswith("E"))
        self.attach("LASTNAME like 'E%'")
        self.host.keys("Down")
        self.await_record(2)  # greyed records are stepped on until they are to be left out
        self.host.keys("alt+t", "u")
        self.host.await_pane(FILTER, "Filter 1, in use")
        for number in passing[:3]:
            self.host.keys("Down")
            self.await_record(number)
        self.host.keys("Up")
        self.await_record(passing[1])

    def test_edits_and_undo_move_records_in_and_out(self):
        self.attach("LASTNAME = 'Zander'")
        self.host.keys("alt+t", "u", "ctrl+g")
        self.host.await_title("Goto Record")
        self.host.type("20")
        self.host.keys("Return")
        self.await_record(20)
        self.host.keys("Tab", "Z")
        self.host.type("ander")
        self.host.keys("Return", "Escape")  # the edit goes on in the next record that passes, which is this one
        self.host.await_table("staff.dbf", modified=True)
        self.host.keys("ctrl+Home", "Down")
        self.await_record(20)
        self.host.keys("ctrl+z")
        self.host.await_table("staff.dbf")
        self.host.keys("ctrl+Home", "Down")
        self.await_record(1)

    def test_changing_the_attached_filter_in_the_list_attaches_it_anew(self):
        self.attach("ID = 5")
        self.host.keys("alt+t", "u", "Down")
        self.await_record(5)
        self.host.keys("F7")
        self.host.await_title("Filters")
        self.host.keys("alt+e")
        self.host.await_title("Filter 1")
        self.host.keys("ctrl+a")
        self.host.type("ID = 9")
        self.host.keys("Return")
        self.host.await_no_window(id=EXPRESSION)
        self.host.keys("Escape")
        self.host.await_no_window(id=LIST)
        self.host.keys("Down")
        self.await_record(9)

    def test_what_was_typed_is_shown_again_when_it_cannot_be_stored(self):
        self.host.keys("F7")
        self.host.await_title("Filters")
        os.mkdir(os.path.join(self.folder, "staff.@filters"))  # no list can take its place
        self.host.keys("alt+n")
        self.host.await_title("Filter 1")
        self.host.type("ID = 7")
        self.host.keys("Return")
        self.host.await_message()
        self.host.keys("Return")
        self.host.await_no_message()
        self.host.await_window(id=EXPRESSION, text="ID = 7")
        os.rmdir(os.path.join(self.folder, "staff.@filters"))
        self.host.keys("Return")
        self.host.await_no_window(id=EXPRESSION)
        self.assertTrue(os.path.isfile(os.path.join(self.folder, "staff.@filters")))

    def test_editing_hands_the_result_over_as_the_default_filter(self):
        self.attach("LASTNAME like 'E%'")
        self.host.keys("ctrl+F7")
        self.host.await_title("Filter 1")
        self.host.keys("ctrl+a")
        self.host.type("ID = 7")
        self.host.keys("Return")
        self.host.await_pane(FILTER, "Default filter")
        self.host.keys("alt+t", "u", "Down")
        self.await_record(7)

    def test_filtered_records_are_saved_under_another_name(self):
        passing = self.numbers(lambda record: record[LAST_NAME].startswith("E"))
        self.attach("LASTNAME like 'E%'")
        self.host.keys("F12")
        box = self.host.await_window(id=FILTERED_ONLY)
        self.host.type("Z:" + os.path.join(self.folder, "some.dbf").replace("/", "\\"))
        self.host.click(box["rect"][0] + 6, (box["rect"][1] + box["rect"][3]) / 2)
        self.host.keys("Return")
        self.host.await_table("some.dbf")
        self.host.await_pane(FILTER, "")
        self.await_record(1, len(passing))
        self.assertEqual([self.before[number - 1] for number in passing], records(os.path.join(self.folder, "some.dbf"))[1:])
        self.assertEqual(self.before, records(self.path)[1:])

    def test_filtered_records_are_deleted_and_brought_back(self):
        passing = self.numbers(lambda record: record[LAST_NAME].startswith("E"))
        self.attach("LASTNAME like 'E%'")
        self.host.keys("alt+t", "u")
        self.host.await_pane(FILTER, "Filter 1, in use")
        self.host.keys("ctrl+Delete")
        self.host.await_message()
        self.host.keys("Return")
        self.await_record(1, 300 - len(passing))
        self.host.keys("ctrl+z")
        self.await_record(1, 300)

    def test_escape_and_a_button_stop_a_search_that_would_take_long(self):
        self.open_many()
        self.search_endlessly()
        self.host.await_window(text="Stop (Esc)")
        self.host.keys("Escape")
        self.host.await_no_window(text="Stop (Esc)")
        self.host.keys("Return")
        self.host.click_window(text="Stop (Esc)")
        self.host.await_no_window(text="Stop (Esc)")
        self.await_record(1, 50000)


sessions.run()

#!/usr/bin/env python3
"""Compiling lookup tables: compile_session.py HOST-PROGRAM WORK-FOLDER."""
import os

import hostdriver
import sessions
from sessions import RECORD

CASE = 1176  # a box of the properties


class Compile(sessions.Session):
    def open_source(self, sample):
        self.host = self.open(sample)

    def await_text(self, text):
        self.host.await_window(kind="Static", text=text)

    def compile(self):
        self.host.keys("alt+l", "c")

    def table(self, name):
        return os.path.join(self.folder, name)

    def test_a_table_is_made_of_its_source(self):
        self.open_source("occupations.dbf")
        self.compile()
        self.host.await_title("Lookup Table Properties")
        self.host.keys("Return")
        self.await_text("Successfully compiled to the file 'occupations.lbn'!")
        self.host.keys("Return")
        with open(self.table("occupations.lbn"), "rb") as file:
            self.assertEqual(b"\x04\0\0\0\x04\0\x011\x011\x011\x011\0\0", file.read(16))

    def test_an_old_table_is_overwritten_only_when_the_user_wants_it(self):
        self.open_source("countries.dbf")
        with open(self.table("countries.lbn"), "w") as file:
            file.write("old")
        self.compile()
        self.host.await_window(kind="Button", text="&No")
        self.host.keys("n")
        self.host.await_no_window(kind="Button", text="&No")
        with open(self.table("countries.lbn")) as file:
            self.assertEqual("old", file.read())
        self.compile()
        self.host.await_window(kind="Button", text="&Yes")
        self.host.keys("y")
        self.host.await_title("Lookup Table Properties")
        self.host.keys("Escape")
        self.host.await_no_window(id=CASE)
        with open(self.table("countries.lbn")) as file:
            self.assertEqual("old", file.read())

    def test_the_cell_that_is_wrong_becomes_the_current_one(self):
        self.open_source("education.dbf")
        self.host.keys("ctrl+End", "ctrl+Home", "Tab", "Tab")
        self.host.keys("ctrl+g")
        self.host.await_title("Goto Record")
        self.host.type("5")
        self.host.keys("Return")
        self.host.await_pane(RECORD, "Record 5 of 12")
        self.host.keys("Delete")  # a code of the second level is missing, more of them follow
        self.host.await_table("education.dbf", modified=True)
        self.host.keys("ctrl+Home")
        self.compile()
        self.host.await_title("Lookup Table Properties")
        self.host.keys("Return")
        self.await_text("Unexpected text found at cell 2, 5!")
        self.host.keys("Return")
        self.host.await_pane(RECORD, "Record 6 of 12")
        self.assertFalse(os.path.exists(self.table("education.lbn")))

    def test_a_table_with_too_many_combinations_can_be_stopped(self):
        self.path = hostdriver.fresh_copy(self.folder, "cities.dbf")
        fields = [(f"{name}{level}", 4) for level in range(3) for name in ("CODE", "DESC")]
        sessions.write_table(self.table("many.dbf"), fields, [f"{i:04d}text" * 3 for i in range(500)])
        self.host = self.start(self.table("many.dbf"))
        self.host.await_table("many.dbf")
        self.compile()
        self.host.await_title("Lookup Table Properties")
        self.host.keys("Return")
        self.host.await_window(text="Stop (Esc)")
        self.host.keys("Escape")
        self.host.await_no_window(text="Stop (Esc)")
        self.host.await_pane(RECORD, "Record 1 of 500")
        self.host.keys("Down")
        self.host.await_pane(RECORD, "Record 2 of 500")
        self.assertFalse(os.path.exists(self.table("many.lbn")))


sessions.run()

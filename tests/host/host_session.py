#!/usr/bin/env python3
"""Sessions at the sample host: host_session.py HOST-PROGRAM WORK-FOLDER."""
import os

import hostdriver
import sessions
from sessions import bytes_of, gdal_values, records


class EditingAndSaving(sessions.Session):
    def type_name_in_fourth_record(self, host):
        host.keys("Down", "Down", "Down", "Tab", "Tab")
        host.type("Wilhelmina")
        host.keys("Return")
        host.await_table("staff.dbf", modified=True)

    def test_edit_undo_redo_save(self):
        host = self.open("staff.dbf", "staff.dbt")
        before = records(self.path)
        self.type_name_in_fourth_record(host)
        host.keys("ctrl+z")
        host.await_table("staff.dbf")
        host.keys("ctrl+y")
        host.await_table("staff.dbf", modified=True)
        self.assertEqual(before, records(self.path), "nothing is written before the save")
        host.keys("ctrl+s")
        host.await_table("staff.dbf")
        host.keys("alt+F4")
        host.await_end()
        after = records(self.path)
        self.assertEqual("Wilhelmina", after[4][2])
        before[4][2] = "Wilhelmina"
        self.assertEqual(before, after)
        self.assertTrue(os.path.exists(os.path.join(self.folder, "staffdbf.@layout")))

    def test_save_as_is_read_by_another_program(self):
        host = self.open("staff.dbf", "staff.dbt")
        original = bytes_of(self.path)
        self.type_name_in_fourth_record(host)
        host.keys("F12")
        host.await_title("Save As")
        host.keys("ctrl+a")
        host.type("copy.dbf")
        host.keys("Return")
        copy = os.path.join(self.folder, "copy.dbf")
        hostdriver.wait_for("the saved copy", lambda: os.path.exists(copy))
        host.await_table("copy.dbf")
        host.keys("alt+F4")
        host.await_end()
        self.assertEqual(original, bytes_of(self.path), "the old file stays as it was")
        ours, theirs, old = records(copy), gdal_values(copy), gdal_values(self.path)
        self.assertEqual("Wilhelmina", theirs[3]["FIRSTNAME"])
        kept = [record for record in ours[1:] if not record[0].startswith("*")]
        self.assertEqual(len(kept), len(theirs))
        old[3]["FIRSTNAME"] = "Wilhelmina"
        self.assertEqual(old, theirs, "another program reads the same values from both files")

    def test_refused_value_is_told_and_the_old_one_stays(self):
        host = self.open("staff.dbf", "staff.dbt")
        host.keys("Tab", "Tab", "Tab", "Tab", "Tab")
        host.type("much")
        host.keys("Return")
        host.await_message()
        host.keys("Return")
        host.await_no_message()
        host.keys("Escape")
        host.await_table("staff.dbf")
        before = bytes_of(self.path)
        host.keys("alt+F4")
        host.await_end()
        self.assertEqual(before, bytes_of(self.path))

    def test_closing_asks_before_changes_are_lost(self):
        host = self.open("staff.dbf", "staff.dbt")
        before = bytes_of(self.path)
        self.type_name_in_fourth_record(host)
        host.keys("alt+F4")
        host.await_message()
        host.keys("Escape")  # cancel: everything stays open
        host.await_no_message()
        host.await_table("staff.dbf", modified=True)
        host.keys("alt+F4")
        host.await_message()
        host.keys("alt+n")
        host.await_end()
        self.assertEqual(before, bytes_of(self.path))

    def test_gallery_opens_once_and_takes_edits(self):
        host = self.open("staff.dbf", "staff.dbt")
        host.keys("alt+h")
        host.keys("g")
        host.await_title("Orvane Tables - [Cell Type Gallery]")
        host.type("typed")
        host.keys("Return", "ctrl+F6")
        host.await_table("staff.dbf")
        host.keys("alt+h")
        host.keys("g")
        host.await_title("Orvane Tables - [Cell Type Gallery]")
        host.keys("ctrl+F4")
        host.await_table("staff.dbf")
        host.keys("alt+F4")
        host.await_end()

    def test_append_by_enter_on_the_last_record(self):
        host = self.open("cities.dbf")
        count = len(records(self.path))
        host.keys("ctrl+End", "Return")
        host.await_table("cities.dbf", modified=True)
        host.keys("ctrl+s")
        host.await_table("cities.dbf")
        host.keys("alt+F4")
        host.await_end()
        self.assertEqual(count + 1, len(records(self.path)))

    def test_damaged_file_is_refused_with_a_message(self):
        os.makedirs(self.folder, exist_ok=True)
        path = os.path.join(self.folder, "damaged.dbf")
        with open(path, "wb") as file:
            file.write(b"this is no table")
        host = self.start(path)
        host.await_message()
        host.keys("Return")
        host.await_title(hostdriver.FRAME)
        self.assertEqual(b"this is no table", bytes_of(path))
        host.keys("alt+F4")
        host.await_end()


sessions.run()

#!/usr/bin/env python3
"""Closing, the end of the session and messages of other programs while the host asks or works:
closing_session.py HOST-PROGRAM WORK-FOLDER."""
import os
import threading

import hostdriver
import sessions
from sessions import bytes_of, write_table

WM_CLOSE, WM_QUERYENDSESSION, WM_ENDSESSION = 16, 17, 22
FIND_NEXT, REPLACE_NEXT, REFRESH_ROW = 1055, 1056, 1057
WORK_BAR = 1202
MANY = 50000  # records


class Closing(sessions.Session):
    def setUp(self):
        super().setUp()
        sessions.forget("Find")

    def open_table(self, records=("one", "two"), width=8):
        os.makedirs(self.folder, exist_ok=True)
        self.path = os.path.join(self.folder, "small.dbf")
        write_table(self.path, [("TEXT", width)], [record.ljust(width) for record in records])
        self.host = self.start(self.path)
        self.host.await_table("small.dbf")
        return self.host

    def change(self):
        self.host.type("changed")
        self.host.keys("Down")
        self.host.await_table("small.dbf", modified=True)

    def questions(self):
        return self.host.windows().count(hostdriver.FRAME)

    def end_with(self, key):
        self.host.keys(key)
        self.host.await_end()
        self.assertEqual(0, self.host.process.returncode)

    def test_a_second_close_while_the_first_one_asks_changes_nothing(self):
        host = self.open_table()
        self.change()
        host.tell("post", "frame", WM_CLOSE)
        host.await_message()
        for how, window in (("post", "frame"), ("post", "table"), ("send", "frame"), ("send", "table")):
            host.tell(how, window, WM_CLOSE)
        host.tell("ask", "frame", 0) # handled after all of them
        self.assertEqual(1, self.questions())
        self.end_with("y")
        self.assertIn(b" changed ", bytes_of(self.path))

    def test_a_dialog_keeps_frame_and_table_open(self):
        host = self.open_table()
        host.keys("alt+f", "i")
        host.await_title("File Information")
        for window in ("frame", "table"):
            host.tell("post", window, WM_CLOSE)
            host.tell("ask", window, 0)
        self.assertIn("File Information", host.windows())
        host.keys("Escape")
        self.change()
        host.keys("ctrl+s")
        host.await_table("small.dbf")
        self.assertIn(b" changed ", bytes_of(self.path))

    def test_a_close_during_long_work_stops_it_and_closes_then(self):
        for how in ("post", "send"):
            sessions.forget("Find")
            host = self.open_table(["a" * 20] * MANY, 20)
            self.search_endlessly()
            host.await_window(id=WORK_BAR)
            host.tell(how, "frame", WM_CLOSE)
            host.await_end()
            self.assertEqual(0, host.process.returncode)

    def test_the_end_of_the_session_asks_and_cancel_keeps_it(self):
        host = self.open_table()
        self.change()
        before = bytes_of(self.path)
        for key, answer, saved in (("Escape", 0, False), ("n", 1, False), ("y", 1, True)):
            answers = []
            other = hostdriver.Probe(host.probe_program, host.env)
            asking = threading.Thread(target=lambda: answers.append(other.look(f"ask frame {WM_QUERYENDSESSION} 0 0")))
            asking.start()
            host.await_message()
            host.keys(key)
            asking.join(hostdriver.DEADLINE)
            other.close()
            self.assertEqual([answer], answers)
            self.assertEqual(saved, bytes_of(self.path) != before)
        self.assertIn(b" changed ", bytes_of(self.path))

    def test_the_end_itself_saves_nothing_that_was_not_asked(self):
        host = self.open_table()
        self.change()
        before = bytes_of(self.path)
        host.tell("ask", "frame", WM_ENDSESSION, 1)
        self.assertEqual(before, bytes_of(self.path))

    def test_numbered_messages_of_strangers_are_ignored(self):
        host = self.open_table()
        for message in (FIND_NEXT, REPLACE_NEXT):
            for address in (0, 1, 4096, 0x7FFFFFFFFFFF):
                host.tell("ask", "editor", message, address)
        for row in (0, 1, 99, 0x7FFFFFFF, 0xFFFFFFFFFFFFFFFF):
            host.tell("ask", "editor", REFRESH_ROW, 0, row)
        for message in (1034, 1035, 1052, 275):
            host.tell("ask", "editor", message, 0xFFFFFFFF, 0xFFFFFFFF)
        self.change()
        host.keys("alt+F4")
        host.await_message()
        self.end_with("n")


sessions.run()

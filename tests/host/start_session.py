#!/usr/bin/env python3
"""The start of the host with what is not as it should be: start_session.py HOST-PROGRAM WORK-FOLDER."""
import os
import struct
import subprocess

import hostdriver
import sessions
from sessions import write_table

KEY = r"HKCU\Software\Orvane\Orvane Tables\Frame"


def keep_placement(*numbers):
    """As the host keeps it: length, flags, how it is shown, two points, and the rectangle of the frame."""
    data = struct.pack("<III4i4i", 44, 0, *numbers)
    subprocess.run(["/usr/lib/wine/wine64", "reg", "add", KEY, "/v", "Placement", "/t", "REG_BINARY", "/d", data.hex(),
                    "/f"], env=hostdriver.environment(), check=True, stdout=subprocess.DEVNULL)


class Start(sessions.Session):
    def setUp(self):
        super().setUp()
        sessions.forget("Frame")
        self.addCleanup(sessions.forget, "Frame")

    def frame(self, host):
        host.await_title(hostdriver.FRAME)
        return host.await_window(text=hostdriver.FRAME)["rect"]

    def test_a_path_that_is_too_long_is_refused_whole(self):
        os.makedirs(self.folder, exist_ok=True)
        folder = os.path.abspath(self.folder)
        cut = os.path.join(folder, "t" * (259 - len("Z:" + folder + "/")))
        write_table(cut, [("TEXT", 4)], ["cut "])
        host = self.start(cut + "x" * 40)
        hostdriver.wait_for("the refusal", lambda: [window for window in host.look()
                                                    if "has 299 characters" in window.get("text", "")])
        host.keys("Return")
        self.frame(host)

    def test_a_placement_off_every_display_is_not_taken(self):
        host = self.start()
        usual = self.frame(host)
        host.keys("alt+F4")
        host.await_end()
        for place in ((100, -5000, 700, -4000), (100, 100, 110, 900), (300, 700, 200, 100),
                      (-2**31, -2**31, 2**31 - 1, 2**31 - 1)):
            with self.subTest(place=place):
                keep_placement(1, 0, 0, 0, 0, *place)
                host = self.start()
                self.assertEqual(usual[2] - usual[0], self.frame(host)[2] - self.frame(host)[0])
                host.keys("alt+F4")
                host.await_end()

    def test_a_good_placement_is_taken(self):
        keep_placement(1, 0, 0, 0, 0, 120, 80, 720, 480)
        self.assertEqual([120, 80, 720, 480], list(self.frame(self.start())))

    def test_a_hidden_frame_is_shown(self):
        keep_placement(0, 0, 0, 0, 0, 120, 80, 720, 480)
        self.assertEqual([120, 80, 720, 480], list(self.frame(self.start())))


if __name__ == "__main__":
    sessions.run()

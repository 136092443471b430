#!/usr/bin/env python3
"""The lookup options of user and administrator: lookup_options_session.py HOST-PROGRAM WORK-FOLDER [TEST...]."""
import subprocess

import hostdriver
import sessions

PROFILE = r"HKCU\Software\Orvane\Orvane Tables"
VALIDATE, ON_KEY, PARTIAL, RESOLVE, BEEP, ACTION, REPLACE, PREPEND, CODE, DESCRIPTION = range(1160, 1170)
STRICT, LOCK_ALL, LOGON_STATE, LOG_ON, LOG_OFF, SET_PASSWORD = range(1170, 1176)
PASSWORD, CONFIRM = 4001, 1034  # of the library's dialogs
LOGGED_ON = "You are logged on as administrator."
LOGGED_OFF = "Log on as administrator to change these options."


def registry(*arguments):
    """The answer of the system's own tool."""
    return subprocess.run(["/usr/lib/wine/wine64", "reg", *arguments], env=hostdriver.environment(),
                          stdin=subprocess.DEVNULL, capture_output=True, text=True).stdout


def stored(key, value):
    """A value below the host's key; None where there is none."""
    words = registry("query", PROFILE + "\\" + key, "/v", value).split()
    return words[-1] if "REG_" in " ".join(words) else None


class LookupOptions(sessions.Session):
    def setUp(self):
        super().setUp()
        self.forget()
        self.addCleanup(self.forget)
        self.host = self.start()
        self.host.await_title(hostdriver.FRAME)

    def forget(self):
        for key in ("Lookup", "Lookups"):
            registry("delete", PROFILE + "\\" + key, "/f")

    def user_options(self):
        self.host.keys("alt+l", "u")
        self.host.await_title("Lookup Options")
        self.host.await_window(id=VALIDATE, focus=True)

    def admin_options(self, focus):
        self.host.keys("alt+l", "a")
        self.host.await_title("Lookup Administration")
        self.host.await_window(id=focus, focus=True)

    def close(self, key, control):
        self.host.keys(key)
        self.host.await_no_window(id=control)

    def restart(self):
        self.host.keys("alt+F4")
        self.host.await_end()
        self.host.kill()
        self.host = self.start()
        self.host.await_title(hostdriver.FRAME)

    def texts(self, *controls):
        return [self.host.await_window(id=control)["text"] for control in controls]

    def enabled(self, *controls):
        return [control for control in controls if self.host.await_window(id=control)["enabled"]]

    # --- User options

    def test_user_options_are_kept(self):
        self.user_options()
        self.assertEqual(["", "", "5", "15"], self.texts(REPLACE, PREPEND, CODE, DESCRIPTION))
        self.assertEqual([VALIDATE, ON_KEY, PARTIAL, RESOLVE, BEEP, ACTION],
                         self.enabled(VALIDATE, ON_KEY, PARTIAL, RESOLVE, BEEP, ACTION, REPLACE, PREPEND))
        self.host.keys("alt+k", "alt+b", "alt+e", "alt+o", "alt+a", "Down")
        self.host.await_window(id=REPLACE, enabled=True)
        self.host.keys("alt+r")
        self.host.await_window(id=REPLACE, focus=True)
        self.host.type("unknown")
        self.host.keys("alt+a", "Down")
        self.host.await_window(id=PREPEND, enabled=True)
        self.host.keys("alt+f")
        self.host.await_window(id=PREPEND, focus=True)
        self.host.type("new ")
        self.host.keys("alt+c")
        self.host.type("7")
        self.host.keys("alt+d")
        self.host.type("42")
        self.close("Return", VALIDATE)
        wanted = {"Validate": "0x1", "ValidateOnKey": "0x0", "ResolveSubMenus": "0x0", "AllowPartialCodes": "0x1",
                  "BeepOnInvalid": "0x0", "InvalidAction": "0x2", "ReplaceString": "unknown", "CodeWidth": "0x7",
                  "DescriptionWidth": "0x2a"}
        self.assertEqual(wanted, {name: stored("Lookup", name) for name in wanted})
        self.restart()
        self.user_options()
        self.assertEqual(["unknown", "new ", "7", "42"], self.texts(REPLACE, PREPEND, CODE, DESCRIPTION))
        self.assertEqual(["Put a text in front of it"], self.texts(ACTION))
        self.assertEqual([PREPEND], self.enabled(REPLACE, PREPEND))
        self.close("Return", VALIDATE)
        self.assertEqual(wanted, {name: stored("Lookup", name) for name in wanted}, "OK alone changes nothing")

    def test_without_validation_nothing_of_it_can_be_chosen(self):
        self.user_options()
        self.host.keys("alt+v")
        self.host.await_window(id=ACTION, enabled=False)
        self.assertEqual([VALIDATE, RESOLVE, CODE, DESCRIPTION],
                         self.enabled(VALIDATE, ON_KEY, PARTIAL, RESOLVE, BEEP, ACTION, REPLACE, PREPEND, CODE, DESCRIPTION))
        self.close("Escape", VALIDATE)
        self.assertIsNone(stored("Lookup", "Validate"), "cancelled")

    def test_the_dialogs_come_over_a_table_too(self):
        self.host.kill()
        self.open_staff()
        self.user_options()
        self.close("Escape", VALIDATE)
        self.admin_options(LOG_ON)
        self.close("Escape", STRICT)

    def test_a_width_of_nothing_is_refused(self):
        self.user_options()
        self.host.keys("alt+c")
        self.host.type("0")
        self.host.keys("Return")
        self.host.await_window(text="OK", focus=True)
        self.host.keys("Return")
        self.host.await_window(id=CODE, focus=True)
        self.close("Escape", VALIDATE)

    # --- The administrator

    def log_on_without_a_password(self):
        self.admin_options(LOG_ON)
        self.host.keys("alt+n")
        self.host.await_window(id=STRICT, focus=True)
        self.assertEqual([LOGGED_ON], self.texts(LOGON_STATE))

    def answer_box(self, text):
        self.host.await_window(text=text)
        self.host.keys("Return")
        self.host.await_no_window(text=text)

    def type_password(self, text):
        self.host.await_title("Admin Password")
        self.host.await_window(id=PASSWORD, focus=True)
        self.host.type(text)
        self.host.keys("Return")

    def test_admin_options_are_the_administrators(self):
        self.admin_options(LOG_ON)
        self.assertEqual([LOGGED_OFF], self.texts(LOGON_STATE))
        self.assertEqual([LOG_ON], self.enabled(STRICT, LOCK_ALL, LOG_ON, LOG_OFF, SET_PASSWORD))
        self.close("Escape", STRICT)
        self.log_on_without_a_password()
        self.assertEqual([STRICT, LOCK_ALL, LOG_OFF, SET_PASSWORD],
                         self.enabled(STRICT, LOCK_ALL, LOG_ON, LOG_OFF, SET_PASSWORD))
        self.host.keys("alt+s", "alt+l")
        self.close("Return", STRICT)
        self.assertEqual("0x17", stored("Lookups\\Admin", "Options"), "logged on, strict, all locked")
        self.restart()
        self.admin_options(STRICT)
        self.assertEqual([LOGGED_ON], self.texts(LOGON_STATE))
        self.host.keys("alt+s")
        self.close("Escape", STRICT)
        self.assertEqual("0x17", stored("Lookups\\Admin", "Options"), "cancelled")

    def test_logging_off_drops_what_was_not_yet_stored(self):
        self.log_on_without_a_password()
        self.host.keys("alt+s", "alt+f")
        self.host.await_window(id=LOG_ON, focus=True)
        self.host.keys("Tab")
        self.host.await_window(text="OK", focus=True)
        self.close("Return", STRICT)
        self.assertEqual("0x1", stored("Lookups\\Admin", "Options"))

    def test_logging_off_wants_the_password_that_was_set(self):
        self.log_on_without_a_password()
        self.host.keys("alt+p")
        self.host.await_title("Lookup Admin Password")
        self.host.await_window(id=PASSWORD, focus=True)
        self.host.type("secret")
        self.host.keys("Tab")
        self.host.type("secret")
        self.host.keys("Return")
        self.answer_box("New password successfully set!")
        self.host.keys("alt+f")
        self.type_password("guess")
        self.answer_box("Incorrect password entered!")
        self.assertEqual([LOGGED_ON], self.texts(LOGON_STATE))
        self.host.keys("alt+f")
        self.type_password("secret")
        self.host.await_window(id=LOG_ON, focus=True)
        self.assertEqual([LOGGED_OFF], self.texts(LOGON_STATE))
        self.close("Escape", STRICT)
        self.restart()
        self.admin_options(LOG_ON)
        self.host.keys("alt+n")
        self.type_password("Secret")
        self.answer_box("Incorrect password entered!")
        self.assertEqual([LOGGED_OFF], self.texts(LOGON_STATE))
        self.host.keys("alt+n")
        self.type_password("secret")
        self.host.await_window(id=STRICT, focus=True)
        self.assertEqual([LOGGED_ON], self.texts(LOGON_STATE))


sessions.run()

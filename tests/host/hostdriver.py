"""Drives the sample host as a person does: a process, keys and clicks through the display, and what its windows
show. Nothing sleeps to be on the safe side: every wait is for something seen, with a deadline that names it."""
import os
import shutil
import signal
import subprocess
import time

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
FRAME = "Orvane Tables"
DEADLINE = 20  # seconds


def environment():
    state = os.path.join(ROOT, "build", "wine")
    with open(os.path.join(state, "display")) as display:
        shown = display.read().strip()
    return dict(os.environ, DISPLAY=shown, WINEPREFIX=os.path.join(state, "prefix"), WINEDEBUG="-all", LC_ALL="C.UTF-8",
                WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d",
                FONTCONFIG_FILE=os.path.join(state, "fonts.conf"))


def wait_for(what, predicate):
    deadline = time.monotonic() + DEADLINE
    while time.monotonic() < deadline:
        found = predicate()
        if found:
            return found
        time.sleep(0.02)
    raise AssertionError("waited in vain for " + what)


class Host:
    """One running host. Used with `with`, so that no process outlives a failed test."""

    def __init__(self, program, *files):
        self.env = environment()
        paths = ["Z:" + os.path.abspath(name).replace("/", "\\") for name in files]
        self.process = subprocess.Popen(["/usr/lib/wine/wine64", program, *paths], env=self.env,
                                        stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)

    def __enter__(self):
        return self

    def __exit__(self, *unused):
        self.kill()

    def kill(self):
        if self.process.poll() is None:
            self.process.send_signal(signal.SIGKILL)
        self.process.wait()

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *arguments], env=self.env, capture_output=True, text=True).stdout

    def windows(self):
        """The names of the visible top-level windows of the host."""
        names = []
        for window in self.xdotool("search", "--onlyvisible", "--name", ".").split():
            names.append(self.xdotool("getwindowname", window).strip())
        return names

    def await_title(self, wanted):
        wait_for("the title " + wanted, lambda: wanted in self.windows())

    def await_table(self, name, modified=False):
        self.await_title(f"{FRAME} - [{name}{' *' if modified else ''}]")

    def await_message(self):
        """A message box: its caption is the application's name alone, beside the frame's own title."""
        wait_for("a message box", lambda: FRAME in self.windows())

    def await_no_message(self):
        wait_for("the end of the message box", lambda: FRAME not in self.windows())

    def keys(self, *keys):
        self.xdotool("key", "--delay", "25", *keys)

    def type(self, text):
        self.xdotool("type", "--delay", "15", text)

    def await_end(self):
        wait_for("the end of the host", lambda: self.process.poll() is not None)


def fresh_copy(folder, *samples):
    """Copies sample files into an empty folder and gives the first one's new path."""
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    for sample in samples:
        shutil.copy(os.path.join(ROOT, "samples", sample), folder)
    return os.path.join(folder, samples[0])

"""Drives the sample host as a person does: a process, keys and clicks through the display, and what its windows
show. Nothing sleeps to be on the safe side: every wait is for something seen, with a deadline that names it."""
import json
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


class Probe:
    """Looks at the host's windows from inside the session: texts, places, list entries, status bar."""

    def __init__(self, program, env):
        self.process = subprocess.Popen(["/usr/lib/wine/wine64", program], env=env, text=True, bufsize=1,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)

    def look(self, at="windows"):
        self.process.stdin.write(at + "\n")
        self.process.stdin.flush()
        return json.loads(self.process.stdout.readline())

    def close(self):
        self.process.stdin.close()
        self.process.stdout.close()
        self.process.wait()


class Host:
    """One running host. Used with `with`, so that no process outlives a failed test."""

    def __init__(self, program, *files):
        self.env = environment()
        paths = ["Z:" + os.path.abspath(name).replace("/", "\\") for name in files]
        self.process = subprocess.Popen(["/usr/lib/wine/wine64", program, *paths], env=self.env,
                                        stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)
        self.probe = None
        self.probe_program = os.path.join(os.path.dirname(program), "window_probe.exe")

    def __enter__(self):
        return self

    def __exit__(self, *unused):
        self.kill()

    def kill(self):
        if self.process.poll() is None:
            self.process.send_signal(signal.SIGKILL)
        self.process.wait()
        if self.probe is not None:
            self.probe.close()
            self.probe = None

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

    # --- What the windows show

    def look(self, at="windows"):
        if self.probe is None:
            self.probe = Probe(self.probe_program, self.env)
        return self.probe.look(at)

    def tell(self, how, window, message, wparam=0, lparam=0):
        """Sends a message as another program does: posted, sent without waiting, or asked for its answer."""
        return self.look(f"{how} {window} {message} {wparam} {lparam}")

    def find(self, **wanted):
        """The first visible window with these properties (class as `kind`), or None."""
        if "kind" in wanted:
            wanted["class"] = wanted.pop("kind")
        for window in self.look():
            if all(window.get(name) == value for name, value in wanted.items()):
                return window
        return None

    def await_window(self, **wanted):
        return wait_for(f"a window with {wanted}", lambda: self.find(**dict(wanted)))

    def await_no_window(self, **wanted):
        wait_for(f"the end of the window with {wanted}", lambda: self.find(**dict(wanted)) is None)

    def status(self):
        """The status bar's panes: message, record, selection, field, mode, modified."""
        bar = self.find(kind="msctls_statusbar32")
        return bar["parts"] if bar else []

    def await_pane(self, pane, wanted):
        """Waits until a pane of the status bar (a number of `status`) shows this."""
        seen = [""]

        def shows():
            parts = self.status()
            seen[0] = parts[pane] if len(parts) > pane else "nothing"
            return seen[0] == wanted

        try:
            wait_for(f"pane {pane}", shows)
        except AssertionError:
            raise AssertionError(f"pane {pane} shows {seen[0]!r}, not {wanted!r}")

    # --- Mouse

    def move(self, x, y):
        self.xdotool("mousemove", str(int(x)), str(int(y)))

    def click(self, x, y, button=1, times=1):
        self.xdotool("mousemove", str(int(x)), str(int(y)), "click", "--repeat", str(times), "--delay", "40", str(button))

    def click_window(self, **wanted):
        left, top, right, bottom = self.await_window(**wanted)["rect"]
        self.click((left + right) / 2, (top + bottom) / 2)

    def drag(self, points, until=None):
        """Button down at the first point, through the others, up at the last; moves coalesce without pauses. With
        `until` the button stays down at the last point until that holds."""
        (x, y), rest = points[0], points[1:]
        self.xdotool("mousemove", str(int(x)), str(int(y)), "mousedown", "1")
        for x, y in rest:
            self.xdotool("sleep", "0.03", "mousemove", str(int(x)), str(int(y)))
        try:
            if until is not None:
                wait_for("what the drag leads to", until)
        finally:
            self.xdotool("sleep", "0.03", "mouseup", "1")

    def resize(self, width, height):
        """Drags the frame's lower right corner."""
        frame = next(window for window in self.look() if window["text"].startswith(FRAME))
        left, top, right, bottom = frame["rect"]
        self.drag([(right - 2, bottom - 2), (right - 20, bottom - 20), (left + width - 2, top + height - 2)])
        wait_for("the new size", lambda: [window for window in self.look() if window["text"].startswith(FRAME) and
                                          window["rect"][2:] == [left + width, top + height]])

    def picture(self, rect):
        """The pixels of a rectangle of the screen, three bytes each."""
        left, top, right, bottom = rect
        return subprocess.run(["import", "-window", "root", "-crop", f"{right - left}x{bottom - top}+{left}+{top}",
                               "-depth", "8", "rgb:-"], env=self.env, capture_output=True, check=True).stdout

    # --- The clipboard, as another program sees it

    def set_clipboard(self, text):
        subprocess.run(["xclip", "-selection", "clipboard"], env=self.env, input=text.encode(), check=True,
                       stdout=subprocess.DEVNULL)
        # The session learns of another program's text some moments later.
        wanted = text.replace("\r\n", "\n")
        wait_for("the text on the session's clipboard",
                 lambda: self.look("clipboard").replace("\r\n", "\n") == wanted)

    def clipboard(self):
        return subprocess.run(["xclip", "-selection", "clipboard", "-o", "-target", "UTF8_STRING"], env=self.env,
                              capture_output=True).stdout.decode()

    def await_end(self):
        wait_for("the end of the host", lambda: self.process.poll() is not None)


def fresh_copy(folder, *samples):
    """Copies sample files into an empty folder and gives the first one's new path."""
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    for sample in samples:
        shutil.copy(os.path.join(ROOT, "samples", sample), folder)
    return os.path.join(folder, samples[0])

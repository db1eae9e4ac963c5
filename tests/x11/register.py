"""The register's program on a screen: what it shows, asked by object names, and what a person does to it."""

import json
import socket
import subprocess

from screen import wait_until

MAIN = "register"
MAINTENANCE = "frmPersonWh"
MESSAGE = "messageBox"
SELECTOR = "fmGrpCod"

RESTING_LOOKS = 4


def centre(place):
    return place["x"] + place["width"] // 2, place["y"] + place["height"] // 2


class Register:
    """Use it in a `with`; a program that still runs at its end is ended."""

    def __init__(self, screen, command, plugins, log):
        self.screen = screen
        reports = str(screen.folder / "report")
        environment = screen.environment | {
            "QT_QPA_PLATFORM": "xcb", "QT_PLUGIN_PATH": str(plugins),
            "QT_QPA_GENERIC_PLUGINS": "screenreport:" + reports}
        self.process = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL,
                                        stdout=log, stderr=log)
        try:
            self.socket = socket.socket(socket.AF_UNIX)
            self.socket.settimeout(30)
            wait_until("the program", lambda: self._reached(reports))
            self.answers = self.socket.makefile(encoding="utf-8")
        except BaseException:
            self._end()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._end()

    def _end(self):
        self.socket.close()
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()

    def _reached(self, reports):
        if self.process.poll() is not None:
            raise AssertionError(f"the program ended by itself with status {self.process.returncode}")
        try:
            self.socket.connect(reports)
        except OSError:
            return False
        return True

    # What is on the screen

    def windows(self):
        self.socket.sendall(b"\n")
        return json.loads(self.answers.readline())["windows"]

    def front(self):
        """The window that takes what a person does: the modal one, else the active one. None if none."""
        windows = self.windows()
        return (next((window for window in windows if window["modal"]), None) or
                next((window for window in windows if window["active"]), None))

    def count(self, window_name):
        return sum(window["name"] == window_name for window in self.windows())

    def find(self, name):
        """The widget of that name in the front window, None when it is not on show there."""
        return next((widget for widget in self._widgets() if widget["name"] == name), None)

    def widget(self, name):
        return wait_until(f"{name} on the screen", lambda: self.find(name))

    def text(self, name):
        return self.widget(name)["text"]

    def focus(self):
        return next((widget["name"] for widget in self._widgets() if widget["focus"]), None)

    def _widgets(self):
        front = self.front()
        return front["widgets"] if front else []

    # What must come

    def in_front(self, window_name):
        """Waits until that window is in front, also for the window manager and the keyboard."""
        def condition():
            front = self.front()
            return (front if front and front["name"] == window_name and front["active"] and
                    front["id"] == self.screen.active_window() else None)
        return wait_until(f"window {window_name} in front, with the keyboard", condition)

    def focus_on(self, name):
        wait_until(f"the focus on {name}", lambda: self.focus() == name)

    def shows(self, name, text):
        wait_until(f"{name} showing {text}", lambda: (self.find(name) or {}).get("text") == text)

    def row(self, name, text):
        """The row of a list, table or tree that holds the text."""
        return wait_until(f"a row with {text} in {name}", lambda: next(
            (row for row in (self.find(name) or {}).get("rows", []) if text in row["text"]), None))

    def row_selected(self, name, text):
        wait_until(f"the row with {text} selected", lambda: self.row(name, text)["selected"])

    def ended(self):
        """Waits until the program has ended by itself, well."""
        wait_until("the program's end", lambda: self.process.poll() is not None)
        if self.process.returncode != 0:
            raise AssertionError(f"the program ended with status {self.process.returncode}")

    # What a person does

    def click(self, name, times=1):
        self._click(lambda: self.widget(name)["place"], times)

    def click_row(self, name, text, times=1):
        self._click(lambda: self.row(name, text)["place"], times)

    def _click(self, place, times):
        """Clicks on what has come to rest: a person does not aim at what still moves."""
        looks = []

        def resting():
            looks.append(place())
            return len(looks) >= RESTING_LOOKS and all(each == looks[-1] for each in looks[-RESTING_LOOKS:])
        wait_until("a place that rests", resting)
        self.screen.click(*centre(looks[-1]), times)

    def press(self, *keys):
        self.screen.press(*keys)

    def type(self, name, text, shown=None):
        """Types into the widget, which has the focus, and waits until it shows that."""
        self.focus_on(name)
        self.screen.type(text)
        self.shows(name, text if shown is None else shown)

    def type_over(self, name, text, shown=None):
        self.focus_on(name)
        self.press("ctrl+a")
        self.type(name, text, shown)

    def close_by_frame(self):
        """Clicks the last button of the title bar, which closes."""
        window = self.front()
        bar = window["place"]["y"] - window["frame"]["y"]
        if bar < 8:
            raise AssertionError("the window has no title bar")
        self.screen.click(window["frame"]["x"] + window["frame"]["width"] - bar * 2 // 3,
                          window["frame"]["y"] + bar // 2)

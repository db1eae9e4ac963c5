"""An assistive program at work beside the register: it hears and reads the register as a screen reader does."""

import json
import os
import pathlib
import select
import shutil
import subprocess

from screen import wait_until

# Debian's own Python, which its packages of bindings are for.
PYTHON = "/usr/bin/python3"
LISTENER = pathlib.Path(__file__).with_name("listener.py")
NEEDED = {"dbus": lambda: shutil.which("dbus-daemon"),
          "at-spi2-core": lambda: pathlib.Path("/usr/share/dbus-1/services/org.a11y.Bus.service").exists(),
          "python3-pyatspi": lambda: os.access(PYTHON, os.X_OK) and subprocess.run(
              [PYTHON, "-c", "import pyatspi"], capture_output=True, check=False).returncode == 0}


def missing_packages():
    return [package for package, is_there in NEEDED.items() if not is_there()]


def start_bus(screen):
    """A session bus on that screen, which the programs started there tell assistive programs by."""
    address, told = os.pipe()
    screen.start("dbus-daemon", "--session", "--nofork", "--nopidfile", f"--print-address={told}",
                 pass_fds=[told])
    os.close(told)
    with open(address, encoding="ascii") as line:
        ready, _, _ = select.select([line], [], [], 20)
        screen.environment["DBUS_SESSION_BUS_ADDRESS"] = line.readline().strip() if ready else ""
    if not screen.environment["DBUS_SESSION_BUS_ADDRESS"]:
        raise AssertionError("the session bus did not start")
    screen.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"


class Assistance:
    """Starts bus and assistive program; they end with the screen."""

    def __init__(self, screen):
        start_bus(screen)
        self.process = screen.start(PYTHON, "-B", str(LISTENER), stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                    text=True)
        if self._line() != "ready":
            raise AssertionError("the assistive program did not start")

    def _line(self):
        ready, _, _ = select.select([self.process.stdout], [], [], 60)
        if not ready:
            raise AssertionError("the assistive program does not answer")
        return json.loads(self.process.stdout.readline() or "null")

    def _ask(self, *question):
        self.process.stdin.write(json.dumps(question) + "\n")
        self.process.stdin.flush()
        return self._line()

    def all(self, role):
        """Everything of that role that shows in the front window."""
        return self._ask("all", role)

    def find(self, role, name):
        """The first of that role and name that shows in the front window, waited for."""
        return wait_until(f"a {role} that is read as {name}", lambda: self._ask("find", role, name))

    def press(self, role, name):
        """Presses it the way assistive programs do, without keyboard and mouse."""
        wait_until(f"a {role} {name} that can be pressed", lambda: self._ask("press", role, name))

    def forget(self):
        self._ask("forget")

    def hears(self, event, role, name, description=None, on=None):
        """Waits until that was told since the last `forget`."""
        def told():
            return any(each["event"].startswith(event) and each["role"] == role and each["name"] == name and
                       description in (None, each["description"]) and on in (None, each["on"])
                       for each in self._ask("heard"))
        try:
            wait_until(f"{event} of a {role} {name}", told)
        except AssertionError as failure:
            heard = "\n".join(map(str, self._ask("heard")))
            raise AssertionError(f"{failure}\nheard:\n{heard}") from None

    def hears_focus(self, role, name):
        self.hears("object:state-changed:focused", role, name, on=True)

"""A screen of its own: an X server without a monitor, a window manager, and a person's hands on both."""

import itertools
import os
import pathlib
import select
import shutil
import struct
import subprocess
import time
import zlib

SIZE = (1600, 1000)
NEEDED = {"Xvfb": "xvfb", "openbox": "openbox", "xdotool": "xdotool"}
MILLISECONDS_A_KEY = "60"
# A Chinese character borrows a key for half of this time; a busy program that looks later misses it.
MILLISECONDS_A_CHINESE_KEY = "600"


def missing_packages():
    return [package for program, package in NEEDED.items() if shutil.which(program) is None]


def wait_until(what, condition, seconds=20):
    """The condition's first answer that is not false or None."""
    end = time.monotonic() + seconds
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            raise AssertionError(f"waited {seconds} s in vain: {what}")
        time.sleep(0.03)


class Screen:
    """Use it in a `with`; the server and the window manager end with it."""

    def __init__(self, folder, log):
        self.folder = pathlib.Path(folder)
        self.log = log
        self.processes = []
        self.environment = None

    def __enter__(self):
        try:
            self._start_server()
            self._start_window_manager()
        except BaseException:
            self._end()
            raise
        return self

    def __exit__(self, *_):
        self._end()

    def _start_server(self):
        # The server picks a display that is free and tells its number when it is ready.
        numbers, told = os.pipe()
        self.start("Xvfb", "-displayfd", str(told), "-screen", "0", "{}x{}x24".format(*SIZE),
                   "-fbdir", str(self.folder), "-nolisten", "tcp", "-noreset", "-r", pass_fds=[told])
        os.close(told)
        with open(numbers, encoding="ascii") as line:
            ready, _, _ = select.select([line], [], [], 20)
            number = line.readline().strip() if ready else ""
        if not number:
            raise AssertionError("the X server did not start")
        # Nothing of the person who runs the tests: no session, no settings, no input method, no theme.
        kept = {name: value for name, value in os.environ.items()
                if name in ("PATH", "TMPDIR") or name.endswith("SAN_OPTIONS")}
        self.environment = kept | {
            "DISPLAY": ":" + number, "HOME": str(self.folder), "XDG_CONFIG_HOME": str(self.folder),
            "XDG_RUNTIME_DIR": str(self.folder), "LANG": "C.UTF-8", "LC_ALL": "C.UTF-8"}

    def _start_window_manager(self):
        self.start("openbox", "--sm-disable")
        wait_until("the window manager", lambda: self._ask("get_num_desktops") is not None)

    def start(self, *command, **options):
        """A program that ends with the screen, the last one first."""
        channels = {"stdin": subprocess.DEVNULL, "stdout": self.log, "stderr": self.log}
        process = subprocess.Popen(command, env=self.environment, **channels | options)
        self.processes.append(process)
        return process

    def _end(self):
        for process in reversed(self.processes):
            process.terminate()
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()

    def _ask(self, *words):
        """What xdotool prints, None when it fails."""
        run = subprocess.run(["xdotool", *words], env=self.environment, capture_output=True, text=True,
                             timeout=60, check=False)
        return run.stdout if run.returncode == 0 else None

    def _do(self, *words):
        if self._ask(*words) is None:
            raise AssertionError("xdotool failed: " + " ".join(words))

    def active_window(self):
        """The id of the window that the window manager holds active and that has the keyboard, or None."""
        active = self._ask("getactivewindow")
        return int(active) if active and active == self._ask("getwindowfocus", "-f") else None

    def windows_of(self, pid):
        """The ids of the visible windows of a process, as the X server knows them."""
        return {int(word) for word in (self._ask("search", "--onlyvisible", "--pid", str(pid)) or "").split()}

    def press(self, *keys):
        self._do("key", "--delay", MILLISECONDS_A_KEY, *keys)

    def type(self, text):
        for plain, part in itertools.groupby(text, str.isascii):
            self._do("type", "--delay", MILLISECONDS_A_KEY if plain else MILLISECONDS_A_CHINESE_KEY,
                     "".join(part))

    def click(self, x, y, times=1):
        self._do("mousemove", "--sync", str(x), str(y), "click", "--repeat", str(times), "--delay", "70", "1")

    def picture(self, path):
        """Writes what the screen shows as PNG."""
        data = (self.folder / "Xvfb_screen0").read_bytes()
        words = struct.unpack(">25I", data[:100])
        width, height, line, colours = words[4], words[5], words[12], words[19]
        start = words[0] + 12 * colours
        rows = []
        for y in range(height):
            row = data[start + y * line:][:width * 4]
            pixels = bytearray(width * 3)
            pixels[0::3], pixels[1::3], pixels[2::3] = row[2::4], row[1::4], row[0::4]
            rows.append(b"\0" + pixels)

        def chunk(kind, body):
            return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

        pathlib.Path(path).write_bytes(
            b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">2I5B", width, height, 8, 2, 0, 0, 0)) +
            chunk(b"IDAT", zlib.compress(b"".join(rows), 6)) + chunk(b"IEND", b""))

"""What every story here shares: the command line, a sample register, a screen, the program, pictures."""

import argparse
import pathlib
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time
import traceback

import assistance
from register import MAIN, MESSAGE, Register
from screen import Screen, missing_packages, wait_until

SKIPPED = 77
LONGEST_SECONDS = 240


class Story(Register):
    """The register's program at work on a sample register of its own."""

    def __init__(self, screen, arguments, log, helper):
        self.name = pathlib.Path(sys.argv[0]).stem
        self.pictures = arguments.pictures
        self.helper = helper
        self.database = str(screen.folder / "register.db")
        subprocess.run([arguments.programs / "quillmere-sample", "--output", self.database, "--persons", "12",
                        "--units", "2"], check=True, stdout=log, stderr=log)
        super().__init__(screen, self.command(arguments.programs), arguments.plugins, log)

    def command(self, programs):
        return [programs / "quillmere-register", self.database]

    def picture(self, name):
        path = self.pictures / f"{self.name}-{name}.png"
        self.screen.picture(path)
        print(path, flush=True)

    def rows(self, statement, *values):
        """Read apart from the program, as another user of the register would."""
        connection = sqlite3.connect(f"file:{self.database}?mode=ro", uri=True)
        try:
            return connection.execute(statement, values).fetchall()
        finally:
            connection.close()

    @staticmethod
    def until(what, condition):
        wait_until(what, condition)

    def stored(self, expected, statement, *values):
        """Waits until the statement gives that one row."""
        try:
            wait_until("a stored row", lambda: self.rows(statement, *values) == [expected], 10)
        except AssertionError:
            found = self.rows(statement, *values)
            raise AssertionError(f"{statement}\n  expected {[expected]}\n  found    {found}") from None

    def message(self, text, picture=None):
        """A message box of that text is in front, and it is the only one."""
        self.in_front(MESSAGE)
        self.shows("messageText", text)
        if self.count(MESSAGE) != 1:
            raise AssertionError("more than one message box")
        if picture:
            self.picture(picture)

    def close(self):
        """Leaves the main window by its frame; the program ends with it."""
        self.in_front(MAIN)
        self.close_by_frame()
        self.ended()


def _arguments():
    parser = argparse.ArgumentParser()
    for folder in ("--programs", "--plugins", "--pictures"):
        parser.add_argument(folder, type=pathlib.Path, required=True)
    return parser.parse_args()


def _give_up(number, _):
    raise AssertionError("the whole story took too long" if number == signal.SIGALRM else "called off")


def _on_screen(play, arguments, folder):
    log_path = folder / "log"
    try:
        with open(log_path, "w", encoding="utf-8") as log, Screen(folder, log) as screen:
            play(screen, arguments, log)
    except BaseException:
        # What the programs said, the sanitizers' reports among it.
        print(log_path.read_text(encoding="utf-8", errors="replace"), end="", flush=True)
        raise


def run_on_screen(play, assisted=False):
    """Calls `play` with a screen, the arguments and a log. The process ends with 0, 1 for a failure, or 77 where
    there can be no screen, or no assistive program if one is wanted."""
    missing = missing_packages() + (assistance.missing_packages() if assisted else [])
    if missing:
        print("SKIPPED: no real window without " + ", ".join(missing) + " (scripts/install-packages test)")
        sys.exit(SKIPPED)
    arguments = _arguments()
    arguments.pictures.mkdir(parents=True, exist_ok=True)
    signal.signal(signal.SIGALRM, _give_up)
    signal.signal(signal.SIGTERM, _give_up)
    signal.alarm(LONGEST_SECONDS)
    begin = time.monotonic()
    folder = pathlib.Path(tempfile.mkdtemp(prefix="quillmere-x11-"))
    try:
        _on_screen(play, arguments, folder)
    except Exception:
        traceback.print_exc(file=sys.stdout)
        sys.exit(1)
    finally:
        shutil.rmtree(folder, ignore_errors=True)
    print(f"played in {time.monotonic() - begin:.1f} s")


def run(tell, assisted=False, kind=Story):
    """Plays a story with the register; when it is assisted, the story has a `helper` beside it."""
    def play(screen, arguments, log):
        helper = assistance.Assistance(screen) if assisted else None
        with kind(screen, arguments, log, helper) as story:
            try:
                tell(story)
                if story.process.poll() is None:
                    raise AssertionError("the story left the program running")
            except BaseException:
                story.picture("failed")
                raise

    run_on_screen(play, assisted)

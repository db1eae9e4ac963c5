"""The tests of what assistive programs are told, on a platform where one can listen."""

import subprocess

import assistance
import story


def play(screen, arguments, log):
    assistance.Assistance(screen)
    tests = subprocess.run([arguments.programs / "test-qt", "--gtest_filter=Accessible*"],
                           env=screen.environment | {"QT_QPA_PLATFORM": "xcb"}, stdin=subprocess.DEVNULL,
                           stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, timeout=200, check=False)
    print(tests.stdout)
    if tests.returncode != 0 or "[  SKIPPED ]" in tests.stdout or "[  PASSED  ]" not in tests.stdout:
        raise AssertionError("a test failed or was left out")


story.run_on_screen(play, assisted=True)

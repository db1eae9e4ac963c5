"""An example host maintains one person: a telephone number is changed and saved, and the host is told so."""

import pathlib
import sys

import story
from register import MAINTENANCE

EXAMPLES = pathlib.Path(__file__).resolve().parents[2] / "examples"
PHONE = "13910001234"


class ExampleHost(story.Story):
    """A host that is called as HOST REGISTER IDENTITY TYPE."""

    def command(self, programs):
        self.identity, self.person, kind = self.rows(
            "select A00, A0101, A0136 from A01 where A0136='01' order by A0199")[0]
        return [*self.host(programs), self.database, self.identity, kind]

    def printed(self, expected):
        """What the host said of the run, apart from what other programs said."""
        log = pathlib.Path(self.screen.log.name).read_text(encoding="utf-8")
        found = [line for line in log.splitlines() if line.endswith("saved")]
        if found != [expected]:
            raise AssertionError(f"the host printed {found}, not {expected}")


class CHost(ExampleHost):
    @staticmethod
    def host(programs):
        return [programs / "c-host"]


class PythonHost(ExampleHost):
    @staticmethod
    def host(programs):
        libraries = programs.parent / "lib"
        if b"__asan_init" in (libraries / "libquillmere-c.so").read_bytes():
            print("SKIPPED: an interpreter without sanitizers cannot load a library with them")
            sys.exit(story.SKIPPED)
        return ["env", f"LD_LIBRARY_PATH={libraries}", sys.executable, "-B", EXAMPLES / "python-host.py"]


def change_phone(host):
    host.in_front(MAINTENANCE)
    host.shows("A01_A0101_v", host.person)
    host.click("A01_A0128_v")
    host.type_over("A01_A0128_v", PHONE)
    host.press("ctrl+s")
    host.message("保存成功!", picture="saved")
    host.click("btnOk")
    host.in_front(MAINTENANCE)
    host.stored((PHONE,), "select A0128 from A01 where A00=?", host.identity)
    host.press("alt+x")
    host.ended()
    host.printed("saved")

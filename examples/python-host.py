"""A host in Python: opens a register and maintains one record.

    python3 python-host.py REGISTER IDENTITY TYPE [PHOTO-FOLDER]

The library is found as every shared library is: installed, or in a folder of LD_LIBRARY_PATH.
"""

import ctypes
import sys
from ctypes import POINTER, byref, c_char_p, c_int32, c_int64, c_void_p

LIBRARY = "libquillmere-c.so.1"

# The arguments of each function that is called here, as quillmere.h has them. Without them ctypes would cut
# handles to the size of an int.
FUNCTIONS = {
    "quillmere_failure": [c_void_p, POINTER(c_int32), POINTER(c_char_p), POINTER(c_char_p)],
    "quillmere_open": [c_char_p, POINTER(c_void_p)],
    "quillmere_close": [c_void_p],
    "quillmere_create": [POINTER(c_void_p)],
    "quillmere_release": [c_void_p],
    "quillmere_set_Connection": [c_void_p, c_void_p],
    "quillmere_set_OperationType": [c_void_p, c_int64],
    "quillmere_set_ZZtype": [c_void_p, c_int64],
    "quillmere_set_personID": [c_void_p, c_char_p],
    "quillmere_set_PhotoPath": [c_void_p, c_char_p],
    "quillmere_show": [c_void_p, POINTER(c_int32)],
    "quillmere_shutdown": [],
}


class Failure(Exception):
    """What a call failed of, in the library's words."""


class Quillmere:
    """The functions of the library by their names without "quillmere_"; a failure is raised."""

    def __init__(self):
        self._library = ctypes.CDLL(LIBRARY)
        for name, arguments in FUNCTIONS.items():
            function = getattr(self._library, name)
            function.argtypes = arguments
            function.restype = c_int32

    def __getattr__(self, name):
        function = getattr(self._library, "quillmere_" + name)

        def call(*arguments):
            if function(*arguments) == 0:
                return
            # A failure is kept with the handle that comes first, if there is one.
            handle = arguments[0] if arguments and isinstance(arguments[0], c_void_p) else None
            raise Failure(self._told(handle))

        return call

    def _told(self, handle):
        number, source, description = c_int32(), c_char_p(), c_char_p()
        self._library.quillmere_failure(handle, byref(number), byref(source), byref(description))
        # The texts are the library's until its next call; decode() copies them.
        return f"{source.value.decode()} {number.value}: {description.value.decode()}"


def maintain(quillmere, register, identity, kind, photos):
    """True when something was saved; returns when the clerk has closed the window."""
    database, entry, saved = c_void_p(), c_void_p(), c_int32()
    quillmere.open(register.encode(), byref(database))
    try:
        quillmere.create(byref(entry))
        try:
            quillmere.set_Connection(entry, database)
            quillmere.set_OperationType(entry, 4)  # maintain everything there is
            quillmere.set_personID(entry, identity.encode())
            quillmere.set_ZZtype(entry, int(kind))
            if photos:
                quillmere.set_PhotoPath(entry, photos.encode())
            quillmere.show(entry, byref(saved))
        finally:
            quillmere.release(entry)
    finally:
        quillmere.close(database)
    return bool(saved.value)


def main(words):
    if len(words) not in (3, 4):
        sys.exit("usage: python-host.py REGISTER IDENTITY TYPE [PHOTO-FOLDER]")
    quillmere = Quillmere()
    try:
        saved = maintain(quillmere, *words[:3], words[3] if len(words) == 4 else None)
    except Failure as failure:
        sys.exit(str(failure))
    finally:
        quillmere.shutdown()
    print("saved" if saved else "nothing saved")


if __name__ == "__main__":
    main(sys.argv[1:])

"""Finds the library: PLANEGEO_LIBRARY, a file beside this module, the system's own."""

import ctypes
import os
import sys

_NAMES = {"win32": ("planegeo.dll",), "darwin": ("libplanegeo.1.dylib", "libplanegeo.dylib")}


def library() -> ctypes.CDLL:
    """Loads the library. PLANEGEO_LIBRARY is the path of the file, and decides if it is set."""
    chosen = os.environ.get("PLANEGEO_LIBRARY")
    if chosen:
        return ctypes.CDLL(chosen)
    names = _NAMES.get(sys.platform, ("libplanegeo.so.1",))
    here = os.path.dirname(os.path.abspath(__file__))
    for name in names:
        beside = os.path.join(here, name)
        if os.path.exists(beside):
            return ctypes.CDLL(beside)
    for name in names:
        try:
            return ctypes.CDLL(name)
        except OSError:
            continue
    raise ImportError(
        f"no {' or '.join(names)} beside {here} or where the system looks; "
        "set PLANEGEO_LIBRARY to the path of the file"
    )

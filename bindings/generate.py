#!/usr/bin/python3
"""Writes the bindings from include/planegeo.h; with --check, tells which are not as they should be.

Needs libclang for Python (Debian: python3-clang).
"""

import argparse
import pathlib
import sys

from generator import csharp, header, pascal, python

HERE = pathlib.Path(__file__).resolve().parent


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--check", action="store_true", help="write nothing")
    check = parser.parse_args().check
    declared = header.read(str(HERE.parent / "include" / "planegeo.h"))
    stale = 0
    for emitter in (python, pascal, csharp):
        for name, text in emitter.emit(declared).items():
            path = HERE / name
            if path.exists() and path.read_text() == text:
                continue
            stale += 1
            if check:
                print(f"bindings/{name} is not what the header says: run bindings/generate.py")
            else:
                path.write_text(text)
    return stale if check else 0


if __name__ == "__main__":
    sys.exit(main())

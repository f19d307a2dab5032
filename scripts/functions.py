#!/usr/bin/env python3
"""Writes docs/functions.md: where each exported function is declared, defined, tested, fuzzed,
measured and compared between platforms. With --check it only tells whether the page is up to date;
either way it fails when a function is missing somewhere.
"""

import re
import sys
from collections import Counter
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
PAGE = ROOT / "docs" / "functions.md"
NONE = "-"

HEAD = """# Functions

From every exported function to its group of the [header](../include/planegeo.h), its source, the
test that calls it most, its fuzz entry, its row of the benchmark and of the table that platforms
are [compared](platforms.md) by. Written by `scripts/functions.py`.

| function | group | source | test | fuzz | benchmark | platforms |
| --- | --- | --- | --- | --- | --- | --- |
"""


def groups():
    """Function to group, in the order of the header."""
    text = (ROOT / "include" / "planegeo.h").read_text()
    group, found = None, {}
    for match in re.finditer(r"@defgroup (\w+)|PLANEGEO_CALL\s+(\w+)\(", text):
        if match.group(1):
            group = match.group(1)
        elif match.group(2) != "PLANEGEO_INTEGRAND":
            found[match.group(2)] = group
    return found


def words(paths):
    """How often each word stands in each file, comments aside."""
    counted = {}
    for path in sorted(paths):
        code = re.sub(r"//.*", "", path.read_text())
        counted[path] = Counter(re.findall(r"\w+", code))
    return counted


def fullest(counted, name):
    """The file that has the name most often, the first of several."""
    path = max(counted, key=lambda p: counted[p][name], default=None)
    return path.name if path and counted[path][name] else NONE


def test_of(counted, name, group):
    """The tests of other groups use angles and points as tools."""
    home = {"angles": "angle_test.cpp", "points": "point_test.cpp"}.get(group)
    own = {path: names for path, names in counted.items() if home in (None, path.name)}
    return fullest(own, name)


def bench_of(paths, name):
    rows = (path.name for path in sorted(paths) if re.search(rf'"{name}["/]', path.read_text()))
    return next(rows, NONE)


def source_of(name):
    for path in sorted((ROOT / "src").glob("*/*.cpp")):
        if re.search(rf"^[\w ]+[ *]{name}\([^;]*?\{{", path.read_text(), re.MULTILINE):
            return str(path.relative_to(ROOT / "src"))
    return NONE


def files(folder, pattern):
    return list((ROOT / folder).glob(pattern))


def table():
    tests = words(files("tests", "*_test.cpp"))
    fuzz = words(files("fuzz", "*.h") + files("fuzz", "*.cpp"))
    benches = files("bench", "*_bench.cpp")
    agreement = words(files("bench/agreement", "rows.cpp"))
    for name, group in groups().items():
        row = fullest(agreement, name)
        yield (f"`{name}`", group, source_of(name), test_of(tests, name, group), fullest(fuzz, name),
               bench_of(benches, name), "yes" if row != NONE else NONE)


def main():
    rows = list(table())
    text = HEAD + "".join(f"| {' | '.join(row)} |\n" for row in rows)
    text += f"\n{len(rows)} functions.\n"
    failed = False
    columns = ["function", "group", "source", "test", "fuzz", "benchmark", "platforms"]
    if not (ROOT / "fuzz").exists():
        columns.remove("fuzz")
        rows = [row[:4] + row[5:] for row in rows]
    for row in rows:
        missing = [column for column, entry in zip(columns, row) if entry == NONE]
        if missing:
            print(f"{row[0]} is in no {', '.join(missing)}")
            failed = True
    if "--check" in sys.argv:
        if not PAGE.exists() or PAGE.read_text() != text:
            print("docs/functions.md is out of date: run scripts/functions.py")
            failed = True
    else:
        PAGE.write_text(text)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
"""Counts the instructions of the library's functions by callgrind, and compares them with those in
instructions.txt: a guard of its speed that does not depend on what else the machine does.

    bench/instructions.py build/release/bench/planegeo_bench             compares
    bench/instructions.py build/release/bench/planegeo_bench --record    writes instructions.txt

Counted over one pass of a row's inputs, mostly 1024 calls: the instructions within the library, and its calls
of the C library's mathematics, whose own instructions differ from machine to machine. The figures
hold for one compiler and architecture: those of .ci/run.
"""

import re
import subprocess
import sys
import tempfile
from pathlib import Path

RECORD = Path(__file__).parent / "instructions.txt"
# Peers, limits and repetitions of other rows; and rows that take too long under callgrind.
LEFT_OUT = "^(plain|floor|latency|threads|peers)/|/(19|20|40|hosts_own_integrand)$|^ca_elip2"
MORE_INSTRUCTIONS, MORE_CALLS = 1.2, 1.05  # than recorded, which fail
FEW = 200  # that never do


def measure(binary):
    """Row name -> (instructions in the library, calls of the mathematics) in one pass."""
    with tempfile.TemporaryDirectory() as folder:
        out = Path(folder) / "callgrind.out"
        subprocess.run(
            ["valgrind", "--tool=callgrind", "--combine-dumps=yes", "--cache-sim=no",
             f"--callgrind-out-file={out}", binary, "--benchmark_min_time=0",
             "--benchmark_filter=-" + LEFT_OUT],
            check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return parse(out)


def parse(path):
    names, rows = {}, {}
    row = here = callee = None
    after_call = False

    def name_of(text):
        number, name = re.fullmatch(r"(\(\d+\))(?: (.*))?", text).groups()
        if name:
            names[number] = name
        return names[number]

    for line in open(path):
        if line.startswith("part:"):
            row = here = callee = None
        elif line.startswith("desc: Trigger: Client Request: "):
            row = line.split(": ", 3)[3].strip()
            rows[row] = [0, 0]
        elif line.startswith("ob="):
            here = name_of(line[3:].strip())
        elif line.startswith("cob="):
            callee = name_of(line[4:].strip())
        elif line.startswith("calls="):
            after_call = True
            if row and "libplanegeo" in (here or "") and "libm.so" in (callee or ""):
                rows[row][1] += int(line[6:].split()[0])
            callee = None
        elif line[0] in "0123456789+-*":
            if not after_call and row and "libplanegeo" in (here or ""):
                rows[row][0] += int(line.split()[1])
            after_call = False
    return {name: counts for name, counts in rows.items() if counts[0]}


def recorded():
    rows = {}
    for line in RECORD.read_text().splitlines():
        if line and not line.startswith("#"):
            name, own, calls = line.split()
            rows[name] = int(own), int(calls)
    return rows


def record(rows):
    with open(RECORD, "w") as out:
        out.write("# Row, instructions within the library and calls of the C library's mathematics, in"
                  " one pass:\n# GCC 12.2, x86-64. Written by instructions.py --record.\n")
        for name, (own, calls) in rows.items():
            out.write(f"{name} {own} {calls}\n")


def compare(rows):
    known = recorded()
    complaints = [f"{name}: no figures are recorded" for name in rows if name not in known]
    complaints += [f"{name}: recorded, but not measured" for name in known if name not in rows]
    for name in rows.keys() & known.keys():
        own, calls = rows[name]
        known_own, known_calls = known[name]
        if own > known_own * MORE_INSTRUCTIONS + FEW:
            complaints.append(f"{name}: {own} instructions instead of {known_own}")
        if calls > known_calls * MORE_CALLS:
            complaints.append(f"{name}: {calls} calls of the mathematics instead of {known_calls}")
    print("\n".join(sorted(complaints)) or f"{len(rows)} rows take what is recorded, or less")
    return 1 if complaints or not rows else 0


def main():
    if len(sys.argv) not in (2, 3) or sys.argv[2:] not in ([], ["--record"]):
        sys.exit(__doc__)
    rows = measure(sys.argv[1])
    if sys.argv[2:]:
        record(rows)
        return 0
    return compare(rows)


sys.exit(main())

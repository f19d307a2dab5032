#!/usr/bin/env python3
"""Turns the JSON of a run of planegeo_bench into the tables of bench/README.md, or writes them there.

The figure of a row is the least of its repetitions: what others on the machine take only adds.
"""

import contextlib
import io
import json
import re
import statistics
import sys
from pathlib import Path

FLOORS = Path(__file__).parent / "floors.txt"


def read(path):
    """Rows by name, in the order of the run's registration: the least time in ns, and counters."""
    rows = {}
    for entry in json.load(open(path))["benchmarks"]:
        if entry["run_type"] != "iteration" or "per_call" not in entry:
            continue
        name = entry["run_name"].replace("/real_time", "").replace("/threads:2", "")
        row = rows.setdefault(name, {"ns": float("inf"), "order": entry["family_index"]})
        row["ns"] = min(row["ns"], entry["per_call"] * 1e9)
        row.update({key: entry[key] for key in ("solutions", "agree") if key in entry})
    return dict(sorted(rows.items(), key=lambda item: item[1]["order"]))


def figure(ns):
    return f"{ns:.1f}" if ns < 100 else f"{ns:,.0f}"


def operation(rows, name):
    """What an operation adds to a call that makes it."""
    return rows["floor/" + name]["ns"] - rows["floor/nothing"]["ns"]


def floors(rows):
    """The limit of each function of floors.txt: a call, and the operations it cannot do without."""
    limits = {}
    for line in FLOORS.read_text().splitlines():
        words = line.split("#")[0].split()
        if not words:
            continue
        limits[words[0]] = rows["floor/call"]["ns"]
        for word in words[1:]:
            times, name = re.fullmatch(r"([0-9.]*)\*?([a-z0-9]+)", word).groups()
            limits[words[0]] += float(times or 1) * operation(rows, name)
    return limits


def print_peers(rows):
    tasks = {}
    for name, row in rows.items():
        if name.startswith("peers/"):
            _, task, who = name.split("/", 2)
            tasks.setdefault(task, {})[who] = row
    if not tasks:
        return
    print("| task | here | ns | peers, ns | ahead | solutions | agree |")
    print("| --- | --- | ---: | --- | ---: | --- | --- |")
    ratios = []
    for task, entries in tasks.items():
        peers = {w: r for w, r in entries.items() if not w.startswith("planegeo:")}
        best = min(peers.values(), key=lambda r: r["ns"])
        listed = ", ".join(f"{w} {figure(r['ns'])}" for w, r in
                           sorted(peers.items(), key=lambda item: item[1]["ns"]))
        for who, row in entries.items():
            if who in peers:
                continue
            ratio = best["ns"] / row["ns"]
            ratios.append(ratio)
            solutions = " / ".join([f"{row['solutions']:.0f}"] + [
                f"{w} {r['solutions']:.0f}" for w, r in peers.items()
                if r["solutions"] != row["solutions"]])
            agree = ", ".join(f"{w} {r['agree']:.0f}" for w, r in peers.items()
                              if r["agree"] != 1024) or "all"
            print(f"| {task} | `{who.split(':')[1]}` | {figure(row['ns'])} | {listed} | "
                  f"{ratio:.1f} | {solutions} | {agree} |")
    print(f"\nAhead of the best peer by {statistics.median(ratios):.1f} in the median of "
          f"{len(ratios)} rows, by {min(ratios):.2f} at least.\n")


def print_functions(rows):
    limits = floors(rows)
    print("| function | ns | floor | multiple | in a chain, ns | two threads |")
    print("| --- | ---: | ---: | ---: | ---: | ---: |")
    for name, row in rows.items():
        if re.match(r"(peers|floor|plain|latency|threads)/", name):
            continue
        limit = limits.get(name)
        chain = rows.get("latency/" + name)
        threads = rows.get("threads/" + name)
        print("| `{}` | {} | {} | {} | {} | {} |".format(
            name, figure(row["ns"]),
            figure(limit) if limit else "", f"{row['ns'] / limit:.2f}" if limit else "",
            figure(chain["ns"]) if chain else "",
            f"{row['ns'] / threads['ns']:.2f} x" if threads else ""))


def print_floors(rows):
    print("| operation | ns |\n| --- | ---: |")
    for name, row in rows.items():
        if name.startswith("floor/"):
            word = name.split("/")[1]
            net = row["ns"] if word in ("nothing", "call") else operation(rows, word)
            print(f"| {word} | {net:.1f} |")
    print()


def print_setting(path):
    context = json.load(open(path))["context"]
    told = [context[key].replace(";", ",") for key in ("machine", "versions") if key in context]
    told.append(f"load average {context['load_avg'][0]:.1f}")
    print("; ".join(told) + f"; {context['date'][:10]}.\n")


BEGIN, END = "<!-- tables of a run -->\n", "<!-- end of the tables -->\n"


def main():
    arguments = sys.argv[1:]
    if len(arguments) not in (1, 3) or arguments[1:2] not in ([], ["--into"]):
        sys.exit(f"usage: {sys.argv[0]} RUN.json [--into README.md]")
    rows = read(arguments[0])
    tables = io.StringIO()
    with contextlib.redirect_stdout(tables):
        print_setting(arguments[0])
        print_peers(rows)
        print_floors(rows)
        print_functions(rows)
    if len(arguments) == 1:
        print(tables.getvalue(), end="")
        return
    text = Path(arguments[2]).read_text()
    before, rest = text.split(BEGIN)
    Path(arguments[2]).write_text(before + BEGIN + "\n" + tables.getvalue() + "\n" + END +
                                  rest.split(END)[1])


main()

#!/usr/bin/env python3
"""How sharp the tests are: makes small mistakes in src/, one at a time, and tells which of them the
unit tests let live.

A mutant is a comparison with its strictness or sense changed, a sign, an order (two coordinates,
two ends, sine and cosine, the lesser and the greater), a tolerance (four times or a quarter of
itself) or another number. Which are made depends on the seed and on the lines alone, so that an
edit elsewhere does not change them; each file gets its share. scripts/equivalent_mutants.txt lists
those that change no answer, with the reason; they do not count.

Needs g++ and GoogleTest; ccache makes the second run cheap.
"""

import argparse
import hashlib
import json
import os
import re
import shutil
import subprocess
import sys
import threading
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "mutants"
EQUIVALENT = ROOT / "scripts" / "equivalent_mutants.txt"

FLAGS = ["-std=c++17", "-O1", "-w", "-ffp-contract=off", "-fno-math-errno", "-fPIC"]
SHARED = ["-shared", "-Wl,-soname,libplanegeo.so"]  # found by LD_LIBRARY_PATH, in the mutant's tree
LIBRARY_FLAGS = ["-fno-exceptions", "-fno-rtti", "-fvisibility=hidden"]

# Kind, pattern, replacement. A pattern looks at one line without its comments and strings.
SWAPS = [
    ("strictness", r" (<) ", "<="), ("strictness", r" (<=) ", "<"),
    ("strictness", r" (>) ", ">="), ("strictness", r" (>=) ", ">"),
    ("sense", r" (==) ", "!="), ("sense", r" (!=) ", "=="),
    ("sense", r" (&&) ", "||"), ("sense", r" (\|\|) ", "&&"),
    ("sense", r"(!)[\w(]", ""),
    ("sign", r"[\w)\]] (\+) ", "-"), ("sign", r"[\w)\]] (-) ", "+"),
    ("sign", r"(\+)= ", "-"), ("sign", r"(-)= ", "+"),
    ("sign", r"[(,=?:{] ?(-)[\w(]", ""), ("sign", r"return (-)[\w(]", ""),
    ("order", r"\.(x)\b", "y"), ("order", r"\.(y)\b", "x"),
    ("order", r"\.(start)\b", "end"), ("order", r"\.(end)\b", "start"),
    ("order", r"\b(cos)\(", "sin"), ("order", r"\b(sin)\(", "cos"),
    ("order", r"std::(min)\(", "max"), ("order", r"std::(max)\(", "min"),
    ("order", r"\[(0)\]", "1"), ("order", r"\[(1)\]", "0"),
    ("order", r"\b(halfFirst)\b", "halfSecond"), ("order", r"\b(halfSecond)\b", "halfFirst"),
    ("order", r" (\*) ", "/"), ("order", r" (/) ", "*"),
]
NUMBER = re.compile(r"(?<![\w.\"'\[])(\d+\.\d*(?:e[+-]?\d+)?|\d+)(?![\w.\"'>])")
TOLERANCE = re.compile(r"constexpr double (k\w+) = ([-\d].*);$")


class Mutant:
    def __init__(self, path, number, kind, before, after):
        self.path, self.number, self.kind = path, number, kind
        self.before, self.after = before, after
        self.key = (str(path), before.strip(), after.strip())
        self.rank = ""

    def __str__(self):
        return (f"{self.path}:{self.number}: {self.kind}\n"
                f"- {self.before.strip()}\n+ {self.after.strip()}")


def code_of(line):
    """The line with comments and strings blanked, of the same length."""
    blank = lambda found: " " * len(found.group())
    line = re.sub(r'"(?:[^"\\]|\\.)*"', blank, line)
    return re.sub(r"//.*|/\*.*?\*/", blank, line)


def mutants_of_line(path, number, line):
    code = code_of(line)
    if re.match(r"\s*(#|template|using|\*|static_assert)", code) or not code.strip():
        return
    for kind, pattern, new in SWAPS:
        for found in re.finditer(pattern, code):
            first, last = found.span(1)
            yield Mutant(path, number, kind, line, line[:first] + new + line[last:])
    tolerance = TOLERANCE.search(code)
    if tolerance:
        first, last = tolerance.span(2)
        value = line[first:last]
        for change in ("4.0", "0.25"):
            yield Mutant(path, number, "tolerance", line,
                         f"{line[:first]}{change} * ({value}){line[last:]}")
        return
    for found in NUMBER.finditer(code):
        first, last = found.span(1)
        old = found.group(1)
        new = str(int(old) + 1) if old.isdigit() else repr(float(old) + 1.0)
        yield Mutant(path, number, "number", line, line[:first] + new + line[last:])


def all_mutants(seed):
    """Every mutant, by file, each file's in the order in which they are taken."""
    by_file = {}
    for path in sorted((ROOT / "src").glob("*/*")):
        if path.suffix not in (".cpp", ".h") or path.name == "loader.cpp":
            continue
        mutants, seen = [], {}
        relative = path.relative_to(ROOT)
        for number, line in enumerate(path.read_text().splitlines(), 1):
            for mutant in mutants_of_line(relative, number, line):
                again = seen[mutant.key] = seen.get(mutant.key, 0) + 1
                text = "\n".join((str(seed), *mutant.key, str(again)))
                mutant.rank = hashlib.sha256(text.encode()).hexdigest()
                mutants.append(mutant)
        if mutants:
            by_file[relative] = sorted(mutants, key=lambda m: m.rank)
    return by_file


def turn_about(mutants):
    """Kinds by turns, so that the many signs do not crowd out the few tolerances."""
    kinds = {}
    for mutant in mutants:
        kinds.setdefault(mutant.kind, []).append(mutant)
    queues = sorted(kinds.values(), key=lambda queue: queue[0].rank)
    while queues:
        for queue in queues:
            yield queue.pop(0)
        queues = [queue for queue in queues if queue]


def selected(by_file, count):
    """Each file's share of count by the number of its mutants, one at least."""
    total = sum(len(mutants) for mutants in by_file.values())
    chosen = []
    for mutants in by_file.values():
        share = max(1, round(count * len(mutants) / total))
        lines = set()
        for mutant in turn_about(mutants):
            if share == 0:
                break
            if mutant.number in lines and len(lines) < len({m.number for m in mutants}):
                continue # one a line, as long as there are lines left
            lines.add(mutant.number)
            chosen.append(mutant)
            share -= 1
    return chosen


def equivalents():
    """The listed mutants: blocks of a path, a line with -, one with +, and the reason, indented."""
    listed, path, before = set(), None, None
    for line in EQUIVALENT.read_text().splitlines() if EQUIVALENT.exists() else []:
        if line.startswith("src/"):
            path = line.strip()
        elif line.startswith("- "):
            before = line[2:].strip()
        elif line.startswith("+ "):
            listed.add((path, before, line[2:].strip()))
    return listed


def survivors(log, by_file):
    """The mutants that the output of an earlier run says live."""
    keys = set(re.findall(r"^LIVES (\S+?):\d+: \w+\n- (.*)\n\+ (.*)$", Path(log).read_text(),
                          re.MULTILINE))
    found = {m.key: m for mutants in by_file.values() for m in mutants if m.key in keys}
    return list(found.values())


def run(command, **more):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          **more)


class Unit:
    """A source file, its object and what it includes of ours."""

    def __init__(self, source):
        self.source = source
        self.name = "_".join(source.relative_to(ROOT).with_suffix("").parts)
        self.is_test = source.parts[-2] == "tests"
        self.includes = set()

    def compile(self, tree, target):
        compiler = (["ccache"] if shutil.which("ccache") else []) + ["g++"]
        command = compiler + FLAGS + ([] if self.is_test else LIBRARY_FLAGS) + [
            f"-I{ROOT}/include", f"-I{tree}/src", "-MMD", "-c",
            str(self.source if self.is_test else tree / self.source.relative_to(ROOT)),
            "-o", str(target / f"{self.name}.o")]
        done = run(command)
        if done.returncode:
            return done.stdout
        depends = (target / f"{self.name}.d").read_text().replace("\\\n", " ").split()
        self.includes = {Path(word[len(str(tree)) + 1:]) for word in depends
                         if word.startswith(f"{tree}/src/")} | self.includes
        return None


class Workshop:
    """The unchanged objects, and how a changed tree is built from them and tried."""

    def __init__(self, jobs):
        self.sources = [Unit(path) for path in sorted((ROOT / "src").glob("*/*.cpp"))
                        if path.name != "loader.cpp"]
        self.tests = [Unit(path) for path in sorted((ROOT / "tests").glob("*_test.cpp"))]
        self.base = BUILD / "base"
        self.base.mkdir(parents=True, exist_ok=True)
        fresh_tree(self.base)
        with ThreadPoolExecutor(jobs) as pool:
            failures = list(pool.map(lambda unit: unit.compile(self.base, self.base),
                                     self.sources + self.tests))
        wrong = [text for text in failures if text]
        if wrong:
            sys.exit(f"the unchanged tree does not compile:\n{wrong[0]}")
        if not self.link(self.base, self.sources, self.base / "libplanegeo.so", SHARED):
            sys.exit("the unchanged library does not link")
        if not self.link_tests(self.base):
            sys.exit("the unchanged tests do not link")
        began = time.monotonic()
        outcome = self.try_tests(self.base, self.base, 600, [], True)
        self.seconds = time.monotonic() - began
        if outcome:
            sys.exit(f"the tests fail on the unchanged tree: {sorted(outcome)}")
        self.limit = 10 * self.seconds + 10
        self.slow = self.slow_tests()
        self.killers = {}

    def link(self, tree, units, target, more):
        objects = [tree / f"{unit.name}.o" for unit in units]
        objects = [str(o if o.exists() else self.base / o.name) for o in objects]
        return run(["g++", *objects, *more, "-o", str(target)]).returncode == 0

    def link_tests(self, tree):
        return self.link(tree, self.tests, tree / "tests",
                         [str(self.base / "libplanegeo.so"), "-lgtest_main", "-lgtest"])

    def try_tests(self, tree, program, limit, filters, every):
        """Names of the tests that fail; the first one, unless every is asked for."""
        report = tree / "report.json"
        report.unlink(missing_ok=True)
        command = [str(program / "tests"), f"--gtest_output=json:{report}", "--gtest_brief=1"]
        command += [] if every else ["--gtest_fail_fast"]
        command += [f"--gtest_filter={':'.join(filters)}"] if filters else []
        environment = dict(os.environ, LD_LIBRARY_PATH=str(tree), TEST_TMPDIR=str(tree))
        try:
            done = run(command, env=environment, timeout=limit, cwd=tree)
        except subprocess.TimeoutExpired:
            return {"(no end)": []}
        if done.returncode == 0:
            return {}
        if not report.exists():
            return {"(crash)": []}
        failed = {}
        for suite in json.loads(report.read_text())["testsuites"]:
            for test in suite["testsuite"]:
                if test.get("failures"):
                    failed[f"{suite['name']}.{test['name']}"] = [
                        failure["failure"] for failure in test["failures"]]
        return failed or {"(crash)": []}

    def slow_tests(self):
        """The few tests that take most of the time: they are tried last."""
        suites = json.loads((self.base / "report.json").read_text())["testsuites"]
        seconds = {f"{suite['name']}.{test['name']}": float(test["time"].rstrip("s"))
                   for suite in suites for test in suite["testsuite"]}
        return [name for name, taken in seconds.items() if taken > 0.02 * sum(seconds.values())]

    def affected(self, path):
        """The units that see a change of the file."""
        return [unit for unit in self.sources + self.tests
                if path == unit.source.relative_to(ROOT) or path in unit.includes]

    def reads(self, unit, name):
        files = [unit.source] + [ROOT / path for path in unit.includes]
        return any(path.name != "tolerance.h" and name in path.read_text() for path in files)

    def outcome(self, mutant, tree, every):
        """Failed tests of a mutant; None where it does not compile."""
        changed = tree / mutant.path
        original = changed.read_text()
        lines = original.splitlines()
        assert lines[mutant.number - 1] == mutant.before, mutant
        lines[mutant.number - 1] = mutant.after
        changed.write_text("\n".join(lines) + "\n")
        units = self.affected(mutant.path)
        if mutant.path.name == "tolerance.h":
            name = TOLERANCE.search(mutant.before).group(1)
            units = [unit for unit in units if self.reads(unit, name)]
        try:
            for old in tree.glob("*.o"):
                old.unlink()
            if any(unit.compile(tree, tree) for unit in units):
                return None
            if not self.link(tree, self.sources, tree / "libplanegeo.so", SHARED):
                return None
            program = self.base
            if any(unit.is_test for unit in units):
                program = tree
                if not self.link_tests(tree):
                    return None
            known = self.killers.setdefault(mutant.path, [])
            passes = [known, ["-" + ":".join(self.slow)], self.slow]
            failed = {}
            for filters in [[]] if every else [filters for filters in passes if filters]:
                failed = self.try_tests(tree, program, self.limit, filters, every)
                if failed:
                    break
            for name in failed:
                if not name.startswith("(") and name not in known:
                    known.insert(0, name)
            return failed
        finally:
            changed.write_text(original)


def fresh_tree(tree):
    shutil.rmtree(tree / "src", ignore_errors=True)
    shutil.copytree(ROOT / "src", tree / "src")


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--count", type=int, default=100, help="how many mutants, about")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--only", default="", help="a pattern that the path must match")
    parser.add_argument("--at-least", type=float, default=90.0, help="percent to be caught")
    parser.add_argument("--again", help="output of a run: try those that lived in it, and no other")
    parser.add_argument("--list", action="store_true", help="show the mutants, try none")
    parser.add_argument("--matrix", help="file for every failure of every mutant, as JSON")
    arguments = parser.parse_args()
    os.environ.pop("CCACHE_BASEDIR", None)  # it would make the dependencies relative

    by_file = {path: mutants for path, mutants in all_mutants(arguments.seed).items()
               if re.search(arguments.only, str(path))}
    listed = equivalents()
    chosen = (survivors(arguments.again, by_file) if arguments.again
              else selected(by_file, arguments.count))
    mutants = [m for m in chosen if m.key not in listed]
    if arguments.list:
        print("\n".join(map(str, mutants)))
        return 0

    shop = Workshop(arguments.jobs)
    print(f"{len(mutants)} of {sum(map(len, by_file.values()))} mutants; "
          f"the tests take {shop.seconds:.1f} s", flush=True)
    trees, lock, place = {}, threading.Lock(), threading.local()

    def try_one(mutant):
        if not hasattr(place, "tree"):
            with lock:
                place.tree = BUILD / f"worker{len(trees)}"
                trees[place.tree] = True
            place.tree.mkdir(exist_ok=True)
            fresh_tree(place.tree)
        failed = shop.outcome(mutant, place.tree, bool(arguments.matrix))
        if failed == {}:
            print(f"LIVES {mutant}", flush=True)
        return mutant, failed

    with ThreadPoolExecutor(arguments.jobs) as pool:
        outcomes = list(pool.map(try_one, mutants))
    if arguments.matrix:
        Path(arguments.matrix).write_text(json.dumps(
            [{"mutant": m.key, "kind": m.kind, "failed": failed} for m, failed in outcomes]))
    tried = [(m, failed) for m, failed in outcomes if failed is not None]
    kinds = {}
    for mutant, failed in tried:
        caught, all_of_it = kinds.get(mutant.kind, (0, 0))
        kinds[mutant.kind] = (caught + bool(failed), all_of_it + 1)
    for kind, (caught, all_of_it) in sorted(kinds.items()):
        print(f"{kind}: {caught} of {all_of_it} caught")
    caught = sum(bool(failed) for _, failed in tried)
    percent = 100.0 * caught / max(1, len(tried))
    print(f"{caught} of {len(tried)} caught ({percent:.1f} %); "
          f"{len(outcomes) - len(tried)} did not compile")
    return 0 if percent >= arguments.at_least else 1


if __name__ == "__main__":
    sys.exit(main())

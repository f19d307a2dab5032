"""Builds and runs the examples in the guides, and compares what they print.

    run_blocks.py LIBRARY_DIR WORK_DIR FILE.md...

An example is a fenced block of a language below; what it prints is the text block that follows,
if the prose between them ends with "prints". Run in the root of the project. A language whose
compiler is not here is left out, and told.
"""

import difflib
import os
import pathlib
import re
import shutil
import subprocess
import sys

BLOCK = re.compile(r"^```(\w+)\n(.*?)^```$(?:\s+prints:?\s+```text\n(.*?)^```$)?", re.M | re.S)


def c(source, library):
    return [["cc", "-std=c99", "-Wall", "-Wextra", "-Werror", "-Iinclude", source, f"-L{library}",
             "-lplanegeo", "-o", source.with_suffix("")]], [source.with_suffix("")]


def cpp(source, library):
    return [["c++", "-std=c++17", "-Wall", "-Wextra", "-Werror", "-Iinclude", source,
             f"-L{library}", "-lplanegeo", "-o", source.with_suffix("")]], [source.with_suffix("")]


def python(source, _):
    return [], [sys.executable, source]


def pascal(source, library):
    program = source.with_suffix("")
    return [["fpc", "-v0ew", "-Fubindings/pascal", f"-Fl{library}", f"-FU{source.parent}",
             f"-o{program}", source]], [program]


def csharp(source, _):
    program = source.with_suffix(".exe")
    return [["mcs", "-langversion:7", "-warnaserror", f"-out:{program}", source,
             "bindings/csharp/Planegeo.cs"]], ["mono", program]


LANGUAGES = {
    "c": (".c", c, ["cc"]),
    "cpp": (".cpp", cpp, ["c++"]),
    "python": (".py", python, []),
    "pascal": (".pas", pascal, ["fpc"]),
    "csharp": (".cs", csharp, ["mcs", "mono"]),
}


def run(command, library):
    environment = dict(os.environ, LD_LIBRARY_PATH=library, PYTHONPATH="bindings/python",
                       PYTHONDONTWRITEBYTECODE="1")
    done = subprocess.run(command, env=environment, text=True, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, check=False)
    return done.returncode, done.stdout


def fault_of(source, language, printed, library):
    """What is wrong with an example, or nothing."""
    builds, program = LANGUAGES[language][1](source, library)
    for command in builds:
        status, output = run(command, library)
        if status != 0:
            return f"does not compile\n{output}"
    status, output = run(program, library)
    if status != 0:
        return f"fails\n{output}"
    if printed is not None and output != printed:
        lines = difflib.unified_diff(printed.splitlines(), output.splitlines(), "guide", "printed",
                                     lineterm="")
        return "prints something else\n" + "\n".join(lines)
    return None


def main(library, work, *files):
    work = pathlib.Path(work)
    work.mkdir(parents=True, exist_ok=True)
    examples = faults = 0
    for file in files:
        for number, block in enumerate(BLOCK.finditer(pathlib.Path(file).read_text()), 1):
            language, code, printed = block.groups()
            if language not in LANGUAGES:
                continue
            suffix, _, tools = LANGUAGES[language]
            if not all(shutil.which(tool) for tool in tools):
                print(f"{file}: {language} is not here, its example not run")
                continue
            source = work / f"{pathlib.Path(file).stem.replace('-', '_')}_{number}{suffix}"
            source.write_text(code)
            examples += 1
            fault = fault_of(source, language, printed, library)
            if fault:
                faults += 1
                print(f"{file}: the {language} example {fault}")
    print(f"{examples} examples, {faults} faults")
    return 1 if faults or not examples else 0


sys.exit(main(*sys.argv[1:]))

"""Emits the unit for Free Pascal and Delphi."""

from typing import List

from .header import Function, Header, Parameter, Record
from .words import NOTICE, by_group, description, wrapped

TYPES = {"double": "Double", "int16_t": "SmallInt", "uint16_t": "Word", "int32_t": "Integer",
         "uint32_t": "Cardinal"}
RESERVED = {"begin", "end", "to", "in", "of", "out", "type", "result", "var", "const", "record", "unit",
            "array", "string", "set", "file", "is", "as", "mod", "div", "shl", "shr", "not", "on"}
WIDTH = 96


def name_of(name: str) -> str:
    return name + "_" * (name.lower() in RESERVED)


def type_of(name: str) -> str:
    return TYPES.get(name, name)


def comment_of(function: Function) -> List[str]:
    comment = function.comment
    lines = description(comment, WIDTH)
    for direction, names, text in comment.parameters:
        lines += wrapped(f"{', '.join(name_of(n) for n in names)} ({direction}): {text}",
                         WIDTH, "  ", "  ")
    if comment.returns:
        lines += wrapped(f"Result: {comment.returns}", WIDTH, "  ", "  ")
    if comment.see:
        lines += wrapped(f"See also: {comment.see}", WIDTH, "  ", "  ")
    return [f"// {line}".rstrip() for line in lines]


def parameter_of(parameter: Parameter) -> str:
    name, kind = name_of(parameter.name), type_of(parameter.type)
    if parameter.pointers == 2:
        return f"var {name}: P{kind}"
    if not parameter.pointers:
        return f"{name}: {kind}"
    if parameter.is_array or parameter.direction == "in":
        return f"{name}: P{kind}"
    return f"var {name}: {kind}"


def declaration(head: str, function: Function, tail: str) -> List[str]:
    word = "procedure" if function.result == "void" else "function"
    pointer = "P" * function.result.endswith("*")
    result = "" if word == "procedure" else f": {pointer}{type_of(function.result.rstrip(' *'))}"
    parameters = "; ".join(parameter_of(p) for p in function.parameters)
    brackets = f"({parameters})" if parameters else ""
    return wrapped(f"{head.format(word)}{brackets}{result};{tail}", WIDTH, "", "  ")


def record_of(record: Record) -> List[str]:
    fields, place = [], 0
    for field in record.fields:
        if field.offset > place:
            fields.append(f"gap{place}: array[0..{field.offset - place - 1}] of Byte;")
        note = f" // {field.comment}" if field.comment else ""
        fields.append(f"{name_of(field.name)}: {type_of(field.type)};{note}")
        place = field.offset + (8 if field.type == "double" else 4)
    packed = "packed " if any(f.startswith("gap") for f in fields) else ""
    notes = [f"  // {line}" for line in description(record.comment, WIDTH)]
    return notes + [f"  {record.name} = {packed}record"] + [f"    {f}" for f in fields] + \
        ["  end;", f"  P{record.name} = ^{record.name};", ""]


def emit(header: Header) -> dict:
    lines = ["// Two-dimensional geometry for CAD hosts: the functions of the planegeo library, for",
             "// Free Pascal and Delphi.", "//", f"// {NOTICE}", "//",
             "// What is read only, and every array, is passed by its address; a single output is a var",
             "// parameter. Outputs that a function leaves untouched keep their value.", "",
             "unit planegeo;", "", "{$ifdef FPC}{$mode objfpc}{$endif}", "{$A8}", "", "interface", "", "const"]
    for constant in header.constants:
        lines += [f"  // {line}" for line in description(constant.comment, WIDTH)]
        lines.append(f"  {constant.name} = Cardinal(${constant.value:08X});")
    lines += ["", "type"]
    for record in header.records:
        lines += record_of(record)
    for callback in header.callbacks:
        lines += [f"  {line}" for line in comment_of(callback)]
        lines += [f"  {line}" for line in declaration(f"{callback.name} = {{}}", callback, " cdecl;")]
    lines += ["", "const", "{$ifdef MSWINDOWS}", "  library_name = 'planegeo.dll';", "{$else}",
              "  library_name = {$ifdef FPC}'planegeo'{$else}'libplanegeo.so.1'{$endif};", "{$endif}"]
    for item in by_group(header.functions):
        if isinstance(item, str):
            lines += ["", f"// ---- {item}"]
            continue
        lines += [""] + comment_of(item)
        tail = f" cdecl; external library_name name '{item.name}';"
        lines += declaration("{} " + item.name, item, tail)
    lines += ["", "implementation", "", "end."]
    return {"pascal/planegeo.pas": "\n".join(lines) + "\n"}

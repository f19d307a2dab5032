"""Emits the C# declarations."""

from typing import List
from xml.sax.saxutils import escape

from .header import Function, Header, Parameter, Record, plain
from .words import NOTICE, by_group, wrapped

TYPES = {"double": "double", "int16_t": "short", "uint16_t": "ushort", "int32_t": "int",
         "uint32_t": "uint"}
KEYWORDS = {"out", "in", "ref", "params", "base", "checked", "object", "string", "event", "is", "as"}
WIDTH = 92


def name_of(name: str) -> str:
    return "@" * (name in KEYWORDS) + name


def type_of(name: str) -> str:
    return TYPES.get(name, name)


def element(tag: str, attributes: str, texts: List[str]) -> List[str]:
    """An element of a comment, on one line if it fits."""
    lines: List[str] = []
    for text in texts:
        lines += [escape(line) for line in wrapped(text, WIDTH)] if "\n" not in text else \
            ["<code>"] + [escape(line) for line in wrapped(text, WIDTH)] + ["</code>"]
    if len(lines) == 1 and len(lines[0]) + len(tag) * 2 + len(attributes) < WIDTH - 5:
        return [f"<{tag}{attributes}>{lines[0]}</{tag}>"]
    return [f"<{tag}{attributes}>"] + lines + [f"</{tag}>"]


def comment_of(function: Function) -> List[str]:
    comment = function.comment
    lines = element("summary", "", comment.paragraphs[:1])
    if comment.paragraphs[1:]:
        lines += element("remarks", "", comment.paragraphs[1:])
    names = {p.name for p in function.parameters}
    for _, which, text in comment.parameters:
        for name in which:
            if name in names:
                lines += element("param", f' name="{name}"', [text])
    if comment.returns:
        lines += element("returns", "", [comment.returns])
    return [f"/// {line}".rstrip() for line in lines]


def parameter_of(parameter: Parameter) -> str:
    name, kind = name_of(parameter.name), type_of(parameter.type)
    if parameter.pointers == 2:
        return f"ref IntPtr {name}"
    if not parameter.pointers:
        return f"{kind} {name}"
    if parameter.is_array:
        return f"{'[In]' if parameter.direction == 'in' else '[In, Out]'} {kind}[] {name}"
    # Not the keyword "in", which Mono's compiler does not pass by address.
    word = {"in": "[In] ref", "out": "out", "in,out": "ref"}[parameter.direction]
    return f"{word} {kind} {name}"


def declaration(words: str, function: Function) -> List[str]:
    result = "IntPtr" if "*" in function.result else type_of(function.result)
    parameters = ", ".join(parameter_of(p) for p in function.parameters)
    return wrapped(f"{words} {result} {function.name}({parameters});", WIDTH, "", "    ")


def record_of(record: Record) -> List[str]:
    lines = [f"/// {line}" for line in element("summary", "", record.comment.paragraphs)]
    lines += [f"[StructLayout(LayoutKind.Explicit, Size = {record.size})]",
              f"public struct {record.name}", "{"]
    for field in record.fields:
        if field.comment:
            lines.append(f"    /// <summary>{escape(plain(field.comment))}</summary>")
        lines.append(f"    [FieldOffset({field.offset})] public {type_of(field.type)} {name_of(field.name)};")
    return lines + ["}", ""]


def emit(header: Header) -> dict:
    lines = []
    for record in header.records:
        lines += record_of(record)
    for callback in header.callbacks:
        lines += comment_of(callback) + ["[UnmanagedFunctionPointer(CallingConvention.Cdecl)]"]
        lines += declaration("public delegate", callback)
    lines += ["", "/// <summary>The functions of the library.</summary>", "public static class Native", "{",
              '    private const string Library = "planegeo";']
    for constant in header.constants:
        notes = element("summary", "", constant.comment.paragraphs)
        lines += [""] + [f"    /// {line}" for line in notes]
        lines.append(f"    public const uint {constant.name} = 0x{constant.value:08X};")
    for item in by_group(header.functions):
        if isinstance(item, str):
            lines += ["", f"    // ---- {item}"]
            continue
        body = comment_of(item) + ["[DllImport(Library, CallingConvention = CallingConvention.Cdecl)]"]
        body += declaration("public static extern", item)
        lines += [""] + [f"    {line}" for line in body]
    lines.append("}")
    head = ["// Two-dimensional geometry for CAD hosts: the functions of the planegeo library.", "//",
            f"// {NOTICE}", "//",
            "// Arrays must be as long as the comments say; nothing checks them. Outputs that a function",
            "// leaves untouched keep their value.", "", "using System;",
            "using System.Runtime.InteropServices;", "", "namespace Planegeo", "{"]
    text = head + [("    " + line).rstrip() for line in lines] + ["}"]
    return {"csharp/Planegeo.cs": "\n".join(text) + "\n"}

"""What include/planegeo.h declares and says, as plain records.

Types, names and layout come from libclang. Direction, size and meaning of a parameter come
from the comments, whose words are fixed where a binding hangs on them:

    @param[in], [out], [in,out]     the direction
    two doubles, n pairs, array of 4, n + 1 coefficients, n points
                                    at its begin: an array of so many; a pair is two doubles
    room for five arcs each         arrays of five centres, five radii, ten angles
    a name with "angles" in it      start and end, if nothing else is said
    doubles named "center"          x and y
    may be null                     of an input

What a function does not say is said by the function that its comment names first.
"""

import dataclasses
import re
from typing import Dict, List, Optional, Tuple

from clang import cindex

NUMBERS = {"two": 2, "three": 3, "four": 4, "five": 5, "six": 6, "ten": 10}
COUNT = r"(?P<count>\d+|n(?: \+ 1)?|@p \w+|" + "|".join(NUMBERS) + ")"


@dataclasses.dataclass
class Comment:
    paragraphs: List[str] = dataclasses.field(default_factory=list)
    parameters: List[Tuple[str, List[str], str]] = dataclasses.field(default_factory=list)
    returns: str = ""
    see: str = ""


@dataclasses.dataclass
class Field:
    name: str
    type: str
    offset: int
    comment: str


@dataclasses.dataclass
class Record:
    name: str
    fields: List[Field]
    size: int
    comment: Comment


@dataclasses.dataclass
class Constant:
    name: str
    value: int
    comment: Comment


@dataclasses.dataclass
class Parameter:
    name: str
    type: str  # of what is pointed at, if it is a pointer
    pointers: int = 0
    direction: str = "in"  # or "out", "in,out"
    size: str = ""  # of an array: an expression in other parameters; else empty
    null: bool = False  # whether it may be null

    @property
    def is_array(self) -> bool:
        return self.size != ""


@dataclasses.dataclass
class Function:
    name: str
    result: str
    parameters: List[Parameter]
    comment: Comment
    group: str
    returns_size: str = ""  # where the result is an array


@dataclasses.dataclass
class Header:
    version: str
    constants: List[Constant]
    records: List[Record]
    callbacks: List[Function]
    functions: List[Function]


def plain(text: str) -> str:
    """Takes the inline commands out of a comment."""
    return re.sub(r"[@\\](?:p|c|a|e|b|ref) (?=\S)", "", text)


def parse_comment(raw: Optional[str]) -> Comment:
    comment = Comment()
    lines = re.sub(r"^/\*\*<?|\*/$", "", raw or "").split("\n")
    lines = [re.sub(r"^\s*\* ?", "", line).rstrip() for line in lines]
    for block in re.split(r"\n\s*\n|\n(?=\s*[@\\](?:param|return|see|par|image)\b)", "\n".join(lines)):
        if not block.strip():
            continue
        command = re.match(r"\s*[@\\](\w+)(?:\[([\w, ]+)\])?", block)
        if not command or command[1] in ("p", "c"):
            comment.paragraphs.append(block.strip("\n") if "  o" in block else " ".join(block.split()))
            continue
        text = " ".join(block[command.end() :].split())
        if command[1] == "param":
            names, text = text.split(" ", 1)
            comment.parameters.append((command[2], names.split(","), text))
        elif command[1] == "return":
            comment.returns = text
        elif command[1] == "see":
            comment.see = text
        elif command[1] == "par":
            comment.paragraphs.append(text)
    return comment


def count_of(text: str) -> str:
    """A count as the comments write it, as an expression."""
    return str(NUMBERS.get(text, text)).replace("@p ", "")


def times(count: int, expression: str) -> str:
    if count == 1:
        return expression
    return str(count * int(expression)) if expression.isdigit() else f"{count} * {expression}"


def array_size(parameter: Parameter, text: str) -> str:
    """The size of the array that a parameter points at, or nothing for a single value."""
    numbers = parameter.type == "double"
    if match := re.match(rf"room for {COUNT} arcs each", text):
        return times(2 if "angles" in parameter.name else 1, count_of(match["count"]))
    if match := re.match(rf"(?:array of|room for) {COUNT}\b", text):
        return count_of(match["count"])
    if match := re.match(rf"{COUNT} (doubles|pairs|coefficients|points(?! of))\b", text):
        return times(2 if numbers and match[2] in ("pairs", "points") else 1, count_of(match["count"]))
    if match := re.match(rf"address of the address of {COUNT} points", text):
        return count_of(match["count"])
    if numbers and ("angles" in parameter.name or "center" in parameter.name):
        return "2"
    return ""


class Reader:
    def __init__(self, path: str) -> None:
        options = cindex.TranslationUnit.PARSE_DETAILED_PROCESSING_RECORD
        self.unit = cindex.Index.create().parse(path, ["-x", "c", "-std=c99"], options=options)
        errors = [str(d) for d in self.unit.diagnostics]
        if errors:
            raise SystemExit("\n".join(errors))
        self.path = path
        self.comments: Dict[int, str] = {}  # by the line that follows
        self.groups: List[Tuple[int, str]] = []
        for token in self.unit.get_tokens(extent=self.unit.cursor.extent):
            if token.kind == cindex.TokenKind.COMMENT:
                self.comments[token.extent.end.line + 1] = token.spelling
                if group := re.search(r"@defgroup \w+ (.*)", token.spelling):
                    self.groups.append((token.location.line, group[1]))

    def read(self) -> Header:
        header = Header("", [], [], [], [])
        numbers: Dict[str, int] = {}
        for cursor in self.unit.cursor.get_children():
            if not cursor.location.file or cursor.location.file.name != self.path:
                continue
            if cursor.kind == cindex.CursorKind.MACRO_DEFINITION:
                self.constant(cursor, header, numbers)
            elif cursor.kind == cindex.CursorKind.STRUCT_DECL:
                header.records.append(self.record(cursor))
            elif cursor.kind == cindex.CursorKind.TYPEDEF_DECL:
                pointee = cursor.underlying_typedef_type.get_pointee()
                if pointee.kind == cindex.TypeKind.FUNCTIONPROTO or pointee.get_result().spelling:
                    header.callbacks.append(self.function(cursor, pointee.get_result()))
            elif cursor.kind == cindex.CursorKind.FUNCTION_DECL:
                header.functions.append(self.function(cursor, cursor.result_type))
        header.version = ".".join(str(numbers[f"PLANEGEO_VERSION_{part}"])
                                  for part in ("MAJOR", "MINOR", "PATCH"))
        by_name = {function.name: function for function in header.functions}
        for function in header.functions + header.callbacks:
            for parameter in function.parameters:
                self.explain(function, parameter, by_name)
            if function.result == "double *":
                text = " ".join(function.comment.paragraphs)
                match = re.search(rf"{COUNT} doubles", text)
                if not match:
                    raise SystemExit(f"{function.name}: how many doubles?")
                function.returns_size = count_of(match["count"])
        return header

    def constant(self, cursor: cindex.Cursor, header: Header, numbers: Dict[str, int]) -> None:
        words = [token.spelling for token in cursor.get_tokens()][1:]
        literal = re.fullmatch(r"(?:UINT32_C\()?(0x[0-9A-Fa-f]+|\d+)\)?", "".join(words))
        if not literal:
            return
        numbers[cursor.spelling] = int(literal[1], 0)
        if "VERSION" not in cursor.spelling:
            comment = parse_comment(self.comments.get(cursor.location.line))
            header.constants.append(Constant(cursor.spelling, int(literal[1], 0), comment))

    @staticmethod
    def record(cursor: cindex.Cursor) -> Record:
        fields = [Field(field.spelling, field.type.spelling,
                        cursor.type.get_offset(field.spelling) // 8,
                        " ".join(parse_comment(field.raw_comment).paragraphs))
                  for field in cursor.get_children()
                  if field.kind == cindex.CursorKind.FIELD_DECL]
        return Record(cursor.spelling, fields, cursor.type.get_size(),
                      parse_comment(cursor.raw_comment))

    def function(self, cursor: cindex.Cursor, result: cindex.Type) -> Function:
        group = [name for line, name in self.groups if line < cursor.location.line][-1]
        parameters = []
        for argument in cursor.get_children():
            if argument.kind != cindex.CursorKind.PARM_DECL:
                continue
            spelling = argument.type.spelling
            kind = re.sub(r"\bconst\b|\*", "", spelling).strip()
            parameters.append(Parameter(argument.spelling, kind, spelling.count("*")))
            if "*" in spelling and not spelling.startswith("const"):
                parameters[-1].direction = ""
        return Function(cursor.spelling, result.spelling, parameters,
                        parse_comment(cursor.raw_comment), group)

    def explain(self, function: Function, parameter: Parameter,
                by_name: Dict[str, Function]) -> None:
        """Takes direction and size of a parameter from the comments."""
        where: Optional[Function] = function
        seen = []
        while where and where.name not in seen:
            seen.append(where.name)
            for direction, names, text in where.comment.parameters:
                if parameter.name in names:
                    if parameter.direction == "":
                        parameter.direction = direction
                    elif direction != "in":
                        raise SystemExit(f"{function.name}: {parameter.name} is const, or no pointer")
                    if parameter.pointers:
                        parameter.size = array_size(parameter, text)
                        parameter.null = where is function and "may be null" in text
                    return
            named = re.search(r"\b(\w+)\(\)", " ".join(where.comment.paragraphs))
            where = by_name.get(named[1]) if named else None
        if parameter.direction == "" or (parameter.pointers and parameter.type == "double"):
            raise SystemExit(f"{function.name}: nothing says what {parameter.name} is")


def read(path: str) -> Header:
    return Reader(path).read()

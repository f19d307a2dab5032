"""Emits the Python module: one function per function, outputs as results."""

import keyword
from typing import List

from .header import Function, Header, Parameter, Record
from .words import NOTICE, by_group, description, wrapped

C_TYPES = {"double": "ctypes.c_double", "int16_t": "ctypes.c_int16", "uint16_t": "ctypes.c_uint16",
           "int32_t": "ctypes.c_int32", "uint32_t": "ctypes.c_uint32"}
CHECKED = {name: f"_convert.{name.strip('_t').upper()}" for name in C_TYPES if name != "double"}
WIDTH = 96


def name_of(parameter: Parameter) -> str:
    return parameter.name + "_" * keyword.iskeyword(parameter.name)


class Emitter:
    def __init__(self, header: Header) -> None:
        self.header = header
        self.records = [record.name for record in header.records]
        self.callbacks = {callback.name: callback for callback in header.callbacks}

    def c_type(self, name: str) -> str:
        if name in ("DTPOINT", "DTCOMPLEX"):
            return f"_convert.{name}"
        return C_TYPES.get(name, f"_{name}" if name in self.callbacks else name)

    def type_of(self, name: str, result: bool = False) -> str:
        if name in self.callbacks:
            return name
        if name == "DTPOINT":
            return "Point" if result else "PointLike"
        return {"double": "float", "DTCOMPLEX": "complex"}.get(name, name if name in self.records else "int")

    def argument_type(self, parameter: Parameter) -> str:
        kind = self.type_of(parameter.type)
        if not parameter.is_array:
            return kind
        array = f"Sequence[{kind}]"
        return f"Optional[{array}]" if self.may_be_null(parameter) else array

    @staticmethod
    def may_be_null(parameter: Parameter) -> bool:
        return parameter.is_array and parameter.direction == "in" and parameter.null

    def result_type(self, parameter: Parameter) -> str:
        kind = self.type_of(parameter.type, result=True)
        return f"List[{kind}]" if parameter.is_array else kind

    # -- records ---------------------------------------------------------------------------

    def record(self, record: Record) -> List[str]:
        """A structure whose gaps are fields, so that no rule of alignment counts."""
        fields, values, place = [], [], 0
        for field in record.fields:
            if field.offset > place:
                fields.append(f'("_gap{place}", ctypes.c_byte * {field.offset - place}),')
            fields.append(f'("{field.name}", {self.c_type(field.type)}),')
            size = 8 if field.type == "double" else int(field.type.strip("uint_")) // 8
            place = field.offset + size
            kind = self.type_of(field.type)
            values.append(f"{field.name}: {kind} = {'0.0' if kind == 'float' else '0'}")
        assert place == record.size, f"{record.name} has a gap at its end"
        lines = ["", "", f"class {record.name}(_convert.Record):", '    """']
        lines[-1] += "\n".join(description(record.comment, WIDTH - 4)).replace("\n", "\n    ")
        if any(field.comment for field in record.fields):
            lines += ["", "    Attributes:"]
            for field in record.fields:
                if field.comment:
                    lines += wrapped(f"{field.name}: {field.comment}", WIDTH, " " * 8, "    ")
        lines += ['    """', "", "    _fields_ = ["] + [f"        {field}" for field in fields] + ["    ]"]
        lines += [f"    {field.name}: {self.type_of(field.type)}" for field in record.fields]
        lines += ["", "    def __init__("] + [f"        {value}," for value in ["self"] + values]
        lines += ["    ) -> None:",
                  f"        super().__init__({', '.join(f'{f.name}={f.name}' for f in record.fields)})"]
        return lines

    # -- functions -------------------------------------------------------------------------

    @staticmethod
    def inputs(function: Function) -> List[Parameter]:
        return [p for p in function.parameters if p.direction != "out"]

    @staticmethod
    def outputs(function: Function) -> List[Parameter]:
        return [p for p in function.parameters if p.direction != "in"]

    @staticmethod
    def code_name(function: Function) -> str:
        return {"void": "", "double": "value"}.get(function.result, "code")

    def returns(self, function: Function) -> str:
        if self.outputs(function):
            return f"{function.name}_result"
        if function.result == "void":
            return "None"
        if function.returns_size:
            return '"ctypes.Array[ctypes.c_double]"'
        return self.type_of(function.result, result=True)

    def docstring(self, function: Function) -> List[str]:
        comment = function.comment
        lines = description(comment, WIDTH - 4)
        ins, outs = [], []
        for direction, names, text in comment.parameters:
            line = wrapped(f"{', '.join(names)}: {text}", WIDTH - 4, "    ", "    ")
            if "in" in direction:
                ins += line
            if "out" in direction:
                outs += line
        if comment.returns and self.outputs(function):
            outs = wrapped(f"{self.code_name(function)}: {comment.returns}", WIDTH - 4, "    ", "    ") + outs
        elif comment.returns:
            outs = wrapped(comment.returns, WIDTH - 4, "    ") + outs
        lines += ["", "Args:"] + ins if ins else []
        lines += ["", "Returns:"] + outs if outs else []
        lines += ["", f"See also: {comment.see}"] if comment.see else []
        if len(lines) == 1 and len(lines[0]) < WIDTH - 10:
            return [f'    """{lines[0]}"""']
        return [f'    """{lines[0]}'] + [("    " + line).rstrip() for line in lines[1:]] + ['    """']

    def result_class(self, function: Function) -> List[str]:
        lines = ["", "", f"class {function.name}_result(NamedTuple):",
                 f'    """What {function.name}() returns."""', ""]
        if self.code_name(function):
            lines.append(f"    {self.code_name(function)}: {self.type_of(function.result)}")
        for parameter in self.outputs(function):
            ignore = "  # type: ignore[assignment]" if parameter.name == "count" else ""
            lines.append(f"    {name_of(parameter)}: {self.result_type(parameter)}{ignore}")
        return lines

    def room(self, parameter: Parameter) -> str:
        """The storage that an output is written to."""
        kind, name = parameter.type, name_of(parameter)
        if parameter.direction == "in,out":
            if parameter.is_array:
                pointer = "pointer_to_" if parameter.pointers == 2 else ""
                maker = "points" if kind == "DTPOINT" else "doubles"
                return f'_convert.{pointer}{maker}({name}, {parameter.size}, "{name}")'
            if kind == "DTPOINT":
                return f"_convert.point({name})"
            if kind in self.records:
                return f"_convert.copy({name})"
            return f"{CHECKED[kind]}.from_param({name})" if kind in CHECKED \
                else f"{self.c_type(kind)}({name})"
        if parameter.is_array:
            maker = "point_room" if kind == "DTPOINT" else "double_room"
            size = parameter.size if parameter.size.isdigit() else f"max({parameter.size}, 0)"
            size = size.replace("count", "_count.value")
            return f"_convert.{maker}({size})"
        if kind == "DTPOINT":
            return "_convert.point_room(1)[0]"
        if kind in self.records:
            return f"_convert.blank({kind})"
        return "_convert.double_room(1)" if kind == "double" else f"{self.c_type(kind)}()"

    def argument(self, parameter: Parameter) -> str:
        name = name_of(parameter)
        if parameter.direction != "in":
            return f"_{name}"
        if parameter.is_array:
            maker = "points" if parameter.type == "DTPOINT" else "doubles"
            text = f'_convert.{maker}({name}, {parameter.size}, "{name}")'
            return f"None if {name} is None else {text}" if self.may_be_null(parameter) else text
        if parameter.type == "DTPOINT":
            return f"_convert.point({name})"
        if parameter.type == "DTCOMPLEX":
            return f"_convert.DTCOMPLEX({name}.real, {name}.imag)"
        return f"_{name}" if parameter.type in self.callbacks else name

    def value(self, parameter: Parameter) -> str:
        """An output as Python's own."""
        name = f"_{name_of(parameter)}"
        if parameter.pointers == 2:
            return f"_convert.as_points({name}, {parameter.size})"
        if parameter.is_array:
            return f"_convert.as_points({name})" if parameter.type == "DTPOINT" else f"list({name})"
        if parameter.type == "DTPOINT":
            return f"Point({name}.x, {name}.y)"
        if parameter.type == "double" and parameter.direction == "out":
            return f"{name}[0]"
        return name if parameter.type in self.records else f"{name}.value"

    def signature(self, function: Function) -> List[str]:
        """Points that come last and are read and written may be left out."""
        words: List[str] = []
        optional = True
        for parameter in reversed(self.inputs(function)):
            optional = optional and parameter.direction == "in,out" and parameter.type == "DTPOINT" \
                and not parameter.is_array
            words.insert(0, f"{name_of(parameter)}: {self.argument_type(parameter)}"
                         + " = NOWHERE" * optional)
        one = f"def {function.name}({', '.join(words)}) -> {self.returns(function)}:"
        if len(one) <= WIDTH + 4:
            return [one]
        return [f"def {function.name}("] + [f"    {word}," for word in words] + \
            [f") -> {self.returns(function)}:"]

    def call(self, function: Function) -> List[str]:
        outs = self.outputs(function)
        lines = []
        for parameter in function.parameters:
            if parameter.type in self.callbacks:
                name = name_of(parameter)
                lines.append(f"    _{name} = _convert.Callback({name}, _{parameter.type}, _of_library)")
        # What is read and written may tell the size of what is written.
        lines += [f"    _{name_of(p)} = {self.room(p)}"
                  for p in sorted(outs, key=lambda p: p.direction != "in,out")]
        calls = [f"_{name_of(p)}.pointer" if p.type in self.callbacks else self.argument(p)
                 for p in function.parameters]
        call = f"_lib.{function.name}({', '.join(calls)})"
        if not outs:
            if function.result == "DTCOMPLEX":
                return lines + [f"    _root = {call}", "    return complex(_root.re, _root.im)"]
            if function.returns_size:
                size = function.returns_size
                return lines + [f"    _table = ctypes.cast({call}, ctypes.POINTER(ctypes.c_double * {size}))",
                                "    return _table.contents"]
            if function.result == "void":
                return lines + [f"    {call}"]
            return lines + [f"    return {self.type_of(function.result)}({call})"]
        values = [self.value(p) for p in outs]
        code = self.code_name(function)
        lines.append(f"    {'_code = ' if code else ''}{call}")
        lines += [f"    _{name_of(p)}.settle()" for p in function.parameters if p.type in self.callbacks]
        if code:
            values.insert(0, "_code")
        return lines + [f"    return {function.name}_result({', '.join(values)})"]

    def prototype(self, function: Function) -> List[str]:
        types = []
        for parameter in function.parameters:
            kind = self.c_type(parameter.type)
            if not parameter.pointers:
                kind = CHECKED.get(parameter.type, kind)
            for _ in range(parameter.pointers):
                kind = f"ctypes.POINTER({kind})"
            types.append(kind)
        result = "None" if function.result == "void" else self.c_type(function.result.rstrip(" *"))
        if "*" in function.result:
            result = f"ctypes.POINTER({result})"
        one = f"_lib.{function.name}.argtypes = [{', '.join(types)}]"
        return broken(one, "") + [f"_lib.{function.name}.restype = {result}"]

    def callback(self, callback: Function) -> List[str]:
        """A callable of the inputs that returns the output."""
        kinds = [self.c_type(p.type) for p in callback.parameters]
        kinds = [f"ctypes.POINTER({k})" * p.pointers or k for k, p in zip(kinds, callback.parameters)]
        ins = ", ".join(self.type_of(p.type) for p in self.inputs(callback))
        out = self.type_of(self.outputs(callback)[0].type)
        results = "".join(f', "{name}_result"' for name in self.of_library(callback))
        return ["", ""] + ["# " + line for line in description(callback.comment, WIDTH - 2)] + [
            "# Here: a callable that returns the value, or one of the library's own. What it raises",
            "# ends the call and comes out of it.",
            f"{callback.name} = Callable[[{ins}], Union[{out}{results}]]",
        ] + broken(f"_{callback.name} = ctypes.CFUNCTYPE({self.c_type(callback.result)}, "
                   f"{', '.join(kinds)})", "")

    def of_library(self, callback: Function) -> List[str]:
        """The functions that may be passed as this callback."""
        def shape(function: Function) -> List[object]:
            return [function.result] + [(p.type, p.pointers, p.direction) for p in function.parameters]
        return [f.name for f in self.header.functions if shape(f) == shape(callback)]

    def module(self) -> str:
        header = self.header
        lines = ['"""The functions of the library."""', "", f"# {NOTICE}", "",
                 "import ctypes",
                 "from typing import Callable, Dict, List, NamedTuple, Optional, Sequence, Union", "",
                 "from . import _convert", "from ._convert import NOWHERE, Point, PointLike",
                 "from ._loader import library", "", "_lib = library()", ""]
        for constant in header.constants:
            text = " ".join(constant.comment.paragraphs)
            lines += ["# " + line for line in wrapped(text, WIDTH - 2)]
            lines.append(f"{constant.name} = 0x{constant.value:08X}")
        for record in header.records:
            if record.name not in ("DTPOINT", "DTCOMPLEX"):
                lines += self.record(record)
        body: List[str] = []
        for item in by_group(header.functions):
            if isinstance(item, str):
                body += ["", "", f"# {item}"]
                continue
            if self.outputs(item):
                body += self.result_class(item)
            body += ["", ""] + self.signature(item) + self.docstring(item)
            for line in self.call(item):
                body += broken(line, "    ")
        callbacks: List[str] = []
        own: List[str] = ["", "", "_of_library: Dict[object, object] = {"]
        for callback in header.callbacks:
            callbacks += self.callback(callback)
            own += [f"    {name}: _lib.{name}," for name in self.of_library(callback)]
        own.append("}")
        public = [f.name for f in header.functions] + [f"{f.name}_result" for f in header.functions
                                                       if self.outputs(f)]
        public += [c.name for c in header.constants] + [c.name for c in header.callbacks]
        public += [r.name for r in header.records if r.name not in ("DTPOINT", "DTCOMPLEX")]
        prototypes: List[str] = ["", ""]
        for function in header.functions:
            prototypes += self.prototype(function)
        exported = ["", "__all__ = ["] + [f'    "{name}",' for name in public] + ["]"]
        return "\n".join(lines + callbacks + body + own + prototypes + exported) + "\n"


def broken(line: str, indent: str) -> List[str]:
    """A call or list that is too long for a line, one that is indented once more."""
    if len(line) <= WIDTH + 4:
        return [line]
    opening = min(i for i in (line.find("("), line.find("[")) if i >= 0)
    head, inner, tail = line[: opening + 1], line[opening + 1 : -1], line[-1]
    return [head] + wrapped(inner, WIDTH, indent + "    ") + [indent + tail]


def emit(header: Header) -> dict:
    version = f'"""The version of the library that this binding is of."""\n\n# {NOTICE}\n\n' \
              f'__version__ = "{header.version}"\n'
    return {"python/planegeo/_functions.py": Emitter(header).module(),
            "python/planegeo/_version.py": version}

"""Between Python's values and the library's storage.

Storage for outputs begins as NaN (integers as 0), so that what a function leaves untouched shows.
"""

import ctypes
import math
from typing import Any, Callable, Dict, List, NamedTuple, Optional, Sequence, Type, TypeVar, Union


class Point(NamedTuple):
    """A point or vector; functions take any two numbers in its place."""

    x: float
    y: float


PointLike = Union[Point, Sequence[float]]

NOWHERE = Point(math.nan, math.nan)


class DTPOINT(ctypes.Structure):
    _fields_ = [("x", ctypes.c_double), ("y", ctypes.c_double)]


class DTCOMPLEX(ctypes.Structure):
    _fields_ = [("re", ctypes.c_double), ("im", ctypes.c_double)]


class Record(ctypes.Structure):
    """A record of the library, with equality and a text by its fields."""

    def _values(self) -> Dict[str, Any]:
        names = [field[0] for field in self._fields_]
        return {name: getattr(self, name) for name in names if not name.startswith("_")}

    def __eq__(self, other: object) -> bool:
        return isinstance(other, type(self)) and self._values() == other._values()

    def __repr__(self) -> str:
        values = ", ".join(f"{name}={value!r}" for name, value in self._values().items())
        return f"{type(self).__name__}({values})"


AnyRecord = TypeVar("AnyRecord", bound=Record)


class _Integer:
    """An argument type that refuses what does not fit, where ctypes would cut it off."""

    def __init__(self, kind: Any) -> None:
        self._kind = kind

    def from_param(self, value: int) -> Any:
        fitted = self._kind(value)
        if fitted.value != value:
            raise OverflowError(f"{value} does not fit into {8 * ctypes.sizeof(fitted)} bits")
        return fitted


INT16: Any = _Integer(ctypes.c_int16)
INT32: Any = _Integer(ctypes.c_int32)
UINT16: Any = _Integer(ctypes.c_uint16)
UINT32: Any = _Integer(ctypes.c_uint32)


def point(value: PointLike) -> DTPOINT:
    x, y = value
    return DTPOINT(x, y)


def _enough(values: Sequence[Any], size: int, name: str) -> None:
    if len(values) < size:
        raise ValueError(f"{name} has {len(values)} elements, not {size}")


def points(values: Sequence[PointLike], size: int, name: str) -> "ctypes.Array[DTPOINT]":
    _enough(values, size, name)
    return (DTPOINT * len(values))(*(point(value) for value in values))


def doubles(values: Sequence[float], size: int, name: str) -> "ctypes.Array[ctypes.c_double]":
    _enough(values, size, name)
    return (ctypes.c_double * len(values))(*values)


def pointer_to_points(values: Sequence[PointLike], size: int, name: str) -> Any:
    return ctypes.pointer(ctypes.cast(points(values, size, name), ctypes.POINTER(DTPOINT)))


def point_room(size: int) -> "ctypes.Array[DTPOINT]":
    return (DTPOINT * size)(*[DTPOINT(*NOWHERE)] * size)


def double_room(size: int) -> "ctypes.Array[ctypes.c_double]":
    return (ctypes.c_double * size)(*[math.nan] * size)


def blank(kind: Type[AnyRecord]) -> AnyRecord:
    record = kind()
    for name, value in record._values().items():
        if isinstance(value, float):
            setattr(record, name, math.nan)
    return record


def copy(record: AnyRecord) -> AnyRecord:
    return type(record).from_buffer_copy(record)


def as_points(array: Any, size: Optional[int] = None) -> List[Point]:
    """The points of an array, or of one whose address is pointed at."""
    if size is not None:
        return [Point(p.x, p.y) for p in array.contents[: max(size, 0)]]
    return [Point(p.x, p.y) for p in array]


class Callback:
    """A Python callable as a function pointer; what it raises ends the call and comes out of it."""

    RAISED = -(2**31)

    def __init__(self, function: Callable[..., Any], kind: Any, of_library: Dict[Any, Any]) -> None:
        self.raised: Optional[BaseException] = None
        own = of_library.get(function)
        self.pointer = ctypes.cast(own, kind) if own else kind(self._call)
        self._function = function

    def _call(self, *arguments: Any) -> int:
        *inputs, output = arguments
        try:
            output[0] = self._function(*inputs)
        except BaseException as error:
            self.raised = error
            return self.RAISED
        return 0

    def settle(self) -> None:
        if self.raised is not None:
            raise self.raised

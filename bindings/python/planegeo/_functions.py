"""The functions of the library."""

# Generated from include/planegeo.h by bindings/generate.py. Do not edit.

import ctypes
from typing import Callable, Dict, List, NamedTuple, Optional, Sequence, Union

from . import _convert
from ._convert import NOWHERE, Point, PointLike
from ._loader import library

_lib = library()

# Bit of an attribute word: the element is reversed, its start and end swap roles.
PLANEGEO_ATTR_REVERSED = 0x20000000
# Bit of an attribute word: when exactly one of this and PLANEGEO_ATTR_REVERSED is set, an arc's
# range is taken from its end to its start.
PLANEGEO_ATTR_CLOCKWISE = 0x10000000


class DTLINE(_convert.Record):
    """A line segment.

    Attributes:
        attr: the host's attribute word
        x1: first point
        y1: first point
        x2: second point
        y2: second point
    """

    _fields_ = [
        ("attr", ctypes.c_uint32),
        ("_gap4", ctypes.c_byte * 4),
        ("x1", ctypes.c_double),
        ("y1", ctypes.c_double),
        ("x2", ctypes.c_double),
        ("y2", ctypes.c_double),
    ]
    attr: int
    x1: float
    y1: float
    x2: float
    y2: float

    def __init__(
        self,
        attr: int = 0,
        x1: float = 0.0,
        y1: float = 0.0,
        x2: float = 0.0,
        y2: float = 0.0,
    ) -> None:
        super().__init__(attr=attr, x1=x1, y1=y1, x2=x2, y2=y2)


class DTARC(_convert.Record):
    """A circle or circular arc; an end 360 above the start is a full circle.

    Attributes:
        attr: the host's attribute word
        cx: centre
        cy: centre
        r: radius
        start: degrees
        end: degrees
    """

    _fields_ = [
        ("attr", ctypes.c_uint32),
        ("_gap4", ctypes.c_byte * 4),
        ("cx", ctypes.c_double),
        ("cy", ctypes.c_double),
        ("r", ctypes.c_double),
        ("start", ctypes.c_double),
        ("end", ctypes.c_double),
    ]
    attr: int
    cx: float
    cy: float
    r: float
    start: float
    end: float

    def __init__(
        self,
        attr: int = 0,
        cx: float = 0.0,
        cy: float = 0.0,
        r: float = 0.0,
        start: float = 0.0,
        end: float = 0.0,
    ) -> None:
        super().__init__(attr=attr, cx=cx, cy=cy, r=r, start=start, end=end)


class DTELLIPSE(_convert.Record):
    """An ellipse or elliptic arc. The point at the parametric angle t is the centre plus (a/2 cos
    t, b/2 sin t) turned by rot. The first axis need not be the longer one, except where a
    function asks for it.

    Attributes:
        attr: the host's attribute word
        cx: centre
        cy: centre
        a: full length of the first axis
        b: full length of the second axis
        start: parametric angle, degrees
        end: parametric angle, degrees
        rot: rotation of the first axis, degrees anticlockwise from x
    """

    _fields_ = [
        ("attr", ctypes.c_uint32),
        ("_gap4", ctypes.c_byte * 4),
        ("cx", ctypes.c_double),
        ("cy", ctypes.c_double),
        ("a", ctypes.c_double),
        ("b", ctypes.c_double),
        ("start", ctypes.c_double),
        ("end", ctypes.c_double),
        ("rot", ctypes.c_double),
    ]
    attr: int
    cx: float
    cy: float
    a: float
    b: float
    start: float
    end: float
    rot: float

    def __init__(
        self,
        attr: int = 0,
        cx: float = 0.0,
        cy: float = 0.0,
        a: float = 0.0,
        b: float = 0.0,
        start: float = 0.0,
        end: float = 0.0,
        rot: float = 0.0,
    ) -> None:
        super().__init__(attr=attr, cx=cx, cy=cy, a=a, b=b, start=start, end=end, rot=rot)


# An integrand: writes its value at an angle in degrees and returns 0; any other code ends the
# integration, which returns it.
# Here: a callable that returns the value, or one of the library's own. What it raises
# ends the call and comes out of it.
PLANEGEO_INTEGRAND = Callable[[float], Union[float, "ca_lengelp_result", "ca_AreaElp_result"]]
_PLANEGEO_INTEGRAND = ctypes.CFUNCTYPE(
    ctypes.c_int32, ctypes.c_double, ctypes.POINTER(ctypes.c_double)
)


# Settings


def ca_geterrdist() -> float:
    """Returns the distance tolerance errdist.

    Returns:
        drawing units; 1e-6 at load
    """
    return float(_lib.ca_geterrdist())


def ca_seterrdist(tolerance: float) -> None:
    """Sets the distance tolerance errdist.

    The value is stored as it is: with zero or a negative value no distance counts as small any
    more, so that no point lies on a line, no two lines are parallel, and the guards against
    zero lengths are off (non-finite outputs follow).

    Args:
        tolerance: drawing units
    """
    _lib.ca_seterrdist(tolerance)


def ca_GetStartendFlg() -> int:
    """Returns the flag of ca_SetStartendFlg().

    Returns:
        the flag as it was set; 0 at load
    """
    return int(_lib.ca_GetStartendFlg())


def ca_SetStartendFlg(flag: int) -> None:
    """Chooses which end of an element a2d_InsDl(), a2d_InsDc() and a2d_InsDe() keep.

    Args:
        flag: 1 the start; every other value the end
    """
    _lib.ca_SetStartendFlg(flag)


def ca_Simpson_getParmtbl() -> "ctypes.Array[ctypes.c_double]":
    """Returns the parameter table of the Simpson integrands: ten doubles, zero at load. The
    library reads it and never writes it.

    The host stores half the first axis in slot 0 and half the second in slot 1 before it
    measures an ellipse; slots 2 to 9 are free for integrands of its own. The table is shared by
    all threads: do not measure two ellipses at once.

    Returns:
        the address of the table, the same at every call
    """
    _table = ctypes.cast(_lib.ca_Simpson_getParmtbl(), ctypes.POINTER(ctypes.c_double * 10))
    return _table.contents


# Degree trigonometry and angle ranges


def sind(deg: float) -> float:
    """Returns the sine of an angle.

    Args:
        deg: degrees

    Returns:
        [-1, 1]
    """
    return float(_lib.sind(deg))


def cosd(deg: float) -> float:
    """Returns the cosine of an angle.

    Args:
        deg: degrees

    Returns:
        [-1, 1]
    """
    return float(_lib.cosd(deg))


def tand(deg: float) -> float:
    """Returns the tangent of an angle.

    Args:
        deg: degrees

    Returns:
        the tangent; near 90 and 270 a huge value, not an infinity
    """
    return float(_lib.tand(deg))


def asind(v: float) -> float:
    """Returns the arc sine.

    Args:
        v: first clamped to [-1, 1]

    Returns:
        degrees, [-90, 90]
    """
    return float(_lib.asind(v))


def acosd(v: float) -> float:
    """Returns the arc cosine.

    Args:
        v: first clamped to [-1, 1]

    Returns:
        degrees, [0, 180]
    """
    return float(_lib.acosd(v))


def atand(v: float) -> float:
    """Returns the arc tangent.

    Args:
        v: any number

    Returns:
        degrees, [-90, 90]
    """
    return float(_lib.atand(v))


def atan2d(y: float, x: float) -> float:
    """Returns the direction of the vector (x, y).

    A direction so little below the x axis that it rounds up gives exactly 360; a negative zero
    passes through.

    Args:
        y, x: components of the vector, y first

    Returns:
        degrees, [0, 360]; 0 when both are zero
    """
    return float(_lib.atan2d(y, x))


class a2d_StdSedeg_result(NamedTuple):
    """What a2d_StdSedeg() returns."""

    code: int
    start: float
    end: float


def a2d_StdSedeg(start: float, end: float) -> a2d_StdSedeg_result:
    """Normalises the range of an arc in place.

    Both angles are reduced by whole turns; an end that is not above its start is then raised by
    a turn; a range that ends above 360 is lowered by a turn. Afterwards the end lies in (0,
    360], the start in (-360, 360), the span in (0, 360]. A negative start marks an arc that
    crosses 0: (350, 10) becomes (-10, 10), and (10, 10) becomes (-350, 10).

    Args:
        start, end: degrees; both are written always

    Returns:
        code: 1 when the reduced angles were equal within 1e-8 (a full circle), else 0
        start, end: degrees; both are written always

    See also: a2d_ChkDegr
    """
    _start = ctypes.c_double(start)
    _end = ctypes.c_double(end)
    _code = _lib.a2d_StdSedeg(_start, _end)
    return a2d_StdSedeg_result(_code, _start.value, _end.value)


def a2d_ChkDegr(start: float, end: float, angle: float) -> int:
    """Tells whether an angle lies on the arc that runs anticlockwise from start to end.

    Both ends belong to the arc, with 1e-8 degrees of slack; equal ends (within 1e-8, after
    reduction) mean the full circle. An arc that starts within 1e-8 below 360 and ends at 0
    accepts every angle.

    Args:
        start, end, angle: degrees, any finite value

    Returns:
        0 on the arc, 1 off it; 0 for an angle that is NaN
    """
    return int(_lib.a2d_ChkDegr(start, end, angle))


class a2d_GetBedeg_result(NamedTuple):
    """What a2d_GetBedeg() returns."""

    out_start: float
    out_end: float


def a2d_GetBedeg(dir1: int, dir2: int, a: float, b: float) -> a2d_GetBedeg_result:
    """Orders the two ends of an arc by two direction values.

    Args:
        dir1, dir2: any integers; only their equality counts
        a, b: the ends in the order of travel

    Returns:
        out_start, out_end: a and b when dir1 equals dir2, else b and a
    """
    _out_start = _convert.double_room(1)
    _out_end = _convert.double_room(1)
    _lib.a2d_GetBedeg(dir1, dir2, a, b, _out_start, _out_end)
    return a2d_GetBedeg_result(_out_start[0], _out_end[0])


# Points and vectors


class c_pnt_result(NamedTuple):
    """What c_pnt() returns."""

    code: int
    out: Point


def c_pnt(center: PointLike, point: PointLike, angle: float) -> c_pnt_result:
    """Turns a point about a centre.

    Args:
        center, point: the pivot and the point
        angle: degrees, anticlockwise

    Returns:
        code: always 0
        out: separate storage from point: its x is stored before its y is computed from the
            point, so a call in place gives a wrong y
    """
    _out = _convert.point_room(1)[0]
    _code = _lib.c_pnt(_convert.point(center), _convert.point(point), _out, angle)
    return c_pnt_result(_code, Point(_out.x, _out.y))


class ca_rvpnt_result(NamedTuple):
    """What ca_rvpnt() returns."""

    code: int
    out: Point


def ca_rvpnt(center: PointLike, point: PointLike, angle: float) -> ca_rvpnt_result:
    """The same function as c_pnt()."""
    _out = _convert.point_room(1)[0]
    _code = _lib.ca_rvpnt(_convert.point(center), _convert.point(point), _out, angle)
    return ca_rvpnt_result(_code, Point(_out.x, _out.y))


class pnt_std_result(NamedTuple):
    """What pnt_std() returns."""

    code: int
    out: Point


def pnt_std(point: PointLike, origin: PointLike, angle: float) -> pnt_std_result:
    """Carries a point into a local frame: subtracts the origin, then turns by +angle.

    Args:
        point, origin: drawing units
        angle: degrees; pass the negative rotation of the frame

    Returns:
        code: always 0
        out: R(angle) (point - origin)

    See also: pnt_formd, its inverse when given the opposite angle
    """
    _out = _convert.point_room(1)[0]
    _code = _lib.pnt_std(_convert.point(point), _convert.point(origin), angle, _out)
    return pnt_std_result(_code, Point(_out.x, _out.y))


class pnt_formd_result(NamedTuple):
    """What pnt_formd() returns."""

    code: int
    out: Point


def pnt_formd(point: PointLike, origin: PointLike, angle: float) -> pnt_formd_result:
    """Carries a point out of a local frame: turns by +angle, then adds the origin.

    Args:
        point, origin: drawing units
        angle: degrees, the rotation of the frame

    Returns:
        code: always 0
        out: R(angle) point + origin

    See also: pnt_std, its inverse when given the opposite angle
    """
    _out = _convert.point_room(1)[0]
    _code = _lib.pnt_formd(_convert.point(point), _convert.point(origin), angle, _out)
    return pnt_formd_result(_code, Point(_out.x, _out.y))


class pnt_mer_result(NamedTuple):
    """What pnt_mer() returns."""

    code: int
    out: Point


def pnt_mer(point: PointLike, line_p1: PointLike, line_p2: PointLike) -> pnt_mer_result:
    """Mirrors a point in the line through two points.

    Args:
        point: the point
        line_p1, line_p2: two points of the line; equal points are not checked for and give
            non-finite outputs

    Returns:
        code: always 0
        out: the mirror image
    """
    _out = _convert.point_room(1)[0]
    _code = _lib.pnt_mer(
        _convert.point(point), _convert.point(line_p1), _convert.point(line_p2), _out
    )
    return pnt_mer_result(_code, Point(_out.x, _out.y))


class ca_vmpnt_result(NamedTuple):
    """What ca_vmpnt() returns."""

    code: int
    out: Point


def ca_vmpnt(line_p1: PointLike, line_p2: PointLike, point: PointLike) -> ca_vmpnt_result:
    """As pnt_mer(), with the line before the point."""
    _out = _convert.point_room(1)[0]
    _code = _lib.ca_vmpnt(
        _convert.point(line_p1), _convert.point(line_p2), _convert.point(point), _out
    )
    return ca_vmpnt_result(_code, Point(_out.x, _out.y))


def ca_vcrad(from_: PointLike, to: PointLike) -> float:
    """Returns the direction from one point to another in radians.

    A component shorter than 1e-7 counts as zero: directions so close to an axis snap onto 0,
    pi/2, pi or 3 pi/2, and points so close to each other give 0.

    Args:
        from, to: the points

    Returns:
        radians, [0, 2 pi]
    """
    return float(_lib.ca_vcrad(_convert.point(from_), _convert.point(to)))


def ca_dstpt(p: PointLike, q: PointLike) -> float:
    """Returns the distance of two points, the plain root of the sum of squares.

    Args:
        p, q: the points

    Returns:
        drawing units
    """
    return float(_lib.ca_dstpt(_convert.point(p), _convert.point(q)))


# Lines


class a2dCrs2L_result(NamedTuple):
    """What a2dCrs2L() returns."""

    code: int
    out: Point


def a2dCrs2L(a1: PointLike, a2: PointLike, b1: PointLike, b2: PointLike) -> a2dCrs2L_result:
    """Intersects two infinite lines.

    The lines are parallel when the cross product of their directions, as given and not scaled
    by their lengths, is below 1e-6: short segments count as parallel sooner than long ones.

    Args:
        a1, a2, b1, b2: two points of each line

    Returns:
        code: 1 found, 0 parallel
        out: the intersection; untouched when parallel

    See also: a2d_ins2l for segments and errdist
    """
    _out = _convert.point_room(1)[0]
    _code = _lib.a2dCrs2L(
        _convert.point(a1), _convert.point(a2), _convert.point(b1), _convert.point(b2), _out
    )
    return a2dCrs2L_result(_code, Point(_out.x, _out.y))


class a2d_ins2l_result(NamedTuple):
    """What a2d_ins2l() returns."""

    code: int
    out: Point


def a2d_ins2l(a1: PointLike, a2: PointLike, b1: PointLike, b2: PointLike) -> a2d_ins2l_result:
    """Intersects two lines and tells whether the point lies on both segments.

    With d the cross product of the directions, the lines are parallel when d divided by the
    length of the first and d divided by the length of the second are both below errdist. A
    segment of length zero is not parallel to anything and gives non-finite outputs. Ends belong
    to the segments within errdist.

    Args:
        a1, a2, b1, b2: the ends of each segment

    Returns:
        code: 0 the point lies on both segments, 1 outside at least one, 2 parallel
        out: the intersection of the infinite lines; (0, 0) when parallel

    See also: a2d_onlin for the test on each segment
    """
    _out = _convert.point_room(1)[0]
    _code = _lib.a2d_ins2l(
        _convert.point(a1), _convert.point(a2), _convert.point(b1), _convert.point(b2), _out
    )
    return a2d_ins2l_result(_code, Point(_out.x, _out.y))


class ca_ins2l_result(NamedTuple):
    """What ca_ins2l() returns."""

    code: int
    out: Point


def ca_ins2l(a1: PointLike, a2: PointLike, b1: PointLike, b2: PointLike) -> ca_ins2l_result:
    """The same function as a2d_ins2l()."""
    _out = _convert.point_room(1)[0]
    _code = _lib.ca_ins2l(
        _convert.point(a1), _convert.point(a2), _convert.point(b1), _convert.point(b2), _out
    )
    return ca_ins2l_result(_code, Point(_out.x, _out.y))


class aatCalCrs2l_result(NamedTuple):
    """What aatCalCrs2l() returns."""

    code: int
    rec: List[float]
    angles: List[float]


def aatCalCrs2l(rec: Sequence[float], angles: Sequence[float]) -> aatCalCrs2l_result:
    """Intersects two lines given by a point and a direction angle each.

    Only equal directions (within 1e-8) are told apart; opposite ones, or 0 against 360, have
    equal tangents and give non-finite or huge values. A direction within 1e-8 of 90 or 270
    counts as vertical.

    Args:
        rec: six doubles: x1, y1, x2, y2, then the result x, y; the result is untouched unless
            found
        angles: two doubles, degrees; each is brought into [0, 360] in place, found or not (360
            stays 360; beyond 2^56 degrees by the exact remainder; an infinity becomes NaN)

    Returns:
        code: 0 found, 2070 the same direction
        rec: six doubles: x1, y1, x2, y2, then the result x, y; the result is untouched unless
            found
        angles: two doubles, degrees; each is brought into [0, 360] in place, found or not (360
            stays 360; beyond 2^56 degrees by the exact remainder; an infinity becomes NaN)
    """
    _rec = _convert.doubles(rec, 6, "rec")
    _angles = _convert.doubles(angles, 2, "angles")
    _code = _lib.aatCalCrs2l(_rec, _angles)
    return aatCalCrs2l_result(_code, list(_rec), list(_angles))


class ca_perln_result(NamedTuple):
    """What ca_perln() returns."""

    code: int
    foot: Point
    dist: float


def ca_perln(a1: PointLike, a2: PointLike, p: PointLike) -> ca_perln_result:
    """Drops the perpendicular from a point onto a line.

    The foot counts as outside the segment when the product of its vectors to the two ends
    exceeds 1e-6, a product of distances and not errdist.

    Args:
        a1, a2: the segment
        p: the point

    Returns:
        code: 0 the foot lies on the segment, 1 outside it, -1 the segment is shorter than
            errdist
        foot: foot of the perpendicular on the infinite line; untouched when the result is -1
        dist: distance of p from the line; 0 when the result is -1
    """
    _foot = _convert.point_room(1)[0]
    _dist = _convert.double_room(1)
    _code = _lib.ca_perln(_convert.point(a1), _convert.point(a2), _convert.point(p), _foot, _dist)
    return ca_perln_result(_code, Point(_foot.x, _foot.y), _dist[0])


class ca_palds_result(NamedTuple):
    """What ca_palds() returns."""

    code: int
    out1: Point
    out2: Point


def ca_palds(a1: PointLike, a2: PointLike, d: float, side: int) -> ca_palds_result:
    """Moves a segment to its parallel at a distance.

    Args:
        a1, a2: the segment
        d: distance, drawing units
        side: 1 to the right of the direction from a1 to a2, -1 to the left; another value
            scales the distance

    Returns:
        code: 0 done; 1 when the ends coincide within errdist in x and in y, the outputs are
            then untouched
        out1, out2: a1 and a2 moved
    """
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _code = _lib.ca_palds(_convert.point(a1), _convert.point(a2), d, side, _out1, _out2)
    return ca_palds_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y))


class ca_posln_result(NamedTuple):
    """What ca_posln() returns."""

    code: int
    side: int


def ca_posln(a1: PointLike, a2: PointLike, p: PointLike) -> ca_posln_result:
    """Tells on which side of a line a point lies.

    The point counts as on the line when the cross product of the direction and its vector from
    a1, not divided by the length, is below errdist.

    Args:
        a1, a2: the line
        p: the point

    Returns:
        code: 0 done; 1 when a1 and a2 coincide within errdist in x and in y, side is then
            untouched
        side: 0 on the line, 1 right of the direction from a1 to a2, 65535 left of it
    """
    _side = ctypes.c_uint16()
    _code = _lib.ca_posln(_convert.point(a1), _convert.point(a2), _convert.point(p), _side)
    return ca_posln_result(_code, _side.value)


def a2d_onlin(p1: PointLike, p2: PointLike, q: PointLike) -> int:
    """Tells whether a point lies on a segment, within errdist.

    The ends are asked first, so a point at the end of a segment of length zero is on it.

    Args:
        p1, p2: the segment
        q: the point

    Returns:
        0 on the segment, ends included; 1 off it; -1 the segment is shorter than errdist
    """
    return int(_lib.a2d_onlin(_convert.point(p1), _convert.point(p2), _convert.point(q)))


def ca_onlin(p1: PointLike, p2: PointLike, q: PointLike) -> int:
    """The same function as a2d_onlin()."""
    return int(_lib.ca_onlin(_convert.point(p1), _convert.point(p2), _convert.point(q)))


class ca_DistAlongbyLineFromSpnt_result(NamedTuple):
    """What ca_DistAlongbyLineFromSpnt() returns."""

    code: int
    out: Point


def ca_DistAlongbyLineFromSpnt(
    start: PointLike,
    end: PointLike,
    dist: float,
) -> ca_DistAlongbyLineFromSpnt_result:
    """Finds the point at a distance along a segment.

    Args:
        start, end: the segment
        dist: distance from start; at or beyond the length it gives end

    Returns:
        code: 1 done; 0 when start or end is null, or dist is negative
        out: the point; untouched when the result is 0
    """
    _out = _convert.point_room(1)[0]
    _code = _lib.ca_DistAlongbyLineFromSpnt(_convert.point(start), _convert.point(end), dist, _out)
    return ca_DistAlongbyLineFromSpnt_result(_code, Point(_out.x, _out.y))


class a2d_InsDl_result(NamedTuple):
    """What a2d_InsDl() returns."""

    code: int
    out: Point


def a2d_InsDl(elem: DTLINE, cut: DTLINE) -> a2d_InsDl_result:
    """Selects the end of a line to keep where it is cut by a collinear line.

    The end is the first point of elem when the flag of ca_SetStartendFlg() is 1, else its
    second point. The attribute words are not read.

    Args:
        elem: the line whose end is wanted
        cut: the cutting line; of length zero it counts as not collinear

    Returns:
        code: 1 chosen; 0 that end is not on cut (see a2d_onlin()); -1 an end of elem is not
            nearer than errdist to the infinite line of cut
        out: the end; untouched unless the result is 1
    """
    _out = _convert.point_room(1)[0]
    _code = _lib.a2d_InsDl(elem, cut, _out)
    return a2d_InsDl_result(_code, Point(_out.x, _out.y))


def a2d_Chk3pnt(p1: PointLike, p2: PointLike, p3: PointLike) -> int:
    """Tells where the projection of a point onto a line falls against a segment.

    The tolerance at the ends is errdist, or half the distance of p3 from p1 where that is below
    errdist.

    Args:
        p1, p2: the segment; equal points give 3
        p3: the point

    Returns:
        3 on the segment or within the tolerance of an end; 1 beyond p2; 2 before p1; 0 only for
        non-finite input
    """
    return int(_lib.a2d_Chk3pnt(_convert.point(p1), _convert.point(p2), _convert.point(p3)))


# Lines with circles and arcs


class cross_lin_cir_result(NamedTuple):
    """What cross_lin_cir() returns."""

    code: int
    out1: Point
    out2: Point
    count: int  # type: ignore[assignment]


def cross_lin_cir(
    a1: PointLike,
    a2: PointLike,
    center: PointLike,
    r: float,
) -> cross_lin_cir_result:
    """Intersects the infinite line through a1 and a2 with a full circle.

          out2        out1
    a1 ----o-----------o----> a2

    The line is tangent when its distance from the centre differs from r by less than errdist,
    to either side; the one point is then the foot of the perpendicular from the centre.

    Args:
        a1, a2: two points of the line; equal points are not checked for and give two non-finite
            outputs
        center, r: the circle; a radius that is not positive has at most the tangent point

    Returns:
        code: always 0; the outcome is count
        out1: the point further along the direction from a1 to a2
        out2: the other point; the same point when tangent
        count: 2; 1 when tangent; 0 when the line misses the circle, and out1 and out2 are then
            untouched

    See also: a2d_lin_arc for the checked form that keeps an arc or a segment
    """
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _count = ctypes.c_uint16()
    _code = _lib.cross_lin_cir(
        _convert.point(a1), _convert.point(a2), _convert.point(center), r, _out1, _out2, _count
    )
    return cross_lin_cir_result(
        _code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y), _count.value
    )


class a2d_lin_arc_result(NamedTuple):
    """What a2d_lin_arc() returns."""

    code: int
    out1: Point
    out2: Point
    count: int  # type: ignore[assignment]


def a2d_lin_arc(
    mode: int,
    a1: PointLike,
    a2: PointLike,
    center: PointLike,
    r: float,
    angles: Optional[Sequence[float]],
) -> a2d_lin_arc_result:
    """Intersects a line or segment with a circle or arc.

    Args:
        mode: 0 line and circle, 1 line and arc, 2 segment and circle, 3 segment and arc; every
            other value as 0
        a1, a2: the line
        center, r: the circle
        angles: start and end of the arc, degrees; read in modes 1 and 3 only, may be null
            otherwise

    Returns:
        code: 0 done, with or without points; 1 invalid input: r is not positive, or a1 and a2
            coincide within errdist in x and in y
        out1, out2: the points kept, the one further along the direction from a1 to a2 first; a
            single point in both; (0, 0) in both when none is kept, also after invalid input
        count: number of points kept
    """
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _count = ctypes.c_uint16()
    _code = _lib.a2d_lin_arc(
        mode, _convert.point(a1), _convert.point(a2), _convert.point(center), r, None if angles
        is None else _convert.doubles(angles, 2, "angles"), _out1, _out2, _count
    )
    return a2d_lin_arc_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y), _count.value)


class a2dCrsLC_result(NamedTuple):
    """What a2dCrsLC() returns."""

    code: int
    out: List[Point]


def a2dCrsLC(a1: PointLike, a2: PointLike, center: PointLike, r: float) -> a2dCrsLC_result:
    """Intersects an infinite line with a full circle, as a2d_lin_arc() in mode 0.

    Args:
        a1, a2, center, r: the line and the circle

    Returns:
        code: the number of points, 0 to 2; 0 after invalid input
        out: two points, filled as out1 and out2 there: both always
    """
    _out = _convert.point_room(2)
    _code = _lib.a2dCrsLC(_convert.point(a1), _convert.point(a2), _convert.point(center), r, _out)
    return a2dCrsLC_result(_code, _convert.as_points(_out))


class ca_crslc_result(NamedTuple):
    """What ca_crslc() returns."""

    code: int
    out1: Point
    out2: Point
    count: int  # type: ignore[assignment]


def ca_crslc(a1: PointLike, a2: PointLike, center: PointLike, r: float) -> ca_crslc_result:
    """Intersects an infinite line with a full circle, as a2d_lin_arc() in mode 0.

    Args:
        a1, a2, center, r: the line and the circle

    Returns:
        code: 0 at least one point; 2071 none, for whatever reason
        out1, out2, count: as there
    """
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _count = ctypes.c_uint16()
    _code = _lib.ca_crslc(
        _convert.point(a1), _convert.point(a2), _convert.point(center), r, _out1, _out2, _count
    )
    return ca_crslc_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y), _count.value)


class ca_crslc2_result(NamedTuple):
    """What ca_crslc2() returns."""

    code: int
    out1: Point
    out2: Point
    count: int  # type: ignore[assignment]


def ca_crslc2(
    a1: PointLike,
    a2: PointLike,
    center: PointLike,
    r: float,
    angles: Sequence[float],
) -> ca_crslc2_result:
    """Intersects an infinite line with an arc, as a2d_lin_arc() in mode 1.

    Args:
        a1, a2, center, r, angles: the line and the arc

    Returns:
        code: 0 at least one point; 2071 none, for whatever reason
        out1, out2, count: as there

    See also: sb_inslc, the same with the result of a2d_lin_arc()
    """
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _count = ctypes.c_uint16()
    _code = _lib.ca_crslc2(
        _convert.point(a1), _convert.point(a2), _convert.point(center), r,
        _convert.doubles(angles, 2, "angles"), _out1, _out2, _count
    )
    return ca_crslc2_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y), _count.value)


class ca_inslc_result(NamedTuple):
    """What ca_inslc() returns."""

    code: int
    out1: Point
    out2: Point
    count: int  # type: ignore[assignment]


def ca_inslc(
    a1: PointLike,
    a2: PointLike,
    center: PointLike,
    r: float,
    angles: Sequence[float],
) -> ca_inslc_result:
    """Intersects a segment with an arc, as a2d_lin_arc() in mode 3.

    Args:
        a1, a2, center, r, angles: the segment and the arc

    Returns:
        code: as there: 0 done, with or without points; 1 invalid input
        out1, out2, count: as there
    """
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _count = ctypes.c_uint16()
    _code = _lib.ca_inslc(
        _convert.point(a1), _convert.point(a2), _convert.point(center), r,
        _convert.doubles(angles, 2, "angles"), _out1, _out2, _count
    )
    return ca_inslc_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y), _count.value)


class a2d_inslc_result(NamedTuple):
    """What a2d_inslc() returns."""

    code: int
    out1: Point
    out2: Point
    count: int  # type: ignore[assignment]


def a2d_inslc(
    a1: PointLike,
    a2: PointLike,
    center: PointLike,
    r: float,
    angles: Sequence[float],
) -> a2d_inslc_result:
    """The same function as ca_inslc()."""
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _count = ctypes.c_uint16()
    _code = _lib.a2d_inslc(
        _convert.point(a1), _convert.point(a2), _convert.point(center), r,
        _convert.doubles(angles, 2, "angles"), _out1, _out2, _count
    )
    return a2d_inslc_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y), _count.value)


class sb_inslc_result(NamedTuple):
    """What sb_inslc() returns."""

    code: int
    out1: Point
    out2: Point
    count: int  # type: ignore[assignment]


def sb_inslc(
    a1: PointLike,
    a2: PointLike,
    center: PointLike,
    r: float,
    angles: Sequence[float],
) -> sb_inslc_result:
    """Intersects an infinite line with an arc, as a2d_lin_arc() in mode 1.

    Args:
        a1, a2, center, r, angles: the line and the arc

    Returns:
        code: as there: 0 done, with or without points; 1 invalid input
        out1, out2, count: as there

    See also: ca_crslc2, the same with another result
    """
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _count = ctypes.c_uint16()
    _code = _lib.sb_inslc(
        _convert.point(a1), _convert.point(a2), _convert.point(center), r,
        _convert.doubles(angles, 2, "angles"), _out1, _out2, _count
    )
    return sb_inslc_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y), _count.value)


# Circles with circles


class a2dCrs2C_result(NamedTuple):
    """What a2dCrs2C() returns."""

    code: int
    out: List[float]


def a2dCrs2C(c1: PointLike, r1: float, c2: PointLike, r2: float) -> a2dCrs2C_result:
    """Intersects two full circles, with tolerances of its own.

    Circles touch when the distance of the centres differs from the sum or from the difference
    of the radii by at most 1e-6; the one point lies on the line of the centres, between equal
    radii (within 1e-12) midway. Centres nearer than 1e-6 count as concentric, without points
    even when the circles are equal.

    Args:
        c1, r1, c2, r2: centre and radius of each circle; radii are not checked

    Returns:
        code: the number of points, 0 to 2
        out: four doubles x, y, x, y. Of two points the first lies right of the direction from
            c1 to c2; the last two doubles are untouched with one point, all four with none

    See also: a2d_ins2c for arcs and errdist; mind the other order of arguments
    """
    _out = _convert.double_room(4)
    _code = _lib.a2dCrs2C(_convert.point(c1), r1, _convert.point(c2), r2, _out)
    return a2dCrs2C_result(_code, list(_out))


class a2d_ins2c_result(NamedTuple):
    """What a2d_ins2c() returns."""

    code: int
    out1: Point
    out2: Point
    count: int  # type: ignore[assignment]


def a2d_ins2c(
    c1: PointLike,
    c2: PointLike,
    r1: float,
    r2: float,
    angles1: Sequence[float],
    angles2: Sequence[float],
) -> a2d_ins2c_result:
    """Intersects two arcs, with errdist.

    Equal angles, or angles 360 apart (within 1e-8), mean the full circle. Arcs of one circle
    (centres and radii equal within errdist) meet only where one ends and the other begins:
    first the start of arc 1, then its end. An overlap has no point.

    Args:
        c1, c2, r1, r2: centres, then radii
        angles1, angles2: start and end of each arc, degrees

    Returns:
        code: 0 done, with or without points; 1 when the arcs are identical (radii, centres and
            angles within errdist) or a radius is not positive
        out1, out2: the points, the one right of the direction from c1 to c2 first; a single
            point in both. (0, 0) in both when the ranges keep none; untouched when the circles
            do not meet, when arcs of one circle share no end, and when the result is 1
        count: number of points, always written
    """
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _count = ctypes.c_uint16()
    _code = _lib.a2d_ins2c(
        _convert.point(c1), _convert.point(c2), r1, r2, _convert.doubles(angles1, 2, "angles1"),
        _convert.doubles(angles2, 2, "angles2"), _out1, _out2, _count
    )
    return a2d_ins2c_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y), _count.value)


class ca_ins2c_result(NamedTuple):
    """What ca_ins2c() returns."""

    code: int
    out1: Point
    out2: Point
    count: int  # type: ignore[assignment]


def ca_ins2c(
    c1: PointLike,
    c2: PointLike,
    r1: float,
    r2: float,
    angles1: Sequence[float],
    angles2: Sequence[float],
) -> ca_ins2c_result:
    """As a2d_ins2c(), but a range is a full circle only when its ends are exactly equal or exactly
    360 apart.
    """
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _count = ctypes.c_uint16()
    _code = _lib.ca_ins2c(
        _convert.point(c1), _convert.point(c2), r1, r2, _convert.doubles(angles1, 2, "angles1"),
        _convert.doubles(angles2, 2, "angles2"), _out1, _out2, _count
    )
    return ca_ins2c_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y), _count.value)


# Arcs: construction and queries


class ca_arc3p_result(NamedTuple):
    """What ca_arc3p() returns."""

    code: int
    center: Point
    r: float
    angles: List[float]


def ca_arc3p(p1: PointLike, p2: PointLike, p3: PointLike) -> ca_arc3p_result:
    """Finds the arc that runs from p1 by p2 to p3.

    The angles always run anticlockwise: points that turn clockwise give the arc from p3 to p1.
    The points make no arc when two are nearer than errdist, or when the sines of all three
    angles between their sides are below 0.0001.

    Args:
        p1, p2, p3: start, a point on the arc, end

    Returns:
        code: 0 done; 1 no arc
        center, r: the circle; untouched when the result is 1
        angles: start and end, degrees, each in [0, 360], the start above the end where the arc
            crosses 0; (0, 0) when the result is 1

    See also: ca_arcan to normalise the angles
    """
    _center = _convert.point_room(1)[0]
    _r = _convert.double_room(1)
    _angles = _convert.double_room(2)
    _code = _lib.ca_arc3p(
        _convert.point(p1), _convert.point(p2), _convert.point(p3), _center, _r, _angles
    )
    return ca_arc3p_result(_code, Point(_center.x, _center.y), _r[0], list(_angles))


class ca_arc2pratio_result(NamedTuple):
    """What ca_arc2pratio() returns."""

    code: int
    center: Point
    r: float
    angles: List[float]


def ca_arc2pratio(
    dir: int,
    ratio: float,
    x1: float,
    y1: float,
    x2: float,
    y2: float,
) -> ca_arc2pratio_result:
    """Finds the arc over a chord whose height is a multiple of the chord's length.

    Args:
        dir: 0 the arc lies left of the direction from the first to the second point; every
            other value right of it
        ratio: height over chord; 0.5 is a half circle, a negative value changes the side; below
            1e-6 in magnitude there is no arc
        x1, y1, x2, y2: first and second end of the chord, 0.003 units or longer; nor may the
            middle of the arc be nearer than 0.0015 to an end

    Returns:
        code: 0 done; 1 no arc
        center, r: the circle; untouched when the result is 1
        angles: start and end, degrees, as ca_arcan() leaves them. When the result is 1:
            untouched if a limit above is the reason, (0, 0) if ca_arc3p() finds no arc
    """
    _center = _convert.point_room(1)[0]
    _r = _convert.double_room(1)
    _angles = _convert.double_room(2)
    _code = _lib.ca_arc2pratio(dir, ratio, x1, y1, x2, y2, _center, _r, _angles)
    return ca_arc2pratio_result(_code, Point(_center.x, _center.y), _r[0], list(_angles))


class ca_arcan_result(NamedTuple):
    """What ca_arcan() returns."""

    code: int
    start: float
    end: float


def ca_arcan(start: float, end: float) -> ca_arcan_result:
    """Normalises the angles of an arc in place, keeping 360.

    Ends more than 359.999999 apart, as given or afterwards, become (0, 360): so does (700, 10).
    Otherwise each is brought into [0, 360], an end below its start is raised by a turn, and a
    range that ends above 360 is lowered by one: (270, 90) becomes (-90, 90). Equal angles stay
    an arc without extent.

    Args:
        start, end: degrees; beyond 2^56 by the exact remainder, and two infinities of one sign
            become NaN

    Returns:
        code: always 0
        start, end: degrees; beyond 2^56 by the exact remainder, and two infinities of one sign
            become NaN

    See also: a2d_StdSedeg, for which equal angles are the full circle
    """
    _start = ctypes.c_double(start)
    _end = ctypes.c_double(end)
    _code = _lib.ca_arcan(_start, _end)
    return ca_arcan_result(_code, _start.value, _end.value)


class ca_arccd_result(NamedTuple):
    """What ca_arccd() returns."""

    code: int
    pstart: Point
    pend: Point


def ca_arccd(center: PointLike, r: float, angles: Sequence[float]) -> ca_arccd_result:
    """Finds the ends of an arc whose angles are radians.

    Args:
        center, r: the circle
        angles: start and end in radians

    Returns:
        code: always 0
        pstart, pend: the ends
    """
    _pstart = _convert.point_room(1)[0]
    _pend = _convert.point_room(1)[0]
    _code = _lib.ca_arccd(
        _convert.point(center), r, _convert.doubles(angles, 2, "angles"), _pstart, _pend
    )
    return ca_arccd_result(_code, Point(_pstart.x, _pstart.y), Point(_pend.x, _pend.y))


class ca_arcXY_result(NamedTuple):
    """What ca_arcXY() returns."""

    code: int
    pmax: Point
    pmin: Point


def ca_arcXY(center: PointLike, r: float, start: float, end: float) -> ca_arcXY_result:
    """Finds the box around an arc.

    Besides the ends, the axis directions at -360, -270, ... 360 count that lie between them as
    given, without slack: normalise with a2d_StdSedeg() first. Of a range with start above end,
    or of equal ends, only the ends count.

    Args:
        center, r: the circle
        start, end: degrees, within [-360, 360], start below end

    Returns:
        code: always 0
        pmax, pmin: upper right and lower left corner; a coordinate outside +-1e20 or NaN does
            not widen the box, which starts as (-1e20, -1e20) and (1e20, 1e20)
    """
    _pmax = _convert.point_room(1)[0]
    _pmin = _convert.point_room(1)[0]
    _code = _lib.ca_arcXY(_convert.point(center), r, start, end, _pmax, _pmin)
    return ca_arcXY_result(_code, Point(_pmax.x, _pmax.y), Point(_pmin.x, _pmin.y))


class ca_onarc_result(NamedTuple):
    """What ca_onarc() returns."""

    code: int
    ang: float


def ca_onarc(
    center: PointLike,
    r: float,
    start: float,
    end: float,
    point: PointLike,
) -> ca_onarc_result:
    """Tells whether a point, seen from the centre, lies in the direction of an arc.

    The direction, or it less or more 360, must lie between start and end with 1e-6 degrees of
    slack. Equal angles are not the full circle. The distance is not asked: see ca_posar().

    Args:
        center: the centre
        r: not read
        start, end: degrees, start not above end
        point: the point; at the centre its direction is 0

    Returns:
        code: 0 on the arc's range, 1 off it
        ang: the direction, degrees, (-180, 180]; always written
    """
    _ang = _convert.double_room(1)
    _code = _lib.ca_onarc(_convert.point(center), r, start, end, _convert.point(point), _ang)
    return ca_onarc_result(_code, _ang[0])


class ca_posar_result(NamedTuple):
    """What ca_posar() returns."""

    code: int
    side: int


def ca_posar(center: PointLike, r: float, point: PointLike) -> ca_posar_result:
    """Tells on which side of a circle a point lies, within errdist.

    Args:
        center, r: the circle
        point: the point

    Returns:
        code: 0 done; 1 when r is not positive
        side: 0 on the circle, 65535 inside, 1 outside; untouched when the result is 1
    """
    _side = ctypes.c_uint16()
    _code = _lib.ca_posar(_convert.point(center), r, _convert.point(point), _side)
    return ca_posar_result(_code, _side.value)


class ca_rvarc_result(NamedTuple):
    """What ca_rvarc() returns."""

    code: int
    out_center: Point
    out_r: float
    out_angles: List[float]


def ca_rvarc(
    center: PointLike,
    r: float,
    angles: Sequence[float],
    pivot: PointLike,
    rot: float,
) -> ca_rvarc_result:
    """Turns an arc whose angles are radians about a point.

    A turn of at most 1e-7 copies the arc. Otherwise a span of 0 or 2 pi, within 1e-7, becomes
    (0, 2 pi); the angles of others grow by rot, both are lowered by 2 pi once if one then
    exceeds 2 pi, and both raised once if one lies below -2 pi.

    Args:
        center, r: the circle
        angles: start and end in radians
        pivot: the point about which the arc turns
        rot: radians, anticlockwise

    Returns:
        code: always 0
        out_center, out_r, out_angles: the turned arc
    """
    _out_center = _convert.point_room(1)[0]
    _out_r = _convert.double_room(1)
    _out_angles = _convert.double_room(2)
    _code = _lib.ca_rvarc(
        _convert.point(center), r, _convert.doubles(angles, 2, "angles"), _convert.point(pivot),
        rot, _out_center, _out_r, _out_angles
    )
    return ca_rvarc_result(_code, Point(_out_center.x, _out_center.y), _out_r[0], list(_out_angles))


class ca_DistAlongbyArcFromSpnt_result(NamedTuple):
    """What ca_DistAlongbyArcFromSpnt() returns."""

    code: int
    ang: float


def ca_DistAlongbyArcFromSpnt(
    center: PointLike,
    r: float,
    start: float,
    end: float,
    dist: float,
) -> ca_DistAlongbyArcFromSpnt_result:
    """Finds the angle reached after a distance along an arc. The result is an angle, not a point.

    Args:
        center: only tested for null
        r: radius
        start, end: degrees, start not above end and at most 360 below it
        dist: distance from start; at or beyond the arc's length it gives end

    Returns:
        code: 1 done; 0 when center or ang is null, dist is negative, r is not positive, or the
            angles are not as above
        ang: degrees; untouched when the result is 0
    """
    _ang = _convert.double_room(1)
    _code = _lib.ca_DistAlongbyArcFromSpnt(_convert.point(center), r, start, end, dist, _ang)
    return ca_DistAlongbyArcFromSpnt_result(_code, _ang[0])


class a2d_InsDc_result(NamedTuple):
    """What a2d_InsDc() returns."""

    code: int
    out: Point


def a2d_InsDc(elem: DTARC, cut: DTARC) -> a2d_InsDc_result:
    """Selects the end of an arc to keep where it is cut by an arc of the same circle.

    The end is the start of elem when the flag of ca_SetStartendFlg() is 1, else its end; the
    other one when its word has PLANEGEO_ATTR_REVERSED. A cutting arc whose angles are 360 apart
    (within 1e-8) does not ask the flag: it counts as 0. Equal angles of cut are the full circle
    as for a2d_ChkDegr(), and ask it.

    Args:
        elem: the arc whose end is wanted
        cut: the cutting arc; when its word has exactly one of PLANEGEO_ATTR_REVERSED and
            PLANEGEO_ATTR_CLOCKWISE, its range runs from its end to its start

    Returns:
        code: 1 chosen; 0 that end is not on cut (see a2d_ChkDegr()); -1 the centres (in x or y)
            or the radii differ by errdist or more
        out: the end; untouched unless the result is 1
    """
    _out = _convert.point_room(1)[0]
    _code = _lib.a2d_InsDc(elem, cut, _out)
    return a2d_InsDc_result(_code, Point(_out.x, _out.y))


class ca_AutoUnionNrb_result(NamedTuple):
    """What ca_AutoUnionNrb() returns."""

    code: int
    list: List[Point]


def ca_AutoUnionNrb(n: int, list: Sequence[PointLike], tol: float) -> ca_AutoUnionNrb_result:
    """Merges runs of points whose segments keep nearly the same direction.

    A run takes in the segments whose direction differs from that of its first one by at most
    tol (plus errdist, taken as degrees); the points between its ends are removed. Directions in
    (-180, 180] are subtracted as they are: 179 and -179 do not merge.

    Cost: one pass over the points.

    Args:
        n: number of points in the array, which is not checked; below 3, also negative, it is
            returned as it is
        list: address of the address of n points; those kept move to the front in their order,
            what follows them is undefined
        tol: degrees, [0.1, 5.0]; a NaN merges nothing

    Returns:
        code: the new number of points; -1 when the array is null or tol out of range
        list: address of the address of n points; those kept move to the front in their order,
            what follows them is undefined
    """
    _list = _convert.pointer_to_points(list, n, "list")
    _code = _lib.ca_AutoUnionNrb(n, _list, tol)
    return ca_AutoUnionNrb_result(_code, _convert.as_points(_list, n))


# Circle tangents


class ca_pctan_result(NamedTuple):
    """What ca_pctan() returns."""

    code: int
    out1: Point
    out2: Point
    count: int  # type: ignore[assignment]


def ca_pctan(center: PointLike, r: float, point: PointLike) -> ca_pctan_result:
    """Finds where the tangents from a point touch a circle.

    Args:
        center, r: the circle
        point: the point; on or inside the circle, exactly and without a tolerance, it has no
            tangents

    Returns:
        code: always 0; the outcome is count
        out1: the contact right of the direction from the centre to the point; (0, 0) without
            tangents
        out2: the contact left of it; (0, 0) without tangents
        count: 0 or 2
    """
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _count = ctypes.c_uint16()
    _code = _lib.ca_pctan(_convert.point(center), r, _convert.point(point), _out1, _out2, _count)
    return ca_pctan_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y), _count.value)


class ca_cctan_result(NamedTuple):
    """What ca_cctan() returns."""

    code: int
    t1: Point
    t2: Point
    t3: Point
    t4: Point
    t5: Point
    t6: Point
    t7: Point
    t8: Point
    count: int  # type: ignore[assignment]


def ca_cctan(c1: PointLike, r1: float, c2: PointLike, r2: float) -> ca_cctan_result:
    """Finds the common tangents of two circles.

    There are none when a radius is not positive, the centres coincide within errdist in x and
    in y, one circle lies inside the other, or they touch from inside: the squared distance of
    the centres and the squared difference of the radii then differ by less than errdist, as
    squares. Circles that overlap or touch from outside have the outer pair only.

    Args:
        c1, r1, c2, r2: the circles

    Returns:
        code: 0 done; 1 no tangents
        t1, t2, t3, t4: the outer tangents t1-t2 and t3-t4: the first with both circles on its
            left, seen from c1 to c2, the second with both on its right
        t5, t6, t7, t8: the inner tangents: t5-t6 touches circle 1 right of the direction from
            c1 to c2 and circle 2 left of it, t7-t8 the reverse. Odd ones are on circle 1, even
            ones on circle 2; only the points of the lines counted are written
        count: number of lines: 0, 2 or 4
    """
    _t1 = _convert.point_room(1)[0]
    _t2 = _convert.point_room(1)[0]
    _t3 = _convert.point_room(1)[0]
    _t4 = _convert.point_room(1)[0]
    _t5 = _convert.point_room(1)[0]
    _t6 = _convert.point_room(1)[0]
    _t7 = _convert.point_room(1)[0]
    _t8 = _convert.point_room(1)[0]
    _count = ctypes.c_uint16()
    _code = _lib.ca_cctan(
        _convert.point(c1), r1, _convert.point(c2), r2, _t1, _t2, _t3, _t4, _t5, _t6, _t7, _t8,
        _count
    )
    return ca_cctan_result(
        _code, Point(_t1.x, _t1.y), Point(_t2.x, _t2.y), Point(_t3.x, _t3.y), Point(_t4.x,
        _t4.y), Point(_t5.x, _t5.y), Point(_t6.x, _t6.y), Point(_t7.x, _t7.y), Point(_t8.x,
        _t8.y), _count.value
    )


# Polynomial solvers


class amaSolveLinerEquation_result(NamedTuple):
    """What amaSolveLinerEquation() returns."""

    code: int
    x: float


def amaSolveLinerEquation(c: Sequence[float]) -> amaSolveLinerEquation_result:
    """Solves c[0] x + c[1] = 0.

    Args:
        c: two coefficients

    Returns:
        code: 1 one root; 0 both coefficients are zero, every x is a solution; -1 only c[0] is
            zero, there is no solution
        x: the root, one double without an imaginary part; untouched unless the result is 1
    """
    _x = _convert.double_room(1)
    _code = _lib.amaSolveLinerEquation(_convert.doubles(c, 2, "c"), _x)
    return amaSolveLinerEquation_result(_code, _x[0])


class amaSolveEquationOf2ndD_result(NamedTuple):
    """What amaSolveEquationOf2ndD() returns."""

    code: int
    out: List[float]


def amaSolveEquationOf2ndD(c: Sequence[float]) -> amaSolveEquationOf2ndD_result:
    """Solves a quadratic equation.

    Args:
        c: three coefficients

    Returns:
        code: 2 real roots (a double root counts as two), 0 a conjugate pair, -1
        out: two pairs: real roots greater first, else the conjugate with the positive imaginary
            part first; untouched when the result is -1
    """
    _out = _convert.double_room(4)
    _code = _lib.amaSolveEquationOf2ndD(_convert.doubles(c, 3, "c"), _out)
    return amaSolveEquationOf2ndD_result(_code, list(_out))


class amaSolveEquationOf3rdD_result(NamedTuple):
    """What amaSolveEquationOf3rdD() returns."""

    code: int
    out: List[float]


def amaSolveEquationOf3rdD(c: Sequence[float]) -> amaSolveEquationOf3rdD_result:
    """Solves a cubic equation.

    Three real roots come in the order of the cosines of a third of an angle, the greatest
    first. Where the discriminant is exactly zero, the simple root is written twice and then the
    double root once: 1, 1, -2 are reported as -2, -2, 1. Close to such a case rounding can take
    the argument of the arc cosine beyond 1; the roots are then NaN.

    Args:
        c: four coefficients

    Returns:
        code: 3 real roots, 1 real root and a conjugate pair, -1
        out: three pairs: with one real root that one first, then the conjugate with the
            imaginary part of positive sign in Cardano's formula; untouched when the result is
            -1
    """
    _out = _convert.double_room(6)
    _code = _lib.amaSolveEquationOf3rdD(_convert.doubles(c, 4, "c"), _out)
    return amaSolveEquationOf3rdD_result(_code, list(_out))


class amaSolveEquationOf4thD_result(NamedTuple):
    """What amaSolveEquationOf4thD() returns."""

    code: int
    out: List[float]


def amaSolveEquationOf4thD(c: Sequence[float]) -> amaSolveEquationOf4thD_result:
    """Solves a quartic equation.

    The roots are those of two quadratic factors, each in the order of amaSolveEquationOf2ndD().
    Without a linear term in the shifted quartic (exactly zero, or below 1e-5 and 1e-12 of the
    quadratic term) it is solved as biquadratic, and also where the resolvent cubic gives no
    factors. A linear term just above those bounds is lost to rounding: roots and their count
    can then be wrong, and where the resolvent's roots are NaN so are all four
    (docs/behaviours.md).

    Args:
        c: five coefficients

    Returns:
        code: 4, 2 or 0, the roots reported as real; -1. Real roots computed through complex
            arithmetic keep a small imaginary part and are not counted
        out: four pairs; a factor with real roots before one without; untouched when the result
            is -1
    """
    _out = _convert.double_room(8)
    _code = _lib.amaSolveEquationOf4thD(_convert.doubles(c, 5, "c"), _out)
    return amaSolveEquationOf4thD_result(_code, list(_out))


def ama_c_sqrt(z: complex) -> complex:
    """Returns the principal square root of a complex number.

    Args:
        z: any number

    Returns:
        the root: its real part is not negative, its imaginary part has the sign of that of z. A
        negative real number gives a positive imaginary root
    """
    _root = _lib.ama_c_sqrt(_convert.DTCOMPLEX(z.real, z.imag))
    return complex(_root.re, _root.im)


class amaNewtonRaphson_result(NamedTuple):
    """What amaNewtonRaphson() returns."""

    code: int
    x: float


def amaNewtonRaphson(c: Sequence[float], n: int) -> amaNewtonRaphson_result:
    """Searches one real root by Newton's method, from minus the sum of the coefficients over n +
    1.

    The search ends with the first of 200 steps that is at most 1e-16 of the largest
    coefficient, or if there is none with the first that is at most 1e-6 of it: not of the root,
    so that polynomials with large coefficients are left early. Where the slope is exactly zero
    a step of second order is made; where that has no real value the step is zero, and the
    stationary point counts as the root.

    Cost: at most 200 steps, each in proportion to n.

    Args:
        c: n + 1 coefficients
        n: degree, 2 to 200

    Returns:
        code: 0 found; -1 also for a degree out of range; -2 no step was small enough
        x: the root, the last iterate when the result is -2; untouched when -1
    """
    _x = _convert.double_room(1)
    _code = _lib.amaNewtonRaphson(_convert.doubles(c, n + 1, "c"), n, _x)
    return amaNewtonRaphson_result(_code, _x[0])


class amaBairstaw_result(NamedTuple):
    """What amaBairstaw() returns."""

    code: int
    out: List[float]


def amaBairstaw(c: Sequence[float], n: int) -> amaBairstaw_result:
    """Finds all roots by quadratic factors (Bairstow), up to degree four in closed form.

    Not reliable above: the best residual is never reset, and a factor may be found twice. All
    roots were right, mirrored ones aside, for 97 % of polynomials with random coefficients of
    degree 5, 63 % of degree 6, 7 % of degree 10, none of degree 19. Take amaDKA() there.

    Cost: at most 100 steps for each factor, each in proportion to the degree left.

    Args:
        c: n + 1 coefficients
        n: degree, 1 to 200

    Returns:
        code: 0 done; -1 also for a degree out of range; -2 a factor was not found, which x^2 +
            x + 1 as the first one never is; -3 the Newton root was not found. After -2 and -3
            out is untouched but for the last pair of an odd degree: the Newton root, or after
            -3 its last iterate without an imaginary part
        out: n pairs; degree 1: one double. Above degree 4 the last factor comes first, the
            Newton root of an odd degree last; a discriminant down to -0.0001 counts as real;
            the second root of a complex pair is (-re, im), not the conjugate
    """
    _out = _convert.double_room(max(2 * n, 0))
    _code = _lib.amaBairstaw(_convert.doubles(c, n + 1, "c"), n, _out)
    return amaBairstaw_result(_code, list(_out))


class amaDKA_result(NamedTuple):
    """What amaDKA() returns."""

    code: int
    c: List[float]
    out: List[float]


def amaDKA(c: Sequence[float], n: int, eps: float, maxiter: float) -> amaDKA_result:
    """Finds all roots at once (Durand-Kerner, from Aberth's circle about the origin).

    Sweeps end when all values met in one are below eps, or with the budget. Roots that repeat
    themselves bit by bit are carried to its end at once; without that, 10^7 / (n (n + 16))
    sweeps, but at least 1000, above degree 126 at least 1.8 10^7 / (n (n + 16)), are as a
    budget used up. A NaN does not count as a large value: where all are NaN, as with c[2] to
    c[n] all zero, so are the roots, and the result is 0.

    Cost: some n (n + 16) complex products a sweep.

    Args:
        c: n + 1 coefficients; c[1] to c[n] are divided by c[0]
        n: degree, up to 200; below 1 nothing is written, and the result is 0 if eps > 0 and
            maxiter >= 0, else -1
        eps: bound of |value| after that division
        maxiter: budget of floor(maxiter) + 1 sweeps; none if negative or NaN

    Returns:
        code: 0 converged, or else at least one imaginary part became 0; -1 neither, or a degree
            above 200 (c and out are untouched then)
        c: n + 1 coefficients; c[1] to c[n] are divided by c[0]
        out: n pairs; imaginary parts below the root of eps become 0
    """
    _c = _convert.doubles(c, n + 1, "c")
    _out = _convert.double_room(max(2 * n, 0))
    _code = _lib.amaDKA(_c, n, eps, maxiter, _out)
    return amaDKA_result(_code, list(_c), list(_out))


# Ellipses: record and parameter conversion


class ca_elpcd_result(NamedTuple):
    """What ca_elpcd() returns."""

    code: int
    points: List[float]


def ca_elpcd(
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    angles: Sequence[float],
) -> ca_elpcd_result:
    """Finds the end points of an elliptic arc.

    Args:
        center, a, b, rot: the ellipse
        angles: two doubles, the parametric angles of start and end

    Returns:
        code: always 0
        points: four doubles: start x, start y, end x, end y

    See also: a2d_elpdeg for the way back
    """
    _points = _convert.double_room(4)
    _code = _lib.ca_elpcd(
        _convert.point(center), a, b, rot, _convert.doubles(angles, 2, "angles"), _points
    )
    return ca_elpcd_result(_code, list(_points))


class a2d_elpdeg_result(NamedTuple):
    """What a2d_elpdeg() returns."""

    code: int
    angle: float


def a2d_elpdeg(
    point: PointLike,
    center: PointLike,
    a: float,
    b: float,
    rot: float,
) -> a2d_elpdeg_result:
    """Finds the parametric angle of a point: of the place where the ray from the centre meets the
    ellipse once both are stretched so that the ellipse is a circle.

    The point need not lie on the ellipse. With a negative axis the angle is that of the
    stretched point itself.

    Args:
        point: the point; the centre gives -rot
        center, a, b, rot: the ellipse

    Returns:
        code: 0 done; -1 when an axis is shorter than errdist, angle is then untouched
        angle: degrees, a direction in [0, 360] less rot and not reduced: 350 on an ellipse
            turned by 30 comes out as -10

    See also: a2d_StdSedeg, a2d_ChkDegr, which reduce it
    """
    _angle = _convert.double_room(1)
    _code = _lib.a2d_elpdeg(_convert.point(point), _convert.point(center), a, b, rot, _angle)
    return a2d_elpdeg_result(_code, _angle[0])


class a2dGetEllipsDt_result(NamedTuple):
    """What a2dGetEllipsDt() returns."""

    code: int
    a: float
    b: float
    rot: float


def a2dGetEllipsDt(p: PointLike, q: PointLike, center: PointLike) -> a2dGetEllipsDt_result:
    """Finds axes and rotation of the ellipse through the ends of two conjugate semi-diameters
    (parameters 90 degrees apart).

    Semi-diameters whose dot product is below 1e-6 count as perpendicular and are the semi-axes;
    they are exchanged, and 90 is added to the rotation, when the second is the longer.

    Args:
        p, q: ends of the two semi-diameters
        center: centre of the ellipse

    Returns:
        code: 0 done; -1 when the cross product of the semi-diameters is below 1e-6 (they lie on
            one line), the three outputs are then 0
        a, b: full axis lengths, a never below b
        rot: degrees, [0, 360) in general, up to 450 for the perpendicular case
    """
    _a = _convert.double_room(1)
    _b = _convert.double_room(1)
    _rot = _convert.double_room(1)
    _code = _lib.a2dGetEllipsDt(
        _convert.point(p), _convert.point(q), _convert.point(center), _a, _b, _rot
    )
    return a2dGetEllipsDt_result(_code, _a[0], _b[0], _rot[0])


class ca_ElpAngle_result(NamedTuple):
    """What ca_ElpAngle() returns."""

    code: int
    parametric: float
    polar: float


def ca_ElpAngle(
    mode: int,
    ellipse: DTELLIPSE,
    parametric: float,
    polar: float,
) -> ca_ElpAngle_result:
    """Converts between parametric and polar angle.

    Args:
        mode: 0 parametric to polar, 1 polar to parametric
        ellipse: only the axes are read
        parametric: degrees; read in mode 0, written in mode 1, in [0, 360]
        polar: degrees; written in mode 0, in [0, 360], read in mode 1

    Returns:
        code: 0 done; -1 for another mode, nothing is then written
        parametric: degrees; read in mode 0, written in mode 1, in [0, 360]
        polar: degrees; written in mode 0, in [0, 360], read in mode 1
    """
    _parametric = ctypes.c_double(parametric)
    _polar = ctypes.c_double(polar)
    _code = _lib.ca_ElpAngle(mode, ellipse, _parametric, _polar)
    return ca_ElpAngle_result(_code, _parametric.value, _polar.value)


class ca_ElpCordXY_result(NamedTuple):
    """What ca_ElpCordXY() returns."""

    code: int
    offset: Point


def ca_ElpCordXY(mode: int, ellipse: DTELLIPSE, angle: float) -> ca_ElpCordXY_result:
    """Finds the place of an angle on an ellipse as an offset from the centre.

    Args:
        mode: 0 the angle is parametric, 1 it is polar
        ellipse: axes and rotation are read; a rotation of up to 1e-6 to either side of 0 is not
            applied
        angle: degrees

    Returns:
        code: 0 done; -1 for another mode, offset is then untouched
        offset: the point less the centre, which callers add themselves

    See also: ca_elpcd, which adds the centre
    """
    _offset = _convert.point_room(1)[0]
    _code = _lib.ca_ElpCordXY(mode, ellipse, angle, _offset)
    return ca_ElpCordXY_result(_code, Point(_offset.x, _offset.y))


# Ellipses: queries and transforms


class GetElpFocusPnt_result(NamedTuple):
    """What GetElpFocusPnt() returns."""

    code: int
    focus1: Point
    focus2: Point


def GetElpFocusPnt(center: PointLike, a: float, b: float, rot: float) -> GetElpFocusPnt_result:
    """Finds the foci of an ellipse from its semi-axes.

    The lengths are taken as they are: unlike elsewhere, pass half the axes to get the foci. A
    circle has both in the centre.

    Args:
        center: centre of the ellipse
        a, b: semi-axes; with b longer than a the foci are NaN, and 0 is returned
        rot: degrees

    Returns:
        code: 0 done; -1 when c - a exceeds 1e-6, as with a negative a, the outputs are then
            untouched
        focus1: centre - c (cos rot, sin rot), with c^2 = a^2 - b^2
        focus2: centre + c (cos rot, sin rot)
    """
    _focus1 = _convert.point_room(1)[0]
    _focus2 = _convert.point_room(1)[0]
    _code = _lib.GetElpFocusPnt(_convert.point(center), a, b, rot, _focus1, _focus2)
    return GetElpFocusPnt_result(_code, Point(_focus1.x, _focus1.y), Point(_focus2.x, _focus2.y))


class a2d_GetTangentVectorOnElp_result(NamedTuple):
    """What a2d_GetTangentVectorOnElp() returns."""

    code: int
    tangent: Point


def a2d_GetTangentVectorOnElp(ratio: float, point: PointLike) -> a2d_GetTangentVectorOnElp_result:
    """Finds the tangent at a point of an ellipse about the origin whose first axis lies along x.

    Args:
        ratio: second semi-axis over first; 0 is not checked for and divides by zero
        point: the point

    Returns:
        code: 0 done; 1 for a null pointer or a ratio above 1
        tangent: anticlockwise, not of unit length: (-y / ratio, x ratio); untouched when the
            result is 1

    See also: a2d_GetTangentVectorOnDTELLIPSE for an ellipse anywhere
    """
    _tangent = _convert.point_room(1)[0]
    _code = _lib.a2d_GetTangentVectorOnElp(ratio, _convert.point(point), _tangent)
    return a2d_GetTangentVectorOnElp_result(_code, Point(_tangent.x, _tangent.y))


class a2d_GetTangentVectorOnDTELLIPSE_result(NamedTuple):
    """What a2d_GetTangentVectorOnDTELLIPSE() returns."""

    code: int
    tangent: Point


def a2d_GetTangentVectorOnDTELLIPSE(
    ellipse: DTELLIPSE,
    point: PointLike,
) -> a2d_GetTangentVectorOnDTELLIPSE_result:
    """Finds the tangent at a point of an ellipse.

    The first axis is to be the longer one: with a longer second axis the vector is that of the
    ellipse with its axes exchanged.

    Args:
        ellipse: start and end are not read
        point: the point, in the plane

    Returns:
        code: 0 done; 1 for a null pointer or an axis of zero or below
        tangent: anticlockwise, not of unit length; untouched when the result is 1
    """
    _tangent = _convert.point_room(1)[0]
    _code = _lib.a2d_GetTangentVectorOnDTELLIPSE(ellipse, _convert.point(point), _tangent)
    return a2d_GetTangentVectorOnDTELLIPSE_result(_code, Point(_tangent.x, _tangent.y))


def CheckEllipseArcAngle(ellipse: DTELLIPSE, point: PointLike) -> int:
    """Tells whether the parametric angle of a point lies on an elliptic arc; the point need not
    lie on the curve.

    The arc runs anticlockwise from start to end, both with 1e-8 degrees of slack; ends that are
    equal after reduction are the whole turn.

    Args:
        ellipse: the arc
        point: the point

    Returns:
        0 on the arc; 1 off it, or when an axis is shorter than errdist

    See also: ca_onelp, which asks for the curve as well
    """
    return int(_lib.CheckEllipseArcAngle(ellipse, _convert.point(point)))


def a2d_hanel(line: DTLINE, ellipse: DTELLIPSE) -> int:
    """Tells whether an infinite line cuts, touches or misses a whole ellipse.

    A line whose two points differ by at most 1e-6 across an axis runs along that axis and
    touches within 0.0001 units; any other touches where the discriminant of y = m x + c against
    the ellipse, a squared length, is within 0.0001 of zero.

    Args:
        line: two points of the line
        ellipse: start and end are not read

    Returns:
        0 misses, 1 touches, 2 cuts
    """
    return int(_lib.a2d_hanel(line, ellipse))


def ca_onelp(
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    angles: Sequence[float],
    point: PointLike,
) -> int:
    """Tells whether a point lies on an elliptic arc.

    It lies on the curve when its distances from the foci add up to the longer axis within 1e-6,
    and on the arc when pin_chk() finds its direction between those of the arc's ends, where
    local components below 1e-7 count as zero. Start and end both 0 (or 0 and 360) are the whole
    turn; other equal angles are that one direction.

    Args:
        center, a, b, rot, angles: the arc
        point: the point; one with a NaN counts as on the arc

    Returns:
        0 on the arc; 1 off the curve or outside the arc; -1 an axis is 1e-8 or shorter
    """
    return int(
        _lib.ca_onelp(_convert.point(center), a, b, rot, _convert.doubles(angles, 2, "angles"),
        _convert.point(point))
    )


def pin_chk(center: PointLike, rot: float, range: Sequence[float], point: PointLike) -> int:
    """Tells whether the direction of a point lies in a polar range, with 1e-8 degrees of slack.

    The direction is that of ca_vcrad() less rot, raised by a turn where it is negative. A start
    above the end crosses 0. Ends both within 1e-6 of 0 are the whole turn. A negative start is
    raised by a turn, and a negative end with it; a start that stays negative, or an end below 0
    on its own, holds nothing.

    Args:
        center: centre of the ellipse
        rot: rotation of its first axis, degrees
        range: two doubles, start and end, polar, measured from the first axis
        point: the point

    Returns:
        0 in the range, 1 outside; 0 for a direction that is NaN
    """
    return int(
        _lib.pin_chk(_convert.point(center), rot, _convert.doubles(range, 2, "range"),
        _convert.point(point))
    )


class ca_posel_result(NamedTuple):
    """What ca_posel() returns."""

    code: int
    position: int


def ca_posel(
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    point: PointLike,
) -> ca_posel_result:
    """Tells whether a point lies inside, on or outside an ellipse, by the sum of its distances
    from the foci, within 1e-6.

    Args:
        center, a, b, rot: the ellipse
        point: the point

    Returns:
        code: 0 done; -1 an axis is 1e-8 or shorter
        position: 0 on the ellipse, 1 outside, 65535 inside; 0 when the result is -1
    """
    _position = ctypes.c_uint16()
    _code = _lib.ca_posel(_convert.point(center), a, b, rot, _convert.point(point), _position)
    return ca_posel_result(_code, _position.value)


class a2d_elp_trans_result(NamedTuple):
    """What a2d_elp_trans() returns."""

    code: int
    result: DTELLIPSE


def a2d_elp_trans(ellipse: DTELLIPSE, k: float) -> a2d_elp_trans_result:
    """Scales an ellipse along y: its image under (x, y) -> (x, k y).

    The result's first axis is never the shorter one; its rotation lies in [0, 450], its arc
    angles are those of a2d_elpdeg() for the images of the ends, not reduced. A negative k
    mirrors, and the arc then runs from its end to its start.

    Args:
        ellipse: the ellipse
        k: the factor

    Returns:
        code: 0 done; -1 when an axis of ellipse is not longer than errdist (nothing is written)
            or one of the image is shorter than errdist (centre, axes and rotation are written,
            start and end untouched)
        result: may be ellipse; its attribute word is not written
    """
    _result = _convert.blank(DTELLIPSE)
    _code = _lib.a2d_elp_trans(ellipse, k, _result)
    return a2d_elp_trans_result(_code, _result)


class ca_rvelp_result(NamedTuple):
    """What ca_rvelp() returns."""

    code: int
    out_center: Point
    out_a: float
    out_b: float
    out_rot: float
    out_angles: List[float]


def ca_rvelp(
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    angles: Sequence[float],
    pivot: PointLike,
    angle: float,
) -> ca_rvelp_result:
    """Turns an ellipse about a point.

    Args:
        center, a, b, rot, angles: the ellipse
        pivot: the point
        angle: degrees, anticlockwise

    Returns:
        code: always 0
        out_center, out_a, out_b, out_rot, out_angles: the turned ellipse; axes and angles are
            unchanged, and the rotation is moved by one turn at most towards [0, 360]
    """
    _out_center = _convert.point_room(1)[0]
    _out_a = _convert.double_room(1)
    _out_b = _convert.double_room(1)
    _out_rot = _convert.double_room(1)
    _out_angles = _convert.double_room(2)
    _code = _lib.ca_rvelp(
        _convert.point(center), a, b, rot, _convert.doubles(angles, 2, "angles"),
        _convert.point(pivot), angle, _out_center, _out_a, _out_b, _out_rot, _out_angles
    )
    return ca_rvelp_result(
        _code, Point(_out_center.x, _out_center.y), _out_a[0], _out_b[0], _out_rot[0],
        list(_out_angles)
    )


class ca_vmelp_result(NamedTuple):
    """What ca_vmelp() returns."""

    code: int
    out_center: Point
    out_a: float
    out_b: float
    out_rot: float
    out_angles: List[float]


def ca_vmelp(
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    angles: Sequence[float],
    line_p1: PointLike,
    line_p2: PointLike,
) -> ca_vmelp_result:
    """Mirrors an ellipse in a line.

    Args:
        center, a, b, rot, angles: the ellipse
        line_p1, line_p2: two points of the line; equal points are not checked for and give a
            centre and rotation that are not finite

    Returns:
        code: always 0
        out_center, out_a, out_b: the mirrored centre and the same axes
        out_rot: direction of the mirrored first axis by the rule of ca_vcrad(), [0, 360]
        out_angles: 360 less the old end, 360 less the old start; both lowered by 360 where one
            exceeds 360.00000001
    """
    _out_center = _convert.point_room(1)[0]
    _out_a = _convert.double_room(1)
    _out_b = _convert.double_room(1)
    _out_rot = _convert.double_room(1)
    _out_angles = _convert.double_room(2)
    _code = _lib.ca_vmelp(
        _convert.point(center), a, b, rot, _convert.doubles(angles, 2, "angles"),
        _convert.point(line_p1), _convert.point(line_p2), _out_center, _out_a, _out_b, _out_rot,
        _out_angles
    )
    return ca_vmelp_result(
        _code, Point(_out_center.x, _out_center.y), _out_a[0], _out_b[0], _out_rot[0],
        list(_out_angles)
    )


class ca_samel_result(NamedTuple):
    """What ca_samel() returns."""

    code: int
    out_center: Point
    out_a: float
    out_b: float
    out_rot: float
    out_angles: List[float]


def ca_samel(
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    angles: Sequence[float],
    point: PointLike,
) -> ca_samel_result:
    """Scales an ellipse about its centre until it meets a point.

    The ellipse is measured along the direction to the point mirrored in its first axis (along
    the horizontal where the point's x is within 1e-8 of the centre's): it meets the point when
    it is a circle, the point lies level with the centre, or the rotation is a multiple of 90
    and the point not straight above or below the centre.

    Args:
        center, a, b, rot, angles: the ellipse
        point: the point; at the centre it gives zero axes

    Returns:
        code: always 0
        out_a, out_b: the scaled axes; not finite when an axis is zero
        out_center, out_rot, out_angles: as given
    """
    _out_center = _convert.point_room(1)[0]
    _out_a = _convert.double_room(1)
    _out_b = _convert.double_room(1)
    _out_rot = _convert.double_room(1)
    _out_angles = _convert.double_room(2)
    _code = _lib.ca_samel(
        _convert.point(center), a, b, rot, _convert.doubles(angles, 2, "angles"),
        _convert.point(point), _out_center, _out_a, _out_b, _out_rot, _out_angles
    )
    return ca_samel_result(
        _code, Point(_out_center.x, _out_center.y), _out_a[0], _out_b[0], _out_rot[0],
        list(_out_angles)
    )


# Ellipses: length and area


class ca_lengelp_result(NamedTuple):
    """What ca_lengelp() returns."""

    code: int
    value: float


def ca_lengelp(deg: float) -> ca_lengelp_result:
    """The integrand of arc length: with A and B the half axes of the parameter table, sqrt(B^2
    cos^2 t + A^2 sin^2 t), the length per radian of the parameter.

    Args:
        deg: parametric angle t

    Returns:
        code: always 0
        value: drawing units
    """
    _value = _convert.double_room(1)
    _code = _lib.ca_lengelp(deg, _value)
    return ca_lengelp_result(_code, _value[0])


class ca_AreaElp_result(NamedTuple):
    """What ca_AreaElp() returns."""

    code: int
    value: float


def ca_AreaElp(deg: float) -> ca_AreaElp_result:
    """The integrand of sector area: with A and B the half axes of the parameter table, A^2 B^2 /
    (2 (B^2 cos^2 t + A^2 sin^2 t)), the area per radian of the polar angle.

    Args:
        deg: polar angle t

    Returns:
        code: always 0
        value: drawing units squared; NaN when an axis is zero and the angle lies along the
            other, or both are zero
    """
    _value = _convert.double_room(1)
    _code = _lib.ca_AreaElp(deg, _value)
    return ca_AreaElp_result(_code, _value[0])


class ca_Simpson_result(NamedTuple):
    """What ca_Simpson() returns."""

    code: int
    result: float


def ca_Simpson(integrand: PLANEGEO_INTEGRAND, lower: float, upper: float) -> ca_Simpson_result:
    """Integrates over a range of degrees, with respect to the angle in radians.

    The Simpson rule starts with an interval per degree (at least 4, an even count) and halves
    them until two sums differ by at most 1e-6, absolutely, or the interval falls below 0.001
    degrees. A range below 0.004 degrees gives 0.

    Cost: a call of the integrand per degree at first, and as many again as there were with each
    halving. The library's own integrands are summed in closed form as a rule, in constant time.

    Args:
        integrand: called at the lower limit, at the upper limit, then at all interior points of
            each pass in rising order, up to 2000 times per degree of the range; the library may
            evaluate its own integrands by other means
        lower, upper: degrees

    Returns:
        code: 0 done; -1 lower exceeds upper (nothing is called); -2 not settled when the
            interval count would pass 2^31 - 1: a range above 2^30 degrees, an infinite or a NaN
            limit get there at once, and with the library's own integrands a range above 36000
            degrees, or above 1440 where one half axis exceeds four times the other; else the
            integrand's code
        result: the integral; 0 unless the return value is 0

    See also: ca_Simpson2 for the inverse, ca_ElpLen for an elliptic arc
    """
    _integrand = _convert.Callback(integrand, _PLANEGEO_INTEGRAND, _of_library)
    _result = _convert.double_room(1)
    _code = _lib.ca_Simpson(_integrand.pointer, lower, upper, _result)
    _integrand.settle()
    return ca_Simpson_result(_code, _result[0])


class ca_Simpson2_result(NamedTuple):
    """What ca_Simpson2() returns."""

    code: int
    lower: float
    upper: float


def ca_Simpson2(
    integrand: PLANEGEO_INTEGRAND,
    lower: float,
    upper: float,
    wanted: float,
    which: int,
) -> ca_Simpson2_result:
    """Moves one limit of a range until the integral over it is within 1e-6 of a value.

    The limit moves by 10 degrees at first (by 5 if the range is too short) and by half as much
    after each change of direction. Each range is integrated as by ca_Simpson(); one whose lower
    limit has passed the upper counts as 0, so does one that did not settle.

    Cost: that of ca_Simpson() for each range on the way.

    Args:
        integrand: see ca_Simpson()
        lower, upper: degrees; only the moved one is written, and only when the value was found
        wanted: the integral to reach
        which: 0 moves the lower limit, any other value the upper

    Returns:
        code: 0 found; -2 found, but a range on the way did not settle; -1 given up: ten ranges
            in a row gave nothing or no change above 1e-6, the integral is not finite and the
            limit no longer changes, wanted is infinite, or 2^28 samples are spent (the range
            has then grown by at most 80 turns), or with the library's own integrands 2^24 in
            192 ranges that only samples decide; else the integrand's code
        lower, upper: degrees; only the moved one is written, and only when the value was found
    """
    _integrand = _convert.Callback(integrand, _PLANEGEO_INTEGRAND, _of_library)
    _lower = ctypes.c_double(lower)
    _upper = ctypes.c_double(upper)
    _code = _lib.ca_Simpson2(_integrand.pointer, _lower, _upper, wanted, which)
    _integrand.settle()
    return ca_Simpson2_result(_code, _lower.value, _upper.value)


class ca_ElpLen_result(NamedTuple):
    """What ca_ElpLen() returns."""

    code: int
    length: float


def ca_ElpLen(ellipse: DTELLIPSE) -> ca_ElpLen_result:
    """Measures an elliptic arc.

    The arc's angles are taken as the directions of its ends (see ca_ElpAngle()), and the speed
    is integrated between these numbers as if they were parameters: exact for whole, half and
    quarter turns and for circles. A span above 359.999999 degrees is the whole turn, equal ends
    are an empty arc. The directions lie in [0, 360], so a whole turn is safe as (0, 360) only;
    see docs/behaviours.md.

    Cost: that of ca_Simpson() with the library's own integrand.

    Args:
        ellipse: start, end and the ratio of the axes are read; the size comes from the
            parameter table

    Returns:
        code: always 0
        length: within about 1e-6; 0 for an arc below 0.004 degrees
    """
    _length = _convert.double_room(1)
    _code = _lib.ca_ElpLen(ellipse, _length)
    return ca_ElpLen_result(_code, _length[0])


class ca_ElpLen2_result(NamedTuple):
    """What ca_ElpLen2() returns."""

    code: int
    ellipse: DTELLIPSE


def ca_ElpLen2(ellipse: DTELLIPSE, wanted: float, which: int) -> ca_ElpLen2_result:
    """Trims or extends an elliptic arc to a length, by moving one end.

    Unlike ca_ElpLen() this integrates between the parametric angles. The search is that of
    ca_Simpson2(); the range found is then brought to an end of at most 360, one above
    359.999999 degrees to (0, 360), and of it the moved angle is stored.

    Cost: that of ca_Simpson2() with the library's own integrand.

    Args:
        ellipse: start and end are read, the moved one is written; the half axes come from the
            parameter table
        wanted: length, drawing units, reached within 1e-6
        which: 0 moves the start, any other value the end

    Returns:
        code: 0 done; -1 the search gave up, the record is untouched
        ellipse: start and end are read, the moved one is written; the half axes come from the
            parameter table
    """
    _ellipse = _convert.copy(ellipse)
    _code = _lib.ca_ElpLen2(_ellipse, wanted, which)
    return ca_ElpLen2_result(_code, _ellipse)


# Ellipses: chains of circular arcs


class ca_elips_result(NamedTuple):
    """What ca_elips() returns."""

    code: int
    out_centers: List[Point]
    out_radii: List[float]
    out_angles: List[float]
    count: int  # type: ignore[assignment]


def ca_elips(
    center: PointLike,
    a: float,
    b: float,
    angles: Sequence[float],
    rot: float,
) -> ca_elips_result:
    """Replaces an elliptic arc by at most five arcs of the four-centre oval. Unlike other
    functions it takes half axes and radians.

    Half axes that differ by at most 1e-7 give one arc of radius a with the angles as passed,
    the rotation not applied. A span within 0.001 of 2 pi is the whole turn: four arcs, the
    first at the end of the longer axis. Else the ends are cut by the directions from their
    arcs' centres to points of the circle about the longer axis, not of the ellipse, and arcs of
    at most 1e-7 go.

    Half axes of zero or below, numbers that are not finite, and angles beyond 1e15, which
    cannot be reduced to a turn, give arcs without meaning or none.

    Args:
        center: centre of the ellipse
        a, b: half axes; the longer one comes to lie along the rotation
        angles: two doubles, start and end, parametric from the first axis, radians
        rot: radians

    Returns:
        code: always 0
        out_centers, out_radii, out_angles: room for five arcs each; angles in radians
        count: 0 to 5 arcs; with 0 nothing else is written

    See also: ca_elip1, which works in degrees, ca_elip2
    """
    _out_centers = _convert.point_room(5)
    _out_radii = _convert.double_room(5)
    _out_angles = _convert.double_room(10)
    _count = ctypes.c_uint32()
    _code = _lib.ca_elips(
        _convert.point(center), a, b, _convert.doubles(angles, 2, "angles"), rot, _out_centers,
        _out_radii, _out_angles, _count
    )
    return ca_elips_result(
        _code, _convert.as_points(_out_centers), list(_out_radii), list(_out_angles),
        _count.value
    )


class ca_elip1_result(NamedTuple):
    """What ca_elip1() returns."""

    code: int
    out_centers: List[Point]
    out_radii: List[float]
    out_angles: List[float]
    count: int  # type: ignore[assignment]


def ca_elip1(
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    angles: Sequence[float],
) -> ca_elip1_result:
    """Replaces an elliptic arc by at most five arcs of the four-centre oval.

    The oval goes through the ends of both axes and elsewhere runs outside the ellipse, by up to
    2.8 % of the longer half axis (where the axes are as 1 to 0.22; 1.9 % at 1 to 0.5, 0.6 % at
    1 to 0.8). Joints are tangent. The chain starts and ends at the points of the oval next to
    the ellipse's own, unlike that of ca_elips(), and lies along the ellipse whichever axis is
    the longer. Axes equal within errdist give one arc of the mean radius.

    Args:
        center, a, b, rot, angles: the arc; start and end equal after reduction are the whole
            turn: four arcs, the first at the end of the longer axis

    Returns:
        code: 0 done; -1 when an axis is not above errdist or a number is not finite, the
            outputs but count are then untouched
        out_centers, out_radii, out_angles: room for five arcs each; degrees, each range
            normalised as by a2d_StdSedeg()
        count: 1 to 5 arcs; 0 when the result is -1

    See also: ca_elip2 for a chain within a tolerance
    """
    _out_centers = _convert.point_room(5)
    _out_radii = _convert.double_room(5)
    _out_angles = _convert.double_room(10)
    _count = ctypes.c_uint16()
    _code = _lib.ca_elip1(
        _convert.point(center), a, b, rot, _convert.doubles(angles, 2, "angles"), _out_centers,
        _out_radii, _out_angles, _count
    )
    return ca_elip1_result(
        _code, _convert.as_points(_out_centers), list(_out_radii), list(_out_angles),
        _count.value
    )


class ca_elip2_result(NamedTuple):
    """What ca_elip2() returns."""

    code: int
    out_centers: List[Point]
    out_radii: List[float]
    out_angles: List[float]
    count: int  # type: ignore[assignment]


def ca_elip2(
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    angles: Sequence[float],
    tol: float,
    count: int,
) -> ca_elip2_result:
    """Replaces an elliptic arc by a tangent-continuous chain of circular arcs within a tolerance.

    No point of the chain lies further than tol from the arc, and none of the arc from the
    chain. The chain starts and ends on the arc's ends and goes through every end of an axis on
    the way, there square to the axis. Each quadrant has as few arcs as such a chain allows, and
    their number once fixed, the distance is made as small as it can be. Axes that differ by at
    most 2 tol give a whole ellipse as one circle.

    Cost: in proportion to the number of arcs, some tenfold for a tolerance a thousand times
    finer.

    Args:
        center, a, b, rot, angles: the arc; start and end equal after reduction are the whole
            turn, which is closed and begins at the end of an axis at or before the start
        tol: drawing units; more than half the shorter axis counts as that
        count: room in arcs, 0 to ask for the number (the arrays may then be null); the number
            of arcs, also when the result is -2; 0 for -1 and -3

    Returns:
        code: 0 done; -1 when an axis is not above errdist, tol not above 0 or a number not
            finite; -2 when there are more arcs than room; -3 when a quadrant takes more than
            512 arcs, or tol or half the shorter axis is below 4e-15 of the largest radius of
            curvature
        out_centers, out_radii, out_angles: room for count arcs each; degrees, each range
            normalised as by a2d_StdSedeg(); untouched unless the result is 0
        count: room in arcs, 0 to ask for the number (the arrays may then be null); the number
            of arcs, also when the result is -2; 0 for -1 and -3

    See also: ca_elip1 for a chain of five arcs at most
    """
    _count = _convert.UINT16.from_param(count)
    _out_centers = _convert.point_room(max(_count.value, 0))
    _out_radii = _convert.double_room(max(_count.value, 0))
    _out_angles = _convert.double_room(max(2 * _count.value, 0))
    _code = _lib.ca_elip2(
        _convert.point(center), a, b, rot, _convert.doubles(angles, 2, "angles"), tol,
        _out_centers, _out_radii, _out_angles, _count
    )
    return ca_elip2_result(
        _code, _convert.as_points(_out_centers), list(_out_radii), list(_out_angles),
        _count.value
    )


# Ellipses: division into points


class a2d_elpdn_result(NamedTuple):
    """What a2d_elpdn() returns."""

    code: int
    out: Point
    len: float


def a2d_elpdn(
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    angles: Sequence[float],
    n: int,
    k: int,
) -> a2d_elpdn_result:
    """Finds a division point to 0.001 degrees, from a table kept between calls.

    Meant to be asked for k = 1, 2, ..., n in turn. The first call measures the arc and notes,
    in steps of 0.001 degrees, where each piece is full, to within the rounding of the sum; the
    calls that follow read it; the call with k = n releases the table, and so does one with k >
    n. The table serves arcs whose centre and axes agree within 1e-6, rotation and angles within
    1e-8, and whose n is equal: the piece length and the angle come from it, centre, axes and
    rotation from the call. Any other arc replaces it. A table is never shared: do not divide on
    two threads at once.

    Cost: the first call takes memory for n doubles, and time in proportion to n or, where
    pieces are short, to the number of steps; the others are constant.

    Args:
        center, a, b, rot: the ellipse: full axis lengths, degrees
        angles: start and end; a span below 0.004 degrees gives a length of 0 and the end as
            every point
        n, k: number of pieces and of the point, 1 <= k <= n

    Returns:
        code: 0 done; 1 k exceeds n or is below 1, or no memory, or n above 2^20; -1 start
            exceeds end (at every call); outputs are untouched in these cases. -2 from the call
            that measures: the length does not settle, the span exceeds 36000 degrees, or it
            exceeds 1440 and the arc is too thin (an axis below some fifth of the other) or n
            too large (22500, in any case 65536) to be divided without a walk over it; the
            length is 0 and every point the end
        out: the point
        len: length of a piece

    See also: ca_elpdn, which is coarser and keeps nothing
    """
    _out = _convert.point_room(1)[0]
    _len = _convert.double_room(1)
    _code = _lib.a2d_elpdn(
        _convert.point(center), a, b, rot, _convert.doubles(angles, 2, "angles"), n, k, _out,
        _len
    )
    return a2d_elpdn_result(_code, Point(_out.x, _out.y), _len[0])


class ca_elpdn_result(NamedTuple):
    """What ca_elpdn() returns."""

    code: int
    out: Point
    len: float


def ca_elpdn(
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    angles: Sequence[float],
    n: int,
    k: int,
) -> ca_elpdn_result:
    """Finds a division point from the polyline through every whole degree of the arc.

    Only whole degrees from the start count: the arc beyond the last of them is left out of the
    length, and only the point k = n reaches the end. Within a degree the point is placed by a
    rule of its own, which is not the interpolation along the segment; it may be off by a
    degree.

    Cost: constant, at most 362 samples.

    Args:
        center, a, b, rot: the ellipse: full axis lengths, degrees
        angles: start and end, no more than 361 degrees apart
        n, k: number of pieces and of the point, 1 <= k <= n

    Returns:
        code: 0 done; 1 n or k below 1, start above end or more than 362 samples (len is then
            untouched), or the point lies beyond the polyline: k exceeds n, an arc below a
            degree with k < n, an ellipse of no size
        out: the point; for k = n exactly the end of the arc; untouched when the result is 1
        len: length of a piece; also written where the point lies beyond the polyline

    See also: a2d_elpdn
    """
    _out = _convert.point_room(1)[0]
    _len = _convert.double_room(1)
    _code = _lib.ca_elpdn(
        _convert.point(center), a, b, rot, _convert.doubles(angles, 2, "angles"), n, k, _out,
        _len
    )
    return ca_elpdn_result(_code, Point(_out.x, _out.y), _len[0])


# Ellipses: extents and points of given tangent


class ca_elaln_result(NamedTuple):
    """What ca_elaln() returns."""

    code: int
    out1: Point
    out2: Point


def ca_elaln(
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    direction: float,
) -> ca_elaln_result:
    """Finds the two points of a whole ellipse with a tangent of a given direction.

    Args:
        center, a, b, rot: the ellipse
        direction: of the tangent, degrees; whole turns are taken off

    Returns:
        code: always 1, though it never fails
        out1: the point on the side to which the second axis points, or the end of the first
            axis when the tangent is parallel to the second within 1e-8
        out2: the point opposite

    See also: ang_pnt for an arc
    """
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _code = _lib.ca_elaln(_convert.point(center), a, b, rot, direction, _out1, _out2)
    return ca_elaln_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y))


class ang_pnt_result(NamedTuple):
    """What ang_pnt() returns."""

    code: int
    out1: Point
    out2: Point


def ang_pnt(
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    angles: Sequence[float],
    direction: float,
) -> ang_pnt_result:
    """Finds the points of an elliptic arc with a tangent of a given direction; a point outside the
    arc gives way to the nearer end of the arc, to the end rather than the start where both are
    as near.

    Whether a point is outside is decided by polar directions, as in pin_chk(): 0 and 360 are
    the whole turn, while other angles 360 apart, which name one direction, may hold that
    direction alone.

    Args:
        center, a, b, rot, angles: the arc; rot moves one turn at most towards 0
        direction: of the tangent, degrees; moves one turn at most towards [0, 360]

    Returns:
        code: always 0
        out1, out2: the points, before they give way in the order of ca_elaln()
    """
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _code = _lib.ang_pnt(
        _convert.point(center), a, b, rot, _convert.doubles(angles, 2, "angles"), direction,
        _out1, _out2
    )
    return ang_pnt_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y))


class ca_elamn_result(NamedTuple):
    """What ca_elamn() returns."""

    code: int
    lower: Point
    upper: Point


def ca_elamn(
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    angles: Sequence[float],
) -> ca_elamn_result:
    """Finds the box around an elliptic arc, parallel to the axes of the plane.

    It is the box of the four points that ang_pnt() finds for the directions 90 and 0. An end of
    the arc counts only where it took the place of such a point: a box may be smaller than the
    arc.

    Args:
        center, a, b, rot, angles: the arc

    Returns:
        code: 0 done; 1 when start and end differ by less than 1e-6 (a whole ellipse is to be
            given as a span of 360)
        lower, upper: lower left and upper right corner; both (0, 0) when the result is 1
    """
    _lower = _convert.point_room(1)[0]
    _upper = _convert.point_room(1)[0]
    _code = _lib.ca_elamn(
        _convert.point(center), a, b, rot, _convert.doubles(angles, 2, "angles"), _lower, _upper
    )
    return ca_elamn_result(_code, Point(_lower.x, _lower.y), Point(_upper.x, _upper.y))


class ca_elpmn_result(NamedTuple):
    """What ca_elpmn() returns."""

    code: int
    lower: Point
    upper: Point
    extremes: List[Point]


def ca_elpmn(
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    angles: Sequence[float],
) -> ca_elpmn_result:
    """As ca_elamn(), with the points that make the box.

    Args:
        center, a, b, rot, angles: the arc

    Returns:
        code: as ca_elamn()
        lower, upper: as in ca_elamn()
        extremes: four points: the two with a tangent along y, then the two with one along x;
            untouched when the result is 1
    """
    _lower = _convert.point_room(1)[0]
    _upper = _convert.point_room(1)[0]
    _extremes = _convert.point_room(4)
    _code = _lib.ca_elpmn(
        _convert.point(center), a, b, rot, _convert.doubles(angles, 2, "angles"), _lower,
        _upper, _extremes
    )
    return ca_elpmn_result(
        _code, Point(_lower.x, _lower.y), Point(_upper.x, _upper.y),
        _convert.as_points(_extremes)
    )


# Lines with ellipses


class a2d_CrsLE_result(NamedTuple):
    """What a2d_CrsLE() returns."""

    code: int
    out1: Point
    out2: Point
    count: int  # type: ignore[assignment]


def a2d_CrsLE(
    p1: PointLike,
    p2: PointLike,
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    tol: float,
) -> a2d_CrsLE_result:
    """Intersects a line with an ellipse, with a tolerance of the call.

    The plane is stretched across the first axis by a/b, so that the ellipse becomes a circle of
    radius a/2. There the line is tangent when its distance from the centre differs from the
    radius by less than tol, to either side: on an ellipse with a short second axis that is a
    much smaller distance in the plane.

    Args:
        p1, p2: two points of the line
        center, a, b, rot: the ellipse: full axes, rotation in degrees
        tol: drawing units

    Returns:
        code: 0 solved; 1 degenerate, out1 and out2 are then untouched: an axis is zero, or the
            line or its stretched unit direction is shorter than tol
        out1: the point further along the direction from p2 to p1; the touching point when
            tangent; (0, 0) when there is none
        out2: the other point, or (0, 0)
        count: 32 bits: 0, 1 or 2 points; 0 when degenerate

    See also: a2d_insle with errdist and a 16-bit count
    """
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _count = ctypes.c_uint32()
    _code = _lib.a2d_CrsLE(
        _convert.point(p1), _convert.point(p2), _convert.point(center), a, b, rot, _out1, _out2,
        _count, tol
    )
    return a2d_CrsLE_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y), _count.value)


class a2d_insle_result(NamedTuple):
    """What a2d_insle() returns."""

    code: int
    out1: Point
    out2: Point
    count: int  # type: ignore[assignment]


def a2d_insle(
    p1: PointLike,
    p2: PointLike,
    center: PointLike,
    a: float,
    b: float,
    rot: float,
) -> a2d_insle_result:
    """Intersects a line with an ellipse as a2d_CrsLE() does, with errdist for tolerance.

    Args:
        p1, p2: two points of the line
        center, a, b, rot: the ellipse: full axes, rotation in degrees

    Returns:
        code: 0 solved, -1 degenerate
        out1, out2: the points, the one on p1's side first; (0, 0) where there is none;
            untouched when degenerate
        count: 0, 1 or 2 points; 0 when degenerate

    See also: a2d_insl1 for an elliptic arc
    """
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _count = ctypes.c_uint16()
    _code = _lib.a2d_insle(
        _convert.point(p1), _convert.point(p2), _convert.point(center), a, b, rot, _out1, _out2,
        _count
    )
    return a2d_insle_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y), _count.value)


class ca_insle_result(NamedTuple):
    """What ca_insle() returns."""

    code: int
    out1: Point
    out2: Point
    count: int  # type: ignore[assignment]


def ca_insle(
    p1: PointLike,
    p2: PointLike,
    center: PointLike,
    a: float,
    b: float,
    rot: float,
) -> ca_insle_result:
    """The same function as a2d_insle()."""
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _count = ctypes.c_uint16()
    _code = _lib.ca_insle(
        _convert.point(p1), _convert.point(p2), _convert.point(center), a, b, rot, _out1, _out2,
        _count
    )
    return ca_insle_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y), _count.value)


class a2d_insle2_result(NamedTuple):
    """What a2d_insle2() returns."""

    code: int
    out1: Point
    out2: Point
    count: int  # type: ignore[assignment]


def a2d_insle2(
    p1: PointLike,
    p2: PointLike,
    center: PointLike,
    a: float,
    b: float,
    rot: float,
) -> a2d_insle2_result:
    """The same function as a2d_insle()."""
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _count = ctypes.c_uint16()
    _code = _lib.a2d_insle2(
        _convert.point(p1), _convert.point(p2), _convert.point(center), a, b, rot, _out1, _out2,
        _count
    )
    return a2d_insle2_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y), _count.value)


class a2d_insl1_result(NamedTuple):
    """What a2d_insl1() returns."""

    code: int
    out1: Point
    out2: Point
    count: int  # type: ignore[assignment]


def a2d_insl1(
    p1: PointLike,
    p2: PointLike,
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    angles: Sequence[float],
) -> a2d_insl1_result:
    """Intersects a line with an elliptic arc.

    The points are those of a2d_insle(); kept are those whose direction from the centre lies
    between the directions of the arc's ends, with 1e-8 degrees of slack. Directions within 1e-7
    units of an axis snap onto it, those of the ends in the ellipse's frame, those of the points
    in the plane.

    Args:
        p1, p2: two points of the line
        center, a, b, rot: the ellipse: full axes, rotation in degrees
        angles: start and end of the arc, parametric degrees; equal ends mean the full ellipse

    Returns:
        code: 0 solved, -1 degenerate
        out1: the first point kept, or (0, 0)
        out2: the second point kept, or (0, 0); both are untouched when degenerate
        count: 0, 1 or 2 points kept; 0 when degenerate
    """
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _count = ctypes.c_uint16()
    _code = _lib.a2d_insl1(
        _convert.point(p1), _convert.point(p2), _convert.point(center), a, b, rot,
        _convert.doubles(angles, 2, "angles"), _out1, _out2, _count
    )
    return a2d_insl1_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y), _count.value)


class a2d_insLStandardE_result(NamedTuple):
    """What a2d_insLStandardE() returns."""

    code: int
    out1: Point
    out2: Point
    count: int  # type: ignore[assignment]


def a2d_insLStandardE(p1: PointLike, p2: PointLike, a: float, b: float) -> a2d_insLStandardE_result:
    """Intersects a line with the ellipse centred at the origin with its first axis along x.

    A line that a2d_IsElpTangentLine() accepts gives its touching point. Points no further apart
    than errdist count as one.

    Args:
        p1, p2: two points of the line; vertical when their x differ by less than 1e-8
        a, b: full axes; a zero axis has no points, unless the line touches its end or is
            vertical

    Returns:
        code: 0 solved; -1 axes too long for their squares left no quadratic, both outputs are
            then (0, 0)
        out1: the point with the greater x, of a vertical line with the greater y; (0, 0) when
            there is none
        out2: the other point, or (0, 0)
        count: 0, 1 or 2 points
    """
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _count = ctypes.c_uint16()
    _code = _lib.a2d_insLStandardE(
        _convert.point(p1), _convert.point(p2), a, b, _out1, _out2, _count
    )
    return a2d_insLStandardE_result(
        _code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y), _count.value
    )


class a2d_IsElpTangentLine_result(NamedTuple):
    """What a2d_IsElpTangentLine() returns."""

    code: int
    out: Point


def a2d_IsElpTangentLine(
    p1: PointLike,
    p2: PointLike,
    a: float,
    b: float,
) -> a2d_IsElpTangentLine_result:
    """Tells whether a line touches the ellipse centred at the origin with its first axis along x.

    A line parallel to an axis (within 1e-8) touches when its distance from the centre is half
    the other axis within 1e-6. Any other line touches when the products of the focal tangent
    property differ by no more than 1e-6, a squared length, and its touching point lies within
    1e-6 of it. Where the second axis is the longer the foci decide nothing and the touching
    point alone does. Nothing here follows errdist; only a line shorter than it counts as 0 away
    from all.

    Args:
        p1, p2: two points of the line
        a, b: full axes

    Returns:
        code: 0 tangent; -1 not, or a line that crosses the first axis within the ellipse
        out: the touching point; untouched when the result is -1
    """
    _out = _convert.point_room(1)[0]
    _code = _lib.a2d_IsElpTangentLine(_convert.point(p1), _convert.point(p2), a, b, _out)
    return a2d_IsElpTangentLine_result(_code, Point(_out.x, _out.y))


class a2d_InsDe_result(NamedTuple):
    """What a2d_InsDe() returns."""

    code: int
    out: Point


def a2d_InsDe(e1: DTELLIPSE, e2: DTELLIPSE) -> a2d_InsDe_result:
    """Selects the end of an elliptic arc to keep where it is cut by the same ellipse.

    With the flag of ca_SetStartendFlg() at 1 that is the start of e1, else its end;
    PLANEGEO_ATTR_REVERSED in its attribute word exchanges the two. A full ellipse e2 does not
    ask the flag: it gives the start when the bit is set, else the end.

    Args:
        e1: the arc whose end is wanted
        e2: the cutting arc; its range runs from its end to its start when exactly one of
            PLANEGEO_ATTR_REVERSED and PLANEGEO_ATTR_CLOCKWISE is set

    Returns:
        code: 1 chosen; 0 the end is not on e2 (1e-8 degrees of slack); -1 not the same ellipse:
            centres and axes must agree within errdist, rotations within 1e-8 degrees or differ
            by 180, even those of a circle
        out: the end; untouched unless the result is 1
    """
    _out = _convert.point_room(1)[0]
    _code = _lib.a2d_InsDe(e1, e2, _out)
    return a2d_InsDe_result(_code, Point(_out.x, _out.y))


# Ellipses with circles and ellipses


class a2dIntersectionEC_result(NamedTuple):
    """What a2dIntersectionEC() returns."""

    code: int
    out: List[Point]


def a2dIntersectionEC(
    ex: float,
    ey: float,
    a: float,
    b: float,
    r: float,
) -> a2dIntersectionEC_result:
    """Intersects a circle about the origin with an ellipse whose axes lie along x and y.

    Points lie on both curves; of a touch within the tolerances one or both points are given.
    Fixed tolerances decide: an ellipse with b below 1e-6 is a segment, one whose half axes
    differ by less than errdist a circle (see a2dCrs2C()), and one whose centre lies within 1e-6
    of the y axis is taken as lying on it. Where nothing is found, two points that need not lie
    on the ellipse are given if the discriminant, a length to the sixth, is below 1e-6: always
    so in drawings of some hundredths of a unit.

    Args:
        ex, ey: centre of the ellipse, seen from that of the circle
        a, b: half axes, a along x and not the shorter
        r: radius

    Returns:
        code: the number of points, 0 to 4; -1001 when b exceeds a, or when a or r is below 1e-6
        out: four points: those found, in the order in which the quartic of their ordinates is
            solved by radicals; beyond the count (0, 0) or what was tried and dropped; untouched
            when refused

    See also: a2d_insce for arcs in any position
    """
    _out = _convert.point_room(4)
    _code = _lib.a2dIntersectionEC(ex, ey, a, b, r, _out)
    return a2dIntersectionEC_result(_code, _convert.as_points(_out))


class a2d_insce_result(NamedTuple):
    """What a2d_insce() returns."""

    code: int
    p1: Point
    p2: Point
    p3: Point
    p4: Point
    count: int  # type: ignore[assignment]


def a2d_insce(
    center: Sequence[float],
    r: float,
    angles: Sequence[float],
    ecenter: Sequence[float],
    a: float,
    b: float,
    rot: float,
    eangles: Sequence[float],
) -> a2d_insce_result:
    """Intersects a circular with an elliptic arc.

    The points are those of a2dIntersectionEC(); kept are those on both arcs, with 1e-8 degrees
    of slack. An ellipse with half a second axis below 1e-6 is a segment, of which no part is
    left out.

    Args:
        center: centre of the circle, x and y
        r: radius
        angles: start and end of its arc, degrees
        ecenter: centre of the ellipse, x and y
        a, b: full axes; a must not be the shorter
        rot: rotation of the first axis, degrees
        eangles: start and end of the elliptic arc, parametric degrees; equal ends mean the full
            ellipse

    Returns:
        code: 0 done; -1 refused: a shape that a2dIntersectionEC() refuses, or an axis below
            errdist where a point on the circle's arc was found
        p1, p2, p3, p4: the points kept; those beyond the count are untouched
        count: 0 to 4, lowered by as many points as a2d_chk_distdeg() drops while the points
            stay in their places; untouched when refused
    """
    _p1 = _convert.point_room(1)[0]
    _p2 = _convert.point_room(1)[0]
    _p3 = _convert.point_room(1)[0]
    _p4 = _convert.point_room(1)[0]
    _count = ctypes.c_int16()
    _code = _lib.a2d_insce(
        _convert.doubles(center, 2, "center"), r, _convert.doubles(angles, 2, "angles"),
        _convert.doubles(ecenter, 2, "ecenter"), a, b, rot, _convert.doubles(eangles, 2,
        "eangles"), _p1, _p2, _p3, _p4, _count
    )
    return a2d_insce_result(
        _code, Point(_p1.x, _p1.y), Point(_p2.x, _p2.y), Point(_p3.x, _p3.y), Point(_p4.x,
        _p4.y), _count.value
    )


class ca_insce_result(NamedTuple):
    """What ca_insce() returns."""

    code: int
    p1: Point
    p2: Point
    p3: Point
    p4: Point
    count: int  # type: ignore[assignment]


def ca_insce(
    center: Sequence[float],
    r: float,
    angles: Sequence[float],
    ecenter: Sequence[float],
    a: float,
    b: float,
    rot: float,
    eangles: Sequence[float],
) -> ca_insce_result:
    """The same function as a2d_insce()."""
    _p1 = _convert.point_room(1)[0]
    _p2 = _convert.point_room(1)[0]
    _p3 = _convert.point_room(1)[0]
    _p4 = _convert.point_room(1)[0]
    _count = ctypes.c_int16()
    _code = _lib.ca_insce(
        _convert.doubles(center, 2, "center"), r, _convert.doubles(angles, 2, "angles"),
        _convert.doubles(ecenter, 2, "ecenter"), a, b, rot, _convert.doubles(eangles, 2,
        "eangles"), _p1, _p2, _p3, _p4, _count
    )
    return ca_insce_result(
        _code, Point(_p1.x, _p1.y), Point(_p2.x, _p2.y), Point(_p3.x, _p3.y), Point(_p4.x,
        _p4.y), _count.value
    )


class a2d_ins2e_result(NamedTuple):
    """What a2d_ins2e() returns."""

    code: int
    p1: Point
    p2: Point
    p3: Point
    p4: Point
    count: int  # type: ignore[assignment]


def a2d_ins2e(
    center1: Sequence[float],
    center2: Sequence[float],
    a1: float,
    a2: float,
    b1: float,
    b2: float,
    rot1: float,
    rot2: float,
    angles1: Sequence[float],
    angles2: Sequence[float],
    p1: PointLike = NOWHERE,
    p2: PointLike = NOWHERE,
    p3: PointLike = NOWHERE,
    p4: PointLike = NOWHERE,
) -> a2d_ins2e_result:
    """Intersects two elliptic arcs.

    The plane is stretched so that the first ellipse becomes a circle, and a2d_insce() answers.
    Any axis may be the longer one.

    Args:
        center1, center2: the centres, x and y each
        a1, a2: full first axes
        b1, b2: full second axes; with b1 zero the answer is no points, and y coordinates of the
            outputs that are not finite or lost
        rot1, rot2: rotations, degrees
        angles1, angles2: start and end of each arc, parametric degrees
        p1, p2, p3, p4: the points found. Those beyond the count are carried out of the
            stretched frame too, from whatever they held

    Returns:
        code: 0 done; 1 the ellipses coincide within errdist (axes, rotations and squared
            distance of the centres), count is 0; -1 refused: an axis of the second ellipse is
            not longer than errdist, or a2d_insce() refused; in these two cases the points are
            untouched and count is 0
        p1, p2, p3, p4: the points found. Those beyond the count are carried out of the
            stretched frame too, from whatever they held
        count: 0 to 4
    """
    _p1 = _convert.point(p1)
    _p2 = _convert.point(p2)
    _p3 = _convert.point(p3)
    _p4 = _convert.point(p4)
    _count = ctypes.c_int16()
    _code = _lib.a2d_ins2e(
        _convert.doubles(center1, 2, "center1"), _convert.doubles(center2, 2, "center2"), a1,
        a2, b1, b2, rot1, rot2, _convert.doubles(angles1, 2, "angles1"),
        _convert.doubles(angles2, 2, "angles2"), _p1, _p2, _p3, _p4, _count
    )
    return a2d_ins2e_result(
        _code, Point(_p1.x, _p1.y), Point(_p2.x, _p2.y), Point(_p3.x, _p3.y), Point(_p4.x,
        _p4.y), _count.value
    )


class ca_ins2e_result(NamedTuple):
    """What ca_ins2e() returns."""

    code: int
    p1: Point
    p2: Point
    p3: Point
    p4: Point
    count: int  # type: ignore[assignment]


def ca_ins2e(
    center1: Sequence[float],
    center2: Sequence[float],
    a1: float,
    a2: float,
    b1: float,
    b2: float,
    rot1: float,
    rot2: float,
    angles1: Sequence[float],
    angles2: Sequence[float],
    p1: PointLike = NOWHERE,
    p2: PointLike = NOWHERE,
    p3: PointLike = NOWHERE,
    p4: PointLike = NOWHERE,
) -> ca_ins2e_result:
    """The same function as a2d_ins2e()."""
    _p1 = _convert.point(p1)
    _p2 = _convert.point(p2)
    _p3 = _convert.point(p3)
    _p4 = _convert.point(p4)
    _count = ctypes.c_int16()
    _code = _lib.ca_ins2e(
        _convert.doubles(center1, 2, "center1"), _convert.doubles(center2, 2, "center2"), a1,
        a2, b1, b2, rot1, rot2, _convert.doubles(angles1, 2, "angles1"),
        _convert.doubles(angles2, 2, "angles2"), _p1, _p2, _p3, _p4, _count
    )
    return ca_ins2e_result(
        _code, Point(_p1.x, _p1.y), Point(_p2.x, _p2.y), Point(_p3.x, _p3.y), Point(_p4.x,
        _p4.y), _count.value
    )


class a2d_chk_distdeg_result(NamedTuple):
    """What a2d_chk_distdeg() returns."""

    code: int
    out: List[Point]


def a2d_chk_distdeg(
    points: Sequence[PointLike],
    n: int,
    center: Sequence[float],
    rot: float,
    a: float,
    b: float,
) -> a2d_chk_distdeg_result:
    """Drops the points of a list that repeat an earlier one.

    Two points are one when their squared distance is below errdist (one thousandth of a unit
    apart by default) and their parameters on the ellipse differ by less than 1e-8 degrees.

    Args:
        points: n points
        n: their number, 2 to 4
        center: centre of the ellipse, x and y
        rot: rotation of the first axis, degrees
        a, b: full axes

    Returns:
        code: the number of distinct points; -1 when n is not 2 to 4, or an axis is shorter than
            errdist, out is then untouched
        out: n points: the distinct ones in their order, what follows them is untouched; may be
            points itself
    """
    _out = _convert.point_room(max(n, 0))
    _code = _lib.a2d_chk_distdeg(
        _convert.points(points, n, "points"), n, _convert.doubles(center, 2, "center"), rot, a,
        b, _out
    )
    return a2d_chk_distdeg_result(_code, _convert.as_points(_out))


# Ellipses: perpendiculars


class a2dEllpsPer_result(NamedTuple):
    """What a2dEllpsPer() returns."""

    code: int
    out: List[Point]
    dist: float


def a2dEllpsPer(p: PointLike, e: DTELLIPSE) -> a2dEllpsPer_result:
    """Finds the nearest foot of a perpendicular, the one in the point's own quadrant.

    From the centre and from the first axis inside the evolute two feet are as near.

    Args:
        p: the point
        e: the ellipse; start and end are not read

    Returns:
        code: 1 or 2 feet; 0 for a NaN or an infinity; -1 an axis is not above errdist; -2 the
            first axis does not exceed the second by more than errdist
        out: array of 2, cleared first: the foot; (0, B) and (0, -B) in the ellipse's frame from
            the centre; both feet from the first axis, the one to the left of the axis first
        dist: its distance from p; untouched without a foot

    See also: a2dEllpsPerPnts for all feet, a2d_dstpp for any axes
    """
    _out = _convert.point_room(2)
    _dist = _convert.double_room(1)
    _code = _lib.a2dEllpsPer(_convert.point(p), e, _out, _dist)
    return a2dEllpsPer_result(_code, _convert.as_points(_out), _dist[0])


class a2dEllpsPerPnts_result(NamedTuple):
    """What a2dEllpsPerPnts() returns."""

    code: int
    out: List[Point]


def a2dEllpsPerPnts(p: PointLike, e: DTELLIPSE) -> a2dEllpsPerPnts_result:
    """Finds all feet of perpendiculars from a point to a full ellipse.

    The order, in the ellipse's frame: from the centre (A, 0), (0, B), (-A, 0), (0, -B); from
    the second axis (0, B), (0, -B), then the two beside it, the one with x > 0 first; from the
    first axis (A, 0), (-A, 0), then the two beside it, y > 0 first; from any other point the
    nearest foot, the farthest, then the two across the first axis, the one nearer to its end
    first.

    Args:
        p: the point
        e: the ellipse; start and end are not read

    Returns:
        code: number of feet, 2 or 4, or 0 for a NaN or an infinity; -1 an axis is not above
            errdist; -2 the first axis does not exceed the second by more than errdist (a
            circle, or the second axis the longer)
        out: array of 4, cleared first

    See also: a2d_PerEP for circles
    """
    _out = _convert.point_room(4)
    _code = _lib.a2dEllpsPerPnts(_convert.point(p), e, _out)
    return a2dEllpsPerPnts_result(_code, _convert.as_points(_out))


class a2dEllpsArcPerPnts_result(NamedTuple):
    """What a2dEllpsArcPerPnts() returns."""

    code: int
    out: List[Point]


def a2dEllpsArcPerPnts(p: PointLike, e: DTELLIPSE) -> a2dEllpsArcPerPnts_result:
    """As a2dEllpsPerPnts(), with only the feet that lie on the arc by ca_onelp().

    Args:
        p, e: the point and the arc

    Returns:
        code: number of feet on the arc, 0 to 4; -1 and -2 as there
        out: array of 4; untouched beyond the result
    """
    _out = _convert.point_room(4)
    _code = _lib.a2dEllpsArcPerPnts(_convert.point(p), e, _out)
    return a2dEllpsArcPerPnts_result(_code, _convert.as_points(_out))


class a2d_PerEP_result(NamedTuple):
    """What a2d_PerEP() returns."""

    code: int
    out: List[Point]
    count: int  # type: ignore[assignment]


def a2d_PerEP(p: PointLike, e: DTELLIPSE) -> a2d_PerEP_result:
    """Finds the feet of perpendiculars to an ellipse, or what stands in for them.

    Where a2dEllpsPerPnts() has no foot it is the nearest sample of the arc by ca_dstpp(), p
    itself if that is nearer than errdist. Where it answers -2 the ellipse counts as the circle
    over its first axis, and the answer is that of cross_lin_cir() for the line from p to the
    centre: the far point first.

    Args:
        p: the point
        e: the ellipse; its arc counts for the nearest sample alone

    Returns:
        code: 0 done; -1 an axis is not above errdist, or p is the centre of a circle (within
            errdist in x and in y)
        out: array of 4, cleared first; a single point of the circle twice
        count: number of points; untouched when the result is -1

    See also: a2d_PerEP2 for arcs
    """
    _out = _convert.point_room(4)
    _count = ctypes.c_uint32()
    _code = _lib.a2d_PerEP(_convert.point(p), e, _out, _count)
    return a2d_PerEP_result(_code, _convert.as_points(_out), _count.value)


class a2d_PerEP2_result(NamedTuple):
    """What a2d_PerEP2() returns."""

    code: int
    out: List[Point]
    count: int  # type: ignore[assignment]


def a2d_PerEP2(p: PointLike, e: DTELLIPSE) -> a2d_PerEP2_result:
    """As a2d_PerEP(), for an arc: by a2dEllpsArcPerPnts(), unless start and end are 0 and 360
    within errdist. A circle's points are kept by a2d_lin_arc() in mode 1, with start and end
    raised by the rotation.

    Args:
        p, e: the point and the arc

    Returns:
        code: 0 done; -1 as there
        out: array of 4; cleared first for 0 and 360 only; both of the first two are written for
            a circle, as a2d_lin_arc() does
        count: number of points, 0 where a circle's arc holds none; untouched when the result is
            -1
    """
    _out = _convert.point_room(4)
    _count = ctypes.c_uint32()
    _code = _lib.a2d_PerEP2(_convert.point(p), e, _out, _count)
    return a2d_PerEP2_result(_code, _convert.as_points(_out), _count.value)


class a2d_perle_result(NamedTuple):
    """What a2d_perle() returns."""

    code: int
    out: Point


def a2d_perle(p: PointLike, e: DTELLIPSE) -> a2d_perle_result:
    """Projects a point onto an ellipse by its polar angle, taken for a parameter.

    The result is the point (A cos t, B sin t) for the direction t of p from the centre: no foot
    of a perpendicular, and on the ray to p on the axes alone. Whether it lies on the arc is
    asked of its own direction with 1e-8 degrees of slack, between start and end taken as polar
    angles.

    Args:
        p: the point
        e: the ellipse; where exactly one of PLANEGEO_ATTR_REVERSED and PLANEGEO_ATTR_CLOCKWISE
            is set the arc runs from end to start; an end of the arc within 1e-6 of 0 counts as
            360, and a negative start is raised by a turn, the end with it if negative

    Returns:
        code: 0 on the arc; 1 off it; -1 an axis is at most 1e-6, or p lies within 1e-6 of the
            centre in x and in y
        out: the point; untouched when the result is -1
    """
    _out = _convert.point_room(1)[0]
    _code = _lib.a2d_perle(_convert.point(p), e, _out)
    return a2d_perle_result(_code, Point(_out.x, _out.y))


# Ellipses: tangents


class ca_inspe_result(NamedTuple):
    """What ca_inspe() returns."""

    code: int
    out1: Point
    out2: Point


def ca_inspe(p: PointLike, center: PointLike, a: float, b: float, rot: float) -> ca_inspe_result:
    """There are none where the discriminant of the polar line y = m x + q against the ellipse, a
    length to the sixth, is at most 1e-8; for a point within 1e-8 of the first axis, where the
    squared ordinate of the contacts is. Small ellipses have none for that reason.

    Args:
        p: the point
        center, a, b, rot: the ellipse; either axis may be the longer; one of zero gives the
            ends of the segment, non-finite outputs, or 1

    Returns:
        code: 0 done; 1 the point lies inside or on the ellipse
        out1, out2: cleared first; the contact with the greater x in the ellipse's frame is
            out1; for a point on the first axis the one with the greater y

    See also: a2d_tchpe
    """
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _code = _lib.ca_inspe(_convert.point(p), _convert.point(center), a, b, rot, _out1, _out2)
    return ca_inspe_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y))


class a2d_tchpe_result(NamedTuple):
    """What a2d_tchpe() returns."""

    code: int
    out1: Point
    out2: Point


def a2d_tchpe(p: PointLike, center: PointLike, a: float, b: float, rot: float) -> a2d_tchpe_result:
    """Finds the points of contact of the tangents from a point to an ellipse, by the feet of the
    foci: where a perpendicular from a focus meets a tangent, on the circle over the first axis.

    The point must be outside: half the sum of its focal distances must exceed half the first
    axis by more than 1e-6. A tangent that runs along one axis (to 1e-8 between point and foot)
    touches at the end of the other.

    Args:
        p: the point
        center, a, b, rot: the ellipse; the first axis must not be the shorter

    Returns:
        code: 2 both found; 0 the point lies inside or on the ellipse, or the second axis is
            zero or the longer; -1 the first axis is not positive
        out1, out2: the contacts; that of the nearer focus's foot to the right of the direction
            from the centre to the middle between focus and point is out1. Unless the result is
            2, untouched or points in the ellipse's frame that tell nothing

    See also: ca_inspe
    """
    _out1 = _convert.point_room(1)[0]
    _out2 = _convert.point_room(1)[0]
    _code = _lib.a2d_tchpe(_convert.point(p), _convert.point(center), a, b, rot, _out1, _out2)
    return a2d_tchpe_result(_code, Point(_out1.x, _out1.y), Point(_out2.x, _out2.y))


class a2d_tch2e_result(NamedTuple):
    """What a2d_tch2e() returns."""

    code: int
    t1: Point
    t2: Point
    t3: Point
    t4: Point
    t5: Point
    t6: Point
    t7: Point
    t8: Point
    count: int  # type: ignore[assignment]


def a2d_tch2e(
    center1: PointLike,
    center2: PointLike,
    a1: float,
    a2: float,
    b1: float,
    b2: float,
    rot1: float,
    rot2: float,
) -> a2d_tch2e_result:
    """Finds the common tangents of two ellipses, each by its point of contact on ellipse 1 and on
    ellipse 2: (t1, t2), (t3, t4), (t5, t6), (t7, t8).

    Ellipses apart have two outer tangents and two inner ones, which cross between them;
    ellipses that cross have two outer ones, or four where they cross four times; one inside the
    other has none. Outer tangents come first. Each kind is ordered by the direction from
    ellipse 1 square to the line, measured from the direction of centre 2 in (-180, 180] (from
    the first axis of ellipse 1 where the centres coincide within errdist): for two circles the
    tangent to the right of the direction from centre 1 to centre 2 is before that to its left.

    Where the ellipses touch within errdist two tangents merge into the one at that point, where
    both points of contact would coincide: it is not given.

    Args:
        center1, center2, a1, a2, b1, b2, rot1, rot2: the full ellipses; either axis may be the
            longer

    Returns:
        code: 0 done; 1 the ellipses coincide within errdist; 2 one lies inside the other,
            touching or not; -1 an axis is not longer than errdist, or an argument is not finite
        t1, t2, t3, t4, t5, t6, t7, t8: the points of contact; untouched beyond the count
        count: number of tangents: 0, 2 or 4

    See also: ca_cctan for circles
    """
    _t1 = _convert.point_room(1)[0]
    _t2 = _convert.point_room(1)[0]
    _t3 = _convert.point_room(1)[0]
    _t4 = _convert.point_room(1)[0]
    _t5 = _convert.point_room(1)[0]
    _t6 = _convert.point_room(1)[0]
    _t7 = _convert.point_room(1)[0]
    _t8 = _convert.point_room(1)[0]
    _count = ctypes.c_uint16()
    _code = _lib.a2d_tch2e(
        _convert.point(center1), _convert.point(center2), a1, a2, b1, b2, rot1, rot2, _t1, _t2,
        _t3, _t4, _t5, _t6, _t7, _t8, _count
    )
    return a2d_tch2e_result(
        _code, Point(_t1.x, _t1.y), Point(_t2.x, _t2.y), Point(_t3.x, _t3.y), Point(_t4.x,
        _t4.y), Point(_t5.x, _t5.y), Point(_t6.x, _t6.y), Point(_t7.x, _t7.y), Point(_t8.x,
        _t8.y), _count.value
    )


# Ellipses: distance


def a2d_distpe(p: PointLike, e: DTELLIPSE) -> int:
    """Tells whether a point lies on, outside or inside a full ellipse.

    The point counts as on the ellipse when A^2 y^2 + B^2 x^2 - A^2 B^2, with half axes A and B
    and the point in the frame of the ellipse, is at most 0.0001. That is a length to the
    fourth: a band wide for small ellipses, narrow for large ones. A difference so small is
    formed with twice the digits of a double.

    Args:
        p: the point
        e: the ellipse; start and end are not read, either axis may be the longer

    Returns:
        0 on, 1 outside, 2 inside; 2 for a NaN

    See also: ca_posel for a tolerance that is a length
    """
    return int(_lib.a2d_distpe(_convert.point(p), e))


class ca_dstpp_result(NamedTuple):
    """What ca_dstpp() returns."""

    value: float
    out: Point


def ca_dstpp(
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    angles: Sequence[float],
    p: PointLike,
) -> ca_dstpp_result:
    """Finds the nearest sample of an elliptic arc: at whole degrees of the parameter from the
    start on, then at tenths of a degree within a degree of the best.

    The answer is exact to 0.1 degrees of the parameter, not to rounding; of equal distances the
    earlier sample counts. The end itself is a sample only where whole degrees, or then tenths,
    lead to it. Equal start and end are that one point, except for a point on the whole ellipse
    with both 0 (see ca_onelp()).

    Cost: constant, at most 364 samples and then 21, of which most are ruled out unseen.

    Args:
        center, a, b, rot: the ellipse
        angles: start and end, degrees; a start above the end means an arc through 0; of a span
            beyond a turn the first 363 degrees are sampled; the step ends where it no longer
            changes the angle
        p: the point

    Returns:
        value: the distance of that sample; 0 on the arc; NaN for an angle that is NaN
        out: the nearest sample, coordinates below 1e-6 as 0; p itself where it lies on the arc
            by ca_onelp(); (0, 0) for an angle that is NaN

    See also: a2d_dstpp for the true nearest point
    """
    _out = _convert.point_room(1)[0]
    _code = _lib.ca_dstpp(
        _convert.point(center), a, b, rot, _convert.doubles(angles, 2, "angles"),
        _convert.point(p), _out
    )
    return ca_dstpp_result(_code, Point(_out.x, _out.y))


def ca_dstpe(
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    angles: Sequence[float],
    p: PointLike,
) -> float:
    """Returns the distance of ca_dstpp() alone.

    Args:
        center, a, b, rot, angles, p: the arc and the point

    Returns:
        as there
    """
    return float(
        _lib.ca_dstpe(_convert.point(center), a, b, rot, _convert.doubles(angles, 2, "angles"),
        _convert.point(p))
    )


class a2d_dstpp_result(NamedTuple):
    """What a2d_dstpp() returns."""

    value: float
    out: Point


def a2d_dstpp(
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    angles: Sequence[float],
    p: PointLike,
) -> a2d_dstpp_result:
    """Finds the nearest point of an elliptic arc, to rounding.

    The point is the foot of a normal or an end of the arc; the distance is right to 1e-15 of
    itself or of the longer axis, whichever is larger. Circles, flat ellipses down to segments,
    and points on the axes and the evolute need no care. Of two nearest points either may be
    given.

    Args:
        center, a, b, rot: the ellipse; either axis may be the longer, or zero
        angles: start and end, degrees, any that a2d_StdSedeg() takes; equal ends mean the whole
            ellipse
        p: the point

    Returns:
        value: the distance; 0 where it is below errdist
        out: the nearest point; p itself where it is nearer than errdist

    See also: ca_dstpp for the sampled distance of older hosts
    """
    _out = _convert.point_room(1)[0]
    _code = _lib.a2d_dstpp(
        _convert.point(center), a, b, rot, _convert.doubles(angles, 2, "angles"),
        _convert.point(p), _out
    )
    return a2d_dstpp_result(_code, Point(_out.x, _out.y))


def a2d_dstpe(
    center: PointLike,
    a: float,
    b: float,
    rot: float,
    angles: Sequence[float],
    p: PointLike,
) -> float:
    """Returns the distance of a2d_dstpp() alone.

    Args:
        center, a, b, rot, angles, p: the arc and the point

    Returns:
        as there
    """
    return float(
        _lib.a2d_dstpe(_convert.point(center), a, b, rot, _convert.doubles(angles, 2, "angles"),
        _convert.point(p))
    )


_of_library: Dict[object, object] = {
    ca_lengelp: _lib.ca_lengelp,
    ca_AreaElp: _lib.ca_AreaElp,
}


_lib.ca_geterrdist.argtypes = []
_lib.ca_geterrdist.restype = ctypes.c_double
_lib.ca_seterrdist.argtypes = [ctypes.c_double]
_lib.ca_seterrdist.restype = None
_lib.ca_GetStartendFlg.argtypes = []
_lib.ca_GetStartendFlg.restype = ctypes.c_int32
_lib.ca_SetStartendFlg.argtypes = [_convert.INT32]
_lib.ca_SetStartendFlg.restype = None
_lib.ca_Simpson_getParmtbl.argtypes = []
_lib.ca_Simpson_getParmtbl.restype = ctypes.POINTER(ctypes.c_double)
_lib.sind.argtypes = [ctypes.c_double]
_lib.sind.restype = ctypes.c_double
_lib.cosd.argtypes = [ctypes.c_double]
_lib.cosd.restype = ctypes.c_double
_lib.tand.argtypes = [ctypes.c_double]
_lib.tand.restype = ctypes.c_double
_lib.asind.argtypes = [ctypes.c_double]
_lib.asind.restype = ctypes.c_double
_lib.acosd.argtypes = [ctypes.c_double]
_lib.acosd.restype = ctypes.c_double
_lib.atand.argtypes = [ctypes.c_double]
_lib.atand.restype = ctypes.c_double
_lib.atan2d.argtypes = [ctypes.c_double, ctypes.c_double]
_lib.atan2d.restype = ctypes.c_double
_lib.a2d_StdSedeg.argtypes = [ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double)]
_lib.a2d_StdSedeg.restype = ctypes.c_int32
_lib.a2d_ChkDegr.argtypes = [ctypes.c_double, ctypes.c_double, ctypes.c_double]
_lib.a2d_ChkDegr.restype = ctypes.c_int32
_lib.a2d_GetBedeg.argtypes = [
    _convert.INT32, _convert.INT32, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double)
]
_lib.a2d_GetBedeg.restype = None
_lib.c_pnt.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double
]
_lib.c_pnt.restype = ctypes.c_int32
_lib.ca_rvpnt.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double
]
_lib.ca_rvpnt.restype = ctypes.c_int32
_lib.pnt_std.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT), ctypes.c_double,
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.pnt_std.restype = ctypes.c_int32
_lib.pnt_formd.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT), ctypes.c_double,
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.pnt_formd.restype = ctypes.c_int32
_lib.pnt_mer.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT)
]
_lib.pnt_mer.restype = ctypes.c_int32
_lib.ca_vmpnt.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT)
]
_lib.ca_vmpnt.restype = ctypes.c_int32
_lib.ca_vcrad.argtypes = [ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT)]
_lib.ca_vcrad.restype = ctypes.c_double
_lib.ca_dstpt.argtypes = [ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT)]
_lib.ca_dstpt.restype = ctypes.c_double
_lib.a2dCrs2L.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2dCrs2L.restype = ctypes.c_int32
_lib.a2d_ins2l.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2d_ins2l.restype = ctypes.c_int32
_lib.ca_ins2l.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.ca_ins2l.restype = ctypes.c_int32
_lib.aatCalCrs2l.argtypes = [ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double)]
_lib.aatCalCrs2l.restype = ctypes.c_int32
_lib.ca_perln.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_double)
]
_lib.ca_perln.restype = ctypes.c_int32
_lib.ca_palds.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT), ctypes.c_double,
    _convert.INT16, ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT)
]
_lib.ca_palds.restype = ctypes.c_int32
_lib.ca_posln.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(ctypes.c_uint16)
]
_lib.ca_posln.restype = ctypes.c_int32
_lib.a2d_onlin.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2d_onlin.restype = ctypes.c_int32
_lib.ca_onlin.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.ca_onlin.restype = ctypes.c_int32
_lib.ca_DistAlongbyLineFromSpnt.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT), ctypes.c_double,
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.ca_DistAlongbyLineFromSpnt.restype = ctypes.c_int32
_lib.a2d_InsDl.argtypes = [
    ctypes.POINTER(DTLINE), ctypes.POINTER(DTLINE), ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2d_InsDl.restype = ctypes.c_int32
_lib.a2d_Chk3pnt.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2d_Chk3pnt.restype = ctypes.c_int32
_lib.cross_lin_cir.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(ctypes.c_uint16)
]
_lib.cross_lin_cir.restype = ctypes.c_int32
_lib.a2d_lin_arc.argtypes = [
    _convert.UINT32, ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_uint16)
]
_lib.a2d_lin_arc.restype = ctypes.c_int32
_lib.a2dCrsLC.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2dCrsLC.restype = ctypes.c_int32
_lib.ca_crslc.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(ctypes.c_uint16)
]
_lib.ca_crslc.restype = ctypes.c_int32
_lib.ca_crslc2.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_uint16)
]
_lib.ca_crslc2.restype = ctypes.c_int32
_lib.ca_inslc.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_uint16)
]
_lib.ca_inslc.restype = ctypes.c_int32
_lib.a2d_inslc.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_uint16)
]
_lib.a2d_inslc.restype = ctypes.c_int32
_lib.sb_inslc.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_uint16)
]
_lib.sb_inslc.restype = ctypes.c_int32
_lib.a2dCrs2C.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.POINTER(_convert.DTPOINT),
    ctypes.c_double, ctypes.POINTER(ctypes.c_double)
]
_lib.a2dCrs2C.restype = ctypes.c_int32
_lib.a2d_ins2c.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT), ctypes.c_double,
    ctypes.c_double, ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_uint16)
]
_lib.a2d_ins2c.restype = ctypes.c_int32
_lib.ca_ins2c.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT), ctypes.c_double,
    ctypes.c_double, ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_uint16)
]
_lib.ca_ins2c.restype = ctypes.c_int32
_lib.ca_arc3p.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double)
]
_lib.ca_arc3p.restype = ctypes.c_int32
_lib.ca_arc2pratio.argtypes = [
    _convert.INT32, ctypes.c_double, ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.c_double, ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(ctypes.c_double)
]
_lib.ca_arc2pratio.restype = ctypes.c_int32
_lib.ca_arcan.argtypes = [ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double)]
_lib.ca_arcan.restype = ctypes.c_int32
_lib.ca_arccd.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT)
]
_lib.ca_arccd.restype = ctypes.c_int32
_lib.ca_arcXY.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT)
]
_lib.ca_arcXY.restype = ctypes.c_int32
_lib.ca_onarc.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(ctypes.c_double)
]
_lib.ca_onarc.restype = ctypes.c_int32
_lib.ca_posar.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_uint16)
]
_lib.ca_posar.restype = ctypes.c_int32
_lib.ca_rvarc.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double)
]
_lib.ca_rvarc.restype = ctypes.c_int32
_lib.ca_DistAlongbyArcFromSpnt.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.c_double, ctypes.POINTER(ctypes.c_double)
]
_lib.ca_DistAlongbyArcFromSpnt.restype = ctypes.c_int32
_lib.a2d_InsDc.argtypes = [
    ctypes.POINTER(DTARC), ctypes.POINTER(DTARC), ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2d_InsDc.restype = ctypes.c_int32
_lib.ca_AutoUnionNrb.argtypes = [
    _convert.INT32, ctypes.POINTER(ctypes.POINTER(_convert.DTPOINT)), ctypes.c_double
]
_lib.ca_AutoUnionNrb.restype = ctypes.c_int32
_lib.ca_pctan.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_uint16)
]
_lib.ca_pctan.restype = ctypes.c_int32
_lib.ca_cctan.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.POINTER(_convert.DTPOINT),
    ctypes.c_double, ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_uint16)
]
_lib.ca_cctan.restype = ctypes.c_int32
_lib.amaSolveLinerEquation.argtypes = [
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double)
]
_lib.amaSolveLinerEquation.restype = ctypes.c_int32
_lib.amaSolveEquationOf2ndD.argtypes = [
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double)
]
_lib.amaSolveEquationOf2ndD.restype = ctypes.c_int32
_lib.amaSolveEquationOf3rdD.argtypes = [
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double)
]
_lib.amaSolveEquationOf3rdD.restype = ctypes.c_int32
_lib.amaSolveEquationOf4thD.argtypes = [
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double)
]
_lib.amaSolveEquationOf4thD.restype = ctypes.c_int32
_lib.ama_c_sqrt.argtypes = [_convert.DTCOMPLEX]
_lib.ama_c_sqrt.restype = _convert.DTCOMPLEX
_lib.amaNewtonRaphson.argtypes = [
    ctypes.POINTER(ctypes.c_double), _convert.INT32, ctypes.POINTER(ctypes.c_double)
]
_lib.amaNewtonRaphson.restype = ctypes.c_int32
_lib.amaBairstaw.argtypes = [
    ctypes.POINTER(ctypes.c_double), _convert.INT32, ctypes.POINTER(ctypes.c_double)
]
_lib.amaBairstaw.restype = ctypes.c_int32
_lib.amaDKA.argtypes = [
    ctypes.POINTER(ctypes.c_double), _convert.INT32, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double)
]
_lib.amaDKA.restype = ctypes.c_int32
_lib.ca_elpcd.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double)
]
_lib.ca_elpcd.restype = ctypes.c_int32
_lib.a2d_elpdeg.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT), ctypes.c_double,
    ctypes.c_double, ctypes.c_double, ctypes.POINTER(ctypes.c_double)
]
_lib.a2d_elpdeg.restype = ctypes.c_int32
_lib.a2dGetEllipsDt.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double)
]
_lib.a2dGetEllipsDt.restype = ctypes.c_int32
_lib.ca_ElpAngle.argtypes = [
    _convert.INT16, ctypes.POINTER(DTELLIPSE), ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(ctypes.c_double)
]
_lib.ca_ElpAngle.restype = ctypes.c_int32
_lib.ca_ElpCordXY.argtypes = [
    _convert.INT16, ctypes.POINTER(DTELLIPSE), ctypes.c_double, ctypes.POINTER(_convert.DTPOINT)
]
_lib.ca_ElpCordXY.restype = ctypes.c_int32
_lib.GetElpFocusPnt.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT)
]
_lib.GetElpFocusPnt.restype = ctypes.c_int32
_lib.a2d_GetTangentVectorOnElp.argtypes = [
    ctypes.c_double, ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2d_GetTangentVectorOnElp.restype = ctypes.c_int32
_lib.a2d_GetTangentVectorOnDTELLIPSE.argtypes = [
    ctypes.POINTER(DTELLIPSE), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2d_GetTangentVectorOnDTELLIPSE.restype = ctypes.c_int32
_lib.CheckEllipseArcAngle.argtypes = [ctypes.POINTER(DTELLIPSE), ctypes.POINTER(_convert.DTPOINT)]
_lib.CheckEllipseArcAngle.restype = ctypes.c_int32
_lib.a2d_hanel.argtypes = [ctypes.POINTER(DTLINE), ctypes.POINTER(DTELLIPSE)]
_lib.a2d_hanel.restype = ctypes.c_int32
_lib.ca_onelp.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(_convert.DTPOINT)
]
_lib.ca_onelp.restype = ctypes.c_int32
_lib.pin_chk.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.pin_chk.restype = ctypes.c_int32
_lib.ca_posel.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(ctypes.c_uint16)
]
_lib.ca_posel.restype = ctypes.c_int32
_lib.a2d_elp_trans.argtypes = [
    ctypes.POINTER(DTELLIPSE), ctypes.c_double, ctypes.POINTER(DTELLIPSE)
]
_lib.a2d_elp_trans.restype = ctypes.c_int32
_lib.ca_rvelp.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(_convert.DTPOINT), ctypes.c_double,
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(ctypes.c_double)
]
_lib.ca_rvelp.restype = ctypes.c_int32
_lib.ca_vmelp.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double)
]
_lib.ca_vmelp.restype = ctypes.c_int32
_lib.ca_samel.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(ctypes.c_double)
]
_lib.ca_samel.restype = ctypes.c_int32
_lib.ca_lengelp.argtypes = [ctypes.c_double, ctypes.POINTER(ctypes.c_double)]
_lib.ca_lengelp.restype = ctypes.c_int32
_lib.ca_AreaElp.argtypes = [ctypes.c_double, ctypes.POINTER(ctypes.c_double)]
_lib.ca_AreaElp.restype = ctypes.c_int32
_lib.ca_Simpson.argtypes = [
    _PLANEGEO_INTEGRAND, ctypes.c_double, ctypes.c_double, ctypes.POINTER(ctypes.c_double)
]
_lib.ca_Simpson.restype = ctypes.c_int32
_lib.ca_Simpson2.argtypes = [
    _PLANEGEO_INTEGRAND, ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double),
    ctypes.c_double, _convert.INT32
]
_lib.ca_Simpson2.restype = ctypes.c_int32
_lib.ca_ElpLen.argtypes = [ctypes.POINTER(DTELLIPSE), ctypes.POINTER(ctypes.c_double)]
_lib.ca_ElpLen.restype = ctypes.c_int32
_lib.ca_ElpLen2.argtypes = [ctypes.POINTER(DTELLIPSE), ctypes.c_double, _convert.INT32]
_lib.ca_ElpLen2.restype = ctypes.c_int32
_lib.ca_elips.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.c_double, ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(ctypes.c_uint32)
]
_lib.ca_elips.restype = ctypes.c_int32
_lib.ca_elip1.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(ctypes.c_uint16)
]
_lib.ca_elip1.restype = ctypes.c_int32
_lib.ca_elip2.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.c_double, ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(ctypes.c_uint16)
]
_lib.ca_elip2.restype = ctypes.c_int32
_lib.a2d_elpdn.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), _convert.INT32, _convert.INT32,
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(ctypes.c_double)
]
_lib.a2d_elpdn.restype = ctypes.c_int32
_lib.ca_elpdn.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), _convert.INT32, _convert.INT32,
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(ctypes.c_double)
]
_lib.ca_elpdn.restype = ctypes.c_int32
_lib.ca_elaln.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.c_double, ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT)
]
_lib.ca_elaln.restype = ctypes.c_int32
_lib.ang_pnt.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.c_double, ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.ang_pnt.restype = ctypes.c_int32
_lib.ca_elamn.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.ca_elamn.restype = ctypes.c_int32
_lib.ca_elpmn.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT)
]
_lib.ca_elpmn.restype = ctypes.c_int32
_lib.a2d_CrsLE.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_uint32), ctypes.c_double
]
_lib.a2d_CrsLE.restype = ctypes.c_int32
_lib.a2d_insle.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_uint16)
]
_lib.a2d_insle.restype = ctypes.c_int32
_lib.ca_insle.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_uint16)
]
_lib.ca_insle.restype = ctypes.c_int32
_lib.a2d_insle2.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_uint16)
]
_lib.a2d_insle2.restype = ctypes.c_int32
_lib.a2d_insl1.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(ctypes.c_uint16)
]
_lib.a2d_insl1.restype = ctypes.c_int32
_lib.a2d_insLStandardE.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT), ctypes.c_double,
    ctypes.c_double, ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_uint16)
]
_lib.a2d_insLStandardE.restype = ctypes.c_int32
_lib.a2d_IsElpTangentLine.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT), ctypes.c_double,
    ctypes.c_double, ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2d_IsElpTangentLine.restype = ctypes.c_int32
_lib.a2d_InsDe.argtypes = [
    ctypes.POINTER(DTELLIPSE), ctypes.POINTER(DTELLIPSE), ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2d_InsDe.restype = ctypes.c_int32
_lib.a2dIntersectionEC.argtypes = [
    ctypes.c_double, ctypes.c_double, ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2dIntersectionEC.restype = ctypes.c_int32
_lib.a2d_insce.argtypes = [
    ctypes.POINTER(ctypes.c_double), ctypes.c_double, ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(ctypes.c_double), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(ctypes.c_int16)
]
_lib.a2d_insce.restype = ctypes.c_int32
_lib.ca_insce.argtypes = [
    ctypes.POINTER(ctypes.c_double), ctypes.c_double, ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(ctypes.c_double), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(ctypes.c_int16)
]
_lib.ca_insce.restype = ctypes.c_int32
_lib.a2d_ins2e.argtypes = [
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double), ctypes.c_double,
    ctypes.c_double, ctypes.c_double, ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_int16)
]
_lib.a2d_ins2e.restype = ctypes.c_int32
_lib.ca_ins2e.argtypes = [
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double), ctypes.c_double,
    ctypes.c_double, ctypes.c_double, ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_int16)
]
_lib.ca_ins2e.restype = ctypes.c_int32
_lib.a2d_chk_distdeg.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), _convert.INT32, ctypes.POINTER(ctypes.c_double),
    ctypes.c_double, ctypes.c_double, ctypes.c_double, ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2d_chk_distdeg.restype = ctypes.c_int32
_lib.a2dEllpsPer.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(DTELLIPSE),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(ctypes.c_double)
]
_lib.a2dEllpsPer.restype = ctypes.c_int32
_lib.a2dEllpsPerPnts.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(DTELLIPSE),
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2dEllpsPerPnts.restype = ctypes.c_int32
_lib.a2dEllpsArcPerPnts.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(DTELLIPSE),
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2dEllpsArcPerPnts.restype = ctypes.c_int32
_lib.a2d_PerEP.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(DTELLIPSE),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(ctypes.c_uint32)
]
_lib.a2d_PerEP.restype = ctypes.c_int32
_lib.a2d_PerEP2.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(DTELLIPSE),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(ctypes.c_uint32)
]
_lib.a2d_PerEP2.restype = ctypes.c_int32
_lib.a2d_perle.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(DTELLIPSE),
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2d_perle.restype = ctypes.c_int32
_lib.ca_inspe.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT), ctypes.c_double,
    ctypes.c_double, ctypes.c_double, ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.ca_inspe.restype = ctypes.c_int32
_lib.a2d_tchpe.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT), ctypes.c_double,
    ctypes.c_double, ctypes.c_double, ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2d_tchpe.restype = ctypes.c_int32
_lib.a2d_tch2e.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT), ctypes.c_double,
    ctypes.c_double, ctypes.c_double, ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(ctypes.c_uint16)
]
_lib.a2d_tch2e.restype = ctypes.c_int32
_lib.a2d_distpe.argtypes = [ctypes.POINTER(_convert.DTPOINT), ctypes.POINTER(DTELLIPSE)]
_lib.a2d_distpe.restype = ctypes.c_int32
_lib.ca_dstpp.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.ca_dstpp.restype = ctypes.c_double
_lib.ca_dstpe.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(_convert.DTPOINT)
]
_lib.ca_dstpe.restype = ctypes.c_double
_lib.a2d_dstpp.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(_convert.DTPOINT),
    ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2d_dstpp.restype = ctypes.c_double
_lib.a2d_dstpe.argtypes = [
    ctypes.POINTER(_convert.DTPOINT), ctypes.c_double, ctypes.c_double, ctypes.c_double,
    ctypes.POINTER(ctypes.c_double), ctypes.POINTER(_convert.DTPOINT)
]
_lib.a2d_dstpe.restype = ctypes.c_double

__all__ = [
    "ca_geterrdist",
    "ca_seterrdist",
    "ca_GetStartendFlg",
    "ca_SetStartendFlg",
    "ca_Simpson_getParmtbl",
    "sind",
    "cosd",
    "tand",
    "asind",
    "acosd",
    "atand",
    "atan2d",
    "a2d_StdSedeg",
    "a2d_ChkDegr",
    "a2d_GetBedeg",
    "c_pnt",
    "ca_rvpnt",
    "pnt_std",
    "pnt_formd",
    "pnt_mer",
    "ca_vmpnt",
    "ca_vcrad",
    "ca_dstpt",
    "a2dCrs2L",
    "a2d_ins2l",
    "ca_ins2l",
    "aatCalCrs2l",
    "ca_perln",
    "ca_palds",
    "ca_posln",
    "a2d_onlin",
    "ca_onlin",
    "ca_DistAlongbyLineFromSpnt",
    "a2d_InsDl",
    "a2d_Chk3pnt",
    "cross_lin_cir",
    "a2d_lin_arc",
    "a2dCrsLC",
    "ca_crslc",
    "ca_crslc2",
    "ca_inslc",
    "a2d_inslc",
    "sb_inslc",
    "a2dCrs2C",
    "a2d_ins2c",
    "ca_ins2c",
    "ca_arc3p",
    "ca_arc2pratio",
    "ca_arcan",
    "ca_arccd",
    "ca_arcXY",
    "ca_onarc",
    "ca_posar",
    "ca_rvarc",
    "ca_DistAlongbyArcFromSpnt",
    "a2d_InsDc",
    "ca_AutoUnionNrb",
    "ca_pctan",
    "ca_cctan",
    "amaSolveLinerEquation",
    "amaSolveEquationOf2ndD",
    "amaSolveEquationOf3rdD",
    "amaSolveEquationOf4thD",
    "ama_c_sqrt",
    "amaNewtonRaphson",
    "amaBairstaw",
    "amaDKA",
    "ca_elpcd",
    "a2d_elpdeg",
    "a2dGetEllipsDt",
    "ca_ElpAngle",
    "ca_ElpCordXY",
    "GetElpFocusPnt",
    "a2d_GetTangentVectorOnElp",
    "a2d_GetTangentVectorOnDTELLIPSE",
    "CheckEllipseArcAngle",
    "a2d_hanel",
    "ca_onelp",
    "pin_chk",
    "ca_posel",
    "a2d_elp_trans",
    "ca_rvelp",
    "ca_vmelp",
    "ca_samel",
    "ca_lengelp",
    "ca_AreaElp",
    "ca_Simpson",
    "ca_Simpson2",
    "ca_ElpLen",
    "ca_ElpLen2",
    "ca_elips",
    "ca_elip1",
    "ca_elip2",
    "a2d_elpdn",
    "ca_elpdn",
    "ca_elaln",
    "ang_pnt",
    "ca_elamn",
    "ca_elpmn",
    "a2d_CrsLE",
    "a2d_insle",
    "ca_insle",
    "a2d_insle2",
    "a2d_insl1",
    "a2d_insLStandardE",
    "a2d_IsElpTangentLine",
    "a2d_InsDe",
    "a2dIntersectionEC",
    "a2d_insce",
    "ca_insce",
    "a2d_ins2e",
    "ca_ins2e",
    "a2d_chk_distdeg",
    "a2dEllpsPer",
    "a2dEllpsPerPnts",
    "a2dEllpsArcPerPnts",
    "a2d_PerEP",
    "a2d_PerEP2",
    "a2d_perle",
    "ca_inspe",
    "a2d_tchpe",
    "a2d_tch2e",
    "a2d_distpe",
    "ca_dstpp",
    "ca_dstpe",
    "a2d_dstpp",
    "a2d_dstpe",
    "a2d_StdSedeg_result",
    "a2d_GetBedeg_result",
    "c_pnt_result",
    "ca_rvpnt_result",
    "pnt_std_result",
    "pnt_formd_result",
    "pnt_mer_result",
    "ca_vmpnt_result",
    "a2dCrs2L_result",
    "a2d_ins2l_result",
    "ca_ins2l_result",
    "aatCalCrs2l_result",
    "ca_perln_result",
    "ca_palds_result",
    "ca_posln_result",
    "ca_DistAlongbyLineFromSpnt_result",
    "a2d_InsDl_result",
    "cross_lin_cir_result",
    "a2d_lin_arc_result",
    "a2dCrsLC_result",
    "ca_crslc_result",
    "ca_crslc2_result",
    "ca_inslc_result",
    "a2d_inslc_result",
    "sb_inslc_result",
    "a2dCrs2C_result",
    "a2d_ins2c_result",
    "ca_ins2c_result",
    "ca_arc3p_result",
    "ca_arc2pratio_result",
    "ca_arcan_result",
    "ca_arccd_result",
    "ca_arcXY_result",
    "ca_onarc_result",
    "ca_posar_result",
    "ca_rvarc_result",
    "ca_DistAlongbyArcFromSpnt_result",
    "a2d_InsDc_result",
    "ca_AutoUnionNrb_result",
    "ca_pctan_result",
    "ca_cctan_result",
    "amaSolveLinerEquation_result",
    "amaSolveEquationOf2ndD_result",
    "amaSolveEquationOf3rdD_result",
    "amaSolveEquationOf4thD_result",
    "amaNewtonRaphson_result",
    "amaBairstaw_result",
    "amaDKA_result",
    "ca_elpcd_result",
    "a2d_elpdeg_result",
    "a2dGetEllipsDt_result",
    "ca_ElpAngle_result",
    "ca_ElpCordXY_result",
    "GetElpFocusPnt_result",
    "a2d_GetTangentVectorOnElp_result",
    "a2d_GetTangentVectorOnDTELLIPSE_result",
    "ca_posel_result",
    "a2d_elp_trans_result",
    "ca_rvelp_result",
    "ca_vmelp_result",
    "ca_samel_result",
    "ca_lengelp_result",
    "ca_AreaElp_result",
    "ca_Simpson_result",
    "ca_Simpson2_result",
    "ca_ElpLen_result",
    "ca_ElpLen2_result",
    "ca_elips_result",
    "ca_elip1_result",
    "ca_elip2_result",
    "a2d_elpdn_result",
    "ca_elpdn_result",
    "ca_elaln_result",
    "ang_pnt_result",
    "ca_elamn_result",
    "ca_elpmn_result",
    "a2d_CrsLE_result",
    "a2d_insle_result",
    "ca_insle_result",
    "a2d_insle2_result",
    "a2d_insl1_result",
    "a2d_insLStandardE_result",
    "a2d_IsElpTangentLine_result",
    "a2d_InsDe_result",
    "a2dIntersectionEC_result",
    "a2d_insce_result",
    "ca_insce_result",
    "a2d_ins2e_result",
    "ca_ins2e_result",
    "a2d_chk_distdeg_result",
    "a2dEllpsPer_result",
    "a2dEllpsPerPnts_result",
    "a2dEllpsArcPerPnts_result",
    "a2d_PerEP_result",
    "a2d_PerEP2_result",
    "a2d_perle_result",
    "ca_inspe_result",
    "a2d_tchpe_result",
    "a2d_tch2e_result",
    "ca_dstpp_result",
    "a2d_dstpp_result",
    "PLANEGEO_ATTR_REVERSED",
    "PLANEGEO_ATTR_CLOCKWISE",
    "PLANEGEO_INTEGRAND",
    "DTLINE",
    "DTARC",
    "DTELLIPSE",
]

"""What the Python package adds to the library: values, checks, room."""

import ctypes
import doctest
import inspect
import math
import pathlib
import random
import typing
import unittest

import planegeo
from planegeo import _convert

ROOT = pathlib.Path(__file__).resolve().parents[3]
FUNCTIONS = [line for line in (ROOT / "src" / "exports.txt").read_text().split("\n")
             if line and not line.startswith("#")]


class Values(unittest.TestCase):
    def test_the_example_of_the_package(self) -> None:
        self.assertEqual(doctest.testmod(planegeo), (0, 3))

    def test_every_exported_name_is_here(self) -> None:
        self.assertEqual([name for name in FUNCTIONS if name not in planegeo.__all__], [])

    def test_an_untouched_output_shows(self) -> None:
        code, out = planegeo.a2dCrs2L((0, 0), (1, 0), (0, 1), (1, 1))
        self.assertEqual(code, 0)
        self.assertTrue(math.isnan(out.x) and math.isnan(out.y))

    def test_arguments_stay(self) -> None:
        coefficients = [2.0, 0.0, -2.0]
        result = planegeo.amaDKA(coefficients, 2, 1e-12, 100)
        self.assertEqual(coefficients, [2.0, 0.0, -2.0])
        self.assertEqual(result.c, [2.0, 0.0, -1.0])
        ellipse = planegeo.DTELLIPSE(a=10, b=10, end=90)
        half_axes = planegeo.ca_Simpson_getParmtbl()
        half_axes[:2] = [5, 5]
        longer = planegeo.ca_ElpLen2(ellipse, 5 * math.pi, 1).ellipse
        self.assertEqual(ellipse.end, 90)
        self.assertAlmostEqual(longer.end, 180, delta=1e-4)

    def test_what_a_callback_raises_comes_out(self) -> None:
        def integrand(deg: float) -> float:
            return 1 / (deg - 45)

        with self.assertRaises(ZeroDivisionError):
            planegeo.ca_Simpson(integrand, 0, 90)

    def test_null_where_the_header_allows_it(self) -> None:
        self.assertEqual(planegeo.a2d_lin_arc(0, (0, 0), (1, 0), (5, 0), 1, None).count, 2)
        with self.assertRaises(TypeError):
            planegeo.ca_inslc((0, 0), (1, 0), (5, 0), 1, None)  # type: ignore[arg-type]

    def test_records_compare_by_value(self) -> None:
        self.assertEqual(planegeo.DTARC(r=2), planegeo.DTARC(r=2))
        self.assertNotEqual(planegeo.DTARC(r=2), planegeo.DTARC(r=2, attr=1))
        records = (planegeo.DTLINE(), planegeo.DTARC(), planegeo.DTELLIPSE())
        self.assertEqual([ctypes.sizeof(record) for record in records], [40, 48, 64])


class Checks(unittest.TestCase):
    def test_short_arrays_are_refused(self) -> None:
        with self.assertRaises(ValueError):
            planegeo.amaSolveEquationOf4thD([1, 2, 3, 4])
        with self.assertRaises(ValueError):
            planegeo.amaBairstaw([1, 2, 3], 3)
        with self.assertRaises(ValueError):
            planegeo.ca_AutoUnionNrb(3, [(0, 0), (1, 1)], 1)

    def test_integers_that_do_not_fit_are_refused(self) -> None:
        for count in (-1, 65536):
            with self.assertRaises(OverflowError):
                planegeo.ca_elip2((0, 0), 10, 6, 0, (0, 360), 0.01, count)
        with self.assertRaises(ctypes.ArgumentError):
            planegeo.amaBairstaw([1, 2], -(2**32) + 1)


class Guarded:
    """Stands in for the storage of arrays: what the header says it takes, with guards behind."""

    GUARD = 12345.678

    def __init__(self) -> None:
        self.guards: typing.List[typing.Any] = []

    def array(self, values: typing.List[float], kind: typing.Any, size: int) -> typing.Any:
        buffer = (ctypes.c_double * (len(values) + 16))(*values, *[self.GUARD] * 16)
        self.guards.append(buffer)
        return (kind * size).from_buffer(buffer)

    def __enter__(self) -> "Guarded":
        self.saved = {name: getattr(_convert, name)
                      for name in ("double_room", "point_room", "doubles", "points")}
        nan = math.nan
        patches: typing.Dict[str, typing.Any] = {
            "double_room": lambda n: self.array([nan] * n, ctypes.c_double, n),
            "point_room": lambda n: self.array([nan] * 2 * n, _convert.DTPOINT, n),
            "doubles": lambda v, n, _: self.array(list(v)[:n], ctypes.c_double, n),
            "points": lambda v, n, _: self.array([x for p in v[:n] for x in p], _convert.DTPOINT, n),
        }
        for name, patch in patches.items():
            setattr(_convert, name, patch)
        return self

    def __exit__(self, *_: object) -> None:
        for name, function in self.saved.items():
            setattr(_convert, name, function)

    def broken(self) -> bool:
        found = any(list(buffer)[-16:] != [self.GUARD] * 16 for buffer in self.guards)
        self.guards.clear()
        return found


class Room(unittest.TestCase):
    """No function writes beyond the room that the binding read out of the header."""

    def argument(self, kind: typing.Any) -> typing.Any:
        if kind is float:
            return random.choice([0, 1, 5, 10, 90, 360, random.uniform(-20, 20)])
        if kind is int:
            return random.randint(0, 12)
        if kind is complex:
            return complex(random.uniform(-5, 5), random.uniform(-5, 5))
        if kind in (planegeo.DTLINE, planegeo.DTARC, planegeo.DTELLIPSE):
            names = [n for n in inspect.signature(kind.__init__).parameters if n not in ("self", "attr")]
            return kind(0, *[self.argument(float) for _ in names])
        if "Callable" in str(kind):
            return planegeo.ca_lengelp  # of an empty parameter table: any search gives up early
        if "PointLike" in str(kind) or kind == planegeo.PointLike:
            return (self.argument(float), self.argument(float))
        element = planegeo.PointLike if "Point" in str(kind) else float
        return [self.argument(element) for _ in range(16)]

    def test_room(self) -> None:
        random.seed(20)
        planegeo.ca_Simpson_getParmtbl()[:2] = [0, 0]
        calls = 0
        for name in FUNCTIONS:
            function = getattr(planegeo, name)
            hints = typing.get_type_hints(function, vars(planegeo._functions))
            hints.pop("return")
            for _ in range(60):
                arguments = {key: self.argument(kind) for key, kind in hints.items()}
                with Guarded() as guarded:
                    function(**arguments)
                    self.assertFalse(guarded.broken(), f"{name}({arguments})")
                calls += 1
                planegeo.ca_seterrdist(1e-6)
                planegeo.ca_SetStartendFlg(0)
        self.assertEqual(calls, 60 * 127)


if __name__ == "__main__":
    unittest.main()

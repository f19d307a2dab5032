"""Two-dimensional geometry for CAD hosts.

Each function has the name and the arguments of the C function. Its outputs are not arguments but
results: a named tuple of the code and the outputs, in their order. Outputs that a function
leaves untouched are NaN (integers 0); an array that is written in part ends in NaN. Arguments
are never changed: what a function would change in place is a result, too.

    >>> import planegeo
    >>> code, out1, out2, count = planegeo.ca_inslc((0, 30), (100, 30), (50, 10), 25, (45, 180))
    >>> code, count, out1
    (0, 2, Point(x=65.0, y=30.0))

The library is looked for at PLANEGEO_LIBRARY, beside this package, then where the system looks.
"""

from . import _functions
from ._convert import NOWHERE, Point, PointLike
from ._functions import *  # noqa: F401,F403
from ._version import __version__

__all__ = ["NOWHERE", "Point", "PointLike", "__version__"]
__all__ += _functions.__all__

"""Offsets an ellipse for a machine that knows only arcs, and draws both.

    python3 offset.py [FILE.svg]
"""

import math
import sys
from typing import List, NamedTuple

import planegeo
from planegeo import DTELLIPSE, Point


class Arc(NamedTuple):
    center: Point
    radius: float
    start: float  # degrees, anticlockwise
    end: float

    def at(self, angle: float) -> Point:
        return Point(self.center.x + self.radius * planegeo.cosd(angle),
                     self.center.y + self.radius * planegeo.sind(angle))


def chain(e: DTELLIPSE, tolerance: float) -> List[Arc]:
    """Arcs along the ellipse, tangent to each other, none further from it than the tolerance."""
    ellipse = ((e.cx, e.cy), e.a, e.b, e.rot, (e.start, e.end), tolerance)
    room = planegeo.ca_elip2(*ellipse, 0).count  # no room: only asks how many there are
    arcs = planegeo.ca_elip2(*ellipse, room)
    if arcs.code != 0:
        raise ValueError(f"no chain of arcs: {arcs.code}")
    ends = arcs.out_angles
    return [Arc(center, radius, ends[2 * k], ends[2 * k + 1])
            for k, (center, radius) in enumerate(zip(arcs.out_centers, arcs.out_radii))]


def path(arcs: List[Arc]) -> str:
    words = ["M {:.6f} {:.6f}".format(*arcs[0].at(arcs[0].start))]
    for arc in arcs:
        large = int(arc.end - arc.start > 180)
        words.append("A {0:.6f} {0:.6f} 0 {1} 1 {2:.6f} {3:.6f}".format(
            arc.radius, large, *arc.at(arc.end)))
    return " ".join(words)


def main() -> None:
    ellipse = DTELLIPSE(cx=100, cy=80, a=120, b=70, end=360, rot=20)
    tolerance, distance = 0.01, 12.0

    # Offset arcs keep their centres, so that the chain stays tangent and as near to its curve.
    arcs = chain(ellipse, tolerance)
    offset = [arc._replace(radius=arc.radius + distance) for arc in arcs]

    worst = 0.0
    for arc in offset:
        for step in range(101):
            p = arc.at(arc.start + (arc.end - arc.start) * step / 100)
            away = planegeo.a2d_dstpe((ellipse.cx, ellipse.cy), ellipse.a, ellipse.b, ellipse.rot,
                                      (0, 360), p)
            worst = max(worst, abs(away - distance))
    length = sum(math.radians(arc.end - arc.start) * arc.radius for arc in offset)
    print(f"{len(offset)} arcs, {length:.3f} long, within {math.ceil(worst * 1000) / 1000} of the offset")

    if len(sys.argv) > 1:
        with open(sys.argv[1], "w") as file:
            file.write('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 200 160">\n'
                       '<g transform="matrix(1 0 0 -1 0 160)" fill="none" stroke-width="0.5">\n'
                       f'<path d="{path(arcs)}" stroke="gray"/>\n'
                       f'<path d="{path(offset)}" stroke="black"/>\n</g>\n</svg>\n')


if __name__ == "__main__":
    main()

"""A few calls of each kind."""

import planegeo
from planegeo import DTELLIPSE, DTLINE, Point


def text(*points: Point) -> str:
    return " ".join(f"({p.x:.6f}, {p.y:.6f})" for p in points)


print(f"sine {planegeo.sind(30):.6f}")

code, out1, out2, count = planegeo.ca_inslc((0, 30), (100, 30), (50, 10), 25, (45, 180))
print(f"meet {code}:", text(out1, out2))

print("parallel", planegeo.a2dCrs2L((0, 0), (4, 0), (0, 1), (4, 1)).code)

code, start, end = planegeo.a2d_StdSedeg(350, 10)
print(f"range {code}: {start:.6f} {end:.6f}")

cut = planegeo.a2d_InsDl(DTLINE(x1=0, y1=0, x2=4, y2=0), DTLINE(x1=-1, y1=0, x2=5, y2=0))
print(f"cut {cut.code}:", text(cut.out))

feet = planegeo.a2dEllpsPerPnts((10, 0), DTELLIPSE(cx=10, a=10, b=6))
print(f"feet {feet.code}:", text(*feet.out))

root = planegeo.ama_c_sqrt(-4 + 0j)
print(f"root {root.real:.6f} {root.imag:.6f}")

code, pairs = planegeo.amaSolveEquationOf2ndD([1, -3, 2])
print(f"roots {code}: {pairs[0]:.6f} {pairs[2]:.6f}")

print(f"own integral {planegeo.ca_Simpson(lambda deg: deg, 0, 90).result:.6f}")

half_axes = planegeo.ca_Simpson_getParmtbl()
half_axes[0], half_axes[1] = 5, 3
print(f"circumference {planegeo.ca_Simpson(planegeo.ca_lengelp, 0, 360).result:.6f}")

count, kept = planegeo.ca_AutoUnionNrb(4, [(0, 0), (1, 0), (2, 0), (2, 1)], 1)
print(f"merged {count}:", text(*kept[:count]))

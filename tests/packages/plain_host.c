/* A host for Windows without a C library: its exit code is 0 if the library answers. Where the
   system starts it, the stack of a 32-bit program is aligned to four bytes only. */
#include <planegeo.h>

int _fltused = 1; /* what such compilers expect of a program that computes with doubles */

static const DTPOINT a1 = {0.0, 0.0}, a2 = {4.0, 4.0}, b1 = {0.0, 4.0}, b2 = {4.0, 0.0};
static const DTELLIPSE ellipse = {0, 10.0, 0.0, 10.0, 6.0, 0.0, 360.0, 0.0};

int entry(void) {
    static DTPOINT crossing, feet[4];
    const DTPOINT center = {10.0, 0.0};
    if (a2d_ins2l(&a1, &a2, &b1, &b2, &crossing) != 0) return 1;
    if (crossing.x != 2.0 || crossing.y != 2.0) return 2;
    if (a2dEllpsPerPnts(&center, &ellipse, feet) != 4 || feet[3].y != -3.0) return 3;
    return 0;
}

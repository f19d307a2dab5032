// The records lie in memory as hosts have stored them, on every platform. Nothing runs: the file is
// compiled with the other tests and, without a standard library, for platforms of other layout
// rules.

#include <stddef.h> // NOLINT(modernize-deprecated-headers): C's comes with the compiler

#include "planegeo.h"

static_assert(sizeof(double) == 8, "IEEE double");

static_assert(sizeof(DTPOINT) == 16 && offsetof(DTPOINT, x) == 0 && offsetof(DTPOINT, y) == 8, "");

static_assert(sizeof(DTCOMPLEX) == 16 && offsetof(DTCOMPLEX, re) == 0, "");
static_assert(offsetof(DTCOMPLEX, im) == 8, "");

static_assert(sizeof(DTLINE) == 40 && offsetof(DTLINE, attr) == 0 && offsetof(DTLINE, x1) == 8, "");
static_assert(offsetof(DTLINE, y1) == 16 && offsetof(DTLINE, x2) == 24, "");
static_assert(offsetof(DTLINE, y2) == 32, "");

static_assert(sizeof(DTARC) == 48 && offsetof(DTARC, attr) == 0 && offsetof(DTARC, cx) == 8, "");
static_assert(offsetof(DTARC, cy) == 16 && offsetof(DTARC, r) == 24, "");
static_assert(offsetof(DTARC, start) == 32 && offsetof(DTARC, end) == 40, "");

static_assert(sizeof(DTELLIPSE) == 64 && offsetof(DTELLIPSE, attr) == 0, "");
static_assert(offsetof(DTELLIPSE, cx) == 8 && offsetof(DTELLIPSE, cy) == 16, "");
static_assert(offsetof(DTELLIPSE, a) == 24 && offsetof(DTELLIPSE, b) == 32, "");
static_assert(offsetof(DTELLIPSE, start) == 40 && offsetof(DTELLIPSE, end) == 48, "");
static_assert(offsetof(DTELLIPSE, rot) == 56, "");

// A record embedded in a host's own, after a four-byte member, stays aligned.
struct Embedding {
    char kind;
    DTARC arc;
};
static_assert(alignof(DTARC) == 8 && offsetof(Embedding, arc) == 8, "");

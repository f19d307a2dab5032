// Runs of points that keep nearly the same direction, merged in the caller's array.

#include "base/settings.h"
#include "base/tolerance.h"
#include "base/vec2.h"

namespace {

using namespace planegeo;

/// (-180, 180]
double segmentDeg(const DTPOINT &from, const DTPOINT &to) {
    return std::atan2(to.y - from.y, to.x - from.x) * kDegPerRad;
}

/// The angles are compared as they stand: 179 and -179 are far apart on purpose.
bool keepsDirection(double referenceDeg, double deg, double toleranceDeg) {
    return std::fabs(referenceDeg - deg) - distanceTolerance() <= toleranceDeg;
}

/// One pass. A run is compared with its first segment; the segment that ends it is the first
/// of the next. Reads stay ahead of writes, and nothing is written before the first point goes.
int32_t mergeRuns(DTPOINT **list, int32_t n, double toleranceDeg) {
    const int32_t last = n - 1;
    int32_t kept = 1;
    double referenceDeg = segmentDeg((*list)[0], (*list)[1]);
    for (int32_t i = 1; i <= last; ++i) {
        if (i < last) {
            const double deg = segmentDeg((*list)[i], (*list)[i + 1]);
            if (keepsDirection(referenceDeg, deg, toleranceDeg)) continue;
            referenceDeg = deg;
        }
        if (kept != i) (*list)[kept] = (*list)[i];
        ++kept;
    }
    return kept;
}

} // namespace

extern "C" {

int32_t ca_AutoUnionNrb(int32_t n, DTPOINT **list, double tol) {
    if (*list == nullptr || tol < kSmallestMergeDeg || tol > kLargestMergeDeg) return -1;
    if (n < 3) return n;
    return mergeRuns(list, n, tol);
}

} // extern "C"

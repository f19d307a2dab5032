/// Marks the calls of a row for callgrind, which counts their instructions; costs a few
/// instructions a pass where it does not run.
#pragma once

#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#endif

namespace bench {

#ifdef CALLGRIND_ZERO_STATS
inline void beginCounting() { CALLGRIND_ZERO_STATS; }
inline void endCounting(const char *row) { CALLGRIND_DUMP_STATS_AT(row); }
#else
inline void beginCounting() {}
inline void endCounting(const char *) {}
#endif

} // namespace bench

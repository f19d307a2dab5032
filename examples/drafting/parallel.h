// Work on all processors.
#pragma once

#include <cstddef>
#include <functional>

namespace draft {

/// Calls a function with every number below a count, each once, from several threads at a time.
/// What a call throws is thrown here, after the others have ended.
void inParallel(std::size_t count, const std::function<void(std::size_t)> &work);

} // namespace draft

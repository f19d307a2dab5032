/// One execution: calls of any kind, in a row, or the truths of one scene.
#pragma once

#include "entry.h"

namespace fuzz {

/// Every execution begins with the settings as they are at load.
void restoreSettings();

/// Wildness for calls of one execution.
unsigned wildness(std::uint8_t choice);

/// The bytes decide what is called. `took` learns what each call of an entry took.
using Took = void (*)(std::size_t entry, std::chrono::nanoseconds time);
void execute(const std::uint8_t *data, std::size_t size, Frame &frame, Took took);

} // namespace fuzz

// A file that appears whole or not at all.
#pragma once

#include <string>

namespace draft {

/// Writes beside the target and renames; throws Failure, leaving nothing behind.
void writeFile(const std::string &path, const std::string &content);

} // namespace draft

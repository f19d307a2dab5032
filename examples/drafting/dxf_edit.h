// Changes a few entities of a file and preserves every other byte of it.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "dxf_reader.h"

namespace draft {

/// By place in DxfFile::sources, of kind entity: the shapes that take the place of its own, each
/// of the same curve.
using Replacements = std::map<std::uint32_t, std::vector<Shape>>;

/// The text of the file with them. A first shape keeps the record's handle and what the record
/// owns, others get handles of their own.
std::string edited(const DxfFile &file, const Replacements &replacements);

} // namespace draft

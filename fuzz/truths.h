/// Scenes in which little decides: tangent, concentric, collinear, equal, off by one bit.
#pragma once

#include "bytes.h"

namespace fuzz {

/// Makes a scene, asks the functions about it, and holds their answers to what must be true.
void checkTruths(Bytes &in);

} // namespace fuzz

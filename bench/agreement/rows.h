// The rows of the table.
#pragma once

#include <functional>
#include <vector>

#include "arguments.h"

namespace agreement {

struct Row {
    const char *name; ///< the function, and after a slash the case
    std::function<void(Inputs &, Record &)> call;
    int cost = 1; ///< a row gets the calls of a plain one divided by it
};

std::vector<Row> allRows();

} // namespace agreement

// The one way in which work stops: a message for people, which main() prints.
#pragma once

#include <stdexcept>
#include <string>

namespace draft {

class Failure : public std::runtime_error {
  public:
    explicit Failure(const std::string &message) : std::runtime_error(message) {}
};

} // namespace draft

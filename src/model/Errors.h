#pragma once

#include <stdexcept>

namespace vorlan {

/// An index outside an array, or an argument that no operation accepts.
class InvalidArgument : public std::invalid_argument {
  public:
    InvalidArgument() : std::invalid_argument("Encountered an improper argument.") {}
};

}  // namespace vorlan

#pragma once

#include <stdexcept>
#include <string>

namespace vorlan {

/// An index outside an array, or an argument that no operation accepts.
class InvalidArgument : public std::invalid_argument {
  public:
    InvalidArgument() : std::invalid_argument("Encountered an improper argument.") {}
    /// Where more can be said.
    explicit InvalidArgument(const std::string& text) : std::invalid_argument(text) {}
};

}  // namespace vorlan

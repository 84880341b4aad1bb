#pragma once

#include <stdexcept>
#include <string>

namespace vorlan {

/// How the program ends.
enum class ExitStatus : int {
    Done = 0,
    Refused = 1,       ///< the document said no
    Usage = 2,         ///< the command line or the recipe is wrong
    Unreadable = 3,    ///< an input cannot be read
    Unwritable = 4,    ///< an output cannot be written
    Interrupted = 130  ///< the user stopped it; nothing was written
};

/// The end of a command that did not do what was asked. The text says what was wrong, one line per fault.
class BatchError : public std::runtime_error {
  public:
    BatchError(ExitStatus status, const std::string& text) : std::runtime_error(text), status_(status) {}
    ExitStatus status() const { return status_; }

  private:
    ExitStatus status_;
};

inline BatchError usageError(const std::string& text) {
    return {ExitStatus::Usage, text};
}
inline BatchError refusal(const std::string& text) {
    return {ExitStatus::Refused, text};
}
inline BatchError unreadable(const std::string& text) {
    return {ExitStatus::Unreadable, text};
}
inline BatchError unwritable(const std::string& text) {
    return {ExitStatus::Unwritable, text};
}

}  // namespace vorlan

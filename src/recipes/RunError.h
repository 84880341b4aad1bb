#pragma once

#include <stdexcept>
#include <string>

#include "io/FileError.h"

namespace vorlan {

/// How a run ends; the batch tool's exit status.
enum class ExitStatus : int {
    Done = 0,
    Refused = 1,       ///< the document said no
    Usage = 2,         ///< the command line or the recipe is wrong
    Unreadable = 3,    ///< an input cannot be read
    Unwritable = 4,    ///< an output cannot be written
    Interrupted = 130  ///< the user stopped it; nothing was written
};

/// The end of a run that did not do what was asked. The text says what was wrong, one line per fault.
class RunError : public std::runtime_error {
  public:
    RunError(ExitStatus status, const std::string& text) : std::runtime_error(text), status_(status) {}
    ExitStatus status() const { return status_; }

  private:
    ExitStatus status_;
};

inline RunError usageError(const std::string& text) {
    return {ExitStatus::Usage, text};
}
inline RunError refusal(const std::string& text) {
    return {ExitStatus::Refused, text};
}
inline RunError unreadable(const std::string& text) {
    return {ExitStatus::Unreadable, text};
}
inline RunError unwritable(const std::string& text) {
    return {ExitStatus::Unwritable, text};
}

/// The error's text, with the file's name in front where it does not hold it.
std::string textOf(const FileError& error);

}  // namespace vorlan

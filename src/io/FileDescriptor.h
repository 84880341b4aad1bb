#pragma once

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>
#include <utility>

namespace vorlan {

/// Owns an open file descriptor; -1 when there is none.
class FileDescriptor {
  public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    ~FileDescriptor() { close(); }

    int get() const { return descriptor_; }
    bool isOpen() const { return descriptor_ >= 0; }
    /// The result of close(2); 0 when nothing was open.
    int close() { return descriptor_ < 0 ? 0 : ::close(std::exchange(descriptor_, -1)); }

  private:
    int descriptor_ = -1;
};

/// Repeats a call of the system that a signal interrupted.
template <class Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

/// The system's words for an error number, without capitals at the start so that they fit into a sentence.
inline std::string systemReason(int error) {
    std::string reason = std::strerror(error);
    if (reason.size() > 1 && reason[0] >= 'A' && reason[0] <= 'Z' && reason[1] >= 'a' && reason[1] <= 'z') {
        reason[0] = static_cast<char>(reason[0] - 'A' + 'a');
    }
    return reason;
}

}  // namespace vorlan

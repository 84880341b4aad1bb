#pragma once

#include <filesystem>

#include "io/FileDescriptor.h"

namespace vorlan {

/// Keeps other programs that ask for the same lock from a file while it is read, changed and replaced. Nobody else is
/// held back. Where the file system knows no locks, or there is no such file, it is given to everybody.
class FileLock {
  public:
    explicit FileLock(std::filesystem::path path) : path_(std::move(path)) {}

    /// False while another program holds the lock. Does not wait.
    bool take();

  private:
    std::filesystem::path path_;
    FileDescriptor file_;
};

}  // namespace vorlan

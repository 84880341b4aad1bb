#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "io/FileDescriptor.h"

namespace vorlan {

/// What becomes of a file that another program writes, or puts in the target's place, while this one is written.
enum class LaterFile { Replaced, Kept };

/// A file that takes the place of another only when it is complete.
///
/// The bytes go to a temporary file in the target's folder; commit() flushes it to the disk and renames it. Until then
/// the target stays as it was; without a commit the temporary is removed, or has never had a name. A program that is
/// killed leaves a temporary (".vorlan-....tmp") only between the two system calls that name and rename the file, and
/// where the file system keeps no files without a name. A symbolic link is followed, permissions of a file that is
/// replaced are kept; other hard links to it keep the old content, extended attributes are lost. A target that is a
/// device or a pipe is written directly, since a rename would replace the device.
///
/// Every failure throws FileError of kind Unwritable (also of commit() where a later file is kept), NotAFile (a folder)
/// or Missing (no such folder).
class AtomicFile {
  public:
    explicit AtomicFile(const std::filesystem::path& path, LaterFile later = LaterFile::Replaced);
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    void write(std::span<const std::byte> bytes);
    void write(std::string_view text) { write(std::as_bytes(std::span(text))); }
    void commit();

  private:
    void openTemporary(unsigned mode);
    /// Takes the first name in the target's folder that is free.
    void tryNames(const std::function<bool(const char*)>& take);
    /// Gives the complete file the target's name.
    void takePlace();
    void requireNoLaterFile() const;
    /// Where the system shows the open file.
    std::string ownPath() const;
    std::filesystem::path folder() const;
    [[noreturn]] void fail(int error) const;

    std::filesystem::path path_;       // as the caller named it, for messages
    std::filesystem::path target_;     // the link's end
    std::filesystem::path temporary_;  // empty when the target is written directly, or while the file has no name
    bool nameless_ = false;
    LaterFile later_;
    std::optional<struct stat> replaced_;  // the target as it was; nothing where there was none
    FileDescriptor file_;
};

/// Replaces the file by text.
void writeFileAtomically(const std::filesystem::path& path, std::string_view text);

/// Replaces the file by what write puts into the stream. Errors of the disk reach the caller as FileError out of the
/// stream operation that met them; whatever write throws leaves the old file as it was.
void writeFileAtomically(const std::filesystem::path& path, const std::function<void(std::ostream&)>& write);

}  // namespace vorlan

#include "io/ReadFile.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>

#include <cstdint>
#include <new>

#include "io/FileDescriptor.h"
#include "io/FileError.h"
#include "model/Index.h"

namespace vorlan {

namespace {

FileError readError(const std::filesystem::path& path, int error) {
    const bool missing = error == ENOENT || error == ENOTDIR;
    return FileError::cannotRead(missing ? FileError::Kind::Missing : FileError::Kind::Unreadable, path,
                                 missing ? "there is no such file" : systemReason(error));
}

// Fresh memory comes in pages of 4 KiB, and clearing them one by one takes longer than reading the file into them: for
// large columns the system is asked for large pages. It may refuse. The next column is asked for as well: the allocator
// writes behind its end before it is read, and where there is a small page already, no large one comes.
void wantLargePages([[maybe_unused]] std::span<std::byte> bytes) {
#if defined(MADV_HUGEPAGE)
    constexpr std::uintptr_t kPage = 4096;
    constexpr std::size_t kWorthwhile = std::size_t{1} << 20;
    constexpr std::size_t kLargePage = std::size_t{2} << 20;
    if (bytes.size() >= kWorthwhile) {
        const std::uintptr_t begin = reinterpret_cast<std::uintptr_t>(bytes.data()) / kPage * kPage;
        const std::uintptr_t end = reinterpret_cast<std::uintptr_t>(bytes.data()) + 2 * bytes.size() + kLargePage;
        ::madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE);
    }
#endif
}

}  // namespace

InputFile::InputFile(const std::filesystem::path& path)
    // Not to wait for the other end of a pipe: what is no regular file is refused below.
    : path_(path), file_(uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK); })) {
    struct stat status {};
    if (!file_.isOpen() || ::fstat(file_.get(), &status) != 0) {
        throw readError(path, errno);
    }
    if (!S_ISREG(status.st_mode)) {
        throw FileError::cannotRead(FileError::Kind::NotAFile, path,
                                    S_ISDIR(status.st_mode) ? "it is a folder" : "it is not a regular file");
    }
    size_ = asSize(status.st_size);
}

std::size_t InputFile::read(std::span<std::byte> bytes) {
    wantLargePages(bytes);
    std::size_t held = 0;
    while (held < bytes.size()) {
        const ssize_t got =
            uninterrupted([&] { return ::read(file_.get(), bytes.data() + held, bytes.size() - held); });
        if (got < 0) {
            throw readError(path_, errno);
        }
        if (got == 0) {
            break;  // somebody shortened the file meanwhile
        }
        held += asSize(got);
    }
    return held;
}

FileContent readFile(const std::filesystem::path& path) {
    InputFile file(path);
    try {
        auto bytes = std::make_unique_for_overwrite<std::byte[]>(file.size());
        const std::size_t held = file.read({bytes.get(), file.size()});
        return {std::move(bytes), held};
    } catch (const std::bad_alloc&) {
        throw FileError::cannotRead(FileError::Kind::Unreadable, path, "not enough memory");
    }
}

}  // namespace vorlan

#include "io/AtomicFile.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <optional>
#include <ostream>
#include <streambuf>
#include <utility>

#include "io/FileError.h"
#include "model/Index.h"

namespace vorlan {

namespace {

constexpr int kLinksFollowed = 40;
constexpr int kNamesTried = 100;
constexpr std::size_t kLongWrite = std::size_t{1} << 20;

// Where a chain of symbolic links ends; the end itself need not exist.
std::filesystem::path linkEnd(std::filesystem::path path) {
    std::error_code error;
    for (int i = 0; i < kLinksFollowed && std::filesystem::is_symlink(path, error); ++i) {
        const std::filesystem::path next = std::filesystem::read_symlink(path, error);
        if (error) {
            break;
        }
        path = path.parent_path() / next;  // an absolute link replaces the folder
    }
    return path;
}

std::string temporaryName() {
    static std::atomic<unsigned> counter{0};
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    std::array<char, 64> name;
    std::snprintf(name.data(), name.size(), ".vorlan-%lx-%lx-%x.tmp", static_cast<unsigned long>(::getpid()),
                  static_cast<unsigned long>(now.tv_nsec), counter.fetch_add(1));
    return name.data();
}

/// While it lives the thread is not interrupted by a signal that would end the program; SIGKILL is no such one.
class SignalsHeld {
  public:
    SignalsHeld() {
        sigset_t all;
        ::sigfillset(&all);
        ::pthread_sigmask(SIG_BLOCK, &all, &before_);
    }
    ~SignalsHeld() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
    SignalsHeld(const SignalsHeld&) = delete;
    SignalsHeld& operator=(const SignalsHeld&) = delete;

  private:
    sigset_t before_{};
};

class AtomicFileBuffer : public std::streambuf {
  public:
    explicit AtomicFileBuffer(AtomicFile& file) : file_(file) { setp(buffer_.data(), buffer_.data() + buffer_.size()); }

  protected:
    int_type overflow(int_type character) override {
        sync();
        if (!traits_type::eq_int_type(character, traits_type::eof())) {
            sputc(traits_type::to_char_type(character));
        }
        return traits_type::not_eof(character);
    }
    int sync() override {
        file_.write(std::string_view(pbase(), asSize(pptr() - pbase())));
        setp(buffer_.data(), buffer_.data() + buffer_.size());
        return 0;
    }

  private:
    AtomicFile& file_;
    std::array<char, 64 * 1024> buffer_;
};

}  // namespace

AtomicFile::AtomicFile(const std::filesystem::path& path, LaterFile later)
    : path_(path), target_(linkEnd(path)), later_(later) {
    struct stat status {};
    const bool exists = ::stat(target_.c_str(), &status) == 0;
    if (!exists && errno != ENOENT) {
        fail(errno);
    }
    if (exists && S_ISDIR(status.st_mode)) {
        throw FileError::cannotWrite(FileError::Kind::NotAFile, path_, "it is a folder");
    }
    // A rename asks only the folder; a file that is protected itself must stay too.
    if (exists && ::faccessat(AT_FDCWD, target_.c_str(), W_OK, AT_EACCESS) != 0) {
        fail(errno);
    }
    if (exists && !S_ISREG(status.st_mode)) {
        file_ =
            FileDescriptor(uninterrupted([this] { return ::open(target_.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY); }));
        if (!file_.isOpen()) {
            fail(errno);
        }
        return;
    }
    openTemporary(exists ? S_IRUSR | S_IWUSR : 0666);
    if (exists) {
        replaced_ = status;
        // Only the superuser can keep the owner; a group that cannot be kept either must not lend its rights to
        // another.
        const bool groupKept = ::fchown(file_.get(), status.st_uid, status.st_gid) == 0 ||
                               ::fchown(file_.get(), static_cast<uid_t>(-1), status.st_gid) == 0;
        ::fchmod(file_.get(), status.st_mode & (groupKept ? 0777U : 0707U));
    }
}

void AtomicFile::openTemporary(unsigned mode) {
    // Where the file system can, the file has no name before it is complete: a program that is killed leaves nothing.
    file_ =
        FileDescriptor(uninterrupted([&] { return ::open(folder().c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC, mode); }));
    if (file_.isOpen() && ::access(ownPath().c_str(), F_OK) == 0) {
        nameless_ = true;
        return;
    }
    file_ = FileDescriptor();
    tryNames([&](const char* name) {
        file_ =
            FileDescriptor(uninterrupted([&] { return ::open(name, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode); }));
        return file_.isOpen();
    });
}

void AtomicFile::tryNames(const std::function<bool(const char*)>& take) {
    for (int i = 0; i < kNamesTried; ++i) {
        std::filesystem::path candidate = folder() / temporaryName();
        if (take(candidate.c_str())) {
            temporary_ = std::move(candidate);  // a copy might find no memory, and the file would stay
            return;
        }
        if (errno != EEXIST) {
            break;
        }
    }
    fail(errno);
}

std::string AtomicFile::ownPath() const {
    return "/proc/self/fd/" + std::to_string(file_.get());
}

std::filesystem::path AtomicFile::folder() const {
    return target_.has_parent_path() ? target_.parent_path() : ".";
}

AtomicFile::~AtomicFile() {
    file_.close();
    if (!temporary_.empty()) {
        ::unlink(temporary_.c_str());
    }
}

void AtomicFile::write(std::span<const std::byte> bytes) {
    while (!bytes.empty()) {
        const ssize_t written = uninterrupted([&] { return ::write(file_.get(), bytes.data(), bytes.size()); });
        if (written <= 0) {
            fail(written < 0 ? errno : ENOSPC);
        }
        bytes = bytes.subspan(asSize(written));
        if (asSize(written) >= kLongWrite) {
            // The disk begins with it while the rest is written; commit() waits for all of it, and tells what failed.
            ::sync_file_range(file_.get(), 0, 0, SYNC_FILE_RANGE_WRITE);
        }
    }
}

void AtomicFile::commit() {
    if (temporary_.empty() && !nameless_) {
        // Interrupted, it is closed all the same.
        if (file_.close() != 0 && errno != EINTR) {
            fail(errno);
        }
        return;
    }
    if (uninterrupted([this] { return ::fsync(file_.get()); }) != 0) {
        fail(errno);
    }
    takePlace();
    // The file is in place; a folder that cannot be flushed only delays the moment from which a crash keeps the name.
    FileDescriptor directory(::open(folder().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory.isOpen()) {
        ::fsync(directory.get());
    }
}

void AtomicFile::takePlace() {
    const auto link = [this](const char* name) {
        return ::linkat(AT_FDCWD, ownPath().c_str(), AT_FDCWD, name, AT_SYMLINK_FOLLOW) == 0;
    };
    // A file that replaces none needs no other name first.
    if (nameless_ && link(target_.c_str())) {
        return;
    }
    // A link cannot replace a file: for a moment the new one has a name of its own. One that always had a name gains
    // nothing by holding signals, and where the folder does not answer the user could not end the program.
    std::optional<SignalsHeld> held;
    if (nameless_) {
        held.emplace();
        tryNames(link);
    } else if (file_.close() != 0 && errno != EINTR) {
        fail(errno);
    }
    if (later_ == LaterFile::Kept) {
        requireNoLaterFile();
    }
    if (::rename(temporary_.c_str(), target_.c_str()) != 0) {
        fail(errno);
    }
    temporary_.clear();
}

void AtomicFile::requireNoLaterFile() const {
    struct stat now {};
    if (::stat(target_.c_str(), &now) != 0) {
        if (errno != ENOENT) {
            fail(errno);
        }
        return;
    }
    if (!replaced_ || now.st_ino != replaced_->st_ino || now.st_size != replaced_->st_size ||
        now.st_mtim.tv_sec != replaced_->st_mtim.tv_sec || now.st_mtim.tv_nsec != replaced_->st_mtim.tv_nsec) {
        throw FileError::cannotWrite(FileError::Kind::Unwritable, path_, "another program has written it meanwhile");
    }
}

void AtomicFile::fail(int error) const {
    if (error == ENOENT || error == ENOTDIR) {
        throw FileError::cannotWrite(FileError::Kind::Missing, path_, "there is no such folder");
    }
    throw FileError::cannotWrite(FileError::Kind::Unwritable, path_, systemReason(error));
}

void writeFileAtomically(const std::filesystem::path& path, std::string_view text) {
    AtomicFile file(path);
    file.write(text);
    file.commit();
}

void writeFileAtomically(const std::filesystem::path& path, const std::function<void(std::ostream&)>& write) {
    AtomicFile file(path);
    AtomicFileBuffer buffer(file);
    std::ostream stream(&buffer);
    stream.exceptions(std::ios::badbit);
    write(stream);
    stream.flush();
    if (!stream) {
        throw FileError::cannotWrite(FileError::Kind::Unwritable, path, "writing failed");
    }
    file.commit();
}

}  // namespace vorlan

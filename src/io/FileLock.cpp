#include "io/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace vorlan {

bool FileLock::take() {
    for (;;) {
        file_ = FileDescriptor(::open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
        if (!file_.isOpen()) {
            return true;
        }
        if (uninterrupted([this] { return ::flock(file_.get(), LOCK_EX | LOCK_NB); }) != 0) {
            return errno != EWOULDBLOCK;
        }
        // A file that was replaced meanwhile is another one: its lock is not held.
        struct stat locked {};
        struct stat named {};
        if (::fstat(file_.get(), &locked) != 0 || ::stat(path_.c_str(), &named) != 0 ||
            (locked.st_dev == named.st_dev && locked.st_ino == named.st_ino)) {
            return true;
        }
    }
}

}  // namespace vorlan

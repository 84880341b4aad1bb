// The program's calls come here before they reach the C library: a definition in the program stands before those of
// libraries.
#include "faults/Faults.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <set>
#include <utility>

namespace vorlan::test {
namespace {

struct Watch {
    std::string folder;
    Fault fault;
    std::vector<SystemCall> calls;
    std::set<int> files;
};
Watch* watch = nullptr;

bool isBelow(const char* path) {
    return watch != nullptr && (std::string(path) + '/').starts_with(watch->folder);
}

bool isOpenedHere(int file) {
    return watch != nullptr && watch->files.count(file) != 0;
}

/// Counts the call; true when it is the one that goes wrong.
bool goesWrong(const char* name, int flags = 0) {
    watch->calls.push_back({name, flags});
    if (static_cast<int>(watch->calls.size()) != watch->fault.call + 1) {
        return false;
    }
    if (watch->fault.first) {
        Watch* const watching = std::exchange(watch, nullptr);
        watching->fault.first();
        watch = watching;
        return false;
    }
    errno = watch->fault.error;
    return true;
}

bool isShort() {
    return watch->fault.error == 0;
}

template <class Function>
Function* next(Function*, const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

}  // namespace

void watchCalls(const std::filesystem::path& folder, const Fault& fault) {
    delete watch;
    watch = new Watch{(folder / "").string(), fault, {}, {}};
}

std::vector<SystemCall> watchedCalls() {
    const std::vector<SystemCall> calls = watch->calls;
    delete watch;
    watch = nullptr;
    return calls;
}

}  // namespace vorlan::test

using namespace vorlan::test;

#define CALL(function, ...) next(&::function, #function)(__VA_ARGS__)

extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    if (isBelow(path) && goesWrong("open", flags)) {
        return -1;
    }
    const int file = CALL(open, path, flags, mode);
    if (isBelow(path)) {
        watch->files.insert(file);
    }
    return file;
}

ssize_t read(int file, void* bytes, size_t size) {
    if (isOpenedHere(file) && goesWrong("read")) {
        if (!isShort()) {
            return -1;
        }
        size = (size + 1) / 2;
    }
    return CALL(read, file, bytes, size);
}

ssize_t write(int file, const void* bytes, size_t size) {
    if (isOpenedHere(file) && goesWrong("write")) {
        if (!isShort()) {
            return -1;
        }
        size = (size + 1) / 2;
    }
    return CALL(write, file, bytes, size);
}

int fsync(int file) {
    return isOpenedHere(file) && goesWrong("fsync") ? -1 : CALL(fsync, file);
}

int close(int file) {
    const bool wrong = isOpenedHere(file) && goesWrong("close");
    const int error = errno;
    if (watch != nullptr) {
        watch->files.erase(file);
    }
    const int result = CALL(close, file);
    if (wrong) {
        errno = error;  // the file is closed all the same
    }
    return wrong ? -1 : result;
}

int flock(int file, int operation) noexcept {
    return isOpenedHere(file) && goesWrong("flock") ? -1 : CALL(flock, file, operation);
}

int fstat(int file, struct stat* status) noexcept {
    return isOpenedHere(file) && goesWrong("fstat") ? -1 : CALL(fstat, file, status);
}

int stat(const char* path, struct stat* status) noexcept {
    return isBelow(path) && goesWrong("stat")
               ? -1
               : next(static_cast<int (*)(const char*, struct stat*)>(&::stat), "stat")(path, status);
}

int faccessat(int folder, const char* path, int mode, int flags) noexcept {
    return isBelow(path) && goesWrong("faccessat") ? -1 : CALL(faccessat, folder, path, mode, flags);
}

int linkat(int folder, const char* path, int newFolder, const char* newPath, int flags) noexcept {
    return isBelow(newPath) && goesWrong("linkat") ? -1 : CALL(linkat, folder, path, newFolder, newPath, flags);
}

int rename(const char* path, const char* newPath) noexcept {
    return isBelow(newPath) && goesWrong("rename") ? -1 : CALL(rename, path, newPath);
}
}

// The toolkit keeps what it had asked for before memory ran out; that is not for this program to free.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libQt6Core\nleak:libQt6Gui\n";
}

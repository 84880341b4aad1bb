#include "io/RecoveryCopy.h"

#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <system_error>

#include "io/FileError.h"
#include "io/WorkspaceFile.h"

namespace vorlan {

namespace {

namespace fs = std::filesystem;

constexpr int kMostNames = 1000;

fs::path lockOf(const fs::path& copy) {
    return fs::path(copy).replace_extension(".lock");
}

void removeBoth(const fs::path& copy) {
    std::error_code ignored;
    fs::remove(copy, ignored);
    fs::remove(lockOf(copy), ignored);
}

/// In place: another file would not be the locked one.
void writeInPlace(const fs::path& path, const std::string& text) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << text;
}

std::string readAll(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// What the lock holds: time and size of the workspace's own file, and on the next line its path. Earlier programs
/// wrote the path alone.
std::string textOf(const StampedFile& original) {
    if (original.path.empty()) {
        return {};
    }
    std::error_code error;
    const std::string path = fs::absolute(original.path, error).string();
    return original.stamp ? std::to_string(original.stamp->time.time_since_epoch().count()) + ' ' +
                                std::to_string(original.stamp->size) + '\n' + path
                          : path;
}

StampedFile originalOf(const std::string& text) {
    std::int64_t time = 0;
    std::uintmax_t size = 0;
    const std::size_t line = text.find('\n');
    if (text.starts_with('/')) {
        return {text};
    }
    // Half a line, of a program that was killed while it wrote, names nothing.
    if (line == std::string::npos || !(std::istringstream(text.substr(0, line)) >> time >> size)) {
        return {};
    }
    return {text.substr(line + 1), FileStamp{fs::file_time_type(fs::file_time_type::duration(time)), size}};
}

}  // namespace

void RecoveryCopy::takeName() {
    std::error_code error;
    fs::create_directories(folder_, error);
    if (error) {
        throw FileError::cannotWrite(FileError::Kind::Unwritable, folder_, error.message());
    }
    fs::permissions(folder_, fs::perms::owner_all, error);
    for (int i = 0; i < kMostNames; ++i) {
        const fs::path copy = folder_ / (std::to_string(::getpid()) + "-" + std::to_string(i) + ".avp");
        if (fs::exists(lockOf(copy), error)) {
            continue;  // another machine's program, or one that is gone
        }
        writeInPlace(lockOf(copy), "");
        auto lock = std::make_unique<FileLock>(lockOf(copy));
        if (fs::exists(lockOf(copy), error) && lock->take()) {
            copy_ = copy;
            lock_ = std::move(lock);
            return;
        }
    }
    throw FileError::cannotWrite(FileError::Kind::Unwritable, folder_, "no name is free");
}

void RecoveryCopy::write(Workspace workspace, const StampedFile& original) {
    if (copy_.empty()) {
        takeName();
    }
    writeInPlace(lockOf(copy_), textOf(original));
    saveWorkspace(workspace, copy_);
}

void RecoveryCopy::remove() {
    if (!copy_.empty()) {
        removeBoth(copy_);
        copy_.clear();
        lock_.reset();
    }
}

bool RecoveryCopy::LeftBehind::isOriginalChanged() const {
    const std::optional<FileStamp> now = fileStampOf(original.path);
    return now && (original.stamp ? *now != *original.stamp : now->time > time);
}

void RecoveryCopy::LeftBehind::discard() const {
    removeBoth(copy);
}

std::vector<RecoveryCopy::LeftBehind> RecoveryCopy::leftBehind(const fs::path& folder) {
    std::vector<LeftBehind> found;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        if (entry->path().extension() != ".lock") {
            continue;
        }
        auto lock = std::make_unique<FileLock>(entry->path());
        if (!lock->take()) {
            continue;
        }
        const fs::path copy = fs::path(entry->path()).replace_extension(".avp");
        std::error_code missing;
        const fs::file_time_type time = fs::last_write_time(copy, missing);
        if (missing) {
            fs::remove(entry->path(), missing);
            continue;
        }
        found.push_back({copy, originalOf(readAll(entry->path())), time, std::move(lock)});
    }
    std::sort(found.begin(), found.end(), [](const LeftBehind& a, const LeftBehind& b) { return a.time > b.time; });
    return found;
}

}  // namespace vorlan

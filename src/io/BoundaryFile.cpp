#include "io/BoundaryFile.h"

#include <locale.h>

#include <cstdio>
#include <memory>
#include <new>
#include <optional>
#include <span>
#include <string>

#include "io/AtomicFile.h"
#include "io/ReadFile.h"
#include "model/Text.h"

namespace vorlan {

namespace {

/// The C locale's numbers for this thread, whatever the process has set.
class CNumbers {
  public:
    CNumbers() : numbers_(::newlocale(LC_ALL_MASK, "C", nullptr)) {
        if (numbers_ == nullptr) {
            throw std::bad_alloc();
        }
        before_ = ::uselocale(numbers_);
    }
    ~CNumbers() {
        ::uselocale(before_);
        ::freelocale(numbers_);
    }
    CNumbers(const CNumbers&) = delete;
    CNumbers& operator=(const CNumbers&) = delete;

  private:
    locale_t numbers_;
    locale_t before_;
};

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

using File = std::unique_ptr<std::FILE, FileCloser>;

void readNodes(SBndFile& boundary, std::FILE* file) {
    const CNumbers numbers;
    // The end mark is set only by a read that meets it: without this look ahead an empty file would be a bad line.
    std::ungetc(std::getc(file), file);
    for (int node = 0; std::feof(file) == 0; ++node) {
        float x = 0.0F;
        float y = 0.0F;
        float z = 0.0F;
        // The blank behind the numbers skips all white space, so that the end is met after the last line.
        if (std::fscanf(file, "%f %f %f\n", &x, &y, &z) < 3) {
            throw BoundaryFormatError(boundary.path);
        }
        boundary.SetNode(node, x, y, z);
    }
}

}  // namespace

BoundaryOpenError::BoundaryOpenError(const std::string& path)
    : FileError(Kind::Missing, path, "Cannot find data file: " + path) {}

BoundaryFormatError::BoundaryFormatError(const std::string& path)
    : FileError(Kind::Format, path, "Format of the file " + path + " is invalid !") {}

void readBoundary(SBndFile& boundary) {
    std::optional<InputFile> file;
    try {
        file.emplace(boundary.path);
    } catch (const FileError&) {
        throw BoundaryOpenError(boundary.path);
    }
    std::string text(file->size(), '\0');
    text.resize(file->read(std::as_writable_bytes(std::span(text))));
    readBoundary(boundary, text);
}

void readBoundary(SBndFile& boundary, std::string_view text) {
    if (text.empty()) {
        return;
    }
    const File file(::fmemopen(const_cast<char*>(text.data()), text.size(), "rb"));
    if (file == nullptr) {
        throw std::bad_alloc();
    }
    readNodes(boundary, file.get());
}

std::string boundaryText(const SBndFile& boundary) {
    std::string text;
    for (int i = 0; i < boundary.NodeCount(); ++i) {
        appendFixed(text, boundary.x.GetValue(i), 6);
        text += ' ';
        appendFixed(text, boundary.y.GetValue(i), 6);
        text += ' ';
        appendFixed(text, boundary.z.GetValue(i), 6);
        text += '\n';
    }
    return text;
}

void writeBoundary(const SBndFile& boundary) {
    writeBoundary(boundary.path, boundaryText(boundary));
}

void writeBoundary(const std::string& path, std::string_view text) {
    std::unique_ptr<AtomicFile> file;
    try {
        file = std::make_unique<AtomicFile>(path);
    } catch (const FileError&) {
        throw BoundaryOpenError(path);
    }
    file->write(text);
    file->commit();
}

}  // namespace vorlan

#include "io/WorkspaceFile.h"

#include <algorithm>
#include <new>

#include "io/AtomicFile.h"
#include "io/ReadFile.h"
#include "model/Archive.h"

namespace vorlan {

namespace {

std::string placeIn(const std::filesystem::path& path, const ArchiveError& error) {
    return path.string() + " (at byte " + std::to_string(error.offset()) + ")";
}

class AtomicFileSink : public ByteSink {
  public:
    explicit AtomicFileSink(AtomicFile& file) : file_(file) {}
    void write(std::span<const std::byte> bytes) override { file_.write(bytes); }

  private:
    AtomicFile& file_;
};

/// "Version 1.59" or the like. Tables and recipes read as texts, too, of as many characters as the code of their first
/// one says; these are short texts, so that one would have to begin with a control character.
bool isWordAndNumber(const std::string& text) {
    constexpr std::size_t kLongest = 31;
    const auto letter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    const auto digit = [](char c) { return (c >= '0' && c <= '9') || c == '.'; };
    const auto number = std::find_if(text.begin(), text.end(), digit);
    return text.size() <= kLongest && !text.empty() && letter(text.front()) && number != text.end() &&
           std::all_of(text.begin(), number, [letter](char c) { return letter(c) || c == ' '; }) &&
           std::all_of(number, text.end(), digit);
}

}  // namespace

Workspace openWorkspace(const std::filesystem::path& path) {
    InputFile file(path);
    if (file.size() == 0) {
        throw FileError::cannotRead(FileError::Kind::Empty, path, "it is empty");
    }
    try {
        Archive archive = Archive::loading(file);
        Workspace workspace;
        workspace.Serialize(archive);
        return workspace;
    } catch (const InvalidVersionError& error) {
        throw FileError(FileError::Kind::Format, path, error.what(), error.what(), error.offset());
    } catch (const EndOfFileError& error) {
        throw FileError(FileError::Kind::EndOfFile, path, "Unexpected end of file: " + placeIn(path, error),
                        error.what(), error.offset());
    } catch (const ArchiveError& error) {
        throw FileError(FileError::Kind::Format, path, std::string(error.what()) + ": " + placeIn(path, error),
                        error.what(), error.offset());
    } catch (const std::bad_alloc&) {
        throw FileError::cannotRead(FileError::Kind::Unreadable, path, "not enough memory");
    }
}

FileKind kindOfFile(const std::filesystem::path& path) {
    // Opening anything else may wait for another program.
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        return FileKind::Nothing;
    }
    try {
        InputFile file(path);
        if (file.size() == 0) {
            return FileKind::Nothing;
        }
        Archive archive = Archive::loading(file);
        std::string version;
        archive.value(version);
        return isWordAndNumber(version) ? FileKind::Workspace : FileKind::Other;
    } catch (const FileError&) {
        return FileKind::Nothing;
    } catch (const ArchiveError&) {
        return FileKind::Other;
    }
}

std::string refusalToReplace(const std::filesystem::path& path) {
    return kindOfFile(path) == FileKind::Workspace ? path.string() + " is a workspace and would be overwritten" : "";
}

void saveWorkspace(Workspace& workspace, const std::filesystem::path& path) {
    AtomicFile file(path, LaterFile::Kept);
    AtomicFileSink sink(file);
    Archive archive = Archive::storing(sink);
    workspace.Serialize(archive);
    archive.flush();
    file.commit();
}

}  // namespace vorlan

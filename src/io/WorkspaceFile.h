#pragma once

#include <filesystem>
#include <string>

#include "io/FileError.h"
#include "model/Workspace.h"

namespace vorlan {

/// Reads a workspace file. FileError of kind Missing, NotAFile, Unreadable or Empty; EndOfFile for a file that ends
/// too early (or announces more than it holds); Format for one that is no workspace, whose text is then exactly
/// "Invalid Workspace format.". A damaged count never costs more memory than a small multiple of the file.
Workspace openWorkspace(const std::filesystem::path& path);

/// What writing a file would replace. Workspace: it begins with a word and a version number. Nothing: no file, an empty
/// one, or one that cannot be read; whether that can be replaced is seen when it is.
enum class FileKind { Nothing, Workspace, Other };
FileKind kindOfFile(const std::filesystem::path& path);

/// Why neither a table nor a picture may be written to path; empty when it may. Nobody asks before such files are
/// overwritten, so a slip would cost a workspace.
std::string refusalToReplace(const std::filesystem::path& path);

/// Replaces the file by the workspace, complete or not at all (see AtomicFile). Columns go to the file as they lie in
/// the model: no second copy is held. The workspace is not changed. What another program saves there meanwhile stays:
/// FileError Unwritable.
void saveWorkspace(Workspace& workspace, const std::filesystem::path& path);

}  // namespace vorlan

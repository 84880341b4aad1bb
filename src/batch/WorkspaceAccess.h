#pragma once

#include <filesystem>
#include <string>

#include "app/CVorl_ADVDoc.h"
#include "batch/Console.h"
#include "io/FileLock.h"
#include "recipes/ProbePlace.h"

namespace vorlan {

/// Opens the workspace in the document; RunError Unreadable.
void openDocument(CVorl_ADVDoc& document, const std::filesystem::path& path);
/// Refuses to put a workspace in the place of a file that is none and is not named as one (.avp): a slip on the command
/// line would cost a record.
void requireReplaceable(const std::filesystem::path& path);
/// Saves it; RunError Unwritable, the file at path is then what it was.
void saveDocument(CVorl_ADVDoc& document, const std::filesystem::path& path);
/// Copies a workspace byte for byte; RunError Unreadable or Unwritable, as above.
void copyWorkspace(const std::filesystem::path& from, const std::filesystem::path& to);

/// A workspace that is opened, changed and saved over itself. Runs of this program that do so at the same time wait for
/// each other; when any other program has written the file meanwhile, it is not saved over.
class WorkspaceUpdate {
  public:
    /// Waits for its turn, then opens the workspace in the document. RunError Unreadable, or Interrupted while it
    /// waits.
    WorkspaceUpdate(CVorl_ADVDoc& document, std::filesystem::path path, Console& console);
    /// RunError Unwritable when another program has written the file.
    void requireUnchanged() const;
    /// RunError Unwritable, the file is then what it was.
    void save();

  private:
    CVorl_ADVDoc& document_;
    std::filesystem::path path_;
    FileLock lock_;
};

}  // namespace vorlan

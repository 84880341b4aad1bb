#pragma once

#include <filesystem>
#include <string>

#include "app/CVorl_ADVDoc.h"
#include "batch/Console.h"
#include "io/FileError.h"
#include "io/FileLock.h"

namespace vorlan {

/// Opens the workspace in the document; BatchError Unreadable.
void openDocument(CVorl_ADVDoc& document, const std::filesystem::path& path);
/// Refuses to put a workspace in the place of a file that is none and is not named as one (.avp): a slip on the command
/// line would cost a record.
void requireReplaceable(const std::filesystem::path& path);
/// Saves it; BatchError Unwritable, the file at path is then what it was.
void saveDocument(CVorl_ADVDoc& document, const std::filesystem::path& path);

/// A workspace that is opened, changed and saved over itself. Runs of this program that do so at the same time wait for
/// each other; when any other program has written the file meanwhile, it is not saved over.
class WorkspaceUpdate {
  public:
    /// Waits for its turn, then opens the workspace in the document. BatchError Unreadable, or Interrupted while it
    /// waits.
    WorkspaceUpdate(CVorl_ADVDoc& document, std::filesystem::path path, Console& console);
    /// BatchError Unwritable when another program has written the file.
    void requireUnchanged() const;
    /// BatchError Unwritable, the file is then what it was.
    void save();

  private:
    CVorl_ADVDoc& document_;
    std::filesystem::path path_;
    FileLock lock_;
};

/// The error's text, with the file's name in front where it does not hold it.
std::string textOf(const FileError& error);

/// Indexes of a probe, from 0.
struct ProbePlace {
    int file = 0;
    int probe = 0;

    friend bool operator==(const ProbePlace&, const ProbePlace&) = default;
};
/// "data file 1, probe 2".
std::string describe(const ProbePlace& place);

/// Refuses a place that the workspace does not have.
void requireProbe(const Workspace& workspace, const ProbePlace& place);
/// Selects file and probe as clicks on the selectors would, unless they are selected.
void selectPlace(CVorl_ADVDoc& document, const ProbePlace& place);
/// Selects the probe's tab of the stage; false when it has none.
bool selectStage(CVorl_ADVDoc& document, Stage stage);

}  // namespace vorlan

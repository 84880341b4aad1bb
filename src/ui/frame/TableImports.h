#pragma once

#include <QStringList>
#include <functional>
#include <optional>

#include "app/CVorl_ADVDoc.h"
#include "ui/dialogs/CImportDlg.h"
#include "ui/frame/UserBoxes.h"
#include "ui/frame/WorkspaceFiles.h"

namespace vorlan {

/// Brings text tables into the workspace: asks which, shows the dialog, appends what was read.
class TableImports {
  public:
    TableImports(CVorl_ADVDoc& document, WorkspaceFiles& files, QWidget& window)
        : document_(document), files_(files), window_(window) {}

    void setBoxes(UserBoxes& boxes) { boxes_ = &boxes; }
    /// Tells how a command ended.
    void setReportFunction(std::function<void(const QString&)> report) { report_ = std::move(report); }

    void choose();
    void import(const QStringList& paths);

  private:
    /// How the last table of this run was taken, for the next one that looks like it.
    struct Layout {
        std::vector<std::string> names;
        std::vector<ColumnRole> roles;
        TableImport import;
    };

    ImportOffer offerFor(const std::vector<std::filesystem::path>& tables, std::string text) const;
    /// Reads the tables into read_.
    std::optional<ImportFault> tryToRead(const TableImport& import);
    void append();

    CVorl_ADVDoc& document_;
    WorkspaceFiles& files_;
    QWidget& window_;
    UserBoxes* boxes_ = nullptr;
    std::function<void(const QString&)> report_;
    std::optional<Layout> last_;
    std::vector<SAdvFile> read_;
};

}  // namespace vorlan

#pragma once

#include <functional>

#include "app/CVorl_ADVDoc.h"
#include "plot/PaneContent.h"
#include "ui/dialogs/CFigureDlg.h"
#include "ui/frame/PaneGrid.h"
#include "ui/frame/UserBoxes.h"
#include "ui/frame/WorkspaceFiles.h"

namespace vorlan {

/// Takes what the panes show out of the window: into a file, or onto the clipboard.
class Figures {
  public:
    Figures(CVorl_ADVDoc& document, WorkspaceFiles& files, PaneGrid& panes, QWidget& window)
        : document_(document), files_(files), panes_(panes), window_(window) {}

    void setBoxes(UserBoxes& boxes) { boxes_ = &boxes; }
    /// Tells how a command ended.
    void setReportFunction(std::function<void(const QString&)> report) { report_ = std::move(report); }

    /// paper is that of a page.
    void save(const PaperSize& paper);
    /// The active view as a bitmap, as SVG and, when it is a table, as text with tabs.
    void copy();

  private:
    QString proposedName() const;
    std::string bytesOf(const PaperSize& paper, const QString& path);

    CVorl_ADVDoc& document_;
    WorkspaceFiles& files_;
    PaneGrid& panes_;
    QWidget& window_;
    UserBoxes* boxes_ = nullptr;
    std::function<void(const QString&)> report_;
    FigureChoice choice_;  ///< of the figure saved last
};

}  // namespace vorlan

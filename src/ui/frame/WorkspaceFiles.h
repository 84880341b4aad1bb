#pragma once

#include <QObject>
#include <QString>

#include "app/CVorl_ADVDoc.h"
#include "ui/RecentList.h"
#include "ui/frame/UserBoxes.h"

namespace vorlan {

/// Whether the path is a pipe, which nothing is written to here: the window would wait until somebody reads. Says so.
bool isRefusedPipe(const QString& path, UserBoxes& boxes, QWidget* window);

/// New, open, save and the question about unsaved changes, for the window's document.
class WorkspaceFiles : public QObject {
    Q_OBJECT

  public:
    WorkspaceFiles(CVorl_ADVDoc& document, QWidget& window) : document_(document), window_(window) {}

    void setBoxes(UserBoxes& boxes) { boxes_ = &boxes; }

    // False when the user did not want it or it could not be done; the open workspace is then what it was.

    bool newWorkspace();
    bool open();
    /// Asks about unsaved changes first.
    bool openPath(const QString& path);
    /// A recent workspace that is gone leaves the list.
    void openRecent(const QString& path);
    bool save();
    bool saveAs();
    /// True when the open workspace may be left: it is saved, or the user does not want it.
    bool mayLeave();
    QStringList recentPaths() const { return recent_.paths(); }
    /// The folder that file dialogs start in; kept for the session only.
    QString folder() const { return folder_; }
    void setFolderOf(const QString& path);
    /// "flume.avp", "Untitled" for a new workspace.
    QString documentName() const;

  Q_SIGNALS:
    void recentListChanged();
    /// What the window waits for: a folder of another machine may take its time. Empty when it is done.
    void waiting(const QString& text);

  private:
    bool saveTo(const QString& path);
    bool load(const QString& path);
    void remember(const QString& path);

    CVorl_ADVDoc& document_;
    QWidget& window_;
    UserBoxes* boxes_ = nullptr;
    RecentList recent_;
    QString folder_;
};

}  // namespace vorlan

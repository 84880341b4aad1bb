#pragma once

#include <QAction>
#include <QMenuBar>
#include <QObject>
#include <array>

#include "app/CommandState.h"

#include "model/Index.h"

namespace vorlan {

/// The actions of all commands, built from the menu table, and the menu bar that shows them.
class CommandActions : public QObject {
    Q_OBJECT

  public:
    /// Fills menuBar. The recent workspaces stand where the menu table places them.
    CommandActions(QMenuBar& menuBar, QObject* parent);

    QAction* of(Command command) const { return actions_[asSize(command)]; }
    /// Enables and checks every action as the document says. The window's own switches keep their check marks.
    void update(const CVorl_ADVDoc& document, const ShownPanes& shown);
    void setRecentFiles(const QStringList& paths);

  Q_SIGNALS:
    void triggered(vorlan::Command command);
    void recentChosen(const QString& path);

  private:
    QAction* makeAction(const struct MenuItem& item);
    /// Says which data file "Close File" closes.
    void nameClosedFile(const CVorl_ADVDoc& document);
    struct Submenu {
        QMenu* menu;
        Command first;  ///< its first item
    };
    /// A submenu is disabled while all of its items are: for the reason of the first one.
    static void updateSubmenu(const Submenu& submenu, const std::string& firstReason);

    std::array<QAction*, kCommandCount> actions_{};
    QMenu* recentMenuOwner_ = nullptr;
    QAction* recentPlace_ = nullptr;
    QList<QAction*> recent_;
    QList<Submenu> submenus_;
};

}  // namespace vorlan

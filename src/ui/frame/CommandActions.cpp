#include "ui/frame/CommandActions.h"

#include <QFileInfo>
#include <QMenu>

#include "ui/frame/MenuTable.h"

namespace vorlan {

namespace {

QString plainText(QString text) {
    text.remove(QLatin1Char('&'));
    while (text.endsWith(QLatin1Char('.'))) {
        text.chop(1);
    }
    return text;
}

// "&Undo Digital Filtration".
void nameCommand(QAction& action, const char* text, const char* name) {
    action.setText(QString::fromLatin1(text) +
                   (name != nullptr ? QLatin1Char(' ') + QString::fromUtf8(name) : QString()));
    action.setToolTip(plainText(action.text()));
}

bool isWindowSwitch(Command command) {
    return command == Command::SelectionToolbar || command == Command::SpectralToolbar || command == Command::StatusBar;
}

}  // namespace

CommandActions::CommandActions(QMenuBar& menuBar, QObject* parent) : QObject(parent) {
    for (const Menu& menu : menuTable()) {
        QMenu* target = menuBar.addMenu(QString::fromUtf8(menu.title));
        QMenu* submenu = nullptr;
        for (const MenuItem& item : menu.items) {
            if (item.text == nullptr) {
                target->addSeparator();
                continue;
            }
            QAction* action = makeAction(item);
            if (item.submenu != nullptr) {
                if (submenu == nullptr) {
                    submenu = target->addMenu(QString::fromUtf8(item.submenu));
                }
                submenu->addAction(action);
            } else {
                target->addAction(action);
            }
            if (item.command == Command::RecentWorkspace) {
                action->setVisible(false);
                recentMenuOwner_ = target;
                recentPlace_ = action;
            }
        }
    }
}

QAction* CommandActions::makeAction(const MenuItem& item) {
    auto* action = new QAction(QString::fromUtf8(item.text), this);
    action->setShortcut(QKeySequence(QString::fromLatin1(item.key)));
    action->setStatusTip(QString::fromUtf8(item.prompt));
    const QString toolTip = QString::fromUtf8(item.toolTip);
    action->setToolTip(toolTip.isEmpty() ? plainText(action->text()) : toolTip);
    action->setCheckable(item.checkable);
    if (item.command == Command::Exit) {
        action->setMenuRole(QAction::QuitRole);
    }
    const Command command = item.command;
    connect(action, &QAction::triggered, this, [this, command] { Q_EMIT triggered(command); });
    actions_[static_cast<std::size_t>(command)] = action;
    return action;
}

void CommandActions::update(const CVorl_ADVDoc& document, const ShownPanes& shown) {
    for (int i = 0; i < kCommandCount; ++i) {
        const auto command = static_cast<Command>(i);
        QAction* action = of(command);
        const CommandState state = commandState(document, command, shown);
        action->setEnabled(state.enabled);
        if (action->isCheckable() && !isWindowSwitch(command)) {
            action->setChecked(state.checked);
        }
    }
    nameCommand(*of(Command::Undo), "&Undo", document.UndoName());
    nameCommand(*of(Command::Redo), "&Redo", document.RedoName());
    for (QAction* action : recent_) {
        action->setEnabled(!document.IsRunning());
    }
}

void CommandActions::setRecentFiles(const QStringList& paths) {
    qDeleteAll(recent_);
    recent_.clear();
    int number = 1;
    for (const QString& path : paths) {
        QString name = QFileInfo(path).fileName();
        name.replace(QLatin1Char('&'), QStringLiteral("&&"));
        auto* action = new QAction(QStringLiteral("&%1 %2").arg(number++).arg(name), this);
        action->setStatusTip(path);
        connect(action, &QAction::triggered, this, [this, path] { Q_EMIT recentChosen(path); });
        recentMenuOwner_->insertAction(recentPlace_, action);
        recent_.append(action);
    }
}

}  // namespace vorlan

#include "ui/frame/CommandActions.h"

#include <QFileInfo>
#include <QMenu>
#include <QProxyStyle>
#include <algorithm>

#include "model/Index.h"
#include "model/Text.h"
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

/// Lets the user go to disabled items, too: the status bar says why they are.
class ReachableItems : public QProxyStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        return hint == SH_Menu_AllowActiveAndDisabled ? 1 : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

// "&Undo Digital Filtration".
void nameCommand(QAction& action, const char* text, const char* name) {
    action.setText(QString::fromLatin1(text) +
                   (name != nullptr ? QLatin1Char(' ') + QString::fromUtf8(name) : QString()));
}

/// The texts of an item, with the reason while it is disabled. Without a tool tip of its own an action shows its text:
/// enough for a button, and a menu repeats no line that is enabled.
void showTips(QAction& action, const MenuItem& item, const std::string& reason) {
    const QString why = QString::fromStdString(reason);
    action.setStatusTip(QString::fromUtf8(item.prompt) +
                        (why.isEmpty() ? QString() : QStringLiteral(" (not now: %1)").arg(why)));
    const QString own = QString::fromUtf8(item.toolTip);
    action.setToolTip(
        why.isEmpty() ? own : QStringLiteral("%1: %2").arg(own.isEmpty() ? plainText(action.text()) : own, why));
}

bool isWindowSwitch(Command command) {
    return command == Command::SelectionToolbar || command == Command::SpectralToolbar || command == Command::StatusBar;
}

}  // namespace

CommandActions::CommandActions(QMenuBar& menuBar, QObject* parent) : QObject(parent) {
    auto* style = new ReachableItems;
    style->setParent(this);
    const auto sayWhy = [style](QMenu& menu) {
        menu.setStyle(style);
        menu.setToolTipsVisible(true);
    };
    for (const Menu& menu : menuTable()) {
        QMenu* target = menuBar.addMenu(QString::fromUtf8(menu.title));
        sayWhy(*target);
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
                    sayWhy(*submenu);
                    submenus_.append({submenu, item.command});
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
    action->setCheckable(item.checkable);
    if (item.command == Command::Exit) {
        action->setMenuRole(QAction::QuitRole);
    }
    const Command command = item.command;
    connect(action, &QAction::triggered, this, [this, command] { Q_EMIT triggered(command); });
    actions_[asSize(command)] = action;
    return action;
}

void CommandActions::update(const CVorl_ADVDoc& document, const ShownPanes& shown) {
    nameCommand(*of(Command::Undo), "&Undo", document.UndoName());
    nameCommand(*of(Command::Redo), "&Redo", document.RedoName());
    for (const Menu& menu : menuTable()) {
        for (const MenuItem& item : menu.items) {
            if (item.text == nullptr) {
                continue;
            }
            QAction* action = of(item.command);
            const CommandState state = commandState(document, item.command, shown);
            action->setEnabled(state.enabled);
            showTips(*action, item, state.reason);
            if (action->isCheckable() && !isWindowSwitch(item.command)) {
                action->setChecked(state.checked);
            }
        }
    }
    nameClosedFile(document);
    for (const Submenu& submenu : submenus_) {
        updateSubmenu(submenu, commandState(document, submenu.first, shown).reason);
    }
    for (QAction* action : recent_) {
        action->setEnabled(!document.IsRunning());
    }
}

void CommandActions::nameClosedFile(const CVorl_ADVDoc& document) {
    if (document.HasFile() && !document.IsRunning()) {
        of(Command::CloseFile)
            ->setStatusTip(QStringLiteral("Close the data file %1")
                               .arg(QString::fromStdString(utf8Text(document.File().fileName))));
    }
}

void CommandActions::updateSubmenu(const Submenu& submenu, const std::string& firstReason) {
    const QList<QAction*> items = submenu.menu->actions();
    QAction& title = *submenu.menu->menuAction();
    title.setEnabled(std::any_of(items.begin(), items.end(), [](const QAction* item) { return item->isEnabled(); }));
    const QString why = title.isEnabled() ? QString() : QString::fromStdString(firstReason);
    title.setToolTip(why.isEmpty() ? QString() : QStringLiteral("%1: %2").arg(plainText(title.text()), why));
    title.setStatusTip(why.isEmpty() ? QString() : QStringLiteral("Not now: %1").arg(why));
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

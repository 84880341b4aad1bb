#include "ui/RecentList.h"

#include <QFileInfo>
#include <QSettings>

namespace vorlan {

namespace {

const QString kKey = QStringLiteral("Recent File List");

class SettingsStore : public QSettings {
  public:
    SettingsStore() : QSettings(QStringLiteral("Brimsel"), QStringLiteral("Vorlan")) {}
};

}  // namespace

QStringList RecentList::paths() const {
    return SettingsStore().value(kKey).toStringList().mid(0, kLength);
}

void RecentList::add(const QString& path) {
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList list = paths();
    list.removeAll(absolute);
    list.prepend(absolute);
    SettingsStore().setValue(kKey, list.mid(0, kLength));
}

void RecentList::remove(const QString& path) {
    QStringList list = paths();
    list.removeAll(path);
    SettingsStore().setValue(kKey, list);
}

}  // namespace vorlan

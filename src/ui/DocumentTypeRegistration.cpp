#include "ui/DocumentTypeRegistration.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>

#include "ui/DocumentTypeTexts.h"

namespace vorlan {

namespace {

// A program path in the quoting of desktop entries.
QString quoted(const QString& program) {
    QString text;
    for (const QChar c : program) {
        if (c == QLatin1Char('"') || c == QLatin1Char('`') || c == QLatin1Char('$')) {
            text += QLatin1String("\\\\");
        } else if (c == QLatin1Char('\\')) {
            text += QLatin1String("\\\\\\");
        } else if (c == QLatin1Char('%')) {
            text += QLatin1Char('%');
        }
        text += c;
    }
    return QLatin1Char('"') + text + QLatin1Char('"');
}

bool writeIfDifferent(const QString& path, const QByteArray& content) {
    QFile present(path);
    if (present.open(QIODevice::ReadOnly) && present.readAll() == content) {
        return false;
    }
    QSaveFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size() && file.commit();
}

void refreshDatabase(const QString& tool, const QString& folder) {
    const QString program = QStandardPaths::findExecutable(tool);
    if (!program.isEmpty()) {
        QProcess::startDetached(program, {folder});
    }
}

}  // namespace

bool registerDocumentType(const QString& program, const QString& dataHome) {
    const bool mime =
        writeIfDifferent(dataHome + QStringLiteral("/mime/packages/vorlan.xml"), QByteArray(kMimeTypeText));
    QByteArray entry(kDesktopEntryText);
    entry.replace("Exec=vorlan ", "Exec=" + quoted(program).toUtf8() + " ");
    // A desktop leaves the entry out when the program has been removed.
    entry.replace("TryExec=vorlan\n", "TryExec=" + program.toUtf8().replace('\\', "\\\\") + "\n");
    const bool desktop = writeIfDifferent(dataHome + QStringLiteral("/applications/vorlan.desktop"), entry);
    return mime || desktop;
}

void refreshDesktopDatabases(const QString& dataHome) {
    refreshDatabase(QStringLiteral("update-mime-database"), dataHome + QStringLiteral("/mime"));
    refreshDatabase(QStringLiteral("update-desktop-database"), dataHome + QStringLiteral("/applications"));
}

}  // namespace vorlan

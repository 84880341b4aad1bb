#include "ui/DocumentTypeRegistration.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>

namespace vorlan {

namespace {

const char* const kMimeType = R"(<?xml version="1.0" encoding="UTF-8"?>
<mime-info xmlns="http://www.freedesktop.org/standards/shared-mime-info">
  <mime-type type="application/x-vorlan-document">
    <comment>Vorlan Document</comment>
    <glob pattern="*.avp"/>
  </mime-type>
</mime-info>
)";

const char* const kDesktopEntry = R"([Desktop Entry]
Type=Application
Name=Vorlan
GenericName=Turbulence analysis
Comment=Turbulence analysis of velocity records
Exec=%1 %f
Icon=vorlan
Terminal=false
Categories=Science;Engineering;
MimeType=application/x-vorlan-document;
)";

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
    const bool mime = writeIfDifferent(dataHome + QStringLiteral("/mime/packages/vorlan.xml"), QByteArray(kMimeType));
    QByteArray entry(kDesktopEntry);
    entry.replace("%1", quoted(program).toUtf8());
    const bool desktop = writeIfDifferent(dataHome + QStringLiteral("/applications/vorlan.desktop"), entry);
    return mime || desktop;
}

void refreshDesktopDatabases(const QString& dataHome) {
    refreshDatabase(QStringLiteral("update-mime-database"), dataHome + QStringLiteral("/mime"));
    refreshDatabase(QStringLiteral("update-desktop-database"), dataHome + QStringLiteral("/applications"));
}

}  // namespace vorlan

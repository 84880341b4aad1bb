#pragma once

#include <QFileInfo>
#include <QGuiApplication>

#include "ui/frame/WorkspaceFiles.h"

namespace vorlan {

/// Tells what is waited for while it lives, "Reading flume.avp ...", with an hourglass.
class Waiting {
  public:
    Waiting(WorkspaceFiles& files, const char* what, const QString& path) : files_(files) {
        Q_EMIT files_.waiting(QString::fromLatin1(what).arg(QFileInfo(path).fileName()));
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
    ~Waiting() {
        QGuiApplication::restoreOverrideCursor();
        Q_EMIT files_.waiting(QString());
    }
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;

  private:
    WorkspaceFiles& files_;
};

}  // namespace vorlan

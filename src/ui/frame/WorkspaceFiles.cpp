#include "ui/frame/WorkspaceFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <new>

#include "io/FileError.h"
#include "ui/frame/Waiting.h"

namespace vorlan {

namespace {

std::filesystem::path toPath(const QString& path) {
    return std::filesystem::path(QFile::encodeName(path).toStdString());
}

QString toText(const std::filesystem::path& path) {
    return QFile::decodeName(QByteArray::fromStdString(path.string()));
}

}  // namespace

bool isRefusedPipe(const QString& path, UserBoxes& boxes, QWidget* window) {
    std::error_code error;
    if (!std::filesystem::is_fifo(toPath(path), error)) {
        return false;
    }
    boxes.refuse(window, QStringLiteral("%1 is a pipe, not a file.").arg(path));
    return true;
}

QString WorkspaceFiles::documentName() const {
    return document_.GetPath().empty() ? QStringLiteral("Untitled") : toText(document_.GetPath().filename());
}

void WorkspaceFiles::setFolderOf(const QString& path) {
    folder_ = QFileInfo(path).absolutePath();
}

void WorkspaceFiles::remember(const QString& path) {
    setFolderOf(path);
    recent_.add(path);
    Q_EMIT recentListChanged();
}

bool WorkspaceFiles::newWorkspace() {
    const bool mayBegin = mayLeave();
    if (mayBegin) {
        document_.NewWorkspace();
    }
    return mayBegin;
}

bool WorkspaceFiles::open() {
    if (!mayLeave()) {
        return false;
    }
    const QString path = boxes_->chooseWorkspaceToOpen(&window_, folder_);
    return !path.isEmpty() && load(path);
}

bool WorkspaceFiles::openPath(const QString& path) {
    return mayLeave() && load(path);
}

void WorkspaceFiles::openRecent(const QString& path) {
    if (!openPath(path) && !QFileInfo::exists(path)) {
        recent_.remove(path);
        Q_EMIT recentListChanged();
    }
}

bool WorkspaceFiles::load(const QString& path) {
    try {
        const Waiting waiting(*this, "Reading %1 ...", path);
        document_.OpenWorkspace(toPath(path));
    } catch (const FileError& error) {
        boxes_->refuse(&window_, QString::fromUtf8(error.what()));
        return false;
    } catch (const std::bad_alloc&) {
        boxes_->refuse(&window_, QStringLiteral("Out of memory."));
        return false;
    }
    remember(path);
    return true;
}

bool WorkspaceFiles::save() {
    if (document_.GetPath().empty()) {
        return saveAs();
    }
    const QString path = toText(document_.GetPath());
    const auto isChangedOnDisk = [&] {
        const Waiting waiting(*this, "Writing %1 ...", path);
        return document_.IsChangedOnDisk();
    };
    if (isChangedOnDisk() &&
        !boxes_->confirm(&window_, QStringLiteral("%1 was changed by another program since it was opened here. Replace "
                                                  "what is there?")
                                       .arg(documentName()))) {
        return false;
    }
    return saveTo(path);
}

bool WorkspaceFiles::saveAs() {
    QString proposed = toText(document_.GetPath());
    if (proposed.isEmpty()) {
        proposed = QDir(folder_).filePath(QStringLiteral("Untitled.avp"));
    }
    const QString path = boxes_->chooseWorkspaceToSave(&window_, proposed);
    return !path.isEmpty() && saveTo(path);
}

bool WorkspaceFiles::saveTo(const QString& path) {
    if (isRefusedPipe(path, *boxes_, &window_)) {
        return false;
    }
    try {
        const Waiting waiting(*this, "Writing %1 ...", path);
        document_.SaveWorkspace(toPath(path));
    } catch (const FileError& error) {
        boxes_->refuse(&window_, QString::fromUtf8(error.what()));
        return false;
    } catch (const std::bad_alloc&) {
        boxes_->refuse(&window_, QStringLiteral("Out of memory."));
        return false;
    }
    remember(path);
    return true;
}

bool WorkspaceFiles::mayLeave() {
    if (!document_.IsModified()) {
        return true;
    }
    switch (boxes_->askToSave(&window_, documentName())) {
        case UserBoxes::SaveAnswer::Save:
            return save();
        case UserBoxes::SaveAnswer::Discard:
            return true;
        case UserBoxes::SaveAnswer::Cancel:
            break;
    }
    return false;
}

}  // namespace vorlan

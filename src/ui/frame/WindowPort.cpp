#include "ui/frame/WindowPort.h"

#include <QApplication>
#include <QKeyEvent>

namespace vorlan {

namespace {

/// An arrow in place of the hourglass while a box waits for the user.
class ArrowScope {
  public:
    ArrowScope() { QGuiApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~ArrowScope() { QGuiApplication::restoreOverrideCursor(); }
    ArrowScope(const ArrowScope&) = delete;
    ArrowScope& operator=(const ArrowScope&) = delete;
};

}  // namespace

bool WindowPort::confirm(const std::string& text) {
    const ArrowScope arrow;
    return boxes_->confirm(&window_, QString::fromStdString(text));
}

void WindowPort::refuse(const std::string& text) {
    const ArrowScope arrow;
    boxes_->refuse(&window_, QString::fromStdString(text));
}

void WindowPort::beginRun(int progressOffset) {
    if (progressOffset >= 0 && pane_ != nullptr) {
        pane_->showProgress(progressOffset);
    }
    if (running_) {
        return;
    }
    running_ = true;
    cancelled_ = false;
    sinceEvents_.start();
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    qApp->installEventFilter(this);
    if (runListener_) {
        runListener_(true);
    }
}

void WindowPort::endRun() {
    running_ = false;
    qApp->removeEventFilter(this);
    QGuiApplication::restoreOverrideCursor();
    if (pane_ != nullptr) {
        pane_->hideProgress();
        pane_->setText(QStringLiteral("Ready"));
    }
    if (runListener_) {
        runListener_(false);
    }
}

void WindowPort::status(const std::string& text) {
    if (pane_ != nullptr) {
        pane_->setText(QString::fromStdString(text));
    }
}

void WindowPort::progress(int percent) {
    if (pane_ != nullptr) {
        pane_->setProgress(percent);
    }
}

bool WindowPort::pump() {
    if (sinceEvents_.elapsed() >= kMillisecondsBetweenEvents) {
        QCoreApplication::processEvents();
        sinceEvents_.restart();
    }
    return !cancelled_;
}

bool WindowPort::eventFilter(QObject* watched, QEvent* event) {
    // A box or an open menu takes the key first.
    const bool forTheRun = QApplication::activeModalWidget() == nullptr && QApplication::activePopupWidget() == nullptr;
    if (event->type() == QEvent::KeyPress && forTheRun && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        cancelled_ = true;
        return true;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace vorlan

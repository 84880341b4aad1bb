#include "ui/frame/WindowPort.h"

#include <QApplication>
#include <QKeyEvent>
#include <optional>

namespace vorlan {

namespace {

constexpr int kMillisecondsToBar = 300;
constexpr int kLateBarOffset = 170;  // pixels

/// An arrow in place of the hourglass while a box waits for the user.
class ArrowScope {
  public:
    ArrowScope() { QGuiApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~ArrowScope() { QGuiApplication::restoreOverrideCursor(); }
    ArrowScope(const ArrowScope&) = delete;
    ArrowScope& operator=(const ArrowScope&) = delete;
};

/// Where the progress bar of a run stands, pixels from the left edge of the status pane; none for a run without a bar.
std::optional<int> barOffsetOf(Calculation calculation) {
    switch (calculation) {
        case Calculation::Spectral:
        case Calculation::Repeat:
            return 170;
        case Calculation::CrossSpectral:
            return 200;
        default:
            return std::nullopt;
    }
}

}  // namespace

QWidget* WindowPort::front() const {
    QWidget* dialog = QApplication::activeModalWidget();
    return dialog != nullptr ? dialog : &window_;
}

bool WindowPort::confirm(Question question) {
    const ArrowScope arrow;
    return boxes_->confirm(front(), QString::fromUtf8(textOf(question)));
}

bool WindowPort::retry(const std::string& text) {
    const ArrowScope arrow;
    return boxes_->retry(front(), QString::fromStdString(text));
}

bool WindowPort::accept(const std::string& question) {
    const ArrowScope arrow;
    return boxes_->confirm(&window_, QString::fromStdString(question));
}

void WindowPort::refuse(const std::string& text) {
    const ArrowScope arrow;
    boxes_->refuse(front(), QString::fromStdString(text));
}

void WindowPort::report(const std::string& text) {
    if (reportListener_) {
        reportListener_(QString::fromStdString(text));
    }
}

void WindowPort::beginRun(Calculation calculation) {
    const std::optional<int> offset = barOffsetOf(calculation);
    if (offset.has_value() && pane_ != nullptr) {
        pane_->showProgress(*offset);
    } else if (pane_ != nullptr) {
        pane_->hideRun();
        pane_->showRun();
    }
    sinceBegin_.start();
    if (running_) {
        return;
    }
    running_ = true;
    cancelled_ = false;
    status(nameOf(calculation));
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
        pane_->hideRun();
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

void WindowPort::position(int percent) {
    if (pane_ != nullptr) {
        pane_->setProgress(percent);
    }
}

void WindowPort::done(double share) {
    // Most runs without a bar end before one could be seen.
    if (pane_ != nullptr && pane_->progressBar().isHidden() && sinceBegin_.elapsed() > kMillisecondsToBar) {
        pane_->showProgress(kLateBarOffset);
    }
    position(static_cast<int>(share * 100.0));
}

void WindowPort::pump() {
    if (sinceEvents_.elapsed() >= kMillisecondsBetweenEvents) {
        QCoreApplication::processEvents();
        sinceEvents_.restart();
    }
    if (cancelled_) {
        throw Cancelled();
    }
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

#include "ui/frame/WindowPort.h"

#include <QApplication>
#include <QKeyEvent>
#include <optional>
#include <utility>

#include "ui/frame/BesideEvents.h"

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

void WindowPort::box(const std::function<void()>& show) {
    callInThreadOf(*this, [&] {
        const ArrowScope arrow;
        show();
    });
}

bool WindowPort::confirm(Question question) {
    bool answer = false;
    box([&] { answer = boxes_->confirm(front(), QString::fromUtf8(textOf(question))); });
    return answer;
}

bool WindowPort::retry(const std::string& text) {
    bool answer = false;
    box([&] { answer = boxes_->retry(front(), QString::fromStdString(text)); });
    return answer;
}

bool WindowPort::accept(const std::string& question) {
    bool answer = false;
    box([&] { answer = boxes_->confirm(&window_, QString::fromStdString(question)); });
    return answer;
}

void WindowPort::refuse(const std::string& text) {
    box([&] { boxes_->refuse(front(), QString::fromStdString(text)); });
}

void WindowPort::report(const std::string& text) {
    if (reportListener_) {
        reportListener_(QString::fromStdString(text));
    }
}

void WindowPort::beginRun(Calculation calculation) {
    const std::optional<int> offset = barOffsetOf(calculation);
    shownPercent_ = 0;
    show([this, offset](StatusPane& pane) {
        sinceBegin_.start();
        if (offset.has_value()) {
            pane.showProgress(*offset);
        } else {
            pane.hideRun();
            pane.showRun();
        }
    });
    if (running_) {
        return;
    }
    running_ = true;
    ++run_;
    cancelled_ = false;
    status(nameOf(calculation));
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
    show([](StatusPane& pane) {
        pane.hideRun();
        pane.setText(QStringLiteral("Ready"));
    });
    if (runListener_) {
        runListener_(false);
    }
}

void WindowPort::work(const std::function<void()>& piece) {
    isInThreadOf(*this) ? doBesideEvents(piece) : piece();
}

void WindowPort::show(const std::function<void(StatusPane&)>& change) {
    if (!isInThreadOf(*this)) {
        const auto shown = [this, change, run = run_] {
            if (running_ && run == run_) {
                show(change);
            }
        };
        QMetaObject::invokeMethod(this, shown, Qt::QueuedConnection);
    } else if (pane_ != nullptr) {
        change(*pane_);
    }
}

void WindowPort::status(const std::string& text) {
    show([text = QString::fromStdString(text)](StatusPane& pane) { pane.setText(text); });
}

void WindowPort::position(int percent) {
    showPercent(percent, false);
}

void WindowPort::done(double share) {
    showPercent(static_cast<int>(share * 100.0), true);
}

void WindowPort::showPercent(int percent, bool late) {
    if (std::exchange(shownPercent_, percent) == percent) {
        return;
    }
    show([this, percent, late](StatusPane& pane) {
        // Most runs without a bar end before one could be seen.
        if (late && pane.progressBar().isHidden() && sinceBegin_.elapsed() > kMillisecondsToBar) {
            pane.showProgress(kLateBarOffset);
        }
        pane.setProgress(percent);
    });
}

void WindowPort::pump() {
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

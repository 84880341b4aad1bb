#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <atomic>
#include <functional>

#include "app/DocumentPort.h"
#include "ui/frame/StatusPane.h"
#include "ui/frame/UserBoxes.h"

namespace vorlan {

/// The document's port in the window: boxes, status bar, progress bar, wait cursor. A calculation runs in a thread
/// beside the window's events, however busy the machine is; Esc cancels it. What it tells comes from that thread: boxes
/// make it wait, the rest is shown with the next events.
class WindowPort : public QObject, public DocumentPort {
    Q_OBJECT

  public:
    WindowPort(QWidget& window, UserBoxes& boxes) : window_(window), boxes_(&boxes) {}

    void setStatusPane(StatusPane* pane) { pane_ = pane; }
    void setBoxes(UserBoxes& boxes) { boxes_ = &boxes; }
    /// Told when a calculation begins (true) and has ended (false).
    void setRunListener(std::function<void(bool)> listener) { runListener_ = std::move(listener); }
    /// Told how a command ended.
    void setReportListener(std::function<void(const QString&)> listener) { reportListener_ = std::move(listener); }

    bool confirm(Question question) override;
    bool accept(const std::string& question) override;
    bool retry(const std::string& text) override;
    void refuse(const std::string& text) override;
    void report(const std::string& text) override;
    void beginRun(Calculation calculation) override;
    void endRun() override;
    void work(const std::function<void()>& piece) override;
    void status(const std::string& text) override;
    void position(int percent) override;
    void done(double share) override;
    void pump() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// Changes the status pane, with the next events when a calculation in its thread asks for it.
    void show(const std::function<void(StatusPane&)>& change);
    void showPercent(int percent, bool late);

    /// Shows a box and waits for its answer.
    void box(const std::function<void()>& show);
    /// What a box stands in front of: an open dialog, else the window.
    QWidget* front() const;

    QWidget& window_;
    UserBoxes* boxes_;
    QPointer<StatusPane> pane_;
    std::function<void(bool)> runListener_;
    std::function<void(const QString&)> reportListener_;
    QElapsedTimer sinceBegin_;
    bool running_ = false;
    int run_ = 0;  ///< counts the runs: what an ended one told is not shown any more
    int shownPercent_ = 0;
    std::atomic<bool> cancelled_ = false;
};

}  // namespace vorlan

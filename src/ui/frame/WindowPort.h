#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <functional>

#include "app/DocumentPort.h"
#include "ui/frame/StatusPane.h"
#include "ui/frame/UserBoxes.h"

namespace vorlan {

/// The document's port in the window: boxes, status bar, progress bar, wait cursor. While a calculation runs it keeps
/// the window painting; Esc cancels the run.
class WindowPort : public QObject, public DocumentPort {
    Q_OBJECT

  public:
    /// Events are taken this often during a run: well below 20 ms, with what lies between two breaths and what the
    /// machine does meanwhile on top.
    static constexpr int kMillisecondsBetweenEvents = 2;

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
    void status(const std::string& text) override;
    void position(int percent) override;
    void done(double share) override;
    void pump() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// What a box stands in front of: an open dialog, else the window.
    QWidget* front() const;

    QWidget& window_;
    UserBoxes* boxes_;
    QPointer<StatusPane> pane_;
    std::function<void(bool)> runListener_;
    std::function<void(const QString&)> reportListener_;
    QElapsedTimer sinceEvents_;
    QElapsedTimer sinceBegin_;
    bool running_ = false;
    bool cancelled_ = false;
};

}  // namespace vorlan

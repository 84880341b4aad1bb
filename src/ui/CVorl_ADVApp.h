#pragma once

#include <QApplication>
#include <QSplashScreen>
#include <memory>
#include <optional>

#include "ui/frame/CMainFrame.h"

namespace vorlan {

/// What the program was started with.
struct CommandLine {
    std::optional<QString> workspace;
    /// Set when the program must not start: why, and the help.
    std::optional<QString> refusal;
};

/// The text that --help or --version ask for, wherever they stand before "--". Needs no display.
std::optional<QString> requestedText(const QStringList& arguments);

/// Reads what the toolkit has left of the command line: an optional workspace.
CommandLine readCommandLine(const QStringList& arguments);

/// The application: starts the program, registers the workspace type, shows the window.
class CVorl_ADVApp : public QApplication {
    Q_OBJECT

  public:
    CVorl_ADVApp(int& argc, char** argv);

    CMainFrame& frame() { return *frame_; }
    /// Shows the window and, when one is named, opens the workspace in it.
    void start(const std::optional<QString>& workspace);
    /// An event that finds no memory is told and left; the window stays.
    bool notify(QObject* receiver, QEvent* event) override;

  private:
    void showSplash();

    std::unique_ptr<CMainFrame> frame_;
    std::unique_ptr<QSplashScreen> splash_;
};

}  // namespace vorlan

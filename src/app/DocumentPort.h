#pragma once

#include <string>

namespace vorlan {

/// How the document speaks with whoever uses it: the window with boxes and a status bar, the command line with its
/// options and standard error, a test with a record of what was asked.
class DocumentPort {
  public:
    virtual ~DocumentPort() = default;

    /// A question with OK and Cancel; true for OK.
    virtual bool confirm(const std::string& text) = 0;
    /// The command is refused: a stop sign with OK.
    virtual void refuse(const std::string& text) = 0;

    /// A long calculation begins. progressOffset is where its bar stands in the first status pane, pixels from the
    /// left edge; negative for a calculation without a bar.
    virtual void beginRun(int progressOffset) = 0;
    virtual void endRun() = 0;
    virtual void status(const std::string& text) = 0;
    virtual void progress(int percent) = 0;
    /// Takes what is pending; false when the user cancelled the run.
    virtual bool pump() = 0;
};

/// Answers every question with OK, shows nothing.
class SilentPort : public DocumentPort {
  public:
    bool confirm(const std::string&) override { return true; }
    void refuse(const std::string&) override {}
    void beginRun(int) override {}
    void endRun() override {}
    void status(const std::string&) override {}
    void progress(int) override {}
    bool pump() override { return true; }
};

}  // namespace vorlan

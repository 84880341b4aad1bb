#pragma once

#include <functional>
#include <string>

#include "analysis/Progress.h"

namespace vorlan {

/// What the document asks its user.
enum class Question { RepeatStages, CloseFile, CloseBoundary };

/// The question in words, to be answered with OK or Cancel.
const char* textOf(Question question);

/// What the document calculates while its user waits.
enum class Calculation {
    Zoom,
    Clipping,
    Reset,
    Rotation,
    Editing,
    Filtration,
    Stationarity,
    Distributions,
    Spectral,
    CrossSpectral,
    Quadrants,
    Repeat,  ///< of the done stages, within a run that changed the record
    Recipe,
};

/// "Spectral Analysis".
const char* nameOf(Calculation calculation);

/// How the document speaks with whoever uses it: the window with boxes and a status bar, the command line with its
/// options and standard error, a test with a record of what was asked. A run is cancelled by pump().
class DocumentPort : public Progress {
  public:
    /// True for OK.
    virtual bool confirm(Question question) = 0;
    /// The user is asked whether to keep values that the document has worked out; true for OK.
    virtual bool accept(const std::string& question) = 0;
    /// Something went wrong that may go right when it is tried again; true for Retry, false for Cancel.
    virtual bool retry(const std::string& text) = 0;
    /// The command is refused: a stop sign with OK.
    virtual void refuse(const std::string& text) = 0;
    /// How a command ended, in a sentence, when all is done and shown. Who prints results needs none.
    virtual void report(const std::string&) {}

    /// A calculation begins, or another part of the one that runs.
    virtual void beginRun(Calculation calculation) = 0;
    virtual void endRun() = 0;
    /// Does a piece of the run: it reads the document, writes copies, and calls this port. Whoever has events to take
    /// does it in a thread beside them; what the piece throws comes out here.
    virtual void work(const std::function<void()>& piece) { piece(); }
};

/// Answers every question with OK, shows nothing.
class SilentPort : public DocumentPort {
  public:
    bool confirm(Question) override { return true; }
    bool accept(const std::string&) override { return true; }
    bool retry(const std::string&) override { return false; }
    void refuse(const std::string&) override {}
    void beginRun(Calculation) override {}
    void endRun() override {}
    void status(const std::string&) override {}
    void position(int) override {}
    void pump() override {}
};

}  // namespace vorlan

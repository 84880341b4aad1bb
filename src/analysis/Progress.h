#pragma once

#include <exception>
#include <string>

namespace vorlan {

/// A run that the user cancelled. Whoever started it drops its copy: nothing half-done remains.
class Cancelled : public std::exception {
  public:
    const char* what() const noexcept override { return "Cancelled"; }
};

/// What a long calculation tells, and how it learns that nobody wants its result any more. The window, the console
/// and the tests implement it.
class Progress {
  public:
    virtual ~Progress() = default;
    /// The name of the calculation that runs now.
    virtual void status(const std::string& text) = 0;
    /// Per cent of the whole command, 0..100.
    virtual void position(int percent) = 0;
    /// The share of it that is done, 0..1, between two positions: for those who show more than steps.
    virtual void done(double) {}
    /// Called between blocks of work (at least after each lag or frequency of a plain loop). Throws Cancelled when
    /// the run is not wanted any more.
    virtual void pump() = 0;
};

/// Tells nobody, runs to the end.
class NoProgress : public Progress {
  public:
    void status(const std::string&) override {}
    void position(int) override {}
    void pump() override {}
};

/// For callers that nobody waits for. It holds no state.
inline Progress& noProgress() {
    static NoProgress nobody;
    return nobody;
}

}  // namespace vorlan

#pragma once

#include <string>

#include "app/DocumentPort.h"
#include "batch/Console.h"

namespace vorlan {

/// The document's port on a console: questions are answered by the options, refusals go to err behind the name of
/// what they are about, progress is shown where somebody watches.
class ConsolePort : public DocumentPort {
  public:
    struct Options {
        bool repeatStages = true;  ///< the answer to the question about repeating done stages
        bool showProgress = false;
    };
    ConsolePort(Console& console, Options options) : console_(console), options_(options) {}

    /// What the following calls are about: the input, then where in it ("in.avp: data file 1, probe 2").
    void setContext(std::string context) { context_ = std::move(context); }
    const std::string& context() const { return context_; }
    /// Whether values that the document works out are kept. The question is told with them in any case.
    void setAccepts(bool accepts) { accepts_ = accepts; }
    /// A line about what the calls are about.
    void tell(const std::string& text);
    /// Whether a refusal was said since the last call of this function.
    bool takeRefused();

    bool confirm(Question question) override;
    bool accept(const std::string& question) override;
    /// Nobody is there who could put things right.
    bool retry(const std::string& text) override;
    void refuse(const std::string& text) override;
    void beginRun(Calculation calculation) override;
    void endRun() override;
    void status(const std::string& text) override;
    void position(int percent) override;
    void breathe() override;

  private:
    void show();
    void clearLine();

    Console& console_;
    Options options_;
    std::string context_;
    std::string calculation_;
    int percent_ = -1;
    bool lineShown_ = false;
    bool refused_ = false;
    bool accepts_ = true;
};

}  // namespace vorlan

#pragma once

#include <string>

#include "batch/Console.h"
#include "recipes/RecipePort.h"

namespace vorlan {

/// The port of a run on a console: refusals go to err behind the name of what they are about, progress is shown where
/// somebody watches.
class ConsolePort : public RecipePort {
  public:
    struct Options {
        bool repeatStages = true;  ///< the answer to the question about repeating done stages
        bool showProgress = false;
    };
    ConsolePort(Console& console, Options options)
        : RecipePort(options.repeatStages), console_(console), options_(options) {}

    bool stopped() const override;
    void beginRun(Calculation calculation) override;
    void endRun() override;
    void status(const std::string& text) override;
    void position(int percent) override;
    void pump() override;

  private:
    void say(const std::string& line) override;
    void show();
    void clearLine();

    Console& console_;
    Options options_;
    std::string calculation_;
    int percent_ = -1;
    bool lineShown_ = false;
};

}  // namespace vorlan

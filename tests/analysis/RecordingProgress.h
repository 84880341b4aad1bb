#pragma once

#include <string>
#include <vector>

#include "analysis/Progress.h"

namespace vorlan::test {

/// Keeps what a run tells.
class RecordingProgress : public NoProgress {
  public:
    void status(const std::string& text) override { texts.push_back(text); }
    void position(int percent) override { positions.push_back(percent); }
    std::vector<std::string> texts;
    std::vector<int> positions;
};

}  // namespace vorlan::test

#pragma once

#include <string>
#include <vector>

#include "app/DocumentPort.h"

namespace vorlan {

/// Answers from fields and keeps what was asked.
class RecordingPort : public DocumentPort {
  public:
    bool confirm(const std::string& text) override {
        questions.push_back(text);
        return answer;
    }
    void refuse(const std::string& text) override { refusals.push_back(text); }
    void beginRun(int progressOffset) override { offsets.push_back(progressOffset); }
    void endRun() override { ++ends; }
    void status(const std::string& text) override { statuses.push_back(text); }
    void progress(int percent) override { positions.push_back(percent); }
    bool pump() override { return pumpsLeft < 0 || pumpsLeft-- > 0; }

    void clear() { *this = RecordingPort{}; }

    bool answer = true;
    int pumpsLeft = -1;  ///< the run is cancelled after so many; -1 never
    std::vector<std::string> questions;
    std::vector<std::string> refusals;
    std::vector<std::string> statuses;
    std::vector<int> positions;
    std::vector<int> offsets;
    int ends = 0;
};

}  // namespace vorlan

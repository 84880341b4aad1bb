#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/DocumentPort.h"

namespace vorlan {

/// Answers from fields and keeps what was asked.
class RecordingPort : public DocumentPort {
  public:
    bool confirm(Question question) override {
        questions.emplace_back(textOf(question));
        return answer;
    }
    bool accept(const std::string& question) override {
        questions.push_back(question);
        return answer;
    }
    bool retry(const std::string& text) override {
        retryQuestions.push_back(text);
        return beforeRetry ? beforeRetry() : false;
    }
    void refuse(const std::string& text) override { refusals.push_back(text); }
    void report(const std::string& text) override { reports.push_back(text); }
    void beginRun(Calculation calculation) override { runs.push_back(calculation); }
    void endRun() override { ++ends; }
    void status(const std::string& text) override { statuses.push_back(text); }
    void position(int percent) override { positions.push_back(percent); }
    void pump() override {
        if (pumpsLeft >= 0 && pumpsLeft-- == 0) {
            throw Cancelled();
        }
    }

    void clear() { *this = RecordingPort{}; }

    bool answer = true;
    int pumpsLeft = -1;                 ///< the run is cancelled after so many; -1 never
    std::function<bool()> beforeRetry;  ///< answers a question whether to try again; without it the answer is no
    std::vector<std::string> questions;
    std::vector<std::string> retryQuestions;
    std::vector<std::string> refusals;
    std::vector<std::string> reports;
    std::vector<std::string> statuses;
    std::vector<int> positions;
    std::vector<Calculation> runs;
    int ends = 0;
};

}  // namespace vorlan

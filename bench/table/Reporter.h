#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>

#include "table/Table.h"

namespace bench {

/// Collects the times of every repetition and lets the reporter that the command line asks for print them; on a
/// terminal one line for each benchmark, the median. Make it after benchmark::Initialize.
class Reporter : public benchmark::BenchmarkReporter {
  public:
    Reporter();

    bool ReportContext(const Context& context) override { return shown_.ReportContext(context); }
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override { shown_.Finalize(); }

    const Times& times() const { return times_; }
    /// A benchmark ended with an error.
    bool failed() const { return failed_; }
    /// Where the table goes: not between the lines of a format that programs read.
    std::FILE* tableOutput() const { return console_ ? stdout : stderr; }

  private:
    benchmark::BenchmarkReporter& shown_;
    bool console_;
    bool failed_ = false;
    Times times_;
};

}  // namespace bench

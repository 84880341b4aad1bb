#pragma once

#include "analysis/kernels/InstructionSet.h"
#include "table/Table.h"

namespace bench {

/// Registers what multiplications and additions on registers alone do with a set; returns the benchmark's name.
std::string registerPeak(const std::string& group, vorlan::InstructionSet set);

/// Floating-point operations per second of the best repetition: what the registers can do is not less because somebody
/// else used the core.
double peakRate(const Times& times, const std::string& benchmark, vorlan::InstructionSet set);

}  // namespace bench

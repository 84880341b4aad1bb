#pragma once

#include <cstddef>

/// Multiplies and adds on registers for some rounds; out holds factor, term and the result. Returns the number of
/// floating-point operations.
std::size_t peakPlain(std::size_t rounds, double* out);
std::size_t peakAvx2(std::size_t rounds, double* out);
std::size_t peakAvx512(std::size_t rounds, double* out);

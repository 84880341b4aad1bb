#pragma once

#include <string>
#include <vector>

#include "model/SAdvProbe.h"

namespace vorlan {

/// What is missing because it does not fit into 32 bits, a text for each function that lost something: "Uy: 20 values
/// above 214.7 cannot be stored", or "beyond" where they may be negative. Exports show such values as the smallest
/// integer times the resolution.

/// Of the power spectra.
std::vector<std::string> spectrumOverflows(const SAdvProbe& probe);
/// Of the cross-covariances, both directions of a pair together.
std::vector<std::string> crossCovarianceOverflows(const SAdvProbe& probe);
/// Of the co- and quadrature spectra of a pair together, and of the cross-covariances that they are made of.
std::vector<std::string> crossSpectrumOverflows(const SAdvProbe& probe);
/// Of the power spectra, too.
std::vector<std::string> coherenceOverflows(const SAdvProbe& probe);

}  // namespace vorlan

#include "analysis/StorageOverflows.h"

#include <algorithm>
#include <array>
#include <limits>

#include "model/Index.h"
#include "model/Text.h"

namespace vorlan {

namespace {

using Names = std::array<const char*, 3>;

constexpr Names kVelocities = {"Ux", "Uy", "Uz"};
constexpr Names kSpectra = {"Spectrum of Ux", "Spectrum of Uy", "Spectrum of Uz"};
constexpr Names kCovariances = {"Cross-covariance u'v'", "Cross-covariance u'w'", "Cross-covariance v'w'"};
constexpr Names kCrossSpectra = {"Cross-spectrum u'v'", "Cross-spectrum u'w'", "Cross-spectrum v'w'"};

std::int64_t lostIn(const SArray& column) {
    return std::count(column.begin(), column.end(), std::numeric_limits<std::int32_t>::min());
}

void tell(std::vector<std::string>& texts, const char* name, std::int64_t lost, const char* where, double scale) {
    if (lost > 0) {
        texts.push_back(formatted("%s: %lld value%s %s %.4g cannot be stored", name, static_cast<long long>(lost),
                                  lost == 1 ? "" : "s", where, std::numeric_limits<std::int32_t>::max() * scale));
    }
}

std::vector<std::string> ofSpectra(const SAdvProbe& probe, const Names& names) {
    std::vector<std::string> texts;
    for (int c = 0; c < SAdvProbe::kComponents; ++c) {
        const SArray& spectrum = probe.Series(c).spectrum;
        tell(texts, names[asSize(c)], lostIn(spectrum), "above", spectrum.GetScale());
    }
    return texts;
}

std::vector<std::string> ofPairs(const SMultiArray& one, const SMultiArray& other, const Names& names) {
    std::vector<std::string> texts;
    for (int pair = 0; pair < std::min({one.GetSize(), other.GetSize(), asInt(names.size())}); ++pair) {
        const SArray& column = one.GetAt(pair);
        tell(texts, names[asSize(pair)], lostIn(column) + lostIn(other.GetAt(pair)), "beyond", column.GetScale());
    }
    return texts;
}

std::vector<std::string> together(std::vector<std::string> texts, const std::vector<std::string>& more) {
    texts.insert(texts.end(), more.begin(), more.end());
    return texts;
}

}  // namespace

std::vector<std::string> spectrumOverflows(const SAdvProbe& probe) {
    return ofSpectra(probe, kVelocities);
}

std::vector<std::string> crossCovarianceOverflows(const SAdvProbe& probe) {
    return ofPairs(probe.CrossForward(), probe.CrossBackward(), kCovariances);
}

std::vector<std::string> crossSpectrumOverflows(const SAdvProbe& probe) {
    return together(crossCovarianceOverflows(probe),
                    ofPairs(probe.CoSpectra(), probe.QuadratureSpectra(), kCrossSpectra));
}

std::vector<std::string> coherenceOverflows(const SAdvProbe& probe) {
    return together(ofSpectra(probe, kSpectra), crossSpectrumOverflows(probe));
}

}  // namespace vorlan

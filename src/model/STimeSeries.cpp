#include "model/STimeSeries.h"

#include "model/Archive.h"

namespace vorlan {

void STimeSeries::Serialize(Archive& archive) {
    archive.value(kind);
    for (double* v : {&moments.mean, &moments.variance, &moments.skewness, &moments.kurtosis}) {
        archive.value(*v);
    }
    for (std::uint32_t* v : {&lags, &bands, &grades}) {
        archive.value(*v);
    }
    archive.code(windowCode, 3);
    archive.code(unitSelector, 1);
    for (SArray* sequence : {&values, &correlation, &spectrum, &structureFunction, &histogram, &bandMeans,
                             &bandVariances, &bandSkewness, &bandKurtosis}) {
        sequence->Serialize(archive);
    }
}

void STimeSeries::ClearStationarityResults() {
    bandMeans.RemoveAll();
    bandVariances.RemoveAll();
    bandSkewness.RemoveAll();
    bandKurtosis.RemoveAll();
}

}  // namespace vorlan

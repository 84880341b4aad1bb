#include "export/Writers.h"

#include "analysis/SpectralScale.h"
#include "export/RowWriter.h"
#include "model/Index.h"

namespace vorlan {

void writeSpectral(std::ostream& stream, const ExportSource& source, const ExportOptions& options) {
    const SAdvProbe& probe = source.probe;
    RowWriter rows(stream, options.separator);
    if (options.header) {
        writeHeader(rows, FileLabel::Capitalised, source, "SPECTRAL CHARACTERISTICS\n");
        rows.text("FIRST COLUMN IS TIME LAG AND SECOND IS FREQUENCY\n");
        rows.text(frequencyUnitLine(probe));
        rows.text("FUNCTIONS: CORRELATION, SPECTRA, STRUCTURE (U,V,W)\n");
    }
    const int spectrumDigits = options.time && options.separator == Separator::Space ? 7 : 4;
    const double step =
        frequencyStep(probe.seriesU.spectrum.GetSize(), probe.samplingInterval, asInt(probe.spectralUnit));
    double lag = 0.0;
    double frequency = 0.0;
    for (int k = 0; k < probe.seriesU.correlation.GetSize(); ++k) {
        if (options.time) {
            rows.value(lag, 2).value(frequency, 3);
        }
        for (const STimeSeries* series : {&probe.seriesU, &probe.seriesV, &probe.seriesW}) {
            rows.value(series->correlation.GetValue(k) / series->moments.variance, 4);
            rows.value(series->spectrum.GetValue(k), spectrumDigits);
            rows.value(series->structureFunction.GetValue(k), 4);
        }
        rows.end();
        // Added up row by row: the last digits of a product would differ.
        lag += probe.samplingInterval;
        frequency += step;
    }
    rows.finish();
}

}  // namespace vorlan

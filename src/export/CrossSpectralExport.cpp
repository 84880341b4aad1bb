#include "export/Writers.h"

#include "analysis/SpectralScale.h"
#include "analysis/Stresses.h"
#include "export/RowWriter.h"
#include "model/Index.h"

namespace vorlan {

void writeCrossSpectral(std::ostream& stream, const ExportSource& source, const ExportOptions& options) {
    const SAdvProbe& probe = source.probe;
    RowWriter rows(stream, options.separator);
    if (options.header) {
        writeHeader(rows, FileLabel::Capitalised, source, "CROSS-SPECTRAL CHARACTERISTICS\n");
        // The title counts a second lag column that the rows do not have.
        rows.text("FIRST TWO COLUMNS ARE TIME LAGS AND THIRD IS FREQUENCY\n");
        rows.text(frequencyUnitLine(probe));
        rows.text("FUNCTIONS: CROSS-SPECTRA, COHERENCE, PHASE (u'v',u'w',v'w')\n");
    }
    const SMultiArray& co = probe.CoSpectra();
    const SMultiArray& quadrature = probe.QuadratureSpectra();
    const SMultiArray& phase = probe.Phase();
    const SMultiArray& coherence = probe.Coherence();
    const double step = frequencyStep(SAdvProbe::ColumnLength(co), probe.samplingInterval, asInt(probe.spectralUnit));
    double lag = 0.0;
    double frequency = 0.0;
    for (int i = 0; i < SAdvProbe::ColumnLength(phase); ++i) {
        if (options.time) {
            rows.value(lag, 2).value(frequency, 3);
        }
        for (int pair = 0; pair < kStressPairs; ++pair) {
            const double c = co.GetAt(pair).GetValue(i);
            const double q = quadrature.GetAt(pair).GetValue(i);
            rows.value(c * c + q * q, 4);
        }
        for (const SMultiArray* functions : {&coherence, &phase}) {
            for (int pair = 0; pair < kStressPairs; ++pair) {
                rows.value(functions->GetAt(pair).GetValue(i), 4);
            }
        }
        rows.end();
        // Added up row by row: the last digits of a product would differ.
        lag += probe.samplingInterval;
        frequency += step;
    }
    rows.finish();
}

}  // namespace vorlan

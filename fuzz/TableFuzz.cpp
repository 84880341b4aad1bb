// Any bytes as a table, read in one of the ways that its first byte chooses: a probe, or a fault with its place.
#include "analysis/ImportedProbe.h"
#include "io/DelimitedTable.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    vorlan::TableOptions options;
    options.missing = bytes[0] % 2 == 0 ? vorlan::TableOptions::Missing::Error : vorlan::TableOptions::Missing::Mark;
    if (bytes[0] % 4 >= 2) {
        options.columns = "u,v,w,-,cor1";
    }
    try {
        const vorlan::DelimitedTable table =
            vorlan::parseDelimitedTable({reinterpret_cast<const char*>(bytes + 1), size - 1}, "t.csv", options);
        vorlan::ImportSettings settings;
        settings.samplingInterval = 0.04;
        vorlan::importedProbe(table.record, settings);
    } catch (const vorlan::FileError&) {
    }
    return 0;
}

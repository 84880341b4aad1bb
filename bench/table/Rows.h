#pragma once

#include "table/Table.h"

// Each registers the benchmarks of a group and adds the rows that are made of their times.

namespace bench {

/// Kernels of every instruction set against the peak of the registers and against plain loops.
void kernelRows(Table& table);
/// Spectra, co- and quadrature spectra against loops of cosines; whole spectral analysis of a probe.
void spectralRows(Table& table);
/// Quadrants against plain loops.
void quadrantRows(Table& table);
/// Document commands on a record of a million samples.
void millionRows(Table& table);
/// The longest time between two events of the window while it calculates.
void eventRows(Table& table);
/// Opening, saving, exporting.
void fileRows(Table& table);
/// Painting four panes of a million samples.
void paintRows(Table& table);
/// The command line over several workspaces.
void jobRows(Table& table);
/// Start of the window, opening a large workspace to drawn panes.
void startRows(Table& table);
/// One autocovariance by numpy and scipy.
void peerRows(Table& table);

}  // namespace bench

#include "Peak.h"
#define PEAK_FUNCTION peakAvx2
#include "PeakLoop.inc"

#include "Peak.h"
#define PEAK_FUNCTION peakAvx512
#include "PeakLoop.inc"

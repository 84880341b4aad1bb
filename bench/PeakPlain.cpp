#include "Peak.h"
#define PEAK_FUNCTION peakPlain
#include "PeakLoop.inc"

#include "app/DocumentPort.h"

namespace vorlan {

const char* textOf(Question question) {
    switch (question) {
        case Question::RepeatStages:
            return "The Time Series was changed. Repeat all previous calculations ?";
        case Question::CloseFile:
            return "Do you want to close the active data file ?";
        case Question::CloseBoundary:
            return "The boundary was changed and not written to its file. Close it ?";
    }
    return "";
}

const char* nameOf(Calculation calculation) {
    switch (calculation) {
        case Calculation::Zoom:
            return "Zoom";
        case Calculation::Clipping:
            return "Clipping";
        case Calculation::Reset:
            return "Reset Time Series";
        case Calculation::Rotation:
            return "Coordinate System";
        case Calculation::Editing:
            return "Editing Time Series";
        case Calculation::Filtration:
            return "Digital Filtration";
        case Calculation::Stationarity:
            return "Stationarity Analysis";
        case Calculation::Distributions:
            return "Histograms";
        case Calculation::Spectral:
            return "Spectral Analysis";
        case Calculation::CrossSpectral:
            return "Cross-Spectral Analysis";
        case Calculation::Quadrants:
            return "Quadrants Analysis and Averaging";
        case Calculation::Repeat:
            return "Repeated Calculations";
        case Calculation::Recipe:
            return "Run Recipe";
    }
    return "";
}

}  // namespace vorlan

#pragma once

#include <string>
#include <vector>

#include "plot/CScreenUtils.h"
#include "plot/Diagram.h"

namespace vorlan {

/// What a picture says of series that its limits leave out.
struct EdgeNotes {
    std::vector<std::string> above;  ///< of the upper and the right edge: "\u25b2 Uy, Uz: up to -0.33"
    std::vector<std::string> below;  ///< of the lower and the left edge
    WiderLimits wider;               ///< limits that would show everything

    bool empty() const { return above.empty() && below.empty(); }
};

/// Notes on series that pass an automatic limit, on those that lie beyond any limit as a whole, on those without a
/// value that has a place on the axes and on bars without height. The digits are those of the labels; a note has one
/// more.
EdgeNotes edgeNotes(const Diagram& diagram, const CScreenUtils& geometry, int xDigits, int yDigits);

}  // namespace vorlan

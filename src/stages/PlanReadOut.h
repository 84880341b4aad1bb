#pragma once

#include <string>

#include "plot/CScreenUtils.h"
#include "plot/Diagram.h"

namespace vorlan {

/// Status bar text for a cursor at pixel (px, py) of a drawn plan: the point under it, with its file, probe and place;
/// beside the points the two coordinates; empty outside the plot area and for diagrams that name no points.
std::string planReadOut(const Diagram& plan, const CScreenUtils& geometry, int px, int py);

}  // namespace vorlan

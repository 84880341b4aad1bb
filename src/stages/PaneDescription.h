#pragma once

#include <string>

#include "model/FrameSlot.h"
#include "model/Stages.h"
#include "model/Workspace.h"
#include "plot/CScreenUtils.h"
#include "plot/PaneContent.h"

namespace vorlan {

/// What a pane is asked to show.
struct PaneRequest {
    const Workspace& workspace;
    int file = -1;   ///< index of the data file, -1 none
    int probe = -1;  ///< index of the probe in it, -1 none
    Stage stage = Stage::PreProcessing;
    Pane pane = Pane::LeftTop;
    PhysicalValue value = PhysicalValue::Velocities;
    bool showTable = false;  ///< where a pane has both a table and a diagram
};

/// What the pane shows: window, printer, clipboard and files all draw this. Nothing when file or probe name no probe,
/// except for the plans and the table that span all files. The workspace is only read: missing frame attributes
/// are supplied as defaults; its texts come as UTF-8. Never throws for a damaged workspace: what cannot be described is
/// a message.
PaneContent describePane(const PaneRequest& request);

/// The stored attributes of a slot, or its defaults while nothing is stored. probe may be null for slots of the set.
FrameAttributesType frameInSlot(const SAdvSet& set, const SAdvProbe* probe, const FrameSlot& slot);

/// The probe that file and probe name, null when they name none.
const SAdvProbe* probeAt(const SAdvSet& set, int file, int probe);

/// Status bar text for a cursor at pixel (px, py) of a drawn diagram: the values under it, only the position on the
/// axis ("Time: %.2fs", "Lag: %.2fs") in other diagrams over time and lag and beside the plot area; empty for plans.
std::string readOut(Stage stage, Pane pane, PhysicalValue value, const CScreenUtils& geometry, int px, int py);

/// Status bar text while a time interval is chosen, s; empty for diagrams where none is.
std::string dragReadOut(Stage stage, Pane pane, double from, double to);

}  // namespace vorlan

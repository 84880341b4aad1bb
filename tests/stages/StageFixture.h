#pragma once

#include <gtest/gtest.h>

#include "analysis/Simulation.h"
#include "stages/PaneDescription.h"

namespace vorlan {

/// A workspace with one simulated data file of 1000 samples every 0.04 s.
class StageFixture : public ::testing::Test {
  protected:
    StageFixture() {
        SimulationParameters parameters;
        parameters.length = 40.0;
        parameters.compass = true;
        for (auto& component : parameters.components) {
            component.harmonics[0].amplitude = 5.0;
        }
        parameters.whiteNoise = true;
        workspace.dataFiles.files.Add(simulate(parameters, 7));
    }

    SAdvProbe& probe() { return workspace.dataFiles.files.ElementAt(0).probes.ElementAt(0); }

    PaneContent pane(Stage stage, Pane pane, PhysicalValue value = PhysicalValue::Velocities, bool showTable = true) {
        return describePane({workspace, 0, 0, stage, pane, value, showTable});
    }
    Diagram diagram(Stage stage, Pane pane, PhysicalValue value = PhysicalValue::Velocities, bool showTable = false) {
        const PaneContent content = this->pane(stage, pane, value, showTable);
        EXPECT_TRUE(std::holds_alternative<Diagram>(content));
        return std::holds_alternative<Diagram>(content) ? std::get<Diagram>(content) : Diagram{};
    }
    TableContent table(Stage stage, Pane pane, PhysicalValue value = PhysicalValue::Velocities) {
        const PaneContent content = this->pane(stage, pane, value, true);
        EXPECT_TRUE(std::holds_alternative<TableContent>(content));
        return std::holds_alternative<TableContent>(content) ? std::get<TableContent>(content) : TableContent{};
    }
    std::string message(Stage stage, Pane pane, PhysicalValue value = PhysicalValue::Velocities,
                        bool showTable = false) {
        const PaneContent content = this->pane(stage, pane, value, showTable);
        return std::holds_alternative<PaneMessage>(content) ? std::get<PaneMessage>(content).text : "no message";
    }
    static std::vector<std::string> legends(const Diagram& diagram) {
        std::vector<std::string> texts;
        for (const PlotSeries& series : diagram.plot.series) {
            texts.push_back(series.attributes.legendText);
        }
        return texts;
    }
    /// Position of the last point of a series.
    static double lastX(const PlotSeries& series) { return series.x.at(series.y.size() - 1); }

    Workspace workspace;
};

}  // namespace vorlan

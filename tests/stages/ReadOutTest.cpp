#include <gtest/gtest.h>

#include "stages/PaneDescription.h"

namespace vorlan {
namespace {

constexpr PhysicalValue kVelocities = PhysicalValue::Velocities;
constexpr PhysicalValue kStresses = PhysicalValue::Stresses;

/// 200 x 100 pixels from (50, 150): 0.1 s and 0.5 units a pixel.
CScreenUtils plotArea() {
    CScreenUtils g;
    g.originX = 50;
    g.originY = 150;
    g.width = 200;
    g.height = 100;
    g.xMin = 0.0;
    g.xMax = 20.0;
    g.yMin = -10.0;
    g.yMax = 40.0;
    g.xScale = 0.1;
    g.yScale = 0.5;
    return g;
}

TEST(ReadOut, NamesWhatTheDiagramShows) {
    const CScreenUtils g = plotArea();
    EXPECT_EQ(readOut(Stage::PreProcessing, Pane::LeftTop, kVelocities, g, 70, 110),
              "Time: 2.00 s   Velocity: 10.00 cm/s");
    EXPECT_EQ(readOut(Stage::PreProcessing, Pane::LeftTop, kStresses, g, 70, 110),
              "Time: 2.00 s   Stress: 10.00 (cm/s)^2");
    EXPECT_EQ(readOut(Stage::Spectral, Pane::LeftTop, kVelocities, g, 55, 129),
              "Lag Time: 0.50 s   Correlation : 0.50");
    EXPECT_EQ(readOut(Stage::PreProcessing, Pane::LeftBottom, kVelocities, g, 70, 110), "Time: 2.00s");
    EXPECT_EQ(readOut(Stage::Spectral, Pane::RightTop, kVelocities, g, 70, 110), "Lag: 2.00s");
    EXPECT_EQ(readOut(Stage::Spectral, Pane::LeftBottom, kVelocities, g, 70, 110), "");
    EXPECT_EQ(readOut(Stage::Quadrants, Pane::LeftTop, kVelocities, g, 70, 110), "");
    EXPECT_EQ(readOut(Stage::Quadrants, Pane::RightBottom, kVelocities, g, 70, 110), "Time: 2.00s");
}

TEST(ReadOut, BesideThePlotOnlyTheAxisIsRead) {
    const CScreenUtils g = plotArea();
    EXPECT_EQ(readOut(Stage::PreProcessing, Pane::LeftTop, kVelocities, g, 70, 160), "Time: 2.00s");
    EXPECT_EQ(readOut(Stage::Spectral, Pane::LeftTop, kVelocities, g, 70, 20), "Lag: 2.00s");
    EXPECT_EQ(readOut(Stage::PreProcessing, Pane::LeftTop, kVelocities, g, 49, 110), "");
    EXPECT_EQ(readOut(Stage::PreProcessing, Pane::LeftTop, kVelocities, g, 251, 110), "");
}

TEST(ReadOut, DraggedIntervalRunsFromLeftToRight) {
    const CScreenUtils g = plotArea();
    EXPECT_EQ(dragReadOut(Stage::PreProcessing, Pane::LeftTop, g, 150, 60), "Time interval from: 1.00 s   to: 10.00 s");
    EXPECT_EQ(dragReadOut(Stage::PreProcessing, Pane::LeftTop, g, 40, 60), "Time interval from: -1.00 s   to: 1.00 s");
    EXPECT_EQ(dragReadOut(Stage::Spectral, Pane::LeftTop, g, 40, 60), "");
}

TEST(FrameSlot, FollowsPaneStageAndSwitches) {
    using Slot = std::optional<FrameSlot>;
    EXPECT_EQ(frameSlotOf(Stage::PreProcessing, Pane::LeftTop, kVelocities, true), Slot({false, 0, 0}));
    EXPECT_EQ(frameSlotOf(Stage::PreProcessing, Pane::LeftTop, kStresses, true), Slot({false, 4, 0}));
    EXPECT_EQ(frameSlotOf(Stage::PreProcessing, Pane::RightTop, kStresses, true), Slot({false, 0, 2}));
    EXPECT_EQ(frameSlotOf(Stage::PreProcessing, Pane::RightBottom, kVelocities, true), Slot());
    EXPECT_EQ(frameSlotOf(Stage::PreProcessing, Pane::RightBottom, kVelocities, false), Slot({false, 0, 3}));
    EXPECT_EQ(frameSlotOf(Stage::Histograms, Pane::RightBottom, kStresses, false), Slot({false, 2, 3}));
    EXPECT_EQ(frameSlotOf(Stage::Spectral, Pane::RightBottom, kVelocities, false), Slot());
    EXPECT_EQ(frameSlotOf(Stage::Quadrants, Pane::LeftBottom, kVelocities, true), Slot({false, 5, 1}));
    EXPECT_EQ(frameSlotOf(Stage::CrossSpectral, Pane::RightBottom, kStresses, true), Slot({false, 6, 3}));
    EXPECT_EQ(frameSlotOf(Stage::MeanVelocityVectors, Pane::LeftBottom, kVelocities, true), Slot({true, 0, 1}));
    EXPECT_EQ(frameSlotOf(Stage::MeanVelocityVectors, Pane::RightTop, kVelocities, true), Slot());
}

TEST(FrameSlot, PlainRecordOfTheSetStandsForTheDefault) {
    SAdvSet set;
    EXPECT_EQ(frameInSlot(set, nullptr, {true, 0, 0}).plotTitle, "Mean Velocity Vectors");
    EXPECT_EQ(frameInSlot(set, nullptr, {true, 0, 1}).plotTitle, "Minimum, Maximum Velocity Vectors");
    set.frameAttributes.ElementAt(0).xDigits = 3;
    EXPECT_EQ(frameInSlot(set, nullptr, {true, 0, 0}).plotTitle, "");
}

}  // namespace
}  // namespace vorlan

#include <gtest/gtest.h>

#include "RecordingPort.h"
#include "SampleDocument.h"

namespace vorlan {
namespace {

TEST(History, TheModifiedMarkFollowsTheSavedState) {
    RecordingPort port;
    CVorl_ADVDoc document(port);
    simulateAndSelect(document, 8.0);
    const std::filesystem::path path = std::filesystem::path(::testing::TempDir()) / "history.avp";
    document.SaveWorkspace(path);
    document.SelectActivePane(Pane::RightTop);
    EXPECT_FALSE(document.IsModified()) << "a selection";
    document.Clip(0.0, 4.0);
    EXPECT_STREQ(document.UndoName(), "Clipping");
    document.Undo();
    EXPECT_FALSE(document.IsModified()) << "back to what was saved";
    EXPECT_STREQ(document.RedoName(), "Clipping");
    EXPECT_EQ(document.ActivePane(), Pane::RightTop) << "the view stays where the command was given";
    document.Undo();
    EXPECT_TRUE(document.IsModified()) << "in front of what was saved";
    document.SetMeanVelocity({MeanVelocityMode::User, 5.0});
    EXPECT_TRUE(document.IsModified()) << "beside it, for good";
    EXPECT_EQ(document.Redo(), Outcome::Refused);
    document.OpenWorkspace(path);
    EXPECT_EQ(document.UndoName(), nullptr);
    std::filesystem::remove(path);
}

TEST(History, WhatWasSelectedBeforeTheFirstCommandGoesBackLast) {
    RecordingPort port;
    CVorl_ADVDoc document(port);
    simulateAndSelect(document, 8.0);
    const std::filesystem::path path = std::filesystem::path(::testing::TempDir()) / "selected.avp";
    document.SaveWorkspace(path);
    document.OpenWorkspace(path);
    document.SelectActivePane(Pane::RightTop);
    document.Clip(0.0, 4.0);
    document.Undo();
    EXPECT_STREQ(document.UndoName(), "Selection");
    document.Undo();
    EXPECT_EQ(document.ActivePane(), Pane::LeftTop);
    EXPECT_STREQ(document.RedoName(), "Selection");
    document.Redo();
    EXPECT_EQ(document.ActivePane(), Pane::RightTop);
    EXPECT_STREQ(document.RedoName(), "Clipping");
    std::filesystem::remove(path);
}

}  // namespace
}  // namespace vorlan

#pragma once

#include <string>

#include "model/Workspace.h"

namespace vorlan {

/// What "info" tells about a workspace. version is the text at the head of its file.

/// One JSON object; selections are the stored indexes from 0, words and codes the stored ones, positions metres.
/// Numbers that are not finite are null.
std::string summaryAsJson(const Workspace& workspace, const std::string& version);

/// Lines for a person.
std::string summaryAsText(const Workspace& workspace, const std::string& version, const std::string& name);

/// Samples of the working record whose mark is 1 or more.
int validSamples(const SAdvProbe& probe);

}  // namespace vorlan

#pragma once

#include <string>

#include "app/CVorl_ADVDoc.h"

namespace vorlan {

/// What was done to the document's active probe since it was sampled or loaded, as the text of a recipe. Run on the
/// workspace as it was then it makes the same probe, to the byte but for which of its tabs is selected. workspace names
/// the workspace in the comment. Changes of boundaries are no part of it.
std::string recipeOfProbe(const CVorl_ADVDoc& document, const std::string& workspace);

}  // namespace vorlan

#pragma once

#include <string>

#include "model/SettingField.h"

namespace vorlan {

/// "between 1 and 5", "at least 1", "above 0".
std::string rangeText(const Range& range);

}  // namespace vorlan

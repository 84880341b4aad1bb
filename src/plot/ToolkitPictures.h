#pragma once

#include "plot/Pictures.h"

namespace vorlan {

/// Pictures drawn by the toolkit, which is started without a screen unless the program has started it. What goes wrong
/// inside it is told on standard error.
std::unique_ptr<Pictures> toolkitPictures();

}  // namespace vorlan

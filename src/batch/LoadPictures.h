#pragma once

#include <memory>

#include "plot/Pictures.h"

namespace vorlan {

/// Loads the drawing, which is a file of its own: everything else starts sooner without it and runs on machines that
/// have no toolkit. RunError Refused when it or the toolkit is not installed.
std::unique_ptr<Pictures> loadPictures();

}  // namespace vorlan

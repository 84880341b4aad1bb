#pragma once

#include "plot/Pictures.h"

namespace vorlan {

/// The file that holds the drawing and, with it, needs the toolkit; and its one function.
inline constexpr const char* kPicturesModule = "vorlan-pictures.so";
inline constexpr const char* kPicturesFunction = "vorlanPictures";

/// Its function: toolkitPictures(), which the caller owns.
using PicturesFunction = Pictures* (*)();

}  // namespace vorlan

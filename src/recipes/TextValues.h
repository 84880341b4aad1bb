#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/PageLayout.h"

namespace vorlan {

/// A whole text as a finite number in C notation, whatever the locale; nothing when it is none.
std::optional<double> parseReal(std::string_view text);
std::optional<long long> parseInteger(std::string_view text);

/// Text between separators, empty parts included.
std::vector<std::string> splitText(std::string_view text, char separator);

/// Exactly count comma-separated numbers.
std::optional<std::vector<double>> parseReals(std::string_view text, std::size_t count);

/// Index of a component letter of either case: u 0, v 1, w 2; -1 for any other text.
int componentOfLetter(std::string_view letter);

/// Names of the sizes of paper.
const std::vector<std::string>& paperNames();
inline constexpr int kUsualPaper = 1;  ///< index of a4
/// The paper of a name's index, upright or turned.
PaperSize paperOf(int index, bool landscape);

/// Sides of a picture, pixels.
struct PictureSize {
    int width = 1200;
    int height = 900;

    static constexpr int kLargest = 10000;
};
inline constexpr const char* kPictureSizeFault = "must be a width and a height of 1 to 10000 pixels, as in 1200x900";
/// "1200x900"; nothing unless both sides lie in 1..kLargest.
std::optional<PictureSize> parsePictureSize(std::string_view text);

}  // namespace vorlan

#include "model/FrameAttributes.h"

#include "model/Archive.h"

namespace vorlan {

namespace {
constexpr std::size_t kSmallestFrame = 6 * sizeof(double) + 21 * sizeof(std::int32_t) + 4 + 4 * FontDescription::kSize;
}

void FrameAttributesType::Serialize(Archive& archive) {
    for (double* v : {&xMin, &xMax, &yMin, &yMax}) {
        archive.value(*v);
    }
    for (std::int32_t* v : {&xMinMode, &xMaxMode, &yMinMode, &yMaxMode, &scaleType, &frameStyle}) {
        archive.value(*v);
    }
    archive.value(xTitle);
    archive.value(yTitle);
    archive.value(xStep);
    archive.value(yStep);
    for (std::int32_t* v : {&xStepMode, &yStepMode, &tickSize, &markSize, &ticksPerMark, &tickOrientation, &xDigits,
                            &yDigits, &labelOffset, &reserved}) {
        archive.value(*v);
    }
    archive.value(plotTitle);
    for (FontDescription* font : {&plotTitleFont, &axisTitleFont, &labelFont}) {
        archive.raw(font->bytes().data(), FontDescription::kSize);
    }
    for (std::int32_t* v : {&gridMode, &gridLineStyle, &gridPenWidth, &gridColour, &legendPosition}) {
        archive.value(*v);
    }
    archive.value(legendTitle);
    archive.raw(legendFont.bytes().data(), FontDescription::kSize);
}

void SFrameAtrArray::Serialize(Archive& archive) {
    serializeItems(archive, archive.count(items().size(), kSmallestFrame));
}

}  // namespace vorlan

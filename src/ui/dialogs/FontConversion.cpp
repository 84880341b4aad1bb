#include "ui/dialogs/FontConversion.h"

#include <QStringList>
#include <cmath>

#include "ui/dialogs/RawText.h"

namespace vorlan {

namespace {

// Pixels of a screen with 96 dots per inch, as everywhere on paper.
constexpr double kPointsPerPixel = 72.0 / 96.0;

double pointSize(const QFont& font) {
    return font.pointSizeF() > 0.0 ? font.pointSizeF() : font.pixelSize() * kPointsPerPixel;
}

}  // namespace

double pointSize(const FontDescription& description) {
    return description.pixelSize() * kPointsPerPixel;
}

QString fontText(const FontDescription& description) {
    constexpr int kBoldFrom = 600;
    QStringList style;
    if (description.weight() >= kBoldFrom) {
        style.append(QStringLiteral("bold"));
    }
    if (description.italic()) {
        style.append(QStringLiteral("italic"));
    }
    const QString text =
        QStringLiteral("%1, %2 pt").arg(displayText(description.face()), QString::number(pointSize(description)));
    return style.isEmpty() ? text : text + QStringLiteral(", ") + style.join(QLatin1Char(' '));
}

FontDescription pickedFont(const FontDescription& before, const QFont& opened, const QFont& picked) {
    FontDescription after = before;
    if (picked.family() != opened.family()) {
        after.setFace(picked.family().toStdString());
    }
    if (pointSize(picked) != pointSize(opened)) {
        after.setHeight(-static_cast<int>(std::lround(pointSize(picked) / kPointsPerPixel)));
    }
    if (picked.weight() != opened.weight()) {
        after.setWeight(picked.weight());
    }
    if (picked.italic() != opened.italic()) {
        after.setItalic(picked.italic());
    }
    if (picked.underline() != opened.underline()) {
        after.setUnderline(picked.underline());
    }
    if (picked.strikeOut() != opened.strikeOut()) {
        after.setStrikeOut(picked.strikeOut());
    }
    return after;
}

}  // namespace vorlan

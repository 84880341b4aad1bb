#include "ui/dialogs/FontConversion.h"

#include <QFontInfo>
#include <QStringList>
#include <algorithm>

#include "ui/dialogs/RawText.h"

namespace vorlan {

namespace {

// 0 asks for the platform's normal weight.
QFont::Weight platformWeight(int weight) {
    return weight == 0 ? QFont::Normal : static_cast<QFont::Weight>(std::clamp(weight, 1, 1000));
}

}  // namespace

QFont platformFont(const FontDescription& description) {
    QFont font(displayText(description.face()));
    font.setPixelSize(description.pixelSize());
    font.setWeight(platformWeight(description.weight()));
    font.setItalic(description.italic());
    font.setUnderline(description.underline());
    font.setStrikeOut(description.strikeOut());
    return font;
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
        QStringLiteral("%1, %2 px").arg(displayText(description.face()), QString::number(description.pixelSize()));
    return style.isEmpty() ? text : text + QStringLiteral(", ") + style.join(QLatin1Char(' '));
}

FontDescription pickedFont(const FontDescription& before, const QFont& opened, const QFont& picked) {
    FontDescription after = before;
    if (picked.family() != opened.family()) {
        after.setFace(picked.family().toStdString());
    }
    const int height = QFontInfo(picked).pixelSize();
    if (height != QFontInfo(opened).pixelSize()) {
        after.setHeight(-height);
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

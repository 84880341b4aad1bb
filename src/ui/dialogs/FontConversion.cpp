#include "ui/dialogs/FontConversion.h"

#include <QFontInfo>
#include <QStringList>

#include "ui/dialogs/RawText.h"

namespace vorlan {

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

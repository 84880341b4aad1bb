#include "plot/QtText.h"

#include <QFontMetrics>
#include <algorithm>
#include <cmath>

#include "model/Printable.h"
#include "model/Text.h"

namespace vorlan {

namespace {

constexpr int kFitted = Qt::AlignCenter | Qt::TextWordWrap;

// A name from a file can hold characters that no picture file may.
QString shownText(const std::string& text) {
    return QString::fromStdString(printable(text));
}

}  // namespace

QFont qtFont(const FontDescription& font, double scale) {
    QFont result(QString::fromStdString(utf8Text(font.face())));
    result.setStyleHint(QFont::SansSerif);
    result.setPixelSize(std::max(1, static_cast<int>(std::lround(font.pixelSize() * scale))));
    const int weight = font.weight();
    result.setWeight(static_cast<QFont::Weight>(weight > 0 ? std::clamp(weight, 100, 900) : 400));
    result.setItalic(font.italic());
    result.setUnderline(font.underline());
    result.setStrikeOut(font.strikeOut());
    return result;
}

QFontMetrics QtTextMeasure::metrics(const FontDescription& font, double share) const {
    return QFontMetrics(qtFont(font, fontScale_ * share), device_);
}

int QtTextMeasure::width(const std::string& text, const FontDescription& font, double share) const {
    // Wider than any picture anyway.
    constexpr std::size_t kLongest = 20000;
    return text.empty() ? 0 : metrics(font, share).horizontalAdvance(shownText(text.substr(0, kLongest)));
}

int QtTextMeasure::height(const FontDescription& font, double share) const {
    return metrics(font, share).height();
}

int QtTextMeasure::ascent(const FontDescription& font, double share) const {
    return metrics(font, share).ascent();
}

QRect fittedBox(const QString& text, const QRect& room, const QFont& font, const QPaintDevice* device) {
    return QFontMetrics(font, device).boundingRect(room, kFitted, text);
}

QFont fittedFont(const QString& text, const QSize& room, QFont font, const QPaintDevice* device) {
    constexpr double kSmaller = 0.9;
    const auto fits = [&] {
        const QSize size = fittedBox(text, QRect(QPoint(0, 0), room), font, device).size();
        return size.width() <= room.width() && size.height() <= room.height();
    };
    while (font.pixelSize() > 1 && !fits()) {
        font.setPixelSize(static_cast<int>(font.pixelSize() * kSmaller));
    }
    return font;
}

void drawFitted(QPainter& painter, const QRect& room, const QString& text, const QFont& font) {
    painter.setFont(fittedFont(text, room.size(), font, painter.device()));
    painter.drawText(room, kFitted, text);
}

void drawTexts(QPainter& painter, std::span<const PlacedText> texts, const TextMeasure& measure, double fontScale) {
    for (const PlacedText& placed : texts) {
        painter.setFont(qtFont(placed.font, fontScale * placed.share));
        const QString text = shownText(placed.text);
        const int ascent = measure.ascent(placed.font, placed.share);
        if (placed.upward) {
            painter.save();
            painter.translate(placed.box.left + ascent, placed.box.bottom);
            painter.rotate(-90.0);
            painter.drawText(QPoint(0, 0), text);
            painter.restore();
        } else {
            painter.drawText(QPoint(placed.box.left, placed.box.top + ascent), text);
        }
    }
}

}  // namespace vorlan

#pragma once

#include <QFont>
#include <QPainter>
#include <span>

#include "plot/Shapes.h"
#include "plot/TextMeasure.h"

namespace vorlan {

/// The font that a description names, pixelSize() * scale pixels high.
QFont qtFont(const FontDescription& font, double scale);

/// Texts as a device shows them.
class QtTextMeasure : public TextMeasure {
  public:
    /// fontScale: pixels of the device per pixel of a font description.
    QtTextMeasure(const QPaintDevice* device, double fontScale) : device_(device), fontScale_(fontScale) {}
    int width(const std::string& text, const FontDescription& font, double share) const override;
    int height(const FontDescription& font, double share) const override;
    int ascent(const FontDescription& font, double share) const override;

  private:
    QFontMetrics metrics(const FontDescription& font, double share) const;

    const QPaintDevice* device_;
    double fontScale_;
};

/// A font for a text in the middle of a room, wrapped at its width: smaller where the text would be cut otherwise.
QFont fittedFont(const QString& text, const QSize& room, QFont font, const QPaintDevice* device);
/// The box of such a text.
QRect fittedBox(const QString& text, const QRect& room, const QFont& font, const QPaintDevice* device);
void drawFitted(QPainter& painter, const QRect& room, const QString& text, const QFont& font);

void drawTexts(QPainter& painter, std::span<const PlacedText> texts, const TextMeasure& measure, double fontScale);

}  // namespace vorlan

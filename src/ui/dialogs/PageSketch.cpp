#include "ui/dialogs/PageSketch.h"

#include <QPainter>
#include <algorithm>

#include "model/Index.h"

namespace vorlan {

namespace {

const QColor kPaper(255, 255, 255);
const QColor kPaperRefused(255, 225, 222);
const QColor kEdge(90, 90, 90);
const QColor kMargin(170, 170, 170);
const QColor kPane(206, 221, 240);
const QColor kPaneEdge(40, 70, 120);
const QColor kTooLarge(245, 170, 165);
const QColor kTooLargeEdge(190, 20, 20);
const QColor kText(60, 60, 60);
constexpr const char* kPaneWords[] = {"left-top", "left-bottom", "right-top", "right-bottom"};

QRectF rectOf(const PageBox& box) {
    return {box.left, box.top, box.width, box.height};
}

// Letters of a margin as a grey stroke of their height.
void paintMarginText(QPainter& painter, const PageBox& box, double height) {
    const double width = std::min(box.width * 0.5, box.width);
    const QPointF centre = rectOf(box).center();
    painter.fillRect(QRectF(centre.x() - width / 2, centre.y() - height / 2, width, std::max(1.0, height)), kMargin);
}

}  // namespace

PageSketch::PageSketch(QWidget* parent) : QWidget(parent) {
    setAccessibleName(QStringLiteral("Sketch of the page"));
}

QSize PageSketch::sizeHint() const {
    return {fontMetrics().height() * 14, fontMetrics().height() * 18};
}

void PageSketch::setText(const QString& text) {
    update();
    if (text != text_) {
        text_ = text;
        setAccessibleDescription(text);
        Q_EMIT textChanged(text);
    }
}

void PageSketch::showPage(const PageAtrType& page, const PaperSize& paper) {
    page_ = page;
    paper_ = paper;
    const Refusal refusal = refusalOf(page, paper);
    printable_ = refusal.empty();
    if (!printable_) {
        return setText(QString::fromStdString(refusal.text));
    }
    const PageLayout layout = layoutPage(page, paper, 1.0);
    setText(
        layout.reduction < 1.0
            ? QStringLiteral("The panes do not fit: all are reduced to %1 %.").arg(100.0 * layout.reduction, 0, 'f', 0)
            : QStringLiteral("The panes fit between the margins."));
}

void PageSketch::showFault(const QString& text) {
    printable_ = false;
    setText(text);
}

void PageSketch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double room = 4.0;
    const double dots = std::min((width() - 2 * room) / paper_.width, (height() - 2 * room) / paper_.height);
    painter.translate((width() - paper_.width * dots) / 2, (height() - paper_.height * dots) / 2);
    painter.setPen(QPen(printable_ ? kEdge : kTooLargeEdge, 1.0));
    painter.setBrush(printable_ ? kPaper : kPaperRefused);
    painter.drawRect(QRectF(0.0, 0.0, paper_.width * dots, paper_.height * dots));
    if (printable_) {
        constexpr double kCmPerInch = 2.54;
        paintPanes(painter, layoutPage(page_, paper_, dots * kCmPerInch));
    }
}

void PageSketch::paintPanes(QPainter& painter, const PageLayout& layout) const {
    constexpr double kLetterHeight = 12.0;  // of header and footer, logical pixels
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(kMargin, 1.0, Qt::DotLine));
    const double top = layout.header.bottom();
    painter.drawRect(QRectF(layout.header.left, top, layout.header.width, layout.footer.top - top));
    if (!page_.header.empty()) {
        paintMarginText(painter, layout.header, kLetterHeight * layout.marginScale);
    }
    if (!page_.footer.empty()) {
        paintMarginText(painter, layout.footer, kLetterHeight * layout.marginScale);
    }
    for (const PageLayout::PlacedPane& placed : layout.panes) {
        const QRectF box = rectOf(placed.box);
        painter.setBrush(placed.fits ? kPane : kTooLarge);
        painter.setPen(QPen(placed.fits ? kPaneEdge : kTooLargeEdge, 1.0));
        painter.drawRect(box);
        painter.setPen(kText);
        const QString word = QString::fromUtf8(kPaneWords[asSize(placed.pane)]);
        if (painter.fontMetrics().horizontalAdvance(word) <= box.width() &&
            painter.fontMetrics().height() <= box.height()) {
            painter.drawText(box, Qt::AlignCenter, word);
        }
    }
}

QIcon pageLayoutIcon(int layout, const QSize& size, double ratio) {
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF paper = QRectF(QPointF(0.0, 0.0), size).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(QPen(kEdge, 1.0));
    painter.setBrush(kPaper);
    painter.drawRect(paper);
    painter.setPen(QPen(kPaneEdge, 1.0));
    painter.setBrush(kPane);
    const int columns = layout == 0 ? 2 : 1;
    const int rows = kPaneCount / columns;
    constexpr double kGap = 3.0;
    const double width = (paper.width() - kGap * (columns + 1)) / columns;
    const double height = (paper.height() - kGap * (rows + 1)) / rows;
    for (int i = 0; i < kPaneCount; ++i) {
        painter.drawRect(QRectF(paper.left() + kGap + (width + kGap) * (i / rows),
                                paper.top() + kGap + (height + kGap) * (i % rows), width, height));
    }
    painter.end();
    return QIcon(picture);
}

}  // namespace vorlan

#include "ui/dialogs/CPlotOptDlg.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "model/FrameLimits.h"
#include "plot/PaintSeries.h"
#include "plot/QtText.h"
#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldReader.h"
#include "ui/dialogs/FieldTips.h"
#include "ui/dialogs/FontConversion.h"
#include "ui/dialogs/RawText.h"

namespace vorlan {

namespace {

constexpr int kLargestPreview = 24;  // pixels

enum FontRow { kPlotTitleFont, kAxisTitleFont, kLabelFont, kLegendFont };

FontDescription& fontOfRow(FrameAttributesType& frame, int row) {
    switch (row) {
        case kPlotTitleFont:
            return frame.plotTitleFont;
        case kAxisTitleFont:
            return frame.axisTitleFont;
        case kLabelFont:
            return frame.labelFont;
        default:
            return frame.legendFont;
    }
}

// Large letters must not drive the dialog off the screen.
QFont previewFont(const FontDescription& description) {
    QFont font = qtFont(description, 1.0);
    font.setPixelSize(std::min(font.pixelSize(), kLargestPreview));
    return font;
}

std::int32_t gridModeOf(bool onMarks, bool onTicks) {
    return static_cast<std::int32_t>(onMarks ? GridMode::Marks : GridMode::None) |
           static_cast<std::int32_t>(onTicks ? GridMode::Ticks : GridMode::None);
}

}  // namespace

DrawnAxes drawnAxesOf(const std::optional<CScreenUtils>& geometry) {
    DrawnAxes axes;
    if (geometry.has_value()) {
        // A user who frees an end wants to see what the automatic one leaves out.
        axes.xMin = geometry->wider.xMin.value_or(geometry->xMin);
        axes.xMax = geometry->wider.xMax.value_or(geometry->xMax);
        axes.yMin = geometry->wider.yMin.value_or(geometry->yMin);
        axes.yMax = geometry->wider.yMax.value_or(geometry->yMax);
        if (!geometry->logX()) {
            axes.xStep = std::fabs(geometry->xStep);
        }
        if (!geometry->logY()) {
            axes.yStep = std::fabs(geometry->yStep);
        }
    }
    return axes;
}

CPlotOptDlg::CPlotOptDlg(const FrameAttributesType& frame, std::span<const ScaleType> allowedScales,
                         const DrawnAxes& drawn, QWidget* parent)
    : CParameterDialog(QStringLiteral("Plot Frame Options"), parent), values_(frame), drawn_(drawn), chosen_(frame) {
    auto* left = new QVBoxLayout;
    left->addWidget(typeBox(allowedScales));
    left->addWidget(limitsBox());
    left->addWidget(stepBox());
    left->addWidget(titlesBox());
    auto* right = new QVBoxLayout;
    right->addWidget(ticksBox());
    right->addWidget(digitsBox());
    right->addWidget(fontsBox());
    right->addWidget(gridBox());
    right->addWidget(legendBox());
    giveToAll_ = new QPushButton(QStringLiteral("&Give to All Diagrams of the Stage"), this);
    giveToAll_->setAutoDefault(false);
    giveToAll_->setToolTip(QStringLiteral(
        "OK, and fonts, frame, ticks and legend to every diagram of the stage, a chosen scale to those that can "
        "have it"));
    connect(giveToAll_, &QPushButton::clicked, this, &CPlotOptDlg::acceptForAll);
    right->addStretch();
    auto* columns = new QHBoxLayout;
    columns->addLayout(left);
    columns->addLayout(right);
    body()->addLayout(columns);
    showFonts();
    showColour();
    finish(scale_);
    // Beside OK, where small screens show it without scrolling.
    auto* buttons = findChild<QDialogButtonBox*>();
    buttons->addButton(giveToAll_, QDialogButtonBox::ActionRole);
    setTabOrder(buttons->button(QDialogButtonBox::Ok), giveToAll_);
    setTabOrder(giveToAll_, buttons->button(QDialogButtonBox::Cancel));
}

IntegerField* CPlotOptDlg::newCount(int value) {
    auto* field = new IntegerField(this);
    field->setInteger(value);
    return field;
}

QLineEdit* CPlotOptDlg::newTitle(const std::string& text) {
    auto* edit = new QLineEdit(displayText(text), this);
    edit->setCursorPosition(0);
    return edit;
}

void CPlotOptDlg::showFonts() {
    plotTitle_->setFont(previewFont(chosen_.plotTitleFont));
    xTitle_->setFont(previewFont(chosen_.axisTitleFont));
    yTitle_->setFont(previewFont(chosen_.axisTitleFont));
    legendTitle_->setFont(previewFont(chosen_.legendFont));
    showFontText();
}

void CPlotOptDlg::showFontText() {
    const QString text = fontText(fontOfRow(chosen_, fonts_->currentRow()));
    fontText_->setText(text);
    fontText_->setToolTip(text);
}

void CPlotOptDlg::showColour() {
    QPixmap swatch(16, 16);
    swatch.fill(colourOf(chosen_.gridColour));
    colour_->setIcon(swatch);
}

void CPlotOptDlg::chooseFont() {
    FontDescription& font = fontOfRow(chosen_, fonts_->currentRow());
    if (const std::optional<FontDescription> picked = pickFont_(this, font)) {
        font = *picked;
        showFonts();
    }
}

void CPlotOptDlg::chooseColour() {
    if (const std::optional<std::int32_t> picked = pickColour_(this, chosen_.gridColour)) {
        chosen_.gridColour = *picked;
        showColour();
    }
}

void CPlotOptDlg::setOfStage(bool ofStage) {
    giveToAll_->setVisible(ofStage);
}

void CPlotOptDlg::acceptForAll() {
    accept();
    forAllDiagrams_ = result() == Accepted;
}

void CPlotOptDlg::AutomaticValue::read(FieldReader& reader, double& into, std::int32_t& mode) const {
    const bool wasAutomatic = mode == 0;
    if (automatic->isChecked() != wasAutomatic) {
        mode = automatic->isChecked() ? 0 : 1;
    }
    reader.number(value, into);
}

void CPlotOptDlg::AutomaticValue::keepStored(double& into, double stored) const {
    if (automatic->isChecked() && value->untouched()) {
        into = stored;
    }
}

void CPlotOptDlg::readChoices(FrameAttributesType& read) const {
    // The focus makes the first item current; only a selected one was chosen.
    for (const QListWidgetItem* scale : scale_->selectedItems()) {
        read.scaleType = scale->data(Qt::UserRole).toInt();
    }
    read.frameStyle = chosen(style_, values_.frameStyle);
    read.plotTitle = editedText(plotTitle_->text(), values_.plotTitle);
    read.xTitle = editedText(xTitle_->text(), values_.xTitle);
    read.yTitle = editedText(yTitle_->text(), values_.yTitle);
    read.legendTitle = editedText(legendTitle_->text(), values_.legendTitle);
    read.tickOrientation = chosenCode(orientation_, values_.tickOrientation);
    const std::int32_t shownGrid =
        gridModeOf(gridDrawnOn(values_.gridMode, GridMode::Marks), gridDrawnOn(values_.gridMode, GridMode::Ticks));
    const std::int32_t grid = gridModeOf(gridOnMarks_->isChecked(), gridOnTicks_->isChecked());
    read.gridMode = grid == shownGrid ? values_.gridMode : grid;
    read.gridLineStyle = chosenCode(lineStyle_, values_.gridLineStyle);
    read.legendPosition = chosenCode(legendPosition_, values_.legendPosition);
}

bool CPlotOptDlg::takeFields(FieldReader& reader) {
    FrameAttributesType read = chosen_;
    readChoices(read);
    xMin_.read(reader, read.xMin, read.xMinMode);
    yMin_.read(reader, read.yMin, read.yMinMode);
    xMax_.read(reader, read.xMax, read.xMaxMode);
    yMax_.read(reader, read.yMax, read.yMaxMode);
    xStep_.read(reader, read.xStep, read.xStepMode);
    yStep_.read(reader, read.yStep, read.yStepMode);
    const auto count = [&reader](IntegerField* field, std::int32_t& into, const Range& range) {
        if (!field->untouched()) {
            reader.integer(field, into, static_cast<int>(range.minimum), static_cast<int>(range.maximum));
        }
    };
    count(tickSize_, read.tickSize, kCounts);
    count(markSize_, read.markSize, kCounts);
    count(ticksPerMark_, read.ticksPerMark, kCounts);
    count(xDigits_, read.xDigits, kDigits);
    count(yDigits_, read.yDigits, kDigits);
    if (!reader.require(limitsRefusal(read), {{"xMin", xMin_.value}, {"yMin", yMin_.value}}, QMessageBox::Ok).good()) {
        return false;
    }
    xMin_.keepStored(read.xMin, chosen_.xMin);
    yMin_.keepStored(read.yMin, chosen_.yMin);
    xMax_.keepStored(read.xMax, chosen_.xMax);
    yMax_.keepStored(read.yMax, chosen_.yMax);
    xStep_.keepStored(read.xStep, chosen_.xStep);
    yStep_.keepStored(read.yStep, chosen_.yStep);
    values_ = read;
    return true;
}

}  // namespace vorlan

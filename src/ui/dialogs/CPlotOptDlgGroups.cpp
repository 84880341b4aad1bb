// The groups of controls of the plot frame options.
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <initializer_list>
#include <utility>

#include "model/Index.h"
#include "ui/dialogs/CPlotOptDlg.h"
#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldTips.h"
#include "ui/dialogs/NumberFields.h"

namespace vorlan {

namespace {

constexpr int kVisibleRows = 4;
constexpr const char* kLimit = "Value at this end of the axis; not that of the other end";
constexpr const char* kStep = "From one labelled mark to the next";

// At least as high as four rows of text.
void fitRows(QListWidget* list) {
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    list->setMinimumHeight(kVisibleRows * list->sizeHintForRow(0) + 2 * list->frameWidth());
    list->setMinimumWidth(list->sizeHintForColumn(0) + 2 * list->frameWidth() + 12);
}

void addCodes(QComboBox* list, std::initializer_list<std::pair<QString, int>> items, int current) {
    for (const auto& [text, code] : items) {
        list->addItem(text, code);
    }
    list->setCurrentIndex(list->findData(current));
}

}  // namespace

bool CPlotOptDlg::gridDrawnOn(std::int32_t gridMode, GridMode part) {
    return (gridMode & static_cast<std::int32_t>(part)) != 0;
}

QWidget* CPlotOptDlg::typeBox(std::span<const ScaleType> allowedScales) {
    auto* box = new QGroupBox(QStringLiteral("Frame Type and Style:"), this);
    scale_ = new QListWidget(this);
    const std::initializer_list<std::pair<QString, ScaleType>> scales{
        {QStringLiteral("XY Linear"), ScaleType::Linear},
        {QStringLiteral("XY Logarithmic"), ScaleType::Logarithmic},
        {QStringLiteral("XLinear Y Log"), ScaleType::LinearXLogY},
        {QStringLiteral("X Log - Y Linear"), ScaleType::LogXLinearY}};
    for (const auto& [text, type] : scales) {
        if (std::find(allowedScales.begin(), allowedScales.end(), type) != allowedScales.end()) {
            auto* item = new QListWidgetItem(text, scale_);
            item->setData(Qt::UserRole, asInt(type));
            if (asInt(type) == values_.scaleType) {
                scale_->setCurrentItem(item);
            }
        }
    }
    fitRows(scale_);
    scale_->setToolTip(fieldTip("Linear or logarithmic axes; the diagram allows these"));
    style_ = radioButtons({QStringLiteral("ordinar&y "), QStringLiteral("f&ull frame")}, values_.frameStyle, this);
    box->setToolTip(fieldTip("Axes at the left and below only, or a frame around the diagram"));
    auto* styles = new QVBoxLayout;
    styles->addWidget(style_->button(0));
    styles->addWidget(style_->button(1));
    styles->addStretch();
    auto* row = new QHBoxLayout(box);
    row->addWidget(scale_, 1);
    row->addLayout(styles);
    return box;
}

CPlotOptDlg::AutomaticValue CPlotOptDlg::addAutomatic(QGridLayout* grid, int row, int column, const QString& axis,
                                                      double value, int mode, const std::optional<double>& drawn,
                                                      const char* meaning) {
    AutomaticValue controls;
    controls.automatic = new QCheckBox(axis, this);
    const bool isAutomatic = mode == 0;
    controls.automatic->setChecked(isAutomatic);
    controls.automatic->setToolTip(QStringLiteral("Automatic: taken from the data"));
    controls.value = new NumberField(this);
    controls.value->setNumber(isAutomatic ? drawn.value_or(value) : value);
    controls.value->setCursorPosition(0);
    controls.value->setToolTip(fieldTip(meaning, "in the units of the axis"));
    controls.value->setEnabled(!isAutomatic);
    connect(controls.automatic, &QCheckBox::toggled, controls.value, &QWidget::setDisabled);
    grid->addWidget(controls.automatic, row, column);
    grid->addWidget(controls.value, row, column + 1);
    return controls;
}

QWidget* CPlotOptDlg::limitsBox() {
    auto* box = new QGroupBox(QStringLiteral("Limits:"), this);
    auto* grid = new QGridLayout(box);
    const QString x = QStringLiteral("     X");
    const QString y = QStringLiteral("     Y");
    for (const int column : {1, 3}) {
        grid->addWidget(new QLabel(QStringLiteral("Automatic"), this), 0, column);
        grid->addWidget(new QLabel(QStringLiteral("Value"), this), 0, column + 1);
    }
    auto* minimum = new QLabel(QStringLiteral("M&inimum:"), this);
    auto* maximum = new QLabel(QStringLiteral("M&aximum:"), this);
    grid->addWidget(minimum, 1, 0);
    grid->addWidget(maximum, 2, 0);
    xMin_ = addAutomatic(grid, 1, 1, x, values_.xMin, values_.xMinMode, drawn_.xMin, kLimit);
    yMin_ = addAutomatic(grid, 1, 3, y, values_.yMin, values_.yMinMode, drawn_.yMin, kLimit);
    xMax_ = addAutomatic(grid, 2, 1, x, values_.xMax, values_.xMaxMode, drawn_.xMax, kLimit);
    yMax_ = addAutomatic(grid, 2, 3, y, values_.yMax, values_.yMaxMode, drawn_.yMax, kLimit);
    minimum->setBuddy(xMin_.automatic);
    maximum->setBuddy(xMax_.automatic);
    grid->setColumnStretch(0, 1);
    return box;
}

QWidget* CPlotOptDlg::stepBox() {
    auto* box = new QGroupBox(QStringLiteral("Mark Step:"), this);
    auto* grid = new QGridLayout(box);
    xStep_ = addAutomatic(grid, 0, 1, QStringLiteral("     X"), values_.xStep, values_.xStepMode, drawn_.xStep, kStep);
    yStep_ = addAutomatic(grid, 0, 3, QStringLiteral("     Y"), values_.yStep, values_.yStepMode, drawn_.yStep, kStep);
    // The columns stand under those of the limits.
    const int width = QLabel(QStringLiteral("Automatic")).sizeHint().width();
    grid->setColumnMinimumWidth(1, width);
    grid->setColumnMinimumWidth(3, width);
    grid->setColumnStretch(0, 1);
    return box;
}

QWidget* CPlotOptDlg::titlesBox() {
    auto* box = new QGroupBox(QStringLiteral("Titles:"), this);
    auto* grid = new QGridLayout(box);
    plotTitle_ = newTitle(values_.plotTitle);
    xTitle_ = newTitle(values_.xTitle);
    yTitle_ = newTitle(values_.yTitle);
    explain(fieldTip("Title above the diagram"), {plotTitle_});
    explain(fieldTip("Title of the axis"), {xTitle_, yTitle_});
    addField(grid, 0, 0, QStringLiteral("&Plot"), plotTitle_);
    addField(grid, 1, 0, QStringLiteral("&X-Axis"), xTitle_);
    addField(grid, 2, 0, QStringLiteral("&Y-Axis"), yTitle_);
    return box;
}

QWidget* CPlotOptDlg::ticksBox() {
    auto* box = new QGroupBox(QStringLiteral("Ticks and Marks:"), this);
    auto* grid = new QGridLayout(box);
    tickSize_ = newCount(values_.tickSize);
    markSize_ = newCount(values_.markSize);
    ticksPerMark_ = newCount(values_.ticksPerMark);
    orientation_ = new QComboBox(this);
    addCodes(orientation_, {{QStringLiteral("X Up - Y Right"), 0}, {QStringLiteral("X Down - Y Left"), 1}},
             values_.tickOrientation);
    explain(fieldTip("Length of the strokes between the marks", "pixels", kCounts), {tickSize_});
    explain(fieldTip("Length of the strokes that have a label", "pixels", kCounts), {markSize_});
    explain(fieldTip("Ticks between two marks", "", kCounts), {ticksPerMark_});
    explain(fieldTip("Strokes into the diagram or out of it"), {orientation_});
    addField(grid, 0, 0, QStringLiteral("&Ticks"), tickSize_);
    addField(grid, 0, 2, QStringLiteral("&Marks"), markSize_);
    addField(grid, 1, 0, QStringLiteral("Ticks &per mark"), ticksPerMark_);
    addField(grid, 2, 0, QStringLiteral("&Orientation:"), orientation_);
    grid->addWidget(orientation_, 2, 1, 1, 3);
    // The columns stand above those of the digits.
    grid->setColumnMinimumWidth(2, QLabel(QStringLiteral("Y - Axis")).sizeHint().width());
    grid->setColumnStretch(0, 1);
    return box;
}

QWidget* CPlotOptDlg::digitsBox() {
    auto* box = new QGroupBox(QStringLiteral("Labels (decimal digits):"), this);
    auto* grid = new QGridLayout(box);
    xDigits_ = newCount(values_.xDigits);
    yDigits_ = newCount(values_.yDigits);
    explain(fieldTip("Decimals of the numbers at the axis", "", kDigits), {xDigits_, yDigits_});
    addField(grid, 0, 0, QStringLiteral("X - Axis"), xDigits_);
    addField(grid, 0, 2, QStringLiteral("Y - Axis"), yDigits_);
    grid->setColumnStretch(0, 1);
    return box;
}

QWidget* CPlotOptDlg::fontsBox() {
    auto* box = new QGroupBox(QStringLiteral("Fonts:"), this);
    fonts_ = new QListWidget(this);
    fonts_->addItems({QStringLiteral("Plot Title"), QStringLiteral("Axis Title"), QStringLiteral("Labels"),
                      QStringLiteral("Legend")});
    fonts_->setCurrentRow(0);
    fitRows(fonts_);
    fonts_->setToolTip(fieldTip("The letters whose font is chosen"));
    auto* button = new QPushButton(QStringLiteral("&Font..."), this);
    button->setToolTip(fieldTip("Choose the font of the marked letters"));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, &CPlotOptDlg::chooseFont);
    fontText_ = new QLabel(this);
    fontText_->setTextFormat(Qt::PlainText);
    // A long face name must not widen the dialog.
    fontText_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    connect(fonts_, &QListWidget::currentRowChanged, this, &CPlotOptDlg::showFontText);
    auto* row = new QHBoxLayout;
    row->addWidget(fonts_, 1);
    row->addWidget(button, 0, Qt::AlignTop);
    auto* column = new QVBoxLayout(box);
    column->addLayout(row);
    column->addWidget(fontText_);
    return box;
}

QWidget* CPlotOptDlg::gridBox() {
    auto* box = new QGroupBox(QStringLiteral("Grid Lines:"), this);
    auto* grid = new QGridLayout(box);
    gridOnTicks_ = new QCheckBox(QStringLiteral("on tic&ks"), this);
    gridOnTicks_->setChecked(gridDrawnOn(values_.gridMode, GridMode::Ticks));
    gridOnMarks_ = new QCheckBox(QStringLiteral("on ma&rks"), this);
    gridOnMarks_->setChecked(gridDrawnOn(values_.gridMode, GridMode::Marks));
    lineStyle_ = new QComboBox(this);
    addCodes(lineStyle_, {{QStringLiteral("Solid"), 0}, {QStringLiteral("Dotted"), 2}}, values_.gridLineStyle);
    colour_ = new QPushButton(QStringLiteral("&Color..."), this);
    colour_->setAutoDefault(false);
    connect(colour_, &QPushButton::clicked, this, &CPlotOptDlg::chooseColour);
    explain(fieldTip("Lines across the diagram"), {gridOnTicks_, gridOnMarks_, lineStyle_});
    explain(fieldTip("Choose the colour of the lines"), {colour_});
    grid->addWidget(gridOnTicks_, 0, 0);
    grid->addWidget(gridOnMarks_, 0, 1);
    addField(grid, 1, 0, QStringLiteral("&Line Style:"), lineStyle_);
    grid->addWidget(colour_, 1, 2);
    grid->setColumnStretch(0, 1);
    return box;
}

QWidget* CPlotOptDlg::legendBox() {
    auto* box = new QGroupBox(QStringLiteral("Legend:"), this);
    auto* grid = new QGridLayout(box);
    legendTitle_ = newTitle(values_.legendTitle);
    legendPosition_ = new QComboBox(this);
    addCodes(legendPosition_,
             {{QStringLiteral("Bottom"), 0}, {QStringLiteral("Right Top"), 1}, {QStringLiteral("No Legend"), 2}},
             values_.legendPosition);
    explain(fieldTip("Title of the legend"), {legendTitle_});
    explain(fieldTip("Where the names of the series stand"), {legendPosition_});
    addField(grid, 0, 0, QStringLiteral("&Title"), legendTitle_);
    addField(grid, 1, 0, QStringLiteral("Positio&n:"), legendPosition_);
    grid->setColumnStretch(1, 1);
    return box;
}

}  // namespace vorlan

#include "ui/dialogs/CPageDlg.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "model/Index.h"
#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldReader.h"
#include "ui/dialogs/PageSketch.h"
#include "ui/dialogs/RawText.h"

namespace vorlan {

namespace {

const QString kHeightTip = QStringLiteral("Height of the pane on paper, cm");
const QString kWidthTip = QStringLiteral("Width of the pane on paper, cm");
constexpr std::array<const char*, kPaneCount> kPaneLabels = {
    "le&ft-top:", "left-b&ottom:", "right-to&p:", "r&ight-bottom:"};

}  // namespace

CPageDlg::CPageDlg(const PageAtrType& page, const PaperSize& paper, QWidget* parent)
    : CParameterDialog(QStringLiteral("Page Setup | for printing"), parent), values_(page), paper_(paper) {
    header_ = newText(page.header);
    header_->setToolTip(QStringLiteral("Text in the middle of the top margin"));
    auto* texts = new QGridLayout;
    const QLabel* headerLabel = addField(texts, 0, 0, QStringLiteral("Page &Header:"), header_);
    body()->addLayout(texts);
    auto* fields = new QVBoxLayout;
    fields->addWidget(marginsBox());
    fields->addWidget(layoutBox());
    fields->addWidget(sizesBox());
    fields->addWidget(scalesRow());
    fields->addStretch();
    auto* columns = new QHBoxLayout;
    columns->addLayout(fields);
    columns->addWidget(sketchColumn(), 1);
    body()->addLayout(columns);
    footer_ = newText(page.footer);
    footer_->setToolTip(QStringLiteral("Text in the middle of the bottom margin, printed as it stands"));
    auto* footer = new QGridLayout;
    QLabel* footerLabel = addField(footer, 0, 0, QStringLiteral("Page Foot&er:"), footer_);
    footer->setColumnMinimumWidth(0, headerLabel->sizeHint().width());
    texts->setColumnMinimumWidth(0, footerLabel->sizeHint().width());
    body()->addLayout(footer);
    setTabOrder(fontScale_, footer_);
    setTabOrder(footer_, choosePaper_);
    refreshSketch();
    finish(header_);
}

QLineEdit* CPageDlg::newText(const std::string& text) {
    auto* edit = new QLineEdit(displayText(text), this);
    edit->setCursorPosition(0);
    connect(edit, &QLineEdit::textChanged, this, &CPageDlg::refreshSketch);
    return edit;
}

NumberField* CPageDlg::newNumber(double value, const QString& toolTip) {
    auto* field = new NumberField(this);
    field->setNumber(value);
    field->setToolTip(toolTip);
    connect(field, &QLineEdit::textChanged, this, &CPageDlg::refreshSketch);
    return field;
}

QWidget* CPageDlg::marginsBox() {
    auto* box = new QGroupBox(QStringLiteral("Margins [cm] :"), this);
    auto* grid = new QGridLayout(box);
    const auto add = [&](int row, int column, const QString& label, double value, const QString& toolTip) {
        NumberField* field = newNumber(value, toolTip);
        addField(grid, row, column, label, field);
        return field;
    };
    left_ = add(0, 0, QStringLiteral("&Left:"), values_.leftMargin,
                QStringLiteral("From the left edge of the paper to the panes, cm"));
    right_ = add(0, 2, QStringLiteral("&Right:"), values_.rightMargin,
                 QStringLiteral("From the panes to the right edge of the paper, cm"));
    top_ = add(1, 0, QStringLiteral("&Top:"), values_.topMargin,
               QStringLiteral("From the upper edge of the paper to the panes, cm; the header stands in it"));
    bottom_ = add(1, 2, QStringLiteral("&Bottom:"), values_.bottomMargin,
                  QStringLiteral("From the panes to the lower edge of the paper, cm; the footer stands in it"));
    return box;
}

QWidget* CPageDlg::layoutBox() {
    auto* box = new QGroupBox(QStringLiteral("Layout:"), this);
    auto* row = new QHBoxLayout(box);
    layout_ = radioButtons({QString(), QString()}, values_.layout, this);
    const QSize size(36, 48);
    const std::array<QString, 2> names = {QStringLiteral("Two by two, as on the screen"),
                                          QStringLiteral("One below the other")};
    for (int i = 0; i < 2; ++i) {
        QAbstractButton* button = layout_->button(i);
        button->setIcon(pageLayoutIcon(i, size, devicePixelRatioF()));
        button->setIconSize(size);
        button->setToolTip(names[asSize(i)]);
        button->setAccessibleName(names[asSize(i)]);
        row->addWidget(button);
    }
    row->addStretch();
    connect(layout_, &QButtonGroup::idToggled, this, &CPageDlg::refreshSketch);
    return box;
}

QWidget* CPageDlg::sizesBox() {
    auto* box = new QGroupBox(QStringLiteral("Sizes of Plots [cm] :"), this);
    auto* grid = new QGridLayout(box);
    grid->addWidget(new QLabel(QStringLiteral("Screen Pane:"), this), 0, 0);
    const auto addHead = [&](int column, const QString& text, const QString& toolTip) {
        auto* label = new QLabel(text, this);
        label->setToolTip(toolTip);
        grid->addWidget(label, 0, column, Qt::AlignHCenter);
    };
    addHead(1, QStringLiteral("X"), kHeightTip);
    addHead(2, QStringLiteral("Y"), kWidthTip);
    for (int i = 0; i < kPaneCount; ++i) {
        const Pane pane = static_cast<Pane>(i);
        PaneFields& fields = panes_[asSize(i)];
        fields.printed = new QCheckBox(QString::fromUtf8(kPaneLabels[asSize(i)]), this);
        fields.printed->setChecked(values_.*printFlagOf(pane) != 0);
        fields.printed->setToolTip(QStringLiteral("Print this pane; one that is not printed takes no room"));
        const PagePaneSize& size = values_.*sizeOf(pane);
        fields.height = newNumber(size.height, kHeightTip);
        fields.width = newNumber(size.width, kWidthTip);
        for (NumberField* field : {fields.height, fields.width}) {
            field->setEnabled(fields.printed->isChecked());
            connect(fields.printed, &QCheckBox::toggled, field, &QWidget::setEnabled);
        }
        connect(fields.printed, &QCheckBox::toggled, this, &CPageDlg::refreshSketch);
        grid->addWidget(fields.printed, i + 1, 0);
        grid->addWidget(fields.height, i + 1, 1);
        grid->addWidget(fields.width, i + 1, 2);
    }
    grid->setColumnStretch(0, 1);
    return box;
}

QWidget* CPageDlg::scalesRow() {
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    inner_ = newNumber(values_.innerMargin, QStringLiteral("Gap between neighbouring panes, cm"));
    fontScale_ = newNumber(values_.fontScale,
                           QStringLiteral("Size of letters, ticks and pens: 1/600 inch per pixel of the screen"));
    addField(grid, 0, 0, QStringLiteral("I&nner margins (between plots) [cm] :"), inner_);
    addField(grid, 1, 0, QStringLiteral("Font &size scale:"), fontScale_);
    grid->setColumnStretch(0, 1);
    return box;
}

QWidget* CPageDlg::sketchColumn() {
    auto* box = new QWidget(this);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    sketch_ = new PageSketch(box);
    auto* text = new QLabel(box);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    // Room for three lines, so that nothing moves while fields are typed.
    text->setMinimumHeight(3 * text->fontMetrics().lineSpacing());
    connect(sketch_, &PageSketch::textChanged, text, &QLabel::setText);
    choosePaper_ = new QPushButton(QStringLiteral("P&aper..."), this);
    choosePaper_->setAutoDefault(false);
    choosePaper_->setToolTip(QStringLiteral("Choose size and orientation of the paper"));
    connect(choosePaper_, &QPushButton::clicked, this, &CPageDlg::choosePaper);
    column->addWidget(sketch_, 1);
    column->addWidget(text);
    column->addWidget(choosePaper_, 0, Qt::AlignHCenter);
    return box;
}

void CPageDlg::choosePaper() {
    if (const std::optional<PaperSize> paper = pickPaper_ ? pickPaper_(this) : std::nullopt) {
        paper_ = *paper;
        refreshSketch();
    }
}

PageAtrType CPageDlg::fieldsAsTheyAre() const {
    PageAtrType page = values_;
    page.header = editedText(header_->text(), values_.header);
    page.footer = editedText(footer_->text(), values_.footer);
    page.layout = chosen(layout_, values_.layout);
    for (int i = 0; i < kPaneCount; ++i) {
        // A stored flag of another value than 1 stays while its box is not clicked.
        std::int32_t& flag = page.*printFlagOf(static_cast<Pane>(i));
        const bool printed = panes_[asSize(i)].printed->isChecked();
        flag = printed == (flag != 0) ? flag : static_cast<std::int32_t>(printed);
    }
    return page;
}

bool CPageDlg::readNumbers(PageAtrType& page, const std::function<bool(NumberField*, double&)>& read) const {
    bool good = read(left_, page.leftMargin) && read(right_, page.rightMargin) && read(top_, page.topMargin) &&
                read(bottom_, page.bottomMargin);
    for (int i = 0; i < kPaneCount && good; ++i) {
        PagePaneSize& size = page.*sizeOf(static_cast<Pane>(i));
        const PaneFields& fields = panes_[asSize(i)];
        good = read(fields.height, size.height) && read(fields.width, size.width);
    }
    return good && read(inner_, page.innerMargin) && read(fontScale_, page.fontScale);
}

void CPageDlg::refreshSketch() {
    if (sketch_ == nullptr || footer_ == nullptr) {
        return;  // the fields are still being made
    }
    PageAtrType page = fieldsAsTheyAre();
    const bool numbers = readNumbers(page, [](NumberField* field, double& into) {
        const std::optional<double> value = field->number();
        into = value.value_or(into);
        return value.has_value() || !field->isEnabled();
    });
    if (numbers) {
        sketch_->showPage(page, paper_);
    } else {
        sketch_->showFault(QStringLiteral("A field does not hold a number."));
    }
}

bool CPageDlg::takeFields(FieldReader& reader) {
    PageAtrType read = fieldsAsTheyAre();
    readNumbers(read, [&](NumberField* field, double& into) { return reader.number(field, into).good(); });
    const auto& [leftTop, leftBottom, rightTop, rightBottom] = panes_;
    reader.require(refusalOf(read),
                   {{"panes", leftTop.printed},
                    {"left", left_},
                    {"right", right_},
                    {"top", top_},
                    {"bottom", bottom_},
                    {"left-top height", leftTop.height},
                    {"left-top width", leftTop.width},
                    {"left-bottom height", leftBottom.height},
                    {"left-bottom width", leftBottom.width},
                    {"right-top height", rightTop.height},
                    {"right-top width", rightTop.width},
                    {"right-bottom height", rightBottom.height},
                    {"right-bottom width", rightBottom.width},
                    {"inner", inner_},
                    {"font_scale", fontScale_}},
                   QMessageBox::Ok);
    if (!reader.good()) {
        return false;
    }
    values_ = read;
    return true;
}

}  // namespace vorlan

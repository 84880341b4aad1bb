#include "ui/dialogs/CFigureDlg.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "model/Index.h"
#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldReader.h"

namespace vorlan {

CFigureDlg::CFigureDlg(const FigureChoice& choice, QWidget* parent)
    : CParameterDialog(QStringLiteral("Save Figure"), parent), values_(choice) {
    scope_ = radioButtons(
        {QStringLiteral("The &active view"), QStringLiteral("All &four views"), QStringLiteral("The printed &page")},
        asInt(choice.scope), this);
    format_ = radioButtons({QStringLiteral("P&NG, a picture of dots"), QStringLiteral("&SVG, lines and letters"),
                            QStringLiteral("P&DF, a document")},
                           asInt(choice.format), this);
    const QString tips[] = {QStringLiteral("The pane that is framed"),
                            QStringLiteral("The four panes as in the window"),
                            QStringLiteral("The page of this stage as Page Setup lays it out, a PDF")};
    for (int i = 0; i < 3; ++i) {
        scope_->button(i)->setToolTip(tips[i]);
        format_->button(i)->setToolTip(QStringLiteral("Kind of the file"));
        scope_->button(i)->setObjectName(QString::number(i));
    }
    auto* groups = new QHBoxLayout;
    groups->addWidget(radioBox(QStringLiteral("What"), scope_), 1);
    groups->addWidget(radioBox(QStringLiteral("Format"), format_), 1);
    body()->addLayout(groups);
    auto* grid = new QGridLayout;
    width_ = new IntegerField(this);
    height_ = new IntegerField(this);
    width_->setInteger(choice.size.width);
    height_->setInteger(choice.size.height);
    width_->setToolTip(QStringLiteral("1 to 10000 pixels; in SVG and PDF of 1/96 inch each"));
    height_->setToolTip(width_->toolTip());
    addField(grid, 0, 0, QStringLiteral("&Width:"), width_, QStringLiteral("pixels"));
    addField(grid, 1, 0, QStringLiteral("&Height:"), height_, QStringLiteral("pixels"));
    dpi_ = new IntegerField(this);
    dpi_->setInteger(choice.dpi);
    dpi_->setToolTip(
        QStringLiteral("10 to 2400, of a PNG: letters, ticks and pens grow with it, 96 as on the screen; "
                       "for print 300 and about three times the pixels"));
    addField(grid, 2, 0, QStringLiteral("Dots per &inch:"), dpi_);
    grid->setColumnStretch(3, 1);
    body()->addLayout(grid);
    connect(scope_, &QButtonGroup::idClicked, this, &CFigureDlg::showAllowed);
    connect(format_, &QButtonGroup::idClicked, this, &CFigureDlg::showAllowed);
    showAllowed();
    finish(firstStop(scope_));
}

void CFigureDlg::showAllowed() {
    const auto scope = static_cast<FigureChoice::Scope>(chosen(scope_, 0));
    for (QAbstractButton* button : format_->buttons()) {
        const auto format = static_cast<FigureChoice::Format>(format_->id(button));
        button->setEnabled(FigureChoice::allows(scope, format));
        // The first one that is left takes over.
        if (!format_->checkedButton()->isEnabled() && button->isEnabled()) {
            button->setChecked(true);
        }
    }
    for (IntegerField* side : {width_, height_}) {
        side->setEnabled(scope != FigureChoice::Scope::Page);
    }
    dpi_->setEnabled(format_->checkedId() == static_cast<int>(FigureChoice::Format::Png));
}

bool CFigureDlg::takeFields(FieldReader& reader) {
    FigureChoice read = values_;
    read.scope = static_cast<FigureChoice::Scope>(chosen(scope_, 0));
    read.format = static_cast<FigureChoice::Format>(chosen(format_, 0));
    reader.integer(width_, read.size.width, 1, PictureSize::kLargest);
    reader.integer(height_, read.size.height, 1, PictureSize::kLargest);
    reader.integer(dpi_, read.dpi, static_cast<int>(kDpiRange.minimum), static_cast<int>(kDpiRange.maximum));
    if (!reader.good()) {
        return false;
    }
    values_ = read;
    return true;
}

}  // namespace vorlan

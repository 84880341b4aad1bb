#include "ui/dialogs/CStatDlg.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include "model/Index.h"
#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldReader.h"
#include "ui/dialogs/FieldTips.h"

namespace vorlan {

CStatDlg::CStatDlg(const StationaritySettings& settings, QWidget* parent)
    : CParameterDialog(QStringLiteral("Stationarity Analysis | Parameters"), parent), values_(settings) {
    mode_ = radioButtons({QStringLiteral("&fixed"), QStringLiteral("&cumulative")}, asInt(settings.mode), this);
    bands_ = new IntegerField(this);
    bands_->setInteger(settings.bands);
    auto* grid = new QGridLayout;
    addField(grid, 0, 0, QStringLiteral("&Number of Bands"), bands_);
    grid->setColumnStretch(0, 1);
    QGroupBox* modes = radioBox(QStringLiteral("Band Width"), mode_);
    explain(values_, values_.mode, {modes});
    explain(values_, values_.bands, {bands_});
    body()->addWidget(modes);
    body()->addLayout(grid);
    finish(firstStop(mode_));
}

bool CStatDlg::takeFields(FieldReader& reader) {
    StationaritySettings read = values_;
    read.mode = static_cast<BandMode>(chosen(mode_, asInt(values_.mode)));
    if (!reader.integer(bands_, read.bands).require(refusalOf(read), {{"bands", bands_}}).good()) {
        return false;
    }
    values_ = read;
    return true;
}

}  // namespace vorlan

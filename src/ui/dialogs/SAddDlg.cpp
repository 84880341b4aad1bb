#include "ui/dialogs/SAddDlg.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "model/Index.h"
#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldReader.h"

namespace vorlan {

SAddDlg::SAddDlg(QWidget* parent) : CParameterDialog(QStringLiteral("Grid and Boundaries Editor | Add Node"), parent) {
    auto* grid = new QGridLayout;
    const std::array<QString, 3> texts{QStringLiteral("&X:"), QStringLiteral("&Y:"), QStringLiteral("&Z:")};
    for (std::size_t axis = 0; axis < fields_.size(); ++axis) {
        fields_[axis] = new NumberField(this);
        fields_[axis]->setNumber(values_[axis]);
        fields_[axis]->setToolTip(QStringLiteral("Coordinate of the new node, m; three decimals are kept"));
        addField(grid, asInt(axis), 0, texts[axis], fields_[axis], QStringLiteral("m"));
    }
    grid->setColumnStretch(3, 1);
    body()->addLayout(grid);
    finish(fields_[0]);
}

bool SAddDlg::takeFields(FieldReader& reader) {
    Position read{};
    for (std::size_t axis = 0; axis < fields_.size(); ++axis) {
        reader.number(fields_[axis], read[axis]);
    }
    if (!reader.good()) {
        return false;
    }
    values_ = read;
    return true;
}

}  // namespace vorlan

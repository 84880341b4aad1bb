#include "ui/dialogs/FieldLayout.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

namespace vorlan {

QLabel* addField(QGridLayout* grid, int row, int column, const QString& text, QWidget* field, const QString& unit) {
    auto* label = new QLabel(text, field->parentWidget());
    label->setBuddy(field);
    grid->addWidget(label, row, column);
    grid->addWidget(field, row, column + 1);
    if (!unit.isEmpty()) {
        auto* unitLabel = new QLabel(unit, field->parentWidget());
        unitLabel->setTextFormat(Qt::PlainText);
        grid->addWidget(unitLabel, row, column + 2);
    }
    return label;
}

void reserveUnit(QGridLayout* grid, const QString& longestUnit) {
    constexpr int kUnitColumn = 2;
    grid->setColumnMinimumWidth(kUnitColumn, QLabel(longestUnit).sizeHint().width());
    grid->setColumnStretch(0, 1);
}

QButtonGroup* radioButtons(const QStringList& texts, int checked, QWidget* parent) {
    auto* group = new QButtonGroup(parent);
    for (int i = 0; i < texts.size(); ++i) {
        auto* button = new QRadioButton(texts[i], parent);
        button->setChecked(i == checked);
        group->addButton(button, i);
    }
    return group;
}

QGroupBox* radioBox(const QString& title, QButtonGroup* buttons) {
    auto* box = new QGroupBox(title, qobject_cast<QWidget*>(buttons->parent()));
    auto* column = new QVBoxLayout(box);
    for (QAbstractButton* button : buttons->buttons()) {
        column->addWidget(button);
    }
    column->addStretch();
    return box;
}

int chosen(const QButtonGroup* buttons, int before) {
    return buttons->checkedId() < 0 ? before : buttons->checkedId();
}

int chosenCode(const QComboBox* list, int before) {
    return list->currentIndex() < 0 ? before : list->currentData().toInt();
}

QWidget* firstStop(const QButtonGroup* buttons) {
    return buttons->checkedButton() != nullptr ? buttons->checkedButton() : buttons->buttons().first();
}

QBoxLayout* withUpDown(QWidget* field, QWidget* upDown) {
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    row->addWidget(field);
    row->addWidget(upDown);
    row->addStretch();
    return row;
}

}  // namespace vorlan

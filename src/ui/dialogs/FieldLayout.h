#pragma once

#include <QStringList>

class QAbstractButton;
class QBoxLayout;
class QButtonGroup;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QWidget;

namespace vorlan {

/// Adds a label, its field and a unit to a row of a grid, from a column on; the label's mnemonic leads to the field.
QLabel* addField(QGridLayout* grid, int row, int column, const QString& text, QWidget* field,
                 const QString& unit = QString());

/// Keeps room for a unit in the column of units, so that the fields of several groups stand under each other.
void reserveUnit(QGridLayout* grid, const QString& longestUnit);

/// Radio buttons numbered from 0. A number without a button leaves all of them off.
QButtonGroup* radioButtons(const QStringList& texts, int checked, QWidget* parent);

/// A titled group with a column of radio buttons.
QGroupBox* radioBox(const QString& title, QButtonGroup* buttons);

/// Number of the chosen button; the number before when none is chosen.
int chosen(const QButtonGroup* buttons, int before);

/// Code (the item data) of the chosen item; the code before when none is chosen.
int chosenCode(const QComboBox* list, int before);

/// The checked button, or the first one when none is.
QWidget* firstStop(const QButtonGroup* buttons);

/// A field with arrow buttons at its right, without a gap.
QBoxLayout* withUpDown(QWidget* field, QWidget* upDown);

}  // namespace vorlan

#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <vector>

#include "ui/dialogs/CParameterDialog.h"
#include "ui/dialogs/CUpDown.h"

/// The n-th widget of its kind with a text.
template <typename Widget>
Widget* withText(const QWidget& parent, const char* text, int n = 0) {
    for (Widget* candidate : parent.findChildren<Widget*>()) {
        if (candidate->text() == QString::fromUtf8(text) && n-- == 0) {
            return candidate;
        }
    }
    return nullptr;
}

/// The field of a label.
template <typename Field = QLineEdit>
Field* labelledField(const QWidget& dialog, const char* label, int n = 0) {
    const QLabel* found = withText<QLabel>(dialog, label, n);
    return found == nullptr ? nullptr : qobject_cast<Field*>(found->buddy());
}

/// Works a dialog by the texts of its controls and records its message boxes.
class DialogDriver {
  public:
    explicit DialogDriver(vorlan::CParameterDialog& dialog) : dialog_(dialog) {
        dialog.setMessageFunction([this](QWidget*, const vorlan::DialogMessage& message) { boxes.push_back(message); });
        dialog.show();
        QApplication::setActiveWindow(&dialog);
    }

    template <typename Field = QLineEdit>
    Field* field(const char* label, int n = 0) const {
        return labelledField<Field>(dialog_, label, n);
    }
    template <typename Button = QAbstractButton>
    Button* button(const char* text, int n = 0) const {
        return withText<Button>(dialog_, text, n);
    }
    bool shows(const char* text) const { return withText<QLabel>(dialog_, text) != nullptr; }
    void click(const char* text, int n = 0) const { button(text, n)->click(); }
    void type(const char* label, const char* text, int n = 0) const {
        field(label, n)->setText(QString::fromUtf8(text));
    }
    QString text(const char* label, int n = 0) const { return field(label, n)->text(); }

    void moveUpDown(int steps) const {
        auto* pair = dialog_.findChild<vorlan::CUpDown*>();
        auto* arrow = pair->findChild<QToolButton*>(QLatin1String(steps > 0 ? "up" : "down"));
        for (int i = 0; i < std::abs(steps); ++i) {
            arrow->click();
        }
    }

    /// Presses OK. True when the dialog closed as accepted and no box was shown.
    bool accepted() {
        boxes.clear();
        dialog_.show();
        dialog_.setResult(QDialog::Rejected);
        click("OK");
        return dialog_.result() == QDialog::Accepted && !dialog_.isVisible() && boxes.empty();
    }

    /// Presses OK. The text of the single box after which the dialog stayed open; empty otherwise.
    QString refusal() { return accepted() || boxes.size() != 1 || !dialog_.isVisible() ? QString() : boxes[0].text; }

    std::vector<vorlan::DialogMessage> boxes;

  private:
    vorlan::CParameterDialog& dialog_;
};

inline bool isStopBox(const vorlan::DialogMessage& box) {
    return box.icon == QMessageBox::Critical && box.buttons == (QMessageBox::Ok | QMessageBox::Cancel);
}

inline bool isNumberBox(const vorlan::DialogMessage& box) {
    return box.icon == QMessageBox::Warning && box.buttons == QMessageBox::Ok;
}

#define REFUSED(driver, expected) QCOMPARE((driver).refusal(), QString::fromUtf8(expected))

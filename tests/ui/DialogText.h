#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMap>
#include <QRadioButton>
#include <QSlider>
#include <QToolButton>
#include <functional>
#include <memory>

#include "ui/DialogDriver.h"

// A dialog as text: what it holds, what its controls do to it, and what its fields refuse.

using MakeDialog = std::function<std::unique_ptr<vorlan::CParameterDialog>()>;
using ValuesOf = std::function<QString(const vorlan::CParameterDialog&)>;

template <class Widget>
QString choicesText(const Widget& list, int current) {
    QStringList texts;
    for (int i = 0; i < list.count(); ++i) {
        if constexpr (std::is_same_v<Widget, QListWidget>) {
            texts << list.item(i)->text();
        } else {
            texts << list.itemText(i);
        }
        texts.last().prepend(QLatin1String(i == current ? "*" : ""));
    }
    return texts.join(QLatin1String(" | "));
}

/// A control with its state; empty for what only holds others.
inline QString controlText(const QWidget& widget) {
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) {
        return QLatin1String("-- ") + box->title();
    }
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return label->buddy() == nullptr ? label->text() : label->text() + QLatin1String(" ->");
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        const bool radio = qobject_cast<const QRadioButton*>(&widget) != nullptr;
        const bool check = qobject_cast<const QCheckBox*>(&widget) != nullptr;
        const QLatin1String mark(radio   ? (button->isChecked() ? "(o) " : "( ) ")
                                 : check ? (button->isChecked() ? "[x] " : "[ ] ")
                                         : "");
        return qobject_cast<const QToolButton*>(&widget) != nullptr
                   ? QString()
                   : (radio || check ? mark + button->text() : QLatin1String("<") + button->text() + u'>');
    }
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) {
        return QLatin1Char('"') + field->text() + QLatin1Char('"');
    }
    if (const auto* slider = qobject_cast<const QSlider*>(&widget)) {
        return QStringLiteral("%1 of %2..%3").arg(slider->value()).arg(slider->minimum()).arg(slider->maximum());
    }
    if (const auto* list = qobject_cast<const QListWidget*>(&widget)) {
        return choicesText(*list, list->currentRow());
    }
    if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
        return choicesText(*list, list->currentIndex());
    }
    if (qobject_cast<const vorlan::CUpDown*>(&widget) != nullptr) {
        return QStringLiteral("up, down");
    }
    return {};
}

/// What is shown where the mouse rests on a control: its own tip, or that of what it stands in.
inline QString shownTip(const QWidget* widget) {
    while (widget != nullptr && !widget->isWindow() && widget->toolTip().isEmpty()) {
        widget = widget->parentWidget();
    }
    return widget == nullptr ? QString() : widget->toolTip();
}

/// What the keyboard leads to and nothing explains.
inline QStringList unexplained(const QDialog& dialog) {
    QStringList found;
    for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
        const bool visited = (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible();
        if (visited && qobject_cast<const QDialogButtonBox*>(widget->parent()) == nullptr &&
            shownTip(widget).isEmpty()) {
            found << QString::fromLatin1(widget->metaObject()->className()) + controlText(*widget);
        }
    }
    return found;
}

/// One line for each control, in the order in which the dialog was built.
inline QStringList dialogLines(const QDialog& dialog, bool withTips = false) {
    QStringList lines{dialog.windowTitle()};
    for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
        const bool inside = qobject_cast<const QComboBox*>(widget->parent()) != nullptr;
        const QString text = inside ? QString() : controlText(*widget);
        if (!text.isEmpty()) {
            const QString tip = withTips ? widget->toolTip() : QString();
            lines << QLatin1String("  ") + text + QLatin1String(widget->isEnabled() ? "" : "   (off)") +
                         (tip.isEmpty() ? QString() : QLatin1String("   {") + tip + u'}');
        }
    }
    return lines;
}

/// The lines that differ after a deed on a new dialog, and what it hands back then.
inline QString changedLines(const MakeDialog& make, const ValuesOf& valuesOf, const QString& name,
                            const std::function<void(vorlan::CParameterDialog&)>& deed) {
    const auto dialog = make();
    DialogDriver driver(*dialog);
    const QStringList before = dialogLines(*dialog);
    const QString values = valuesOf(*dialog);
    deed(*dialog);
    const QStringList after = dialogLines(*dialog);
    QString changes;
    for (int i = 0; i < after.size(); ++i) {
        if (i >= before.size() || after[i] != before[i]) {
            changes += QLatin1String("  ") + after[i] + u'\n';
        }
    }
    if (driver.accepted() && valuesOf(*dialog) != values) {
        changes += QLatin1String("    = ") + valuesOf(*dialog) + u'\n';
    }
    return changes.isEmpty() ? QString() : name + u'\n' + changes;
}

inline void tickAll(vorlan::CParameterDialog& dialog) {
    for (QCheckBox* box : dialog.findChildren<QCheckBox*>()) {
        if (!box->isChecked()) {
            box->click();
        }
    }
}

/// What OK answers to texts in a field, on a dialog with every box ticked: the answers with the texts that meet them.
/// What is handed back is told for the first text that is taken.
inline QString answersOf(const MakeDialog& make, const ValuesOf& valuesOf, int fieldNumber) {
    QMap<QString, QStringList> texts;
    QString taken;
    for (const char* text : {"2", "0.25", "", "1,5", "-1e9", "-1", "0", "1", "99", "1e9"}) {
        const auto dialog = make();
        DialogDriver driver(*dialog);
        tickAll(*dialog);
        QLineEdit* field = dialog->findChildren<QLineEdit*>()[fieldNumber];
        if (!field->isEnabled()) {
            return {};
        }
        field->setText(QString::fromUtf8(text));
        if (driver.accepted() || driver.boxes.size() != 1) {
            taken = taken.isEmpty() ? valuesOf(*dialog) : taken;
            continue;
        }
        const vorlan::DialogMessage& box = driver.boxes[0];
        const QString answer = QLatin1String(isStopBox(box)     ? "stop: "
                                             : isNumberBox(box) ? ""
                                                                : "box: ") +
                               box.text + QLatin1String(dialog->focusWidget() == field ? "" : " (another field)");
        texts[answer] << QLatin1Char('"') + QString::fromUtf8(text) + QLatin1Char('"');
    }
    QString answers = QLatin1String("    = ") + taken + u'\n';
    for (auto answer = texts.begin(); answer != texts.end(); ++answer) {
        answers += QLatin1String("    ") + answer.value().join(u' ') + QLatin1String(": ") + answer.key() + u'\n';
    }
    return answers;
}

inline QString dialogText(const MakeDialog& make, const ValuesOf& valuesOf) {
    const auto dialog = make();
    QString text = dialogLines(*dialog, true).join(u'\n') + QLatin1String("\n    = ") + valuesOf(*dialog) + u'\n';
    const auto deeds = [&](auto* sample, const auto& deed) {
        using Control = std::remove_pointer_t<decltype(sample)>;
        for (int i = 0; i < dialog->findChildren<Control*>().size(); ++i) {
            deed(i, [i](vorlan::CParameterDialog& d) -> Control& { return *d.template findChildren<Control*>()[i]; });
        }
    };
    deeds(static_cast<QAbstractButton*>(nullptr), [&](int, const auto& control) {
        if (control(*dialog).isCheckable() || qobject_cast<QToolButton*>(&control(*dialog)) != nullptr) {
            const QString name =
                control(*dialog).text().isEmpty() ? control(*dialog).objectName() : control(*dialog).text();
            text += changedLines(make, valuesOf, name, [&](auto& d) { control(d).click(); });
        }
    });
    deeds(static_cast<QComboBox*>(nullptr), [&](int, const auto& control) {
        for (int k = 0; k < control(*dialog).count(); ++k) {
            text += changedLines(make, valuesOf, control(*dialog).itemText(k),
                                 [&](auto& d) { control(d).setCurrentIndex(k); });
        }
    });
    deeds(static_cast<QSlider*>(nullptr), [&](int, const auto& control) {
        text += changedLines(make, valuesOf, QStringLiteral("the slider at its start"),
                             [&](auto& d) { control(d).setValue(0); });
    });
    deeds(static_cast<QLineEdit*>(nullptr), [&](int i, const auto& control) {
        const QString answers = answersOf(make, valuesOf, i);
        text += answers.isEmpty()
                    ? QString()
                    : QStringLiteral("field %1, \"%2\"\n").arg(i + 1).arg(control(*dialog).text()) + answers;
    });
    return text;
}

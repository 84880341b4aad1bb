#include "ui/dialogs/FieldTips.h"

#include <QStringList>
#include <QWidget>
#include <cmath>

#include "model/RangeText.h"

namespace vorlan {

QString fieldTip(const SettingField& field) {
    QStringList numbers{QString::fromUtf8(field.unit)};
    if (std::isfinite(field.range.minimum)) {
        numbers.append(QString::fromStdString(rangeText(field.range)));
    }
    numbers.removeAll(QString());
    const QString meaning = QString::fromUtf8(field.meaning);
    return numbers.isEmpty() ? meaning : QStringLiteral("%1 (%2)").arg(meaning, numbers.join(QStringLiteral(", ")));
}

void explain(const QString& tip, std::initializer_list<QWidget*> controls) {
    for (QWidget* control : controls) {
        control->setToolTip(tip);
    }
}

}  // namespace vorlan

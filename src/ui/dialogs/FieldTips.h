#pragma once

#include <QString>
#include <initializer_list>

#include "model/SettingField.h"

class QWidget;

namespace vorlan {

/// "Velocity whose arrow has the given length (cm/s, above 0)": what a field means, its unit, what it may hold.
QString fieldTip(const SettingField& field);
inline QString fieldTip(const char* meaning, const char* unit = "", const Range& range = {}) {
    return fieldTip(SettingField{"", range, {}, meaning, unit});
}

/// Gives the controls of a member of settings what its row says.
template <class Settings, class Member>
void explain(const Settings& settings, const Member& member, std::initializer_list<QWidget*> controls);

/// The same for controls without a row.
void explain(const QString& tip, std::initializer_list<QWidget*> controls);

template <class Settings, class Member>
void explain(const Settings& settings, const Member& member, std::initializer_list<QWidget*> controls) {
    explain(fieldTip(fieldOf(settings, member)), controls);
}

}  // namespace vorlan

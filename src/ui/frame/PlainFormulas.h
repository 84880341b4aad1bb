#pragma once

#include <QString>

namespace vorlan {

/// A page of the manual with its formulas in plain letters, as far as letters go: "\frac{\sigma^2}{N-1}" is
/// "σ²/(N-1)". What stands in code stays as it is.
QString withPlainFormulas(const QString& markdown);

/// One formula.
QString plainFormula(const QString& formula);

}  // namespace vorlan

#pragma once

#include <QString>
#include <QStringList>
#include <array>

namespace vorlan {

/// What of the workspace is printed.
enum class PrintScope : int { Stage, Probe, AllProbes };

/// The choice of it, with the number of pages that each takes.
struct PrintChoice {
    PrintScope scope = PrintScope::Stage;
    std::array<int, 3> pages{};
    /// Where a file is proposed in place of paper; empty leaves it to the platform.
    QString folder = {};

    /// With mnemonics.
    QStringList texts() const {
        const auto counted = [](const char* text, int count) {
            return QStringLiteral("%1 (%2)").arg(
                QString::fromUtf8(text), count == 1 ? QStringLiteral("1 page") : QStringLiteral("%1 pages").arg(count));
        };
        return {counted("This &stage", pages[0]), counted("All &done stages of this probe", pages[1]),
                counted("All pro&bes", pages[2])};
    }
};

}  // namespace vorlan

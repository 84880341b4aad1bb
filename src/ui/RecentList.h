#pragma once

#include <QStringList>

namespace vorlan {

/// The most recently used workspaces, newest first: the one setting outside the workspace. Kept in the settings store
/// under the company key "Brimsel".
class RecentList {
  public:
    static constexpr int kLength = 5;

    QStringList paths() const;
    /// Moves path to the front.
    void add(const QString& path);
    void remove(const QString& path);
};

}  // namespace vorlan

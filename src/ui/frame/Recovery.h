#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <functional>
#include <optional>

#include "app/CVorl_ADVDoc.h"
#include "io/RecoveryCopy.h"
#include "ui/frame/UserBoxes.h"

namespace vorlan {

/// Keeps a copy of what was done and not saved yet, and offers the copy of a program that has crashed.
class Recovery {
  public:
    /// The time within which at most one copy is written.
    static constexpr int kMilliseconds = 60000;

    Recovery(CVorl_ADVDoc& document, QWidget& window);

    void setBoxes(UserBoxes& boxes) { boxes_ = &boxes; }
    /// Tells how a command ended.
    void setReportFunction(std::function<void(const QString&)> report) { report_ = std::move(report); }

    /// Asks about copies that programs left behind; true when one was opened.
    bool offer();
    /// The document has changed, or a run has ended: writes a copy, now or when the last one is old enough. Never
    /// while a calculation runs.
    void keep();
    /// The program ends as it should.
    void end() { copy_.remove(); }

  private:
    bool recover(const RecoveryCopy::LeftBehind& left);

    CVorl_ADVDoc& document_;
    QWidget& window_;
    RecoveryCopy copy_;
    QTimer timer_;
    QElapsedTimer sinceCopy_;
    std::optional<std::uint64_t> keptState_;  ///< of the document, in the copy
    bool failed_ = false;
    UserBoxes* boxes_ = nullptr;
    std::function<void(const QString&)> report_;
};

}  // namespace vorlan

#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <functional>
#include <memory>
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
    ~Recovery();
    Recovery(const Recovery&) = delete;
    Recovery& operator=(const Recovery&) = delete;

    void setBoxes(UserBoxes& boxes) { boxes_ = &boxes; }
    /// Tells how a command ended.
    void setReportFunction(std::function<void(const QString&)> report) { report_ = std::move(report); }

    /// Asks about copies that programs left behind; true when one was opened.
    bool offer();
    /// The document has changed, or a run has ended: a copy is written beside what the user does, from now on or when
    /// the last one is old enough. Never while a calculation runs.
    void keep();
    /// The program ends as it should.
    void end();

  private:
    /// A copy that is being written, in a thread of its own.
    struct Writing;
    void begin();
    /// Waits for it and takes note of how it ended.
    void finish();
    bool recover(const RecoveryCopy::LeftBehind& left);

    CVorl_ADVDoc& document_;
    QWidget& window_;
    RecoveryCopy copy_;  ///< belongs to the thread while there is one
    std::unique_ptr<Writing> writing_;
    QTimer timer_;
    QElapsedTimer sinceCopy_;
    std::optional<std::uint64_t> keptState_;  ///< of the document, in the copy
    bool failed_ = false;
    UserBoxes* boxes_ = nullptr;
    std::function<void(const QString&)> report_;
};

}  // namespace vorlan

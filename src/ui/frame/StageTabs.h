#pragma once

#include <QTabBar>

#include "app/CVorl_ADVDoc.h"

namespace vorlan {

/// The stage tabs of the active probe.
class StageTabs : public QTabBar {
    Q_OBJECT

  public:
    explicit StageTabs(QWidget* parent = nullptr);

    void refresh(const CVorl_ADVDoc& document);

  Q_SIGNALS:
    /// The user picked a tab.
    void stageChosen(int tabIndex);

  private:
    /// Marks the tabs of stages whose results are of the record before its last change.
    void markOld(const CVorl_ADVDoc& document);

    QIcon oldMark_;
    bool refreshing_ = false;
};

}  // namespace vorlan

#pragma once

#include <QBasicTimer>
#include <QWidget>
#include <array>

#include "app/CVorl_ADVDoc.h"
#include "model/Index.h"
#include "ui/views/CVorl_ADVView.h"

class QSplitter;

namespace vorlan {

/// The four panes, one per quarter, with movable borders between them.
class PaneGrid : public QWidget {
    Q_OBJECT

  public:
    explicit PaneGrid(QWidget* parent = nullptr);

    CVorl_ADVView& view(Pane pane) const { return *views_[asSize(pane)]; }
    const std::array<CVorl_ADVView*, kPaneCount>& views() const { return views_; }
    /// Gives every pane what it shows now. In a run the port does the work. Panes are painted one by one, each in a
    /// turn of the event loop, so that events never wait for four long records.
    void describe(const CVorl_ADVDoc& document, DocumentPort& port);
    void setActivePane(Pane pane);

  protected:
    /// A double click on a border brings equal parts back.
    bool eventFilter(QObject* watched, QEvent* event) override;

    void timerEvent(QTimerEvent* event) override;

  private:
    std::array<CVorl_ADVView*, kPaneCount> views_{};
    QBasicTimer turn_;
    std::size_t next_ = 0;  ///< the pane of the next turn
};

}  // namespace vorlan

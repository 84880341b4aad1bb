#pragma once

#include <QScrollArea>

namespace vorlan {

/// Holds the fields of a dialog at their full size, and scrolls them where the screen is too small for them.
class FittedScrollArea : public QScrollArea {
  public:
    /// beside: what stands around the area in its window, the window's frame included.
    FittedScrollArea(QWidget* content, QSize beside, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QSize beside_;
};

}  // namespace vorlan

#pragma once

#include <QWidget>
#include <optional>

#include "plot/CScreenUtils.h"
#include "plot/Diagram.h"

namespace vorlan {

/// The drawing beside the fields of the grid editor.
class GridPreviewWidget : public QWidget {
    Q_OBJECT
  public:
    explicit GridPreviewWidget(QWidget* parent);
    void setDiagram(Diagram diagram);
    /// Geometry of the diagram as it was painted last.
    const std::optional<CScreenUtils>& geometry() const { return geometry_; }

    QSize sizeHint() const override { return {620, 460}; }
    QSize minimumSizeHint() const override { return {240, 180}; }

  Q_SIGNALS:
    /// What is under the cursor; empty when it is over nothing.
    void readOut(const QString& text);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    Diagram diagram_;
    std::optional<CScreenUtils> geometry_;
};

}  // namespace vorlan

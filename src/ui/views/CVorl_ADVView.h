#pragma once

#include <QImage>
#include <QPoint>
#include <QWidget>
#include <memory>
#include <optional>

#include "model/Stages.h"
#include "plot/CScreenUtils.h"
#include "plot/PaneContent.h"
#include "ui/views/IntervalSelection.h"

class QRubberBand;

namespace vorlan {

class PaneTool;

/// One of the four panes: paints what it was given and reports the mouse. It knows no document and computes nothing.
class CVorl_ADVView : public QWidget {
    Q_OBJECT

  public:
    CVorl_ADVView(Pane pane, QWidget* parent);
    ~CVorl_ADVView() override;

    Pane pane() const { return pane_; }
    /// What the pane shows from its next painting on, which the owner asks for by repaintStale().
    void setContent(PaneContent content);
    /// Paints the whole pane if it was given something since it was asked last. What was painted in between may have
    /// been a part, where a rubber band was.
    void repaintStale();
    const PaneContent& content() const { return content_; }
    /// False for a table, a text or nothing.
    bool showsDiagram() const { return std::holds_alternative<Diagram>(content_); }
    /// The active view is framed in the desktop's highlight colour.
    void setActive(bool active);
    bool isActive() const { return active_; }
    /// While there is a record, dragging with the left button over the diagram chooses a time of it, and so do the
    /// keys: the arrows move the free edge by a sample, with Ctrl by ten pixels; Home and End move it to the ends of
    /// the record; with Shift they move the other edge; Return accepts, Esc forgets.
    void setIntervalSelection(std::optional<SampleAxis> record);
    /// Geometry of the diagram as it was painted last; empty without a diagram.
    const std::optional<CScreenUtils>& geometry() const { return geometry_; }
    /// The pane as a picture of its size on a white page.
    QImage bitmap() const;

    /// Gives the mouse and the keys of the pane to a tool. Other content, another size, another active view and
    /// endTool() end it.
    void beginTool(std::unique_ptr<PaneTool> tool);
    void endTool();
    /// The tool that is at work, or null.
    PaneTool* tool() const { return tool_.get(); }
    /// Draws a slope triangle over the diagram until the tool ends.
    void showTriangle(const SlopeTriangle& triangle);

    QSize sizeHint() const override { return {480, 300}; }
    QSize minimumSizeHint() const override { return {40, 30}; }

  Q_SIGNALS:
    /// The pane was clicked or took the focus.
    void activated(vorlan::Pane pane);
    void cursorMoved(vorlan::Pane pane, QPoint position);
    void cursorLeft(vorlan::Pane pane);
    /// An interval of the X axis is being chosen, and was chosen. A click is no interval.
    void intervalDragged(vorlan::Pane pane, double from, double to);
    void intervalChosen(vorlan::Pane pane, double from, double to);
    void menuRequested(vorlan::Pane pane, QPoint globalPosition);
    void toolEnded(vorlan::Pane pane);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    QRect pageArea() const;
    void showInterval();
    /// A drag that leaves the plot area reaches to its edge.
    int withinPlot(int x) const;
    void endDrag();
    void chooseInterval();
    /// True when the key is the interval's.
    bool keyOfInterval(const QKeyEvent& event);

    Pane pane_;
    PaneContent content_;
    bool stale_ = false;
    std::optional<CScreenUtils> geometry_;
    bool active_ = false;
    std::optional<SampleAxis> record_;
    IntervalSelection interval_;
    std::optional<int> pressedAt_;  ///< while the button is held
    QPoint cursor_;                 ///< where the mouse was last
    QRubberBand* band_ = nullptr;
    std::unique_ptr<PaneTool> tool_;
    bool menuSpent_ = false;  ///< the right button was the tool's: it opens no menu
};

/// Left top: records over time, means, correlation functions.
class CLTopView : public CVorl_ADVView {
    Q_OBJECT
  public:
    explicit CLTopView(QWidget* parent) : CVorl_ADVView(Pane::LeftTop, parent) {}
};

/// Left bottom: scores, variances, spectra.
class CLBotView : public CVorl_ADVView {
    Q_OBJECT
  public:
    explicit CLBotView(QWidget* parent) : CVorl_ADVView(Pane::LeftBottom, parent) {}
};

/// Right top: auxiliary data, skewness, structure functions.
class RTopView : public CVorl_ADVView {
    Q_OBJECT
  public:
    explicit RTopView(QWidget* parent) : CVorl_ADVView(Pane::RightTop, parent) {}
};

/// Right bottom: tables, pressure, kurtosis.
class CRBotView : public CVorl_ADVView {
    Q_OBJECT
  public:
    explicit CRBotView(QWidget* parent) : CVorl_ADVView(Pane::RightBottom, parent) {}
};

}  // namespace vorlan

#pragma once

#include <QImage>
#include <optional>

#include "analysis/CDisRateExtractor.h"
#include "ui/views/tools/PaneTool.h"

namespace vorlan {

/// Moves a line of the inertial range's slope over a spectrum or a structure function and tells the dissipation rate
/// at its anchor. The line is drawn into a picture that lies over the pane with one pixel per logical pixel, so that
/// what is read does not depend on the screen.
class DissipationTool : public PaneTool {
    Q_OBJECT

  public:
    /// unitSelector of the spectra, convective velocity in cm/s.
    DissipationTool(CVorl_ADVView& view, DissipationSource source, int unitSelector, double convectiveVelocity);

    void begin() override;
    void paint(QPainter& painter) override;

  Q_SIGNALS:
    /// The user wants to keep the rate at the line's anchor. slopes tells how the drawn curves run along the line.
    void chosen(vorlan::DissipationReading reading, const QString& slopes);

  protected:
    bool move(QPoint position, bool buttonHeld) override;
    void release(QPoint position) override;
    void rightPress() override { accept(); }
    void moveBy(QPoint step, bool otherEnd) override;
    void accept() override;

  private:
    void moveAnchor(QPoint to);
    void tell();

    DissipationSource source_;
    int unitSelector_;
    double convectiveVelocity_;
    CDisRateExtractor extractor_;
    QImage image_;
    QPoint anchor_;
    std::optional<QPoint> offset_;  ///< from the anchor to the mouse, kept while the mouse moves
};

}  // namespace vorlan

#pragma once

#include <optional>

#include "analysis/DissipationRate.h"
#include "ui/views/tools/PaneTool.h"

namespace vorlan {

/// Drags a range over a spectrum or a structure function and draws the triangle of the inertial range's slope over
/// it, with the read-out of the point where it begins. Nothing is stored; the triangle stays until the tool ends.
class TriangleTool : public PaneTool {
    Q_OBJECT

  public:
    /// unitSelector of the spectra, convective velocity in cm/s.
    TriangleTool(CVorl_ADVView& view, DissipationSource source, int unitSelector, double convectiveVelocity)
        : PaneTool(view), source_(source), unitSelector_(unitSelector), convectiveVelocity_(convectiveVelocity) {}

    void begin() override;
    void giveUpDrag() override { dragging_ = false; }

  protected:
    void press(QPoint position) override;
    bool move(QPoint position, bool buttonHeld) override;
    void release(QPoint position) override;
    void moveBy(QPoint step, bool otherEnd) override;
    /// There is nothing to ask: the triangle stays.
    void accept() override {}

  private:
    struct Ends {
        QPoint begin;
        int end;  ///< pixel column
    };
    void show();

    DissipationSource source_;
    int unitSelector_;
    double convectiveVelocity_;
    std::optional<Ends> ends_;
    bool dragging_ = false;
};

}  // namespace vorlan

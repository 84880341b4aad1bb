#pragma once

#include <QRect>
#include <QRubberBand>
#include <memory>
#include <optional>

#include "analysis/TurbulenceScales.h"
#include "ui/views/tools/PaneTool.h"

namespace vorlan {

/// Drags a focus rectangle over correlation functions or spectra whose left and right edges are the limits of the
/// integrals.
class ScalesTool : public PaneTool {
    Q_OBJECT

  public:
    ScalesTool(CVorl_ADVView& view, ScalesSource source) : PaneTool(view), source_(source) {}

    void begin() override;
    void giveUpDrag() override;

  Q_SIGNALS:
    /// The user has chosen a range.
    void chosen(vorlan::ScalesReading reading);

  protected:
    void press(QPoint position) override;
    bool move(QPoint position, bool buttonHeld) override;
    void release(QPoint position) override;
    void moveBy(QPoint step, bool otherEnd) override;
    void accept() override;

  private:
    struct Ends {
        QPoint fixed;
        QPoint free;
    };
    void show();
    ScalesReading reading(int leftX, int rightX) const;

    ScalesSource source_;
    std::optional<Ends> ends_;
    bool dragging_ = false;
    std::unique_ptr<QRubberBand> band_;
};

}  // namespace vorlan

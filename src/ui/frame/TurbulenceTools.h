#pragma once

#include <QObject>
#include <functional>

#include "app/CommandState.h"
#include "ui/frame/PaneGrid.h"

namespace vorlan {

/// Brings the tools of the spectral stage into the active view, tells what they read and what the user can do next,
/// and hands what is accepted to the document.
class TurbulenceTools : public QObject {
    Q_OBJECT

  public:
    /// Where the tools speak.
    struct Voice {
        std::function<void(const QString& text)> showReadOut;
        std::function<void(const QString& text)> showHint;    ///< what to do next; an empty hint goes
        std::function<void(const QString& text)> showReport;  ///< what was accepted
        std::function<void()> showRest;                       ///< nothing is read any more
    };
    TurbulenceTools(CVorl_ADVDoc& document, PaneGrid& panes, Voice voice);

    /// ExtractDissipationRate, ExtractScales, TriangleSpectrum or TriangleStructure, in the active view.
    void begin(Command command);

  private:
    void beginDissipation(CVorl_ADVView& view);
    void beginScales(CVorl_ADVView& view);
    void beginTriangle(CVorl_ADVView& view);
    /// Puts the tool into the view; what it tells arrives when the mouse or key event is over.
    void start(CVorl_ADVView& view, std::unique_ptr<PaneTool> tool, const QString& hint);
    void acceptDissipation(const DissipationReading& reading, const QString& slopes);
    void acceptScales(CVorl_ADVView& view, const ScalesReading& reading);

    CVorl_ADVDoc& document_;
    PaneGrid& panes_;
    Voice voice_;
};

}  // namespace vorlan

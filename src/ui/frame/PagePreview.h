#pragma once

#include <QPrintPreviewDialog>
#include <functional>

#include "ui/frame/PrintChoice.h"

namespace vorlan {

/// True while what is painted goes into a preview.
bool isPreview(const QPrinter& printer);

/// The platform's preview with a choice of what is printed.
class PagePreview : public QPrintPreviewDialog {
    Q_OBJECT
  public:
    PagePreview(QPrinter& printer, const PrintChoice& choice, QWidget* parent);

    /// Paints the pages of a choice; on paper when the user prints from the preview.
    using Painter = std::function<void(QPrinter& printer, PrintScope scope, bool onPaper)>;
    void setPainter(Painter paint) { paint_ = std::move(paint); }

  private:
    void addChoice(const PrintChoice& choice);
    void paintPages(QPrinter* printer);

    PrintScope scope_;
    Painter paint_;
};

}  // namespace vorlan

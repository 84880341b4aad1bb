#pragma once

#include <QPageLayout>
#include <QString>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "app/CVorl_ADVDoc.h"
#include "model/PageLayout.h"
#include "stages/PageDescription.h"
#include "ui/frame/UserBoxes.h"

class QPrinter;

namespace vorlan {

/// Preview, printing and PDF of the document's pages. Size and orientation of the paper are kept while the window is
/// open; at first they are those of the desktop's printer.
class PagePrinter {
  public:
    PagePrinter(const CVorl_ADVDoc& document, QWidget& window) : document_(document), window_(window) {}

    void setBoxes(UserBoxes& boxes) { boxes_ = &boxes; }

    PaperSize paper();
    /// Asks for size and orientation; nothing when they stay.
    std::optional<PaperSize> choosePaper(QWidget* parent);
    /// Takes over what choosePaper() chose last, or forgets it.
    void takeChosenPaper(bool accepted);
    void preview();
    /// What it did, for the status bar; empty when nothing was printed.
    QString print();

  private:
    /// The pages of a choice, and what they show.
    std::vector<ReportPage> pagesOf(PrintScope scope) const;
    PaneRequest requestOf(const ReportPage& page, PrintScope scope) const;
    PrintChoice choices(PrintScope scope) const;
    void prepare(QPrinter& printer);
    /// False after a message that says why the pages are refused.
    bool arePrintable(const std::vector<ReportPage>& pages, const PaperSize& paper, QWidget* parent);
    bool isWithinReach(const QPrinter& printer, const std::vector<ReportPage>& pages, PrintScope scope,
                       QWidget* parent);
    QString send(QPrinter& printer, PrintScope scope, QWidget* parent);
    QString writePdf(const QPrinter& printer, const std::vector<ReportPage>& pages, PrintScope scope, QWidget* parent);
    bool paint(QPrinter& printer, const std::vector<ReportPage>& pages, PrintScope scope, QWidget* parent);

    const CVorl_ADVDoc& document_;
    QWidget& window_;
    UserBoxes* boxes_ = nullptr;
    std::optional<QPageLayout> layout_;
    std::optional<QPageLayout> chosenLayout_;
};

}  // namespace vorlan

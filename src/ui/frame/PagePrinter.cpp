#include "ui/frame/PagePrinter.h"

#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QPrinter>
#include <QProgressDialog>
#include <algorithm>
#include <ostream>

#include "io/AtomicFile.h"
#include "io/FileError.h"
#include "io/WorkspaceFile.h"
#include "model/Index.h"
#include "model/Text.h"
#include "plot/PdfDocument.h"
#include "ui/frame/PagePreview.h"

namespace vorlan {

namespace {

constexpr double kMmPerCm = 10.0;

PaperSize paperOf(const QPageLayout& layout) {
    const QSizeF size = layout.fullRect(QPageLayout::Millimeter).size() / kMmPerCm;
    return {size.width(), size.height()};
}

QString titleOf(const CVorl_ADVDoc& document) {
    const std::string stem = document.GetPath().stem().string();
    return stem.empty() ? QStringLiteral("Untitled") : QFile::decodeName(QByteArray::fromStdString(stem));
}

/// The pages that the print dialog asked for; all of them unless it did.
std::vector<ReportPage> inRange(const QPrinter& printer, const std::vector<ReportPage>& pages) {
    const QPageRanges ranges = printer.pageRanges();
    if (printer.printRange() != QPrinter::PageRange || ranges.isEmpty()) {
        return pages;
    }
    std::vector<ReportPage> chosen;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (ranges.contains(asInt(i) + 1)) {
            chosen.push_back(pages[i]);
        }
    }
    return chosen;
}

/// A box that shows which page is being made, once that takes a while. Esc ends it.
class PageProgress {
  public:
    PageProgress(std::size_t pages, QWidget* parent)
        : box_(QString(), QStringLiteral("Cancel"), 0, asInt(pages), parent) {
        constexpr int kPatience = 500;  // ms
        box_.setWindowTitle(QStringLiteral("Vorlan"));
        box_.setWindowModality(Qt::WindowModal);
        box_.setMinimumDuration(kPatience);
    }
    /// False when the user cancelled.
    bool begin(std::size_t page) {
        box_.setLabelText(QStringLiteral("Page %1 of %2").arg(page + 1).arg(box_.maximum()));
        box_.setValue(asInt(page));
        return !box_.wasCanceled();
    }

  private:
    QProgressDialog box_;
};

QString counted(std::size_t pages) {
    return pages == 1 ? QStringLiteral("1 page") : QStringLiteral("%1 pages").arg(pages);
}

}  // namespace

std::vector<ReportPage> PagePrinter::pagesOf(PrintScope scope) const {
    const Workspace& workspace = document_.GetWorkspace();
    switch (scope) {
        case PrintScope::Stage:
            return {{document_.ActiveFile(), document_.ActiveProbe(), document_.CurrentStage()}};
        case PrintScope::Probe:
            return pagesOfProbe(workspace, document_.ActiveFile(), document_.ActiveProbe());
        case PrintScope::AllProbes:
            return pagesOfProbes(workspace, allProbes(workspace));
    }
    return {};
}

PaneRequest PagePrinter::requestOf(const ReportPage& page, PrintScope scope) const {
    PaneRequest request = requestFor(document_.GetWorkspace(), page, document_.CurrentValue());
    if (scope == PrintScope::Stage) {
        request.showTable = document_.ShowsTable();
    }
    return request;
}

PrintChoice PagePrinter::choices(PrintScope scope) const {
    PrintChoice choice;
    choice.scope = scope;
    for (std::size_t i = 0; i < choice.pages.size(); ++i) {
        choice.pages[i] = asInt(pagesOf(static_cast<PrintScope>(i)).size());
    }
    return choice;
}

PaperSize PagePrinter::paper() {
    if (!layout_) {
        QPrinter printer(QPrinter::HighResolution);
        layout_ = printer.pageLayout();
    }
    return paperOf(*layout_);
}

void PagePrinter::prepare(QPrinter& printer) {
    paper();
    printer.setFullPage(true);
    printer.setPageSize(layout_->pageSize());
    printer.setPageOrientation(layout_->orientation());
    printer.setResolution(static_cast<int>(kPageDpi));
    printer.setDocName(titleOf(document_));
    printer.setCreator(QStringLiteral("Vorlan"));
}

std::optional<PaperSize> PagePrinter::choosePaper(QWidget* parent) {
    QPrinter printer(QPrinter::HighResolution);
    prepare(printer);
    if (chosenLayout_) {
        printer.setPageLayout(*chosenLayout_);
    }
    if (!boxes_->choosePaper(parent, printer)) {
        return std::nullopt;
    }
    chosenLayout_ = printer.pageLayout();
    return paperOf(*chosenLayout_);
}

void PagePrinter::takeChosenPaper(bool accepted) {
    const std::optional<QPageLayout> chosen = std::exchange(chosenLayout_, std::nullopt);
    if (accepted && chosen) {
        layout_ = chosen;
    }
}

bool PagePrinter::arePrintable(const std::vector<ReportPage>& pages, const PaperSize& paper, QWidget* parent) {
    const std::string refusal = refusalOf(document_.GetWorkspace(), pages, paper);
    if (!refusal.empty()) {
        boxes_->refuse(parent, QString::fromStdString(refusal));
    }
    return refusal.empty();
}

void PagePrinter::preview() {
    QPrinter printer(QPrinter::HighResolution);
    prepare(printer);
    if (!arePrintable(pagesOf(PrintScope::Stage), paperOf(printer.pageLayout()), &window_)) {
        return;
    }
    PagePreview dialog(printer, choices(PrintScope::Stage), &window_);
    dialog.setPainter([&](QPrinter& target, PrintScope scope, bool onPaper) {
        if (onPaper) {
            send(target, scope, &dialog);
        } else if (arePrintable(pagesOf(scope), paperOf(target.pageLayout()), &dialog)) {
            paint(target, pagesOf(scope), scope, &dialog);
        }
    });
    boxes_->showPreview(dialog);
    layout_ = printer.pageLayout();
}

QString PagePrinter::print() {
    QPrinter printer(QPrinter::HighResolution);
    prepare(printer);
    PrintChoice choice = choices(PrintScope::Stage);
    if (!document_.GetPath().empty()) {
        choice.folder = QFileInfo(QFile::decodeName(document_.GetPath().c_str())).absolutePath();
    }
    if (!boxes_->choosePrinter(&window_, printer, choice)) {
        return {};
    }
    layout_ = printer.pageLayout();
    return send(printer, choice.scope, &window_);
}

QString PagePrinter::send(QPrinter& printer, PrintScope scope, QWidget* parent) {
    const std::vector<ReportPage> pages = inRange(printer, pagesOf(scope));
    // A driver's dialog may bring back its own margins and resolution.
    printer.setFullPage(true);
    if (!arePrintable(pages, paperOf(printer.pageLayout()), parent)) {
        return {};
    }
    if (pages.empty()) {
        boxes_->refuse(parent, QStringLiteral("There is no page in the range that was chosen."));
        return {};
    }
    if (printer.outputFormat() == QPrinter::PdfFormat && !printer.outputFileName().isEmpty()) {
        return writePdf(printer, pages, scope, parent);
    }
    const bool sent = isWithinReach(printer, pages, scope, parent) && paint(printer, pages, scope, parent);
    return sent ? QStringLiteral("%1 sent to %2").arg(counted(pages.size()), printer.printerName()) : QString();
}

bool PagePrinter::isWithinReach(const QPrinter& printer, const std::vector<ReportPage>& pages, PrintScope scope,
                                QWidget* parent) {
    QPageLayout layout = printer.pageLayout();
    layout.setUnits(QPageLayout::Millimeter);
    const QMarginsF reach = layout.minimumMargins();
    const PaperSize paper = paperOf(layout);
    const QRectF printable = QRectF(0.0, 0.0, paper.width * kMmPerCm, paper.height * kMmPerCm).marginsRemoved(reach);
    std::vector<Stage> seen;
    for (const ReportPage& page : pages) {
        if (std::find(seen.begin(), seen.end(), page.stage) != seen.end()) {
            continue;  // pages of one stage differ in nothing that counts here
        }
        seen.push_back(page.stage);
        if (!printable.contains(printedArea(describePage(requestOf(page, scope), paper)))) {
            return boxes_->confirm(
                parent, QStringLiteral("The printer cannot print closer to the edges of the paper than %1 mm at the "
                                       "left, %2 mm at the top, %3 mm at the right and %4 mm at the bottom. Parts of "
                                       "the page lie beyond and will be missing. Print nevertheless?")
                            .arg(reach.left(), 0, 'f', 1)
                            .arg(reach.top(), 0, 'f', 1)
                            .arg(reach.right(), 0, 'f', 1)
                            .arg(reach.bottom(), 0, 'f', 1));
        }
    }
    return true;
}

QString PagePrinter::writePdf(const QPrinter& printer, const std::vector<ReportPage>& pages, PrintScope scope,
                              QWidget* parent) {
    const QString path = printer.outputFileName();
    const std::string file = QFile::encodeName(path).toStdString();
    if (kindOfFile(file) == FileKind::Workspace) {
        boxes_->refuse(parent, QStringLiteral("%1 is a workspace: nothing else takes its place.").arg(path));
        return {};
    }
    const PaperSize paper = paperOf(printer.pageLayout());
    PdfDocument pdf(titleOf(document_).toStdString(), paper);
    PageProgress progress(pages.size(), parent);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (!progress.begin(i)) {
            return {};
        }
        pdf.add(describePage(requestOf(pages[i], scope), paper), placeOf(document_.GetWorkspace(), pages[i]));
    }
    const QByteArray bytes = pdf.finish();
    try {
        writeFileAtomically(file, [&](std::ostream& stream) { stream.write(bytes.constData(), bytes.size()); });
    } catch (const FileError& error) {
        boxes_->refuse(parent, QString::fromUtf8(error.what()));
        return {};
    }
    return QStringLiteral("%1 written").arg(QFileInfo(path).fileName());
}

bool PagePrinter::paint(QPrinter& printer, const std::vector<ReportPage>& pages, PrintScope scope, QWidget* parent) {
    QPainter painter;
    if (!painter.begin(&printer)) {
        boxes_->refuse(parent, QStringLiteral("The printer takes no page."));
        return false;
    }
    PageProgress progress(pages.size(), parent);
    const PaperSize paper = paperOf(printer.pageLayout());
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (!progress.begin(i)) {
            // A preview keeps the pages that it has; it does not survive that they are taken away.
            if (!isPreview(printer)) {
                printer.abort();
            }
            return false;
        }
        if (i > 0) {
            printer.newPage();
        }
        paintPage(painter, describePage(requestOf(pages[i], scope), paper), printer.resolution());
    }
    return true;
}

}  // namespace vorlan

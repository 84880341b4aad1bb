#include "ui/frame/ManualPages.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <array>

#include "model/Index.h"
#include "ui/frame/ManualWindow.h"

namespace vorlan {

namespace {

// By stage number.
constexpr std::array<const char*, kStageCount> kStagePages = {"pre-processing.md", "stationarity.md", "histograms.md",
                                                              "spectral.md",       "vectors.md",      "quadrants.md",
                                                              "cross-spectral.md"};

struct DialogPage {
    const char* className;
    const char* page;
};
constexpr DialogPage kDialogPages[] = {
    {"vorlan::CCoordSysDlg", "pre-processing.md#coordinate-system"},
    {"vorlan::CEditTSDlg", "pre-processing.md#editing-time-series"},
    {"vorlan::CExportDlg", "exports.md"},
    {"vorlan::CExportScopeDlg", "exports.md"},
    {"vorlan::CFigureDlg", "saving-figures.md"},
    {"vorlan::CFilterDlg", "pre-processing.md#digital-filtration"},
    {"vorlan::CGridEdit", "grid-editor.md"},
    {"vorlan::CHistDlg", "histograms.md"},
    {"vorlan::CImportDlg", "import.md"},
    {"vorlan::CMeanVelDlg", "mean-velocity.md"},
    {"vorlan::CPageDlg", "printing.md"},
    {"vorlan::CPlotOptDlg", "diagrams.md"},
    {"vorlan::CQuadrDlg", "quadrants.md"},
    {"vorlan::CRecipeDlg", "recipes.md"},
    {"vorlan::CSimulateDlg", "getting-started.md#make-a-record"},
    {"vorlan::CSpAnalDlg", "spectral.md"},
    {"vorlan::CStatDlg", "stationarity.md"},
    {"vorlan::CVectorsDlg", "vectors.md"},
    {"vorlan::SAddDlg", "grid-editor.md"},
    {"vorlan::PagePreview", "printing.md"},
};

}  // namespace

QString manualPageOf(Stage stage) {
    return QString::fromLatin1(kStagePages[asSize(stage)]);
}

QString manualPageOf(const QWidget& dialog) {
    for (const DialogPage& row : kDialogPages) {
        if (dialog.inherits(row.className)) {
            return QString::fromLatin1(row.page);
        }
    }
    return {};
}

bool DialogHelp::eventFilter(QObject* watched, QEvent* event) {
    QWidget* dialog = QApplication::activeModalWidget();
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1 || dialog == nullptr ||
        qobject_cast<ManualWindow*>(QApplication::activeWindow()) != nullptr) {
        return QObject::eventFilter(watched, event);
    }
    const QString page = manualPageOf(*dialog);
    showManual(*dialog, page.isEmpty() ? QStringLiteral("window.md") : page);
    return true;
}

}  // namespace vorlan

#include "ui/frame/Figures.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMimeData>

#include "app/CommandReports.h"
#include "io/AtomicFile.h"
#include "io/WorkspaceFile.h"
#include "model/Index.h"
#include "model/StageTable.h"
#include "model/Text.h"
#include "plot/RenderFile.h"
#include "plot/STable.h"
#include "plot/ToolkitPictures.h"
#include "recipes/RenderRun.h"
#include "recipes/RunError.h"
#include "ui/frame/Waiting.h"

namespace vorlan {

namespace {

constexpr const char* kSuffixes[] = {"png", "svg", "pdf"};

QString suffixOf(FigureChoice::Format format) {
    return QString::fromLatin1(kSuffixes[asInt(format)]);
}

}  // namespace

void Figures::save(const PaperSize& paper) {
    CFigureDlg dialog(choice_, &window_);
    if (dialog.exec() != QDialog::Accepted) {
        return report_(QString::fromLatin1(kCancelledReport));
    }
    choice_ = dialog.values();
    QString path = boxes_->chooseFigure(&window_, QDir(files_.folder()).filePath(proposedName()));
    if (path.isEmpty()) {
        return report_(QString::fromLatin1(kCancelledReport));
    }
    const QString suffix = QLatin1Char('.') + suffixOf(choice_.format);
    if (!path.endsWith(suffix, Qt::CaseInsensitive)) {
        path += suffix;
    }
    if (isRefusedPipe(path, *boxes_, &window_)) {
        return report_(QString::fromLatin1(kCancelledReport));
    }
    const std::string file = QFile::encodeName(path).toStdString();
    const std::string refusal = refusalToReplace(file);
    if (!refusal.empty()) {
        return boxes_->refuse(&window_, QString::fromStdString(utf8Text(refusal)) + QLatin1Char('.'));
    }
    files_.setFolderOf(path);
    try {
        const Waiting waiting(files_, "Writing %1 ...", path);
        writeFileAtomically(file, bytesOf(paper, path));
    } catch (const FileError& error) {
        return boxes_->refuse(&window_, QString::fromStdString(utf8Text(error.what())));
    } catch (const RunError& error) {
        return boxes_->refuse(&window_, QString::fromStdString(utf8Text(error.what())));
    }
    report_(QStringLiteral("%1 written").arg(QFileInfo(path).fileName()));
}

QString Figures::proposedName() const {
    QStringList parts{QFileInfo(files_.documentName()).completeBaseName(),
                      QString::fromLatin1(stageRow(document_.CurrentStage()).name)};
    if (choice_.scope == FigureChoice::Scope::ActiveView) {
        parts << QString::fromStdString(paneNames()[asSize(document_.ActivePane())]);
    }
    return parts.join(QLatin1Char('-')) + QLatin1Char('.') + suffixOf(choice_.format);
}

std::string Figures::bytesOf(const PaperSize& paper, const QString& path) {
    RenderRequest request;
    request.stage = document_.CurrentStage();
    if (choice_.scope == FigureChoice::Scope::ActiveView) {
        request.pane = document_.ActivePane();
    }
    request.value = document_.CurrentValue();
    request.size = choice_.size;
    request.dpi = choice_.dpi;
    request.paper = paper;
    request.path = QFile::encodeName(path).toStdString();
    const std::string named = QFile::encodeName(files_.documentName()).toStdString();
    return Renderer(toolkitPictures)
        .draw({document_.GetWorkspace(), document_.ActiveFile(), document_.ActiveProbe(), request.stage,
               document_.ActivePane(), request.value, document_.ShowsTable()},
              document_.GetPath().empty() ? std::filesystem::path(named) : document_.GetPath(), request);
}

void Figures::copy() {
    const CVorl_ADVView& view = panes_.view(document_.ActivePane());
    auto* data = new QMimeData;
    const QImage bitmap = view.bitmap();
    data->setImageData(bitmap);
    data->setData(QStringLiteral("image/svg+xml"),
                  renderPanes({&view.content(), 1}, bitmap.deviceIndependentSize().toSize(), RenderFormat::Svg));
    if (const auto* table = std::get_if<TableContent>(&view.content())) {
        data->setText(QString::fromStdString(tabSeparated(*table)));
    }
    QApplication::clipboard()->setMimeData(data);
    report_(QStringLiteral("%1 copied").arg(QLatin1String(kPaneTexts[asSize(document_.ActivePane())])));
}

}  // namespace vorlan

#include "plot/ToolkitPictures.h"

#include <QGuiApplication>
#include <cerrno>
#include <clocale>
#include <cstdio>

#include "plot/PdfDocument.h"
#include "plot/RenderFile.h"

namespace vorlan {

namespace {

// What the toolkit remarks about the machine it runs on is of no use to a script.
void keepQuiet(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        std::fprintf(stderr, "%s: %s\n", program_invocation_short_name, text.toUtf8().constData());
    }
}

/// The application object that fonts and painting need. A program that has one keeps it.
class Toolkit {
  public:
    Toolkit() {
        if (QCoreApplication::instance() != nullptr) {
            return;
        }
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        handler_ = qInstallMessageHandler(keepQuiet);
        application_ = std::make_unique<QGuiApplication>(argumentCount_, arguments_);
        // The application takes over the desktop's language; numbers keep their point.
        std::setlocale(LC_NUMERIC, "C");
    }
    ~Toolkit() {
        if (application_ != nullptr) {
            application_.reset();
            qInstallMessageHandler(handler_);
        }
    }
    Toolkit(const Toolkit&) = delete;
    Toolkit& operator=(const Toolkit&) = delete;

  private:
    QtMessageHandler handler_ = nullptr;
    int argumentCount_ = 1;
    char* arguments_[2] = {program_invocation_short_name, nullptr};
    std::unique_ptr<QGuiApplication> application_;
};

class ToolkitPictures : public Pictures {
  public:
    std::string panes(std::span<const PaneContent> panes, int width, int height, RenderFormat format,
                      double dpi) override {
        return renderPanes(panes, QSize(width, height), format, dpi).toStdString();
    }
    std::string document(const std::string& title, const PaperSize& paper, std::size_t count,
                         const std::function<PlacedPage(std::size_t)>& page) override {
        PdfDocument pdf(title, paper);
        for (std::size_t i = 0; i < count; ++i) {
            const PlacedPage placed = page(i);
            pdf.add(placed.content, placed.place);
        }
        return pdf.finish().toStdString();
    }

  private:
    Toolkit toolkit_;
};

}  // namespace

std::unique_ptr<Pictures> toolkitPictures() {
    return std::make_unique<ToolkitPictures>();
}

}  // namespace vorlan

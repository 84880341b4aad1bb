#include "ui/CVorl_ADVApp.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QStandardPaths>
#include <QSvgRenderer>
#include <QTimer>
#include <QWindow>
#include <clocale>
#include <new>

#include "model/Workspace.h"
#include "ui/DocumentTypeRegistration.h"
#include "ui/frame/UserBoxes.h"

namespace vorlan {

namespace {

constexpr int kSplashMilliseconds = 900;

const QString kHelp = QStringLiteral(
    "Usage: vorlan [WORKSPACE.avp]\n"
    "\n"
    "Turbulence analysis of velocity records measured by acoustic Doppler velocimeters.\n"
    "Without a workspace the program starts with an empty one.\n"
    "\n"
    "  -h, --help       print this help and leave\n"
    "  -v, --version    print the version and leave\n"
    "Options of the toolkit, such as -style and -geometry, are accepted too.\n"
    "\n"
    "vorlan-batch runs the same commands without a window.\n");

QPixmap splashPicture() {
    QPixmap picture(420, 180);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setPen(QColor(0, 0, 192));
    painter.drawRect(0, 0, picture.width() - 1, picture.height() - 1);
    QFont font = painter.font();
    font.setPixelSize(48);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(QRect(0, 30, picture.width(), 70), Qt::AlignCenter, QStringLiteral("Vorlan"));
    font.setPixelSize(15);
    font.setBold(false);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(QRect(0, 105, picture.width(), 24), Qt::AlignCenter,
                     QStringLiteral("Turbulence analysis of velocity records"));
    painter.setPen(Qt::darkGray);
    painter.drawText(QRect(0, 140, picture.width(), 24), Qt::AlignCenter, QString::fromLatin1(kVersionText));
    return picture;
}

// Drawn here, so that the icon needs no plugin of the desktop.
QIcon programIcon() {
    QSvgRenderer drawing(QStringLiteral(":/vorlan.svg"));
    QIcon icon;
    for (const int size : {16, 22, 32, 48, 64, 128, 256}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        drawing.render(&painter);
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

/// A workspace may take long to come: the window has to be there first, to say so.
void awaitPainting(const QWidget& window) {
    constexpr int kLongest = 500;  // where nobody shows windows
    QElapsedTimer waited;
    waited.start();
    do {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, kLongest);
    } while (!window.windowHandle()->isExposed() && waited.elapsed() < kLongest);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace

std::optional<QString> requestedText(const QStringList& arguments) {
    for (const QString& argument : arguments.mid(1)) {
        if (argument == QLatin1String("--")) {
            break;
        }
        if (argument == QLatin1String("--help") || argument == QLatin1String("-h")) {
            return kHelp;
        }
        if (argument == QLatin1String("--version") || argument == QLatin1String("-v")) {
            return QStringLiteral("Vorlan %1\n").arg(QString::fromLatin1(kVersionText).section(QLatin1Char(' '), 1));
        }
    }
    return std::nullopt;
}

CommandLine readCommandLine(const QStringList& arguments) {
    CommandLine line;
    bool options = true;
    for (const QString& argument : arguments.mid(1)) {
        if (options && argument == QLatin1String("--")) {
            options = false;
        } else if (options && argument.startsWith(QLatin1Char('-')) && argument.size() > 1) {
            line.refusal = QStringLiteral("vorlan: unknown option %1\n").arg(argument) + kHelp;
            return line;
        } else if (line.workspace.has_value()) {
            line.refusal = QStringLiteral("vorlan: one workspace only\n") + kHelp;
            return line;
        } else {
            line.workspace = argument;
        }
    }
    return line;
}

CVorl_ADVApp::CVorl_ADVApp(int& argc, char** argv) : QApplication(argc, argv) {
    // Numbers are read and written with a point, whatever the desktop's language.
    std::setlocale(LC_NUMERIC, "C");
    setOrganizationName(QStringLiteral("Brimsel"));
    setApplicationName(QStringLiteral("Vorlan"));
    setDesktopFileName(QStringLiteral("vorlan"));
    setWindowIcon(programIcon());
}

void CVorl_ADVApp::start(const std::optional<QString>& workspace) {
    const bool onScreen = platformName() != QLatin1String("offscreen");
    if (onScreen) {
        showSplash();
        const QString dataHome = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
        if (registerDocumentType(applicationFilePath(), dataHome)) {
            refreshDesktopDatabases(dataHome);
        }
    }
    frame_ = std::make_unique<CMainFrame>();
    frame_->show();
    if (splash_) {
        splash_->raise();
    }
    if (!frame_->recovery().offer() && workspace.has_value()) {
        awaitPainting(*frame_);
        frame_->files().openPath(*workspace);
    }
}

bool CVorl_ADVApp::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::bad_alloc&) {
        // Not from here: the event may be one of the box that would tell it.
        QTimer::singleShot(0, this, [this] {
            if (frame_ && activeModalWidget() == nullptr) {
                UserBoxes().refuse(frame_.get(), QStringLiteral("Out of memory."));
            }
        });
        return false;
    }
}

void CVorl_ADVApp::showSplash() {
    splash_ = std::make_unique<QSplashScreen>(splashPicture());
    splash_->show();
    processEvents();
    QTimer::singleShot(kSplashMilliseconds, this, [this] { splash_.reset(); });
}

}  // namespace vorlan

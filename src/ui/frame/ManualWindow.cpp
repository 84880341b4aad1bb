#include "ui/frame/ManualWindow.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPushButton>
#include <QTextBlock>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "ui/frame/PlainFormulas.h"

namespace vorlan {

namespace {

const QString kFirstPage = QStringLiteral("README.md");

/// Pictures are made as narrow as the page, and formulas are written in letters.
class PageBrowser : public QTextBrowser {
  public:
    explicit PageBrowser(QWidget* parent) : QTextBrowser(parent) {}

    QVariant loadResource(int type, const QUrl& name) override {
        const QVariant resource = QTextBrowser::loadResource(type, name);
        if (type == QTextDocument::MarkdownResource) {
            return withPlainFormulas(QString::fromUtf8(resource.toByteArray()));
        }
        if (type != QTextDocument::ImageResource) {
            return resource;
        }
        QImage image = resource.value<QImage>();
        if (image.isNull()) {
            image.loadFromData(resource.toByteArray());
        }
        constexpr int kBeside = 40;  // margins and scroll bar
        const int room = std::max(viewport()->width() - kBeside, 200);
        if (image.width() <= room) {
            return image;
        }
        // A picture with a palette would be dithered.
        return image.convertToFormat(QImage::Format_RGB32).scaledToWidth(room, Qt::SmoothTransformation);
    }
};

/// As the links of the pages spell a heading: lower case, hyphens for blanks, no punctuation.
QString anchorOf(const QString& heading) {
    QString anchor;
    for (const QChar c : heading.toLower()) {
        if (c.isLetterOrNumber() || c == QLatin1Char('_') || c == QLatin1Char('-')) {
            anchor += c;
        } else if (c.isSpace()) {
            anchor += QLatin1Char('-');
        }
    }
    return anchor;
}

}  // namespace

ManualWindow::ManualWindow(QWidget* parent) : QDialog(parent), browser_(new PageBrowser(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Manual"));
    setSizeGripEnabled(true);
    auto* column = new QVBoxLayout(this);
    column->addWidget(browser_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto* contents = buttons->addButton(QStringLiteral("C&ontents"), QDialogButtonBox::ActionRole);
    auto* back = buttons->addButton(QStringLiteral("&Back"), QDialogButtonBox::ActionRole);
    buttons->button(QDialogButtonBox::Close)->setText(QStringLiteral("&Close"));
    back->setEnabled(false);
    column->addWidget(buttons);
    browser_->setOpenLinks(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &ManualWindow::reject);
    connect(contents, &QPushButton::clicked, this, [this] { showPage(kFirstPage); });
    connect(back, &QPushButton::clicked, browser_, &QTextBrowser::backward);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
    connect(browser_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        if (!link.scheme().isEmpty() && !link.isLocalFile()) {
            QDesktopServices::openUrl(link);
        } else if (link.path().isEmpty()) {
            goToHeading(link.fragment());
        } else {
            showPage(QFileInfo(link.path()).fileName() +
                     (link.hasFragment() ? QLatin1Char('#') + link.fragment() : QString()));
        }
    });
    resize(QSize(820, 640).boundedTo(parent->screen()->availableSize() - QSize(32, 64)));
    browser_->setFocus();
}

QString ManualWindow::folder() {
    // Installed beside the program's folder, or in the tree of sources above it.
    QDir above(QApplication::applicationDirPath());
    for (int i = 0; i < 6; ++i) {
        for (const char* place : {"share/doc/vorlan/docs", "docs"}) {
            const QDir folder(above.filePath(QString::fromLatin1(place)));
            if (folder.exists(kFirstPage) && folder.exists(QStringLiteral("workspace-format.md"))) {
                return folder.absolutePath();
            }
        }
        if (!above.cdUp()) {
            break;
        }
    }
    return {};
}

QString ManualWindow::page() const {
    return browser_->source().fileName();
}

void ManualWindow::showPage(const QString& page) {
    const QString home = folder();
    const QString file = page.section(QLatin1Char('#'), 0, 0);
    if (home.isEmpty() || !QFileInfo::exists(QDir(home).filePath(file))) {
        browser_->setPlainText(
            QStringLiteral("The manual is not installed: it belongs into share/doc/vorlan/docs "
                           "beside the program's folder."));
        return;
    }
    if (!file.endsWith(QLatin1String(".md"))) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(QDir(home).filePath(file)));
        return;
    }
    browser_->setSource(QUrl::fromLocalFile(QDir(home).filePath(file)), QTextDocument::MarkdownResource);
    setWindowTitle(QStringLiteral("Manual: %1").arg(browser_->document()->firstBlock().text()));
    goToHeading(page.section(QLatin1Char('#'), 1));
}

void ManualWindow::goToHeading(const QString& anchor) {
    for (QTextBlock block = browser_->document()->begin(); !anchor.isEmpty() && block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0 && anchorOf(block.text()) == anchor) {
            QTextCursor cursor(block);
            browser_->moveCursor(QTextCursor::End);
            browser_->setTextCursor(cursor);
            return;
        }
    }
}

void showManual(QWidget& window, const QString& page) {
    // A window of the dialog's own is not held back by it.
    QWidget* dialog = QApplication::activeModalWidget();
    QWidget* owner = dialog != nullptr ? dialog : &window;
    auto* manual = owner->findChild<ManualWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (manual == nullptr) {
        manual = new ManualWindow(owner);
    }
    manual->show();
    manual->showPage(page);
    manual->raise();
    manual->activateWindow();
}

}  // namespace vorlan

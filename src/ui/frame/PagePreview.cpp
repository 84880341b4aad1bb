#include "ui/frame/PagePreview.h"

#include <QComboBox>
#include <QPaintEngine>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QScreen>
#include <QToolBar>

#include "model/Index.h"

namespace vorlan {

bool isPreview(const QPrinter& printer) {
    // The preview records what is painted.
    return printer.paintEngine()->type() == QPaintEngine::Picture;
}

PagePreview::PagePreview(QPrinter& printer, const PrintChoice& choice, QWidget* parent)
    : QPrintPreviewDialog(&printer, parent), scope_(choice.scope) {
    setWindowTitle(QStringLiteral("Print Preview"));
    connect(this, &QPrintPreviewDialog::paintRequested, this, &PagePreview::paintPages);
    addChoice(choice);
}

void PagePreview::addChoice(const PrintChoice& choice) {
    auto* bar = findChild<QToolBar*>();
    if (bar == nullptr) {
        return;
    }
    auto* list = new QComboBox(this);
    list->setToolTip(QStringLiteral("What is printed"));
    list->setAccessibleName(list->toolTip());
    for (const QString& text : choice.texts()) {
        list->addItem(QString(text).remove(QLatin1Char('&')));
    }
    list->setCurrentIndex(asInt(scope_));
    bar->insertSeparator(bar->actions().value(0));
    bar->insertWidget(bar->actions().value(0), list);
    // Room for the whole bar, whose last buttons choose paper and print.
    constexpr int kBarMargins = 24;
    const QSize wanted(bar->sizeHint().width() + kBarMargins,
                       parentWidget() == nullptr ? height() : parentWidget()->height());
    resize(wanted.expandedTo(size()).boundedTo(screen()->availableSize()));
    connect(list, &QComboBox::activated, this, [this](int index) {
        scope_ = static_cast<PrintScope>(index);
        findChild<QPrintPreviewWidget*>()->updatePreview();
    });
}

void PagePreview::paintPages(QPrinter* printer) {
    if (paint_) {
        paint_(*printer, scope_, !isPreview(*printer));
    }
}

}  // namespace vorlan

#pragma once

#include <QIcon>
#include <QWidget>

#include "model/PageLayout.h"

namespace vorlan {

/// The page as it will be printed, in small: paper, margins, header, footer and panes. A pane that does not fit at its
/// full size is red, and so is the paper of a page that cannot be printed.
class PageSketch : public QWidget {
    Q_OBJECT
  public:
    explicit PageSketch(QWidget* parent = nullptr);

    void showPage(const PageAtrType& page, const PaperSize& paper);
    /// Fields that hold no page.
    void showFault(const QString& text);
    /// What the sketch says in words: the reduction, or why the page cannot be printed.
    const QString& text() const { return text_; }
    QSize sizeHint() const override;

  Q_SIGNALS:
    void textChanged(const QString& text);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void setText(const QString& text);
    void paintPanes(QPainter& painter, const PageLayout& layout) const;

    PageAtrType page_;
    PaperSize paper_;
    bool printable_ = false;
    QString text_;
};

/// Picture of a layout of the page: 0 two by two, 1 one column. Dark lines on white paper, whatever the desktop's
/// colours.
QIcon pageLayoutIcon(int layout, const QSize& size, double ratio);

}  // namespace vorlan

#pragma once

#include <QDialog>

class QTextBrowser;

namespace vorlan {

/// The pages of the manual, as they are installed or lie beside the sources.
class ManualWindow : public QDialog {
    Q_OBJECT
  public:
    explicit ManualWindow(QWidget* parent);

    /// Folder of the pages; empty when there is none.
    static QString folder();
    /// Shows a page, by "page.md" or "page.md#heading" as links have it.
    void showPage(const QString& page);
    QString page() const;
    QTextBrowser& browser() { return *browser_; }

  private:
    void goToHeading(const QString& anchor);

    QTextBrowser* browser_;
};

/// Opens the manual in front of whatever is active, a dialog included, at its page.
void showManual(QWidget& window, const QString& page);

}  // namespace vorlan

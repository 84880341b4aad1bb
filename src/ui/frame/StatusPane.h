#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QWidget>

namespace vorlan {

/// The first pane of the status bar: a text ("Ready", read-outs, the running calculation) and, during a run, a
/// progress bar inside it.
class StatusPane : public QWidget {
    Q_OBJECT

  public:
    explicit StatusPane(QWidget* parent = nullptr);

    void setText(const QString& text);
    QString text() const { return label_->text(); }
    /// Says that Esc cancels what runs now.
    void showRun();
    /// Shows the bar, too, offset pixels from the pane's left edge (further right when the text is longer).
    void showProgress(int offset);
    void hideRun();
    void setProgress(int percent) { bar_->setValue(percent); }
    const QProgressBar& progressBar() const { return *bar_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void placeBesideText();

    QLabel* label_;
    QProgressBar* bar_;
    QLabel* escape_;  ///< how to end what runs, beside the bar
    int offset_ = 0;
};

}  // namespace vorlan

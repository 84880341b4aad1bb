#pragma once

#include <QWidget>

class QLineEdit;
class QToolButton;

namespace vorlan {

/// A pair of arrow buttons with a position of its own. It tells when the user moves it and writes nothing by itself.
/// With a buddy the Up and Down keys of that field move it; without one it takes the focus.
class CUpDown : public QWidget {
    Q_OBJECT
  public:
    CUpDown(int minimum, int maximum, QLineEdit* buddy, QWidget* parent);

    int position() const { return position_; }
    /// Sets the position, limited to the range, without telling.
    void setPosition(int position);
    void setRange(int minimum, int maximum);
    /// One step up or down; at the end of the range nothing moves.
    void step(int by);

  Q_SIGNALS:
    /// A button is about to move the pair: the last moment to correct the position.
    void aboutToMove();
    void moved(int position);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    QToolButton* arrow(Qt::ArrowType type, const char* name, int by);
    bool stepByKey(int key);

    int minimum_;
    int maximum_;
    int position_;
};

}  // namespace vorlan

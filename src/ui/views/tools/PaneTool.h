#pragma once

#include <QObject>
#include <QPoint>
#include <QString>

class QKeyEvent;
class QMouseEvent;
class QPainter;

namespace vorlan {

class CVorl_ADVView;

/// A mode of a pane: while it is on it has the pane's mouse and keys. It lives until the pane ends it, which is as it
/// was before then.
///
/// Keys: the arrows move by a pixel, with Ctrl by ten; with Shift they move the other end of what has two; Return
/// accepts, Esc leaves.
class PaneTool : public QObject {
    Q_OBJECT

  public:
    explicit PaneTool(CVorl_ADVView& view) : view_(view) {}

    /// The mode has come on: the pane is laid out and has the focus.
    virtual void begin() = 0;
    /// Paints over the pane's content.
    virtual void paint(QPainter&) {}
    /// Gives up what a pressed button has begun: the button is gone, or the focus.
    virtual void giveUpDrag() {}

    void mousePress(const QMouseEvent& event);
    /// False when the pane may tell what is under the mouse.
    bool mouseMove(const QMouseEvent& event);
    void mouseRelease(const QMouseEvent& event);
    /// True when the key is the tool's.
    bool keyPress(const QKeyEvent& event);

  Q_SIGNALS:
    /// The values at what the tool has hold of.
    void readOut(const QString& text);
    /// The tool wants to end, with nothing done.
    void left();

  protected:
    virtual void press(QPoint) {}
    virtual bool move(QPoint position, bool buttonHeld) = 0;
    virtual void release(QPoint) {}
    virtual void rightPress() { Q_EMIT left(); }
    virtual void moveBy(QPoint step, bool otherEnd) = 0;
    virtual void accept() = 0;

    CVorl_ADVView& view() const { return view_; }

  private:
    CVorl_ADVView& view_;
};

}  // namespace vorlan

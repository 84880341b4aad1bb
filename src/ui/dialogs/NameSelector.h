#pragma once

#include <QComboBox>

namespace vorlan {

/// A list of names, of which long ones differ at their end: that is what is shown where the room is short. The tool
/// tip has the whole name behind what the list is for.
class NameSelector : public QComboBox {
  public:
    NameSelector(const QString& purpose, QWidget* parent);

    /// What the tip says in the place of the name; empty for the name.
    void setWholeName(const QString& name) { wholeName_ = name; }

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QString purpose_;
    QString wholeName_;
};

}  // namespace vorlan

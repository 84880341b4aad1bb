#pragma once

#include <QLineEdit>
#include <optional>

namespace vorlan {

/// A field for a number. Text that nobody touched stands for the exact number that was shown.
class NumberField : public QLineEdit {
  public:
    explicit NumberField(QWidget* parent);
    void setNumber(double value);
    std::optional<double> number() const;
    bool untouched() const { return text() == shownText_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  private:
    double shown_ = 0.0;
    QString shownText_;
};

/// A field for an integer.
class IntegerField : public QLineEdit {
  public:
    explicit IntegerField(QWidget* parent);
    void setInteger(int value);
    std::optional<int> integer() const;
    bool untouched() const { return text() == shownText_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  private:
    QString shownText_;
};

}  // namespace vorlan

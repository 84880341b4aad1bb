#pragma once

#include <QObject>
#include <QString>

#include "model/Stages.h"

namespace vorlan {

/// The page about what a stage shows.
QString manualPageOf(Stage stage);
/// The page about a dialog; empty for one that has none of its own.
QString manualPageOf(const QWidget& dialog);

/// Opens the page of the active dialog when F1 is pressed in it. The window's own F1 is its menu's.
class DialogHelp : public QObject {
    Q_OBJECT
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace vorlan

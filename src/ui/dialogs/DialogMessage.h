#pragma once

#include <QMessageBox>
#include <QString>
#include <functional>

namespace vorlan {

/// A message box with the caption "Vorlan".
struct DialogMessage {
    QMessageBox::Icon icon = QMessageBox::Critical;
    QString text;
    QMessageBox::StandardButtons buttons = QMessageBox::Ok | QMessageBox::Cancel;
};

/// Shows a message above its parent and returns when the user has closed it.
using MessageFunction = std::function<void(QWidget* parent, const DialogMessage& message)>;

/// The platform's message box.
void showDialogMessage(QWidget* parent, const DialogMessage& message);

}  // namespace vorlan

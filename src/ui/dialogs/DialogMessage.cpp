#include "ui/dialogs/DialogMessage.h"

namespace vorlan {

void showDialogMessage(QWidget* parent, const DialogMessage& message) {
    QMessageBox box(message.icon, QStringLiteral("Vorlan"), message.text, message.buttons, parent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Ok);
    box.exec();
}

}  // namespace vorlan

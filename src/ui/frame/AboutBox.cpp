#include "ui/frame/AboutBox.h"

#include <QMessageBox>

#include "model/Workspace.h"

namespace vorlan {

void showAboutBox(QWidget& parent) {
    QMessageBox::about(&parent, QStringLiteral("About Vorlan"),
                       QStringLiteral("<h3>Vorlan</h3><p>%1</p><p>Turbulence analysis of velocity records measured by "
                                      "acoustic Doppler velocimeters.</p><p>Free software under the BSD 3-Clause "
                                      "License.</p>")
                           .arg(QString::fromLatin1(kVersionText)));
}

}  // namespace vorlan

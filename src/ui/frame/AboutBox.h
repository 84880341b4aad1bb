#pragma once

class QWidget;

namespace vorlan {

void showAboutBox(QWidget& parent);

}  // namespace vorlan

#pragma once

#include <QByteArray>
#include <QSize>
#include <span>

#include "plot/Pictures.h"

namespace vorlan {

/// A picture of size pixels (1/96 inch each in SVG and PDF) as the bytes of a file. Fonts, ticks and pens of a PNG grow
/// with its dots per inch; above 96 its curves are smooth. SVG and PDF are titled by what they show. One pane fills the
/// picture; of several panes up to four are arranged left top, left bottom, right top, right bottom, a white gap
/// between them. Needs a QGuiApplication (the offscreen platform will do). Empty when the picture cannot be made (no
/// panes, a side below one pixel, no memory).
QByteArray renderPanes(std::span<const PaneContent> panes, QSize size, RenderFormat format, double dpi = kScreenDpi);

}  // namespace vorlan

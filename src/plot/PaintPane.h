#pragma once

#include <QColor>
#include <QPainter>
#include <QRect>

#include "plot/CScreenUtils.h"
#include "plot/PaneContent.h"

namespace vorlan {

/// How a pane is painted; everything that differs between window, page, clipboard and file.
struct RenderOptions {
    /// Font pixels per stored font pixel (1 on screen; on paper from the page's font scale and resolution).
    double fontScale = 1.0;
    /// Device pixels per logical pixel of ticks, gaps, pens and markers.
    double lengthScale = 1.0;
    QColor background = Qt::white;
};

/// Paints content into area (the page included) and returns the geometry of its diagram for read-outs; an empty
/// optional when no diagram was drawn ("Increase Size to View Data", tables, messages).
std::optional<CScreenUtils> paintPane(QPainter& painter, const QRect& area, const PaneContent& content,
                                      const RenderOptions& options = {});

}  // namespace vorlan

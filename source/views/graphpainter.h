#pragma once

#include "core/graphcontents.h"

#include <QColor>

class QPainter;
class QSize;

namespace wifiondivo {

/// Colours of the access points' shapes; the access points of each channel take them in turn.
extern const QColor wifi_user_clolor[ShapeColors];

/// Draws a band's spectrum graph for a region of the given size: the axes, the shapes, and last the
/// selected access point, in red with its captions. GUI thread.
void paintGraph(
    QPainter& painter, const Band& band, const QSize& region, const GraphContents& contents);

} // namespace wifiondivo

#pragma once

#include "apselection.h"

#include <QColor>

class QPainter;
class QSize;

namespace wifiondivo {

struct Band;

/// Colours of the access points' shapes, in turn for the access points of each channel.
extern const QColor wifi_user_clolor[20];

/// Draws a band's spectrum graph for a region of the given size: axes, and with `occupiedChannels`
/// above 0 and a table also the table's access points on the band's channels, the selected one in
/// red with its captions. Null for no table. GUI thread.
void paintGraph(QPainter& painter, const Band& band, const QSize& region, int occupiedChannels,
    const stEXT_WIFISCAN_result* table, const SelectedBssid& selected);

} // namespace wifiondivo

#pragma once

#include "core/apselection.h"

namespace wifiondivo {

struct Band;

/// Colours that the shapes of a channel's access points take in turn.
const int ShapeColors = 20;

/// An access point on a graph.
struct GraphShape {
    int channelIndex; ///< in the band's list
    int level;        ///< magnitude of the level in dBm: 45 stands for -45 dBm
    int color;        ///< 0 to ShapeColors - 1; 0 for the selected one, which is always red
};

/// All that a graph shows beside its axes. A plain value of fixed size, made for each painting.
struct GraphContents {
    int shapeCount;
    GraphShape shapes[MaxScanEntries]; ///< in the order of drawing, without the selected one

    bool hasSelection; ///< whether what follows is shown
    GraphShape selection;
    char network[96];    ///< first caption: name, channel and level; 8-bit as the network sends it
    char neighbours[64]; ///< second caption: co-channel and overlapping networks
};

/// What a band's graph shows of a table, null for none, when `selected` is selected. With
/// `occupiedChannels` not above 0, which is the count of the band's channel table, it is nothing.
/// The last entry with the selected BSSID is the selection; others with it are not shown.
GraphContents graphContents(const Band& band, int occupiedChannels,
    const stEXT_WIFISCAN_result* table, const SelectedBssid& selected);

} // namespace wifiondivo

#pragma once

#include "core/apselection.h"

namespace wifiondivo {

struct Band;

/// Number of colours; the shapes of a channel's access points take them in turn.
const int ShapeColors = 20;

/// An access point on a graph.
struct GraphShape {
    int channelIndex; ///< in the band's list
    int level;        ///< magnitude of the level in dBm: 45 stands for -45 dBm
    int color;        ///< 0 to ShapeColors - 1; 0 and unused for the selected one, which is red
};

/// The contents of a graph, without its axes: a plain value of fixed size, made for each painting.
struct GraphContents {
    int shapeCount;
    GraphShape shapes[MaxScanEntries]; ///< in the order of drawing, without the selected one

    bool hasSelection; ///< true if the members below are shown
    GraphShape selection;
    char network[96];    ///< first caption: name, channel and level; 8-bit as the network sends it
    char neighbours[64]; ///< second caption: numbers of co-channel and overlapping networks
};

/// The contents of a band's graph. They are empty if `table` is null or if `occupiedChannels`, the
/// count of the band's channel table, is not above 0. The last entry with the BSSID `selected` is
/// the selection; earlier entries with it are not shown. A selection on a channel that the graph
/// does not draw is not shown either.
GraphContents graphContents(const Band& band, int occupiedChannels,
    const stEXT_WIFISCAN_result* table, const SelectedBssid& selected);

} // namespace wifiondivo

#pragma once

namespace wifiondivo {

/// Where a row of channel labels under the graph's axis stands, relative to the labels' ticks.
struct LabelPlacement {
    int firstIndex;     ///< axis index from which this placement holds
    bool halfPitchLeft; ///< moved half a pitch to the left before the offset
    int offset;         ///< pixels from the tick for the first label of this placement
    int step;           ///< pixels added for each further label
};

/// All in which the two bands differ, one row of facts each. What the graphs, their navigation and
/// the channel tables do is written once and reads its band from here.
struct Band {
    int channelCount;
    const int* channels; ///< channel numbers of IEEE 802.11, rising

    /// The least channel number of an entry that can be this band's selection.
    int firstSelectableChannel;

    // The ring of the channel search.
    int cursorBase;      ///< what the search's cursor holds for the first channel
    int firstSearchLeft; ///< index at which a first search to the left begins; to the right it is 0

    // Horizontal axis of the graph.
    int axisPitches;          ///< pitches into which the axis is divided
    int leadingPitches;       ///< pitches before the first channel
    int leadingPixels;        ///< and pixels
    LabelPlacement labels[2]; ///< of the first labels, and of those that need more room

    // Shape of an access point.
    int shapeOffset;          ///< pixels from the frame's left edge for the first channel
    bool shapeHalfPitchRight; ///< moved half a pitch to the right of that
    int shapePitches;         ///< width at the base in pitches
    int shapePixels;          ///< and pixels

    // The captions of the selected access point: what stands between their values.
    const char* beforeChannel;
    const char* beforeOverlapping;
};

const int MaxBandChannels = 13;

/// 2.4 GHz: channels 1 to 13, 5 MHz apart, so that a 20 MHz network covers four of them.
extern const Band Band2_4;
/// 5 GHz: nine channels 20 MHz apart, drawn at equal distances. What lies between them is not
/// shown.
extern const Band Band5;

/// The channels of Band5.
extern const int m_5_0_GHZchan[9];

/// Index of a channel in its band's list, or -1.
int channelIndex(const Band& band, int channel);

} // namespace wifiondivo

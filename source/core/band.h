#pragma once

#include <QtGlobal>

namespace wifiondivo {

// The channels of the two bands, by their numbers of IEEE 802.11, rising. Whatever has an entry for
// each channel takes its size from here.

/// 2.4 GHz: 5 MHz apart, so that a 20 MHz network covers four of them.
constexpr qint32 Channels2_4[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13};
/// 5 GHz: those channels, 20 MHz apart, that are shown.
constexpr qint32 m_5_0_GHZchan[] = {36, 40, 44, 48, 149, 153, 157, 161, 165};

constexpr int ChannelCount2_4 = sizeof Channels2_4 / sizeof Channels2_4[0];
constexpr int ChannelCount5 = sizeof m_5_0_GHZchan / sizeof m_5_0_GHZchan[0];
constexpr int MaxBandChannels = ChannelCount2_4 > ChannelCount5 ? ChannelCount2_4 : ChannelCount5;

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
    const qint32* channels;
    int channelCount;

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

extern const Band Band2_4;
/// The channels are drawn at equal distances. What lies between them is not shown.
extern const Band Band5;

/// Index of a channel in a list of `count` channels, or -1.
int channelIndex(const qint32* channels, int count, int channel);
int channelIndex(const Band& band, int channel);

} // namespace wifiondivo

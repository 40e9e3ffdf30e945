#pragma once

#include <QtGlobal>

namespace wifiondivo {

// The channel numbers of the two bands in IEEE 802.11, ascending. Arrays with an entry for each
// channel take their size from these lists.

/// 2.4 GHz: the channels are 5 MHz apart, so a network 20 MHz wide covers four of them.
constexpr qint32 Channels2_4[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13};
/// 5 GHz: the channels that are shown. Neighbours within a group are 20 MHz apart.
constexpr qint32 m_5_0_GHZchan[] = {36, 40, 44, 48, 149, 153, 157, 161, 165};

constexpr int ChannelCount2_4 = sizeof Channels2_4 / sizeof Channels2_4[0];
constexpr int ChannelCount5 = sizeof m_5_0_GHZchan / sizeof m_5_0_GHZchan[0];
constexpr int MaxBandChannels = ChannelCount2_4 > ChannelCount5 ? ChannelCount2_4 : ChannelCount5;

/// Position of consecutive channel labels under the graph's axis, relative to the labels' ticks.
struct LabelPlacement {
    int firstIndex;     ///< channel index from which this placement applies
    bool halfPitchLeft; ///< the labels move half a pitch to the left
    int offset;         ///< pixels from there to the first label of this placement
    int step;           ///< pixels added for each further label
};

/// The differences between the two bands' graphs. The drawing and the selection are written once
/// and read the band's values from here.
struct Band {
    const qint32* channels;
    int channelCount;

    /// Entries on lower channels are ignored, for the selection as well.
    int firstSelectableChannel;

    // The ring of the channel search.
    int cursorBase;      ///< value of the search's cursor for the first channel
    int firstSearchLeft; ///< index at which a first search to the left begins; 0 to the right

    // Horizontal axis of the graph. A pitch is the distance of neighbouring channels.
    int axisPitches;          ///< length of the axis, in pitches
    int leadingPitches;       ///< distance of the first channel from the signal axis, in pitches
    int leadingPixels;        ///< pixels added to that distance
    LabelPlacement labels[2]; ///< for the first labels, and for the wider ones after them

    // Shape of an access point.
    int shapeOffset;          ///< pixels from the frame's left edge for the first channel
    bool shapeHalfPitchRight; ///< the shape moves half a pitch further to the right
    int shapePitches;         ///< width at the base, in pitches
    int shapePixels;          ///< pixels added to that width

    // Texts between the values in the captions of the selected access point.
    const char* beforeChannel;
    const char* beforeOverlapping;
};

extern const Band Band2_4;
/// The channels are drawn at equal distances. The channels between them are not shown.
extern const Band Band5;

/// Index of a channel in a list of `count` channels, or -1.
int channelIndex(const qint32* channels, int count, int channel);
int channelIndex(const Band& band, int channel);

} // namespace wifiondivo

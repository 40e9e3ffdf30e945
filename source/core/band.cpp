#include "core/band.h"

#include <limits>

namespace wifiondivo {

namespace {

const int AnyChannel = std::numeric_limits<int>::min();

} // namespace

const Band Band2_4 = {
    Channels2_4,                             // channels
    ChannelCount2_4,                         // channelCount
    AnyChannel,                              // firstSelectableChannel
    1,                                       // cursorBase
    0,                                       // firstSearchLeft
    ChannelCount2_4 + 4,                     // axisPitches
    2,                                       // leadingPitches
    2,                                       // leadingPixels
    {{0, false, -3, 0}, {9, false, -10, 3}}, // labels
    40,                                      // shapeOffset
    false,                                   // shapeHalfPitchRight
    4,                                       // shapePitches
    -6,                                      // shapePixels
    "   Channel:",                           // beforeChannel
    "  Overlapping:",                        // beforeOverlapping
};

const Band Band5 = {
    m_5_0_GHZchan,                         // channels
    ChannelCount5,                         // channelCount
    36,                                    // firstSelectableChannel
    0,                                     // cursorBase
    ChannelCount5 - 1,                     // firstSearchLeft
    ChannelCount5 + 1,                     // axisPitches
    1,                                     // leadingPitches
    2,                                     // leadingPixels
    {{0, false, -8, 0}, {6, true, 12, 4}}, // labels
    37,                                    // shapeOffset
    true,                                  // shapeHalfPitchRight
    1,                                     // shapePitches
    0,                                     // shapePixels
    "    Channel:",                        // beforeChannel
    "    Overlapping:",                    // beforeOverlapping
};

int channelIndex(const qint32* channels, int count, int channel)
{
    for (int index = 0; index < count; ++index) {
        if (channels[index] == channel)
            return index;
    }
    return -1;
}

int channelIndex(const Band& band, int channel)
{
    return channelIndex(band.channels, band.channelCount, channel);
}

} // namespace wifiondivo

#include "band.h"

#include <limits>

namespace wifiondivo {

namespace {

const int Channels2_4[MaxBandChannels] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13};

const int AnyChannel = std::numeric_limits<int>::min();

} // namespace

const int m_5_0_GHZchan[9] = {36, 40, 44, 48, 149, 153, 157, 161, 165};

const Band Band2_4 = {
    13,                                      // channelCount
    Channels2_4,                             // channels
    AnyChannel,                              // firstSelectableChannel
    1,                                       // cursorBase
    0,                                       // firstSearchLeft
    17,                                      // axisPitches
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
    9,                                     // channelCount
    m_5_0_GHZchan,                         // channels
    36,                                    // firstSelectableChannel
    0,                                     // cursorBase
    8,                                     // firstSearchLeft
    10,                                    // axisPitches
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

int channelIndex(const Band& band, int channel)
{
    for (int index = 0; index < band.channelCount; ++index) {
        if (band.channels[index] == channel)
            return index;
    }
    return -1;
}

} // namespace wifiondivo

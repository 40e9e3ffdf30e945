#pragma once

#include "common.h"

namespace wifiondivo {

struct Band;

/// What was heard on one channel. Eight bits each, as the summaries are.
struct ChannelLoad {
    quint8 apCount;
    quint8 best; ///< best signal in percent
    quint8 channel;
};

/// Counts the table's access points on each of the band's channels, in the order of the band's
/// list, into its band.channelCount entries.
void countAccessPoints(const Band& band, const stEXT_WIFISCAN_result& table, ChannelLoad* chan);

/// Orders `count` channels by their best signal, greatest first. A selection sort, not a stable
/// one: where it leaves equal channels is what the user sees. Of equal signals a channel goes ahead
/// when it has more access points than the channel whose place is being filled.
void sortStrongestFirst(ChannelLoad* chan, int count);

/// Builds the summary of a band from a table: row i of the three arrays describes one channel,
/// strongest first. Returns how many rows have access points. `Byte` is the arrays' kind of 8 bits,
/// and a row counts as occupied when its number of access points is above 0 as that kind.
template <int Rows, typename Byte>
int summarise(const Band& band, const stEXT_WIFISCAN_result& table, Byte (&channels)[Rows],
    Byte (&accessPoints)[Rows], Byte (&bests)[Rows])
{
    ChannelLoad chan[Rows];
    countAccessPoints(band, table, chan);
    sortStrongestFirst(chan, Rows);
    int occupied = 0;
    for (int row = 0; row < Rows; ++row) {
        accessPoints[row] = static_cast<Byte>(chan[row].apCount);
        channels[row] = static_cast<Byte>(chan[row].channel);
        bests[row] = static_cast<Byte>(chan[row].best);
        if (accessPoints[row] > 0)
            ++occupied;
    }
    return occupied;
}

} // namespace wifiondivo

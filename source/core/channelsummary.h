#pragma once

#include "common.h"

#include <QList>
#include <QString>

namespace wifiondivo {

/// What was heard on one channel. Eight bits each, as the summaries are.
struct ChannelLoad {
    quint8 apCount;
    quint8 best; ///< best signal in percent
    quint8 channel;
};

/// Counts the table's access points on each of `count` channels, in the order of their list, into
/// as many entries of `chan`.
void countAccessPoints(
    const qint32* channels, int count, const stEXT_WIFISCAN_result& table, ChannelLoad* chan);

/// Orders `count` channels by their best signal, greatest first. A selection sort, not a stable
/// one: where it leaves equal channels is what the user sees. Of equal signals a channel goes ahead
/// when it has more access points than the channel whose place is being filled.
void sortStrongestFirst(ChannelLoad* chan, int count);

/// Builds the summary of a band's channels from a table: row i of the three arrays describes one
/// channel, strongest first. Returns how many rows have access points. `Byte` is the arrays' kind
/// of 8 bits, and a row counts as occupied when its number of access points is above 0 as that
/// kind. Lists and arrays of different lengths do not compile.
template <int Rows, typename Byte>
int summarise(const qint32 (&bandChannels)[Rows], const stEXT_WIFISCAN_result& table,
    Byte (&channels)[Rows], Byte (&accessPoints)[Rows], Byte (&bests)[Rows])
{
    ChannelLoad chan[Rows];
    countAccessPoints(bandChannels, Rows, table, chan);
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

/// One row of a summary as it is shown.
struct ChannelRow {
    int channel;
    int apCount;
    QString bestText;
    int best; ///< value of the bar, 0 to 100
};

/// The first `count` rows of a summary, its best signals put into words by `bestText`. More rows
/// than the arrays have are not asked for.
template <int Rows, typename Byte>
QList<ChannelRow> channelRows(int count, const Byte (&channels)[Rows],
    const Byte (&accessPoints)[Rows], const Byte (&bests)[Rows], QString (*bestText)(int best))
{
    QList<ChannelRow> rows;
    for (int i = 0; i < qMin(count, Rows); ++i) {
        const ChannelRow row = {channels[i], accessPoints[i], bestText(bests[i]), bests[i]};
        rows.append(row);
    }
    return rows;
}

} // namespace wifiondivo

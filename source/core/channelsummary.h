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

/// One row of a summary as it is shown.
struct ChannelRow {
    int channel;
    int apCount;
    QString bestText;
    int best; ///< value of the bar, 0 to 100
};

/// A band's summary: the process-wide arrays and count that the rest of the analyser reads by their
/// names. `Byte` is the arrays' kind of 8 bits. Lists and arrays of different lengths do not
/// compile.
template <int Rows, typename Byte> struct ChannelSummary {
    const qint32 (&bandChannels)[Rows];
    // Row i of the three describes one channel, strongest first; all zero when there is none.
    Byte (&channels)[Rows];
    Byte (&accessPoints)[Rows];
    Byte (&bests)[Rows];
    qint32& occupied; ///< how many rows have access points

    /// Back to zero, as before the first scan.
    void clear()
    {
        std::memset(channels, 0, sizeof channels);
        std::memset(accessPoints, 0, sizeof accessPoints);
        std::memset(bests, 0, sizeof bests);
        occupied = 0;
    }

    /// Builds the summary from a finished scan. A row counts as occupied when its number of access
    /// points is above 0 as a `Byte`.
    void replace(const stEXT_WIFISCAN_result& scan)
    {
        ChannelLoad chan[Rows];
        countAccessPoints(bandChannels, Rows, scan, chan);
        sortStrongestFirst(chan, Rows);
        occupied = 0;
        for (int row = 0; row < Rows; ++row) {
            accessPoints[row] = static_cast<Byte>(chan[row].apCount);
            channels[row] = static_cast<Byte>(chan[row].channel);
            bests[row] = static_cast<Byte>(chan[row].best);
            if (accessPoints[row] > 0)
                ++occupied;
        }
    }

    /// The rows of a channel table, their best signals put into words by `bestText`: all, or none
    /// without a summary. That is told by the first channel's number, which no channel has as 0.
    QList<ChannelRow> allRows(QString (*bestText)(int best)) const
    {
        return rows(channels[0] == 0 ? 0 : Rows, bestText);
    }
    /// Those that have access points.
    QList<ChannelRow> occupiedRows(QString (*bestText)(int best)) const
    {
        return rows(qMin(static_cast<int>(occupied), Rows), bestText);
    }

private:
    QList<ChannelRow> rows(int count, QString (*bestText)(int best)) const
    {
        QList<ChannelRow> result;
        for (int i = 0; i < count; ++i) {
            const ChannelRow row = {channels[i], accessPoints[i], bestText(bests[i]), bests[i]};
            result.append(row);
        }
        return result;
    }
};

} // namespace wifiondivo

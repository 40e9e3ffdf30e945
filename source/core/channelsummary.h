#pragma once

#include "include/common.h"

#include <QList>
#include <QString>

namespace wifiondivo {

/// The access points of one channel. All values have 8 bits, like those of the summaries.
struct ChannelLoad {
    quint8 apCount;
    quint8 best; ///< best signal in percent
    quint8 channel;
};

/// Counts the table's access points on each of `count` channels. Writes `count` entries of `chan`,
/// in the order of `channels`.
void countAccessPoints(
    const qint32* channels, int count, const stEXT_WIFISCAN_result& table, ChannelLoad* chan);

/// Orders `count` channels by their best signal, strongest first. The algorithm is fixed, because
/// the user sees the order of equal channels: an unstable selection sort. Of channels with equal
/// signals, one with more access points than the channel at the place being filled goes first.
void sortStrongestFirst(ChannelLoad* chan, int count);

/// One row of a summary as it is shown.
struct ChannelRow {
    int channel;
    int apCount;
    QString bestText;
    int best; ///< value of the bar, 0 to 100
};

/// A band's summary: references to the process-wide arrays and the count of occupied channels.
/// `Byte` is the arrays' 8-bit type. Arrays of different lengths do not compile.
template <int Rows, typename Byte> struct ChannelSummary {
    const qint32 (&bandChannels)[Rows];
    // Row i of the three describes one channel, strongest first. All are zero before a scan.
    Byte (&channels)[Rows];
    Byte (&accessPoints)[Rows];
    Byte (&bests)[Rows];
    qint32& occupied; ///< number of rows that have access points

    /// Sets the summary to zero, as before the first scan.
    void clear()
    {
        std::memset(channels, 0, sizeof channels);
        std::memset(accessPoints, 0, sizeof accessPoints);
        std::memset(bests, 0, sizeof bests);
        occupied = 0;
    }

    /// Builds the summary from a finished scan. A row counts as occupied if its number of access
    /// points, as a `Byte`, is above 0.
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

    /// The rows of a channel table; `bestText` formats the best signals. The list is empty before
    /// the first scan: channel number 0 in the first row marks this, since no channel has it.
    QList<ChannelRow> allRows(QString (*bestText)(int best)) const
    {
        return rows(channels[0] == 0 ? 0 : Rows, bestText);
    }
    /// The rows that have access points.
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

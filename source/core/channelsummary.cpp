#include "core/channelsummary.h"

#include "core/band.h"
#include "core/signallevel.h"

#include <utility>

namespace wifiondivo {

void countAccessPoints(
    const qint32* channels, int count, const stEXT_WIFISCAN_result& table, ChannelLoad* chan)
{
    for (int index = 0; index < count; ++index) {
        const ChannelLoad empty = {0, 0, static_cast<quint8>(channels[index])};
        chan[index] = empty;
    }
    for (int i = 0; i <= lastEntry(table); ++i) {
        const int index = channelIndex(channels, count, table.ap[i].channel);
        if (index < 0)
            continue;
        const int signal = percentOfSignal(signalNumber(table.ap[i]));
        ++chan[index].apCount;
        if (chan[index].best < signal)
            chan[index].best = static_cast<quint8>(signal);
    }
}

void sortStrongestFirst(ChannelLoad* chan, int count)
{
    for (int i = 0; i < count; ++i) {
        int candidate = i;
        for (int j = i + 1; j < count; ++j) {
            if (chan[j].best > chan[candidate].best
                || (chan[j].best == chan[candidate].best && chan[j].apCount > chan[i].apCount))
                candidate = j;
        }
        std::swap(chan[i], chan[candidate]);
    }
}

} // namespace wifiondivo

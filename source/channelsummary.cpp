#include "channelsummary.h"

#include "band.h"
#include "signallevel.h"

#include <utility>

namespace wifiondivo {

void countAccessPoints(const Band& band, const stEXT_WIFISCAN_result& table, ChannelLoad* chan)
{
    for (int index = 0; index < band.channelCount; ++index) {
        const ChannelLoad empty = {0, 0, static_cast<quint8>(band.channels[index])};
        chan[index] = empty;
    }
    for (int i = 0; i <= lastEntry(table); ++i) {
        const int index = channelIndex(band, table.ap[i].channel);
        if (index < 0)
            continue;
        const int signal = percentOfSignal(leadingInteger(fieldText(table.ap[i].signal)));
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

#include "core/apselection.h"

#include "core/band.h"
#include "core/signallevel.h"

#include <utility>

namespace wifiondivo {

namespace {

bool isStep(int value)
{
    return value >= -1 && value <= 1;
}

void select(const ScanEntry& entry, const Selection& selection)
{
    setField(reinterpret_cast<char(&)[sizeof(SelectedBssid)]>(selection.bssid),
        fieldText(entry.bssid).c_str());
}

int firstSelected(const stEXT_WIFISCAN_result& table, const SelectedBssid& bssid)
{
    for (int i = 0; i <= lastEntry(table); ++i) {
        if (isSelected(table.ap[i], bssid))
            return i;
    }
    return -1;
}

/// Orders `count` table indices by signal, strongest first. The algorithm is fixed, because the
/// user sees the order of equal signals: an unstable selection sort.
void sortBySignal(const stEXT_WIFISCAN_result& table, int* ssidIndex, int count)
{
    int signal[MaxScanEntries];
    for (int p = 0; p < count; ++p)
        signal[p] = signalNumber(table.ap[ssidIndex[p]]);
    for (int p = 0; p < count; ++p) {
        int candidate = p;
        for (int q = p; q < count; ++q) {
            if (signal[q] > signal[candidate])
                candidate = q;
        }
        std::swap(ssidIndex[p], ssidIndex[candidate]);
        std::swap(signal[p], signal[candidate]);
    }
}

/// Tries each channel of the ring once, beginning next to the channel that the last successful
/// search reached. Before any success it begins at the band's first channel, or to the left at
/// Band::firstSearchLeft. A search without success leaves selection.channel alone, so the next one
/// begins at the same place.
void searchChannels(
    const Band& band, const stEXT_WIFISCAN_result& table, int direction, const Selection& selection)
{
    const int ring = band.channelCount;
    const int reached = channelIndex(band, selection.channel);
    int index = direction > 0 ? 0 : band.firstSearchLeft;
    if (reached >= 0)
        index = (reached + direction + ring) % ring;
    for (int probes = 0; probes < ring; ++probes) {
        selection.cursor = band.cursorBase + index;
        const int found = lastOnChannel(&table, band.channels[index]);
        if (found >= 0) {
            select(table.ap[found], selection);
            selection.channel = band.channels[index];
            return;
        }
        index = (index + direction + ring) % ring;
    }
    selection.cursor = band.cursorBase + index;
}

void stepBySignal(const stEXT_WIFISCAN_result& table, int updown, const Selection& selection)
{
    // An empty selection would match an entry without a BSSID.
    if (selection.bssid[0] == '\0')
        return;
    const int current = firstSelected(table, selection.bssid);
    if (current < 0)
        return;
    const int next = neighbourBySignal(&table, current, updown);
    if (next >= 0)
        select(table.ap[next], selection);
}

} // namespace

bool isSelected(const ScanEntry& entry, const SelectedBssid& selected)
{
    return std::strncmp(entry.bssid, reinterpret_cast<const char*>(selected), SelectionCharacters)
        == 0;
}

int lastOnChannel(const stEXT_WIFISCAN_result* table, int channel)
{
    for (int i = table ? lastEntry(*table) : -1; i >= 0; --i) {
        if (table->ap[i].channel == channel)
            return i;
    }
    return -1;
}

int neighbourBySignal(const stEXT_WIFISCAN_result* table, int index, int updown)
{
    if (!table || updown == 0 || !isStep(updown) || index < 0 || index > lastEntry(*table))
        return -1;
    int ssidIndex[MaxScanEntries]; // all entries may be on one channel
    int count = 0;
    for (int i = 0; i <= lastEntry(*table); ++i) {
        if (table->ap[i].channel == table->ap[index].channel)
            ssidIndex[count++] = i;
    }
    sortBySignal(*table, ssidIndex, count);
    int position = 0;
    while (ssidIndex[position] != index)
        ++position;
    return ssidIndex[(position + updown + count) % count];
}

bool stepSelection(const Band& band, const stEXT_WIFISCAN_result* table,
    const stEXT_WIFI_UDRL& step, const Selection& selection)
{
    if (!table || !isStep(step.right_left) || (step.right_left == 0 && !isStep(step.up_down)))
        return false;
    if (step.right_left != 0)
        searchChannels(band, *table, step.right_left, selection);
    else if (step.up_down != 0)
        stepBySignal(*table, step.up_down, selection);
    return true;
}

} // namespace wifiondivo

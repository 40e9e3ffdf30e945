#include "core/graphcontents.h"

#include "core/band.h"
#include "core/signallevel.h"

#include <cstdio>

namespace wifiondivo {

namespace {

struct Neighbours {
    int cochannel;
    int overlapping;
};

/// Counts the neighbours of the selected access point in the whole table, drawn or not. Channel
/// numbers are 5 MHz apart, so networks 20 MHz wide overlap if their channels differ by less than
/// 4. This also applies to 5 GHz: the drawn channels do not overlap each other, but another one,
/// such as 38, overlaps two of them.
Neighbours countNeighbours(const stEXT_WIFISCAN_result& table, int selectedEntry)
{
    Neighbours neighbours = {0, 0};
    for (int i = 0; i <= lastEntry(table); ++i) {
        const int channel = table.ap[i].channel;
        if (channel <= 0 || i == selectedEntry)
            continue;
        const qint64 distance =
            qAbs(static_cast<qint64>(channel) - table.ap[selectedEntry].channel);
        if (distance == 0)
            ++neighbours.cochannel;
        else if (distance <= 3)
            ++neighbours.overlapping;
    }
    return neighbours;
}

void describeSelection(const Band& band, const stEXT_WIFISCAN_result& table, int selectedEntry,
    GraphContents* contents)
{
    const ScanEntry& entry = table.ap[selectedEntry];
    const int index = channelIndex(band, entry.channel);
    if (index < 0)
        return;
    contents->hasSelection = true;
    contents->selection.channelIndex = index;
    contents->selection.level = levelOfSignal(signalNumber(entry));
    const int nameWidth = sizeof entry.essid;
    std::snprintf(contents->network, sizeof contents->network, "%.*s%s%d  Signal:-%ddBm", nameWidth,
        entry.essid, band.beforeChannel, entry.channel, contents->selection.level);
    const Neighbours neighbours = countNeighbours(table, selectedEntry);
    std::snprintf(contents->neighbours, sizeof contents->neighbours, "Co-Channel:%d%s%d",
        neighbours.cochannel, band.beforeOverlapping, neighbours.overlapping);
}

} // namespace

GraphContents graphContents(const Band& band, int occupiedChannels,
    const stEXT_WIFISCAN_result* table, const SelectedBssid& selected)
{
    GraphContents contents = GraphContents();
    if (occupiedChannels <= 0 || !table)
        return contents;

    int chanColorIndex[MaxBandChannels];
    for (int index = 0; index < band.channelCount; ++index)
        chanColorIndex[index] = index - 1;

    int selectedEntry = -1;
    for (int i = 0; i <= lastEntry(*table); ++i) {
        const ScanEntry& entry = table->ap[i];
        if (entry.channel < band.firstSelectableChannel)
            continue;
        if (isSelected(entry, selected)) { // an empty selection matches an entry without a BSSID
            selectedEntry = i;
            continue;
        }
        const int index = channelIndex(band, entry.channel);
        if (index < 0)
            continue;
        chanColorIndex[index] = (chanColorIndex[index] + 1) % ShapeColors;
        GraphShape& shape = contents.shapes[contents.shapeCount++];
        shape.channelIndex = index;
        shape.level = levelOfSignal(signalNumber(entry));
        shape.color = chanColorIndex[index];
    }
    if (selectedEntry >= 0)
        describeSelection(band, *table, selectedEntry, &contents);
    return contents;
}

} // namespace wifiondivo

#pragma once

#include "common.h"

namespace wifiondivo {

struct Band;

/// Characters of a BSSID that a selection keeps; longer texts are compared by these.
const int SelectionCharacters = 19;

/// The BSSID text of a selected access point, terminated; empty for none.
typedef unsigned char SelectedBssid[SelectionCharacters + 1];

/// Whether the entry's BSSID is the selected one: both cut to what a selection keeps, since the
/// rest of a longer text could never be compared.
bool isSelected(const ScanEntry& entry, const SelectedBssid& selected);

/// The members of a graph that hold its selection.
struct Selection {
    SelectedBssid& bssid;
    qint32& channel; ///< where the last channel search that found something found it; 0 before
    qint32& cursor;  ///< where the last channel search stands, as the graph's ring counts
};

// Before a graph has received its first table, `table` is null and nothing is found in it.

/// Table index of the last entry on `channel`, whatever its signal, or -1.
int lastOnChannel(const stEXT_WIFISCAN_result* table, int channel);

/// Table index of the access point one place stronger (`updown` -1) or weaker (+1) than entry
/// `index` among all entries on its channel, from the strongest around to the weakest; -1 for
/// another `updown`, or when the table's entries in use do not include `index`.
int neighbourBySignal(const stEXT_WIFISCAN_result* table, int index, int updown);

/// Moves the selection by one step and tells whether the graph has to be painted again. A step with
/// `right_left` searches the channels of the band's ring in that direction, the selection's own
/// channel last; one with only `up_down` goes to the neighbour by signal on the selection's
/// channel. Steps other than -1, 0 and +1 are never sent and change nothing.
bool stepSelection(const Band& band, const stEXT_WIFISCAN_result* table,
    const stEXT_WIFI_UDRL& step, const Selection& selection);

} // namespace wifiondivo

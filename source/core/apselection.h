#pragma once

#include "include/common.h"

namespace wifiondivo {

struct Band;

/// Number of characters of a BSSID that a selection keeps.
const int SelectionCharacters = 19;

/// The BSSID text of the selected access point, terminated; empty if there is no selection.
typedef unsigned char SelectedBssid[SelectionCharacters + 1];

/// True if the first SelectionCharacters characters of the entry's BSSID equal the selected one.
bool isSelected(const ScanEntry& entry, const SelectedBssid& selected);

/// References to the members of a graph that hold its selection.
struct Selection {
    SelectedBssid& bssid;
    qint32& channel; ///< channel reached by the last successful channel search; initially 0
    qint32& cursor;  ///< position of the last channel search, counted from Band::cursorBase
};

// `table` is null until a graph has received its first table. A null table has no entries.

/// Table index of the last entry on `channel`, regardless of its signal, or -1.
int lastOnChannel(const stEXT_WIFISCAN_result* table, int channel);

/// Table index of the access point one place stronger (`updown` -1) or weaker (+1) than entry
/// `index` among all entries on its channel. The order wraps around at both ends. Returns -1 for
/// another `updown` or if `index` is not an entry in use.
int neighbourBySignal(const stEXT_WIFISCAN_result* table, int index, int updown);

/// Moves the selection by one step; returns true if the graph must be painted again. A step with
/// `right_left` searches the band's channels in that direction as a ring. The search begins next to
/// the channel that the last successful search reached, and tries that channel last. A step with
/// only `up_down` moves to the neighbour by signal on the channel of the selected access point.
/// Values other than -1, 0 and +1 are never sent. As `right_left`, or as `up_down` without
/// `right_left`, they change nothing.
bool stepSelection(const Band& band, const stEXT_WIFISCAN_result* table,
    const stEXT_WIFI_UDRL& step, const Selection& selection);

} // namespace wifiondivo

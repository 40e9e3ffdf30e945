#pragma once

#include "scankernel.h"

namespace wifiscan {

/// Adds the frequencies that a radio may use, from the contents of one
/// NL80211_ATTR_WIPHY_BANDS. A split list has a part of them in each of its messages. A
/// malformed part is left out with the parts after it.
void addFrequencies(ByteCursor bands, std::vector<RadioFrequency>& frequencies);

/// The frequencies that a scan covered, in MHz, from the contents of NL80211_ATTR_SCAN_FREQUENCIES.
/// Empty when they are malformed: nothing is known then.
std::vector<int> readScanFrequencies(ByteCursor frequencies);

/// True when the contents of NL80211_ATTR_SCAN_SSIDS have an empty name among them, which every
/// network answers to.
bool hasAnyName(ByteCursor names);

} // namespace wifiscan

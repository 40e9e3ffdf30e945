#pragma once

#include "network.h"

namespace wifiscan {

/// Adds the networks for which one beacon or probe response speaks besides its own, the last one in
/// `accessPoints` (Multiple BSSID, IEEE 802.11-2020, 11.1.3.8). Each has level and noise of that
/// one, and it inherits the elements that its profile does not have. `elements` are those of the
/// frame, `capability` its field, `heardMhz` as for describeNetwork(). Returns how many elements
/// could not be read; a profile without an index, or with one that is not valid, is one of them.
int addNontransmitted(
    ByteCursor elements, unsigned capability, int heardMhz, std::vector<AccessPoint>& accessPoints);

} // namespace wifiscan

#pragma once

#include "bytecursor.h"

#include <string>

namespace wifiscan {

/// What the information elements of a beacon or a probe response tell (IEEE 802.11-2020, 9.4.2).
struct Elements {
    std::string name;  ///< the SSID's raw bytes, 0 to 32; empty when there is no such element
    int channel = 0;   ///< from the DS parameter set; 0 when there is none
    int htChannel = 0; ///< the primary channel of HT operation; 0 when there is none
    bool rsn = false;  ///< an RSN element stands there: WPA2 or newer
    bool wpa = false;  ///< the vendor element of WPA stands there
    int malformed = 0; ///< how many elements could not be read
};

/// Reads a row of elements. An element of impossible size or contents is counted and passed over.
/// One that claims more bytes than there are ends the row, since nothing tells where the next one
/// begins. Of several elements of one kind the first whole one holds.
///
/// Malformed contents of an RSN or WPA element cost these, not the fact that it stands there: such
/// a network must not be shown as open.
Elements readElements(ByteCursor bytes);

} // namespace wifiscan

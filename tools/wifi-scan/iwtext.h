#pragma once

#include "accesspoint.h"

#include <string_view>

namespace wifiscan {

/// True when a line of the text begins an access point as `iw dev IFACE scan` does.
bool isIwText(std::string_view text);

/// Reads what `iw dev IFACE scan` or `scan dump` printed, old versions and new, also from a copy
/// whose tabs have become blanks or whose lines end in CR LF. Takes any bytes: lines that it does
/// not know are passed over, a head without a whole address costs its access point, an SSID of more
/// than 32 bytes costs that line; both are counted.
Heard readIwText(std::string_view text);

} // namespace wifiscan

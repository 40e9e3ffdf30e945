#pragma once

#include "accesspoint.h"

#include <string_view>

namespace wifiscan {

/// The kind of a text, by its lines that begin an access point in `iw dev IFACE scan`.
enum class IwText {
    None,     ///< no text of iw
    Readable, ///< at least one access point has its address
    Masked,   ///< all addresses were masked before the text was passed on
};

IwText kindOfIwText(std::string_view text);

/// Reads what `iw dev IFACE scan` or `scan dump` printed, old versions and new, also from a copy
/// whose tabs have become blanks, that is indented as a whole, that begins with a byte order mark
/// or whose lines end in CR LF. Takes any bytes: lines that it does not know are passed over, a
/// head without a whole address costs its access point, an SSID of more than 32 bytes costs that
/// line; these are counted. A last access point of which there may have been more is left out.
/// Remarks tell of that and of masked addresses.
Heard readIwText(std::string_view text);

} // namespace wifiscan

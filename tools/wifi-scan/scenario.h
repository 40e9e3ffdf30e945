#pragma once

#include "scanresult.h"

#include <string_view>

namespace wifiscan {

/// The access points in the lines of a scenario, and the status of its closing line: Done
/// without one. A line that the tool does not write counts as a malformed access point. Figures are
/// those of the lines: a name may be cut to 31 bytes, and a newer method counts as WPA2.
ScanResult readScenario(std::string_view text);

} // namespace wifiscan

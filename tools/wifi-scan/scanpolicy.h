#pragma once

#include "report.h"
#include "scankernel.h"
#include "scanservice.h"

namespace wifiscan {

/// Scans once and lists what was heard.
///
/// Asks for the channels that the list has room for. While the radio is busy it takes the results
/// of the other scan, if that covered as much, or tries again each second, 15 seconds long. Begins
/// once more when a scan is aborted, its end is lost, or less was scanned than was asked for.
/// Without the privilege it has `service` scan, which may be null, and waits 10 seconds for that.
/// When there is no scan in the end, it falls back on what the kernel heard before. Remarks tell
/// which of these happened and what went wrong. `interfaceName` is for the sentences only.
Report scanWith(ScanKernel& kernel, ScanService* service, const std::string& interfaceName);

} // namespace wifiscan

#pragma once

#include "report.h"
#include "scankernel.h"

namespace wifiscan {

/// Scans once and lists what was heard. Takes the results of another scan that is under way, begins
/// once more when a scan is aborted, and falls back on what the kernel heard before when it may not
/// scan or is aborted again. Remarks tell which of these happened and what went wrong.
/// `interfaceName` is for the sentences only.
Report scanWith(ScanKernel& kernel, const std::string& interfaceName);

} // namespace wifiscan

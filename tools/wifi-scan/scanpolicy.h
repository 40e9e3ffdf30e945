#pragma once

#include "scankernel.h"
#include "scanresult.h"
#include "scanservice.h"

namespace wifiscan {

/// Which bands a scan is made on.
enum class Bands {
    Listed, ///< 2.4 and 5 GHz, those of which the lines tell
    All,    ///< 6 GHz too, which takes three times as long
};

/// Scans once and lists the access points heard.
///
/// Asks for the channels of the wanted bands. While the radio is busy it takes the results
/// of the other scan, if that covered as much, or tries again each second, 15 seconds long. Begins
/// once more when a scan is aborted, its end is lost, or less was scanned than was asked for.
/// Without the privilege it has `service` scan, which may be null, and waits 10 seconds for that.
/// If no scan succeeds, it uses the kernel's earlier results. Remarks report the course of the scan
/// and its faults. `interfaceName` is for the sentences only.
ScanResult scanWith(
    ScanKernel& kernel, ScanService* service, const std::string& interfaceName, Bands bands);

} // namespace wifiscan

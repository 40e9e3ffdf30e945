#pragma once

#include "scanresult.h"

namespace wifiscan {

/// A result as one JSON document (RFC 8259) ended by a line feed, valid UTF-8 whatever the bytes of
/// names and remarks are. Its members are listed in wifi-scan(1). It has all access points, on each
/// band and without a limit, and is of the same form after a failure.
std::string jsonOf(const ScanResult& result);

} // namespace wifiscan

#pragma once

#include "report.h"

namespace wifiscan {

/// A report as one JSON document (RFC 8259) ended by a line feed, valid UTF-8 whatever the bytes of
/// names and remarks are. Its members are listed in wifi-scan(1). It has all access points, on each
/// band and without a limit, and is of the same form after a failure.
std::string jsonOf(const Report& report);

} // namespace wifiscan

#pragma once

#include "accesspoint.h"
#include "scanresult.h"

namespace wifiscan {

/// The most access points that the reader has room for.
constexpr int MaxCells = 127;

/// A name as it is written: never empty, without a comma, without a control character, valid UTF-8
/// and not surrounded by blanks, at most 32 bytes long and cut between characters at the 31 bytes
/// that the reader keeps. Printable UTF-8 stays as it is. Every other byte, a comma, a "<" (a name
/// must not become markup in somebody's report) and the blanks at either end are written \xNN as iw
/// does, a backslash too where it would read as such. A hidden name is written "(hidden)", and a
/// network that calls itself so "\x28hidden)".
std::string shownName(const std::string& name);

/// The line of one access point, without a line feed; at most 255 characters for every input.
/// `cellNumber` is 1 to MaxCells; the access point has a channel (see channelOf()).
std::string accessPointLine(int cellNumber, const AccessPoint& accessPoint);

/// A result as it is written.
struct Output {
    std::string text;                 ///< for standard output, lines ended by line feeds; not empty
    std::vector<std::string> remarks; ///< for standard error, one line each
};

/// A line for each access point on 2.4 and 5 GHz, the strongest MaxCells of them, and the closing
/// line: "wifiscan: over" or "wifiscan: NoResults", after a failure "wifiscan: fail", or "wifiscan:
/// timeout" when that is the status. Remarks report left-out access points. A scenario stays as it
/// is.
Output linesOf(const ScanResult& result);

/// "aa:bb:cc:dd:ee:ff"
std::string addressText(const Address& address);

/// "WPA2", "WPA1", "WEP" or "NONE"
const char* securityWord(Security security);

} // namespace wifiscan

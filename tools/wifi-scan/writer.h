#pragma once

#include "accesspoint.h"
#include "report.h"

namespace wifiscan {

/// The most access points that the reader has room for.
constexpr int MostCells = 127;

/// A name as it is written: never empty, without a comma, without a control character, valid UTF-8
/// and not surrounded by blanks, at most 32 bytes long and cut between characters at the 31 bytes
/// that the reader keeps. Printable UTF-8 stays as it is. Every other byte, a comma and the blanks
/// at either end are written \xNN as iw does, a backslash too where it would read as such. A hidden
/// name is written "(hidden)", and a network that calls itself so "\x28hidden)".
std::string shownName(const std::string& name);

/// The line of one access point, without a line feed; at most 255 characters for every input.
/// `cellNumber` is 1 to MostCells; the access point has a channel (see channelOf()).
std::string accessPointLine(int cellNumber, const AccessPoint& accessPoint);

/// The whole report on what was heard: a line for each access point on 2.4 and 5 GHz, the strongest
/// first, the strongest MostCells of them, and the closing line. Remarks tell what was left out and
/// what could not be read. A hidden access point that is in the list under its name as well (a
/// directed scan leaves both) is written once, with its name.
Report reportOf(Heard heard);

/// A report without access points: the reason as remark, "wifiscan: fail" as closing line, or
/// "wifiscan: timeout" when that is the status.
Report failure(ExitStatus status, std::string reason);

} // namespace wifiscan

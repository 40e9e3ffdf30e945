#pragma once

#include "accesspoint.h"

#include <string>
#include <vector>

namespace wifiscan {

/// The program's exit statuses, as wifi-scan(8) lists them.
enum class ExitStatus {
    Done = 0, ///< a list, or word that nothing was heard, or a whole replay
    Usage = 2,
    NoSuchInterface = 3,
    InterfaceGone = 4, ///< taken away during the scan
    NotWireless = 5,
    NoNl80211 = 6, ///< the kernel has no wireless part at all
    InterfaceDown = 7,
    Blocked = 8,       ///< by rfkill
    NotPermitted = 9,  ///< and the kernel had nothing in store
    NotSupported = 10, ///< by the driver in the interface's present mode
    TimedOut = 11,
    KernelError = 12,
    BadReplay = 13,
    CannotWrite = 14,
};

/// All that a source has to say. How it is written is a step of its own: linesOf(), jsonOf().
struct Report {
    Heard heard;                      ///< the strongest first, on all bands; none after a failure
    std::vector<std::string> remarks; ///< one line each
    ExitStatus status = ExitStatus::Done;
    std::string scenario = {}; ///< a replayed one, which is copied as it is; else empty
};

/// The report on what was heard. A hidden access point that was heard under its name as well (a
/// directed scan leaves both) is in it once, with its name, and so are equal ones, as the strongest
/// of them. Remarks tell what could not be read.
Report reportOf(Heard heard);

/// A report without access points, with the reason as its remark.
Report failure(ExitStatus status, std::string reason);

/// Adds the remark "COUNT TEXT", if there is anything to count.
void remarkCount(std::vector<std::string>& remarks, std::size_t count, const char* text);

/// Where access points come from: the kernel, or a file that was kept.
class Source {
public:
    Source() = default;
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;
    virtual ~Source() = default;

    /// Answers once, within a bounded time.
    virtual Report scan() = 0;
};

} // namespace wifiscan

#pragma once

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
    Interrupted = 15, ///< by SIGTERM or SIGINT, before there was a list
};

/// All that a source has to say.
struct Report {
    std::string text;                 ///< for standard output, lines ended by line feeds; not empty
    std::vector<std::string> remarks; ///< for standard error, one line each
    ExitStatus status = ExitStatus::Done;
};

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

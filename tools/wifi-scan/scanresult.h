#pragma once

#include "accesspoint.h"

#include <string>
#include <vector>

namespace wifiscan {

/// The program's exit statuses. about() gives their meanings.
enum class ExitStatus {
    Done = 0,
    Usage = 2,
    NoSuchInterface = 3,
    InterfaceGone = 4,
    NotWireless = 5,
    NoNl80211 = 6,
    InterfaceDown = 7,
    Blocked = 8,
    NotPermitted = 9,
    NotSupported = 10,
    TimedOut = 11,
    KernelError = 12,
    BadReplay = 13,
    CannotWrite = 14,
    Interrupted = 15, ///< by SIGTERM or SIGINT, before there was a list
};

/// Descriptions of an exit status.
struct AboutStatus {
    ExitStatus status;
    const char* word;    ///< for programs, as "no-such-interface"
    const char* meaning; ///< for people
};

constexpr AboutStatus Statuses[] = {
    {ExitStatus::Done, "done", "a list, word that nothing was heard, or a whole replay"},
    {ExitStatus::Usage, "usage", "the command line was not understood"},
    {ExitStatus::NoSuchInterface, "no-such-interface", "there is no such interface"},
    {ExitStatus::InterfaceGone, "interface-gone", "it was taken away during the scan"},
    {ExitStatus::NotWireless, "not-wireless", "it is not wireless"},
    {ExitStatus::NoNl80211, "no-nl80211", "the kernel has no wireless part at all"},
    {ExitStatus::InterfaceDown, "interface-down", "it is down"},
    {ExitStatus::Blocked, "blocked", "it is blocked by rfkill"},
    {ExitStatus::NotPermitted, "not-permitted", "no permission to scan, and nothing in store"},
    {ExitStatus::NotSupported, "not-supported", "it cannot scan in its present mode"},
    {ExitStatus::TimedOut, "timed-out", "the scan did not end in time"},
    {ExitStatus::KernelError, "kernel-error", "the kernel refused, or the scan was aborted twice"},
    {ExitStatus::BadReplay, "bad-replay", "the file cannot be replayed"},
    {ExitStatus::CannotWrite, "cannot-write", "the output or a kept file was not written"},
    {ExitStatus::Interrupted, "interrupted", "SIGTERM or SIGINT ended the scan"},
};

/// The row of a status.
const AboutStatus& about(ExitStatus status);

/// All that a source has to say. How it is written is a step of its own: linesOf(), jsonOf().
struct ScanResult {
    Heard heard;                      ///< the strongest first, on all bands; empty after a failure
    std::vector<std::string> remarks; ///< one line each
    ExitStatus status = ExitStatus::Done;
    std::string scenario = {}; ///< a replayed one, which is copied as it is; else empty
};

/// The result for these access points. A hidden access point that was heard under its name as well
/// (a directed scan leaves both) is in it once, with its name, and so are equal ones, as the
/// strongest of them. Remarks report unreadable parts.
ScanResult scanResultOf(Heard heard);

/// A result without access points, with the reason as its remark.
ScanResult failure(ExitStatus status, std::string reason);

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
    virtual ScanResult scan() = 0;
};

} // namespace wifiscan

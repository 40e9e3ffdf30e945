#pragma once

#include "bytecursor.h"

#include <functional>

namespace wifiscan {

/// What came of asking for access to an interface's scans.
enum class Access {
    Granted,
    NoInterface,
    NoSocket,    ///< the kernel refuses the means to ask it
    NoNl80211,   ///< the kernel has no wireless part at all
    NotWireless, ///< the interface is none that scans
    NoEvents,    ///< the kernel does not tell the end of scans
};

/// How a scan ended.
enum class ScanEnd { Results, Aborted };

/// What came of waiting for events.
enum class Waited {
    All,      ///< some came, and each one of this radio was handed over
    Lost,     ///< some did not reach us
    TimedOut, ///< none came before the deadline
};

/// The end of one list.
struct ListEnd {
    int error = 0;            ///< an errno, 0 for success
    bool interrupted = false; ///< the list changed meanwhile: what came is not one state of it
};

/// The kernel as far as a scan with one interface needs it. Sets the deadline over all that is
/// asked of it, and answers no later: an errno is ETIME then. Used from one thread, and called
/// back within a call only.
class ScanKernel {
public:
    /// Takes the end of one scan. `ofInterface` is false for a scan by another interface of the
    /// same radio, which shares its scans and its list.
    using TakeEnd = std::function<void(ScanEnd end, bool ofInterface)>;
    /// Takes the attributes of one entry, which stay where they are until it returns.
    using TakeEntry = std::function<void(ByteCursor attributes)>;

    ScanKernel() = default;
    ScanKernel(const ScanKernel&) = delete;
    ScanKernel& operator=(const ScanKernel&) = delete;
    virtual ~ScanKernel() = default;

    /// Comes first, and all else only after Access::Granted. From then on events are kept until
    /// they are read.
    virtual Access open() = 0;

    /// Throws away the events that have come so far.
    virtual void drainEvents() = 0;

    /// Begins an active scan on all channels. Returns an errno: 0 when it has begun, EBUSY while
    /// another one is under way on the radio, EPERM without the privilege.
    virtual int trigger() = 0;

    /// Asks for the end of our own scan. Has a deadline of its own, of a second.
    virtual void abort() = 0;

    /// Waits until there are events and reads those that there are. Ends of scans by other radios
    /// are left out, so that there may be nothing to take.
    virtual Waited waitForEvents(const TakeEnd& take) = 0;

    /// Reads the list of access points once; the entries are NL80211_ATTR_BSS.
    virtual ListEnd listAccessPoints(const TakeEntry& take) = 0;

    /// Reads what is known of each channel once; the entries are NL80211_ATTR_SURVEY_INFO.
    virtual ListEnd listChannels(const TakeEntry& take) = 0;

    /// True when rfkill has switched the radio off, in software or hardware.
    virtual bool isBlocked() = 0;
};

} // namespace wifiscan

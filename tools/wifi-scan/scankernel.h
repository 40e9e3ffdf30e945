#pragma once

#include "bytecursor.h"

#include <chrono>
#include <functional>
#include <poll.h>
#include <vector>

namespace wifiscan {

/// The outcome of asking for access to an interface's scans.
enum class Access {
    Granted,
    NoInterface,
    NoSocket,    ///< the kernel refuses the means to ask it
    NoNl80211,   ///< the kernel has no wireless part at all
    NoAnswer,    ///< the kernel's wireless part does not answer
    NotWireless, ///< the interface cannot scan
    NoEvents,    ///< the kernel does not tell the end of scans
};

/// How a scan ended.
enum class ScanEnd { Results, Aborted };

/// The end of one scan, and the channels and names that it covered.
struct ScanEvent {
    ScanEnd end = ScanEnd::Results;
    bool ofInterface = true; ///< false: by another interface of the radio, which shares its scans
    bool anyName = true;     ///< it asked every network to answer, not only those of some names
    std::vector<int> frequencies; ///< in MHz; empty when that was not told
};

/// The outcome of waiting for events.
enum class Waited {
    All,         ///< some came, and each one of this radio was handed over
    Lost,        ///< some did not reach us
    Other,       ///< the other file became ready first
    TimedOut,    ///< no event came in time
    Interrupted, ///< the program is asked to end
};

/// A frequency that the radio may use under the rules of its country.
struct RadioFrequency {
    int mhz = 0;
    bool radar = false; ///< an access point has to look out for radar there
};

/// The end of one list.
struct ListEnd {
    int error = 0;            ///< an errno, 0 for success
    bool interrupted = false; ///< the list changed while it was read
};

/// The kernel as far as a scan with one interface needs it. Sets the deadline over all that is
/// asked of it, and answers no later: an errno is ETIME then, and EINTR when the program is asked
/// to end. Used from one thread, and called back within a call only.
class ScanKernel {
public:
    using Milliseconds = std::chrono::milliseconds;
    /// Takes the end of one scan.
    using TakeEvent = std::function<void(const ScanEvent& event)>;
    /// Takes the attributes of one entry, which stay where they are until it returns.
    using TakeEntry = std::function<void(ByteCursor attributes)>;

    ScanKernel() = default;
    ScanKernel(const ScanKernel&) = delete;
    ScanKernel& operator=(const ScanKernel&) = delete;
    virtual ~ScanKernel() = default;

    /// Comes first, and all else only after Access::Granted. From then on events are kept until
    /// they are read.
    virtual Access open() = 0;

    /// The time since some fixed moment; it never goes back.
    virtual Milliseconds now() const = 0;

    /// The frequencies that the radio may use here. Nothing when they cannot be had.
    virtual std::vector<RadioFrequency> frequencies() = 0;

    /// Throws away the events that have come so far.
    virtual void drainEvents() = 0;

    /// Begins an active scan on these frequencies, or on all channels if there are no frequencies.
    /// Returns an errno: 0 when it has begun, EBUSY while another one is under way on the radio,
    /// EPERM without the privilege.
    virtual int trigger(const std::vector<int>& frequencies) = 0;

    /// Asks for the end of our own scan. Has a deadline of its own, of a second.
    virtual void abort() = 0;

    /// Waits until there are events and reads those that there are; no longer than `atMost`, and
    /// until the event of `other` (its file may be -1: no event). Ends of scans by other
    /// radios are left out, so that there may be nothing to take.
    virtual Waited waitForEvents(
        Milliseconds atMost, const pollfd& other, const TakeEvent& take) = 0;

    /// Reads the list of access points once; the entries are NL80211_ATTR_BSS.
    virtual ListEnd listAccessPoints(const TakeEntry& take) = 0;

    /// Reads the survey data of each channel once; the entries are NL80211_ATTR_SURVEY_INFO.
    virtual ListEnd listChannels(const TakeEntry& take) = 0;

    /// True when rfkill has switched the radio off, in software or hardware.
    virtual bool isBlocked() = 0;
};

} // namespace wifiscan

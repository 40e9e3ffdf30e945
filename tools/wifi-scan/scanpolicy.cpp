#include "scanpolicy.h"

#include "bss.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <map>
#include <set>

namespace wifiscan {

namespace {

constexpr int MaxDumps = 5;    // each begun again, since the list changed or a buffer ran over
constexpr int MaxTriggers = 2; // a scan that came to nothing is tried once more

using Milliseconds = ScanKernel::Milliseconds;

// A radio that is busy or cannot scan just now mostly can a second later.
constexpr Milliseconds RetryPause{1000};
constexpr Milliseconds RetryTime{15000};

// Time limit for a service's scan: 43 channels take 4 seconds, and a service begins late.
constexpr Milliseconds ServiceTime{10000};

// How long before our scan an access point may have been heard last to count. The analyser scans
// twice for one list, so that an access point that answered only the first scan is not lost: up to
// 6 seconds for the first scan's first channel, with all channels of two bands, a pause of one, and
// a start.
constexpr Milliseconds FirstOfTwoScans{8000};

// The same for a scan that was under way when we came: one of three bands takes 14 seconds.
constexpr Milliseconds MaxScanTime{16000};

constexpr const char* NoPrivilege = "no permission to scan (CAP_NET_ADMIN)";

// Why there is not even the attempt of a scan.
ScanResult noAccess(Access access, const std::string& interfaceName)
{
    switch (access) {
    case Access::NoInterface:
        return failure(
            ExitStatus::NoSuchInterface, "there is no network interface " + interfaceName);
    case Access::NoNl80211:
        return failure(
            ExitStatus::NoNl80211, "this machine's kernel has no wireless interfaces (no nl80211)");
    case Access::NotWireless:
        return failure(ExitStatus::NotWireless, interfaceName + " is not a wireless interface");
    case Access::NoAnswer:
        return failure(ExitStatus::KernelError, "the kernel's nl80211 does not answer");
    case Access::NoEvents:
        return failure(ExitStatus::KernelError, "cannot listen for the end of a scan");
    case Access::NoSocket:
    case Access::Granted:
        break;
    }
    return failure(ExitStatus::KernelError,
        std::string("cannot open a netlink socket: ") + std::strerror(errno));
}

// The outcome of waiting for the end of a scan.
enum class End { Whole, Partial, Aborted, Lost, TimedOut, Interrupted, Other };

// Those of the bands that are wanted.
std::vector<int> wantedFrequencies(const std::vector<RadioFrequency>& frequencies, Bands bands)
{
    std::set<int> wanted; // the kernel refuses a frequency that is given twice
    for (const RadioFrequency& frequency : frequencies) {
        if (bands == Bands::All || channelOf(frequency.mhz) != 0)
            wanted.insert(frequency.mhz);
    }
    return {wanted.begin(), wanted.end()};
}

class Scan {
public:
    Scan(ScanKernel& kernel, ScanService* service, const std::string& interfaceName, Bands bands)
        : m_kernel(kernel)
        , m_service(service)
        , m_interfaceName(interfaceName)
        , m_begin(kernel.now())
        , m_frequencies(kernel.frequencies())
        , m_wanted(wantedFrequencies(m_frequencies, bands))
        , m_asked(m_wanted)
    {
    }

    ScanResult run()
    {
        for (;;) {
            m_kernel.drainEvents(); // they tell of earlier scans
            const Milliseconds begun = m_kernel.now();
            const int error = m_kernel.trigger(m_asked);
            std::optional<ScanResult> result;
            if (error == 0)
                result = afterOwnScan(begun);
            else if (error == EBUSY || error == EAGAIN)
                result = afterPause(error);
            else if (error == EPERM)
                result = afterService();
            else if (error == EINVAL && !m_asked.empty())
                m_asked.clear(); // the allowed channels have just changed
            else
                result = refused(error);
            if (result)
                return *result;
        }
    }

private:
    // Nothing when the scan has to begin once more.
    std::optional<ScanResult> afterOwnScan(Milliseconds begun)
    {
        m_underWay = true;
        m_countsFrom = begun - FirstOfTwoScans;
        const bool last = ++m_triggers >= MaxTriggers;
        switch (waitForEnd(false, std::nullopt)) {
        case End::Whole:
            m_underWay = false;
            return listed();
        case End::Partial:
            m_underWay = false;
            if (last)
                return listed("only some of the channels were scanned");
            break; // the end of somebody else's scan, just before ours began
        case End::Aborted:
            m_underWay = false;
            if (last)
                return stored("the scan was aborted again", ExitStatus::KernelError);
            m_remarks.emplace_back("the scan was aborted: once more");
            break;
        case End::Lost:
            if (last)
                return stored("the end of the scan was lost again", ExitStatus::KernelError);
            m_remarks.emplace_back("the end of the scan was lost: once more");
            break;
        case End::TimedOut:
        case End::Other: // which is not waited for here
            m_kernel.abort();
            return timedOut();
        case End::Interrupted:
            return interrupted();
        }
        return std::nullopt;
    }

    // The radio scans for somebody else, or cannot scan just now. Nothing when it has to be tried
    // again.
    std::optional<ScanResult> afterPause(int error)
    {
        if (m_kernel.now() - m_begin >= RetryTime)
            return stored(
                error == EBUSY ? "another scan does not end" : "the driver cannot scan now",
                ExitStatus::KernelError);
        switch (waitForEnd(true, m_kernel.now() + RetryPause)) {
        case End::Whole:
            if (!m_underWay) { // else it was ours, whose end had been lost
                m_countsFrom = m_begin - MaxScanTime;
                m_remarks.emplace_back("another scan is under way: taking its results");
            }
            return listed();
        case End::Interrupted:
            return interrupted();
        default:
            return std::nullopt;
        }
    }

    ScanResult afterService()
    {
        if (m_service == nullptr)
            return notPermitted(", and no NetworkManager to ask");
        m_countsFrom = m_kernel.now() - FirstOfTwoScans;
        const Milliseconds until = m_kernel.now() + ServiceTime;
        m_service->ask();
        bool partial = false;
        for (;;) {
            switch (m_service->state()) {
            case ServiceState::Done:
                return listed();
            case ServiceState::Absent:
                return notPermitted(", and no NetworkManager to ask");
            case ServiceState::Unable:
                return notPermitted(", and NetworkManager does not scan with " + m_interfaceName);
            case ServiceState::Denied:
                return notPermitted(", nor to ask NetworkManager for it");
            case ServiceState::TooSoon:
                return notPermitted(", and NetworkManager has scanned just before");
            case ServiceState::Waiting:
                break;
            }
            // Whichever tells first: the kernel of a scan, by whomever, or the service of its own.
            switch (waitForEnd(true, until, m_service->awaited())) {
            case End::Whole:
                return listed();
            case End::Partial:
                partial = true;
                break;
            case End::Interrupted:
                return interrupted();
            default:
                break;
            }
            if (m_kernel.now() >= until)
                break;
        }
        if (partial)
            return listed("only some of the channels were scanned");
        return notPermitted(", and NetworkManager has not scanned in time");
    }

    ScanResult notPermitted(const std::string& service)
    {
        return stored(NoPrivilege + service, ExitStatus::NotPermitted);
    }

    bool coversWanted(const ScanEvent& event) const
    {
        const auto covered = [&event](int frequency) {
            return std::find(event.frequencies.begin(), event.frequencies.end(), frequency)
                != event.frequencies.end();
        };
        return event.anyName
            && (event.frequencies.empty()
                || std::all_of(m_wanted.begin(), m_wanted.end(), covered));
    }

    // Two interfaces of one radio share its scans and its list: with `ofRadio` the end of either
    // one's scan counts. Other means that `other` can be read. TimedOut without `until` is the
    // deadline of the whole scan.
    End waitForEnd(
        bool ofRadio, std::optional<Milliseconds> until, const pollfd& other = {-1, 0, 0})
    {
        std::optional<End> end;
        const auto take = [&](const ScanEvent& event) {
            if (!event.ofInterface && !ofRadio)
                return;
            const End heard = event.end == ScanEnd::Aborted ? End::Aborted
                : coversWanted(event)                       ? End::Whole
                                                            : End::Partial;
            if (!end || heard == End::Whole)
                end = heard;
        };
        while (!end) {
            const Milliseconds left = until ? *until - m_kernel.now() : Milliseconds::max();
            if (left <= Milliseconds(0))
                return End::TimedOut;
            const Waited waited = m_kernel.waitForEvents(left, other, take);
            if (waited == Waited::Interrupted)
                return End::Interrupted;
            if (end || waited == Waited::All)
                continue;
            return waited == Waited::Lost ? End::Lost
                : waited == Waited::Other ? End::Other
                                          : End::TimedOut;
        }
        return *end;
    }

    // Reads a list, again when it changed meanwhile or a buffer ran over. `listOnce` begins anew
    // each time. Returns an errno.
    template <typename ListOnce> static int wholeList(const ListOnce& listOnce)
    {
        ListEnd end;
        for (int attempt = 0; attempt < MaxDumps; ++attempt) {
            end = listOnce();
            if (!end.interrupted && end.error != ENOBUFS)
                break;
        }
        // A list that kept changing is usable; a list that was not read to its end is not.
        return end.error;
    }

    int readList(Heard& heard)
    {
        return wholeList([this, &heard] {
            heard = {};
            return m_kernel.listAccessPoints([&heard](const ByteCursor& bss) {
                if (const auto accessPoint = readBss(bss, heard.malformedElements))
                    heard.accessPoints.push_back(*accessPoint);
                else
                    ++heard.malformedAccessPoints;
            });
        });
    }

    // Noise and use are a bonus: many drivers do not report them, and a failure must not lose the
    // list.
    void addChannels(std::vector<AccessPoint>& accessPoints)
    {
        std::map<int, ChannelUse> channels;
        wholeList([this, &channels] {
            channels.clear();
            return m_kernel.listChannels([&channels](const ByteCursor& channel) {
                if (const auto entry = readSurvey(channel))
                    channels[entry->frequencyMhz] = *entry;
            });
        });
        std::map<int, bool> radar;
        for (const RadioFrequency& frequency : m_frequencies)
            radar[frequency.mhz] = frequency.radar;
        for (AccessPoint& accessPoint : accessPoints) {
            const auto channel = channels.find(accessPoint.frequencyMhz);
            if (channel != channels.end()) {
                accessPoint.noiseDbm = channel->second.noiseDbm;
                accessPoint.details.busy = channel->second.busy;
            }
            const auto known = radar.find(accessPoint.frequencyMhz);
            if (known != radar.end())
                accessPoint.details.dfs = known->second;
        }
    }

    // The access points that the scan heard. A network that has gone off the air stays in the
    // kernel's list for half a minute, and is left out.
    ScanResult listed(const std::string& remark = {})
    {
        Heard heard;
        const int error = readList(heard);
        if (error != 0)
            return refused(error);
        if (!remark.empty())
            m_remarks.push_back(remark);
        const Milliseconds oldest = m_kernel.now() - m_countsFrom;
        std::vector<AccessPoint>& all = heard.accessPoints;
        const auto gone = std::remove_if(all.begin(), all.end(), [oldest](const AccessPoint& ap) {
            return Milliseconds(ap.ageMs.value_or(0)) > oldest;
        });
        if (gone != all.end())
            m_remarks.push_back(
                std::to_string(all.end() - gone) + " access point(s) left out: not heard any more");
        all.erase(gone, all.end());
        return written(std::move(heard));
    }

    // The kernel's list of earlier results, with its age.
    ScanResult stored(const std::string& why, ExitStatus statusWhenEmpty)
    {
        Heard heard;
        const int error = readList(heard);
        if (error != 0)
            return refused(error);
        // An empty list is a result only after a scan, and no scan was made here.
        if (heard.accessPoints.empty())
            return failed(statusWhenEmpty, why + ", and the kernel holds no earlier results");
        std::uint32_t youngest = UINT32_MAX;
        std::uint32_t oldest = 0;
        for (const AccessPoint& accessPoint : heard.accessPoints) {
            youngest = std::min(youngest, accessPoint.ageMs.value_or(0));
            oldest = std::max(oldest, accessPoint.ageMs.value_or(0));
        }
        m_remarks.push_back(why + ": showing what the kernel heard "
            + std::to_string(youngest / 1000) + " to " + std::to_string(oldest / 1000)
            + " seconds ago");
        return written(std::move(heard));
    }

    ScanResult written(Heard heard)
    {
        addChannels(heard.accessPoints);
        return withRemarks(scanResultOf(std::move(heard)));
    }

    ScanResult refused(int error)
    {
        const std::string& name = m_interfaceName;
        switch (error) {
        case ENETDOWN:
        case ERFKILL:
            if (error == ERFKILL || m_kernel.isBlocked())
                return failed(ExitStatus::Blocked, name + " is switched off (blocked by rfkill)");
            return failed(
                ExitStatus::InterfaceDown, name + " is down: it must be brought up first");
        case ENODEV:
            return failed(ExitStatus::InterfaceGone, name + " is gone");
        case EOPNOTSUPP:
            return failed(ExitStatus::NotSupported,
                name + " cannot scan in its present mode (is it an access point?)");
        case ETIME:
            return timedOut();
        case EINTR:
            return interrupted();
        default:
            return failed(ExitStatus::KernelError,
                "scanning with " + name + " failed: " + std::strerror(error));
        }
    }

    ScanResult timedOut() const
    {
        return failed(ExitStatus::TimedOut, m_interfaceName + ": the scan did not end in time");
    }

    ScanResult interrupted()
    {
        if (m_underWay)
            m_kernel.abort();
        return failed(ExitStatus::Interrupted, m_interfaceName + ": the scan was interrupted");
    }

    ScanResult failed(ExitStatus status, const std::string& reason) const
    {
        return withRemarks(failure(status, reason));
    }

    ScanResult withRemarks(ScanResult result) const
    {
        result.remarks.insert(result.remarks.begin(), m_remarks.begin(), m_remarks.end());
        return result;
    }

    ScanKernel& m_kernel;
    ScanService* const m_service;
    const std::string& m_interfaceName;
    const Milliseconds m_begin;
    const std::vector<RadioFrequency> m_frequencies;
    const std::vector<int> m_wanted;
    std::vector<int> m_asked; // for the trigger; empty for all
    int m_triggers = 0;
    bool m_underWay = false;        // a scan of ours, whose end has not been seen
    Milliseconds m_countsFrom = {}; // earlier results are left out
    std::vector<std::string> m_remarks;
};

} // namespace

ScanResult scanWith(
    ScanKernel& kernel, ScanService* service, const std::string& interfaceName, Bands bands)
{
    const Access access = kernel.open();
    if (access != Access::Granted)
        return noAccess(access, interfaceName);
    return Scan(kernel, service, interfaceName, bands).run();
}

} // namespace wifiscan

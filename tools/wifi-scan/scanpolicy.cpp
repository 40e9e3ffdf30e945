#include "scanpolicy.h"

#include "bss.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <map>

namespace wifiscan {

namespace {

constexpr int MostDumps = 5;    // each begun again, since the list changed or a buffer ran over
constexpr int MostTriggers = 2; // a scan that was aborted is tried once more

// Why there is not even the attempt of a scan.
Report noAccess(Access access, const std::string& interfaceName)
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
    case Access::NoEvents:
        return failure(ExitStatus::KernelError, "cannot listen for the end of a scan");
    case Access::NoSocket:
    case Access::Granted:
        break;
    }
    return failure(ExitStatus::KernelError, "cannot open a netlink socket");
}

class Scan {
public:
    Scan(ScanKernel& kernel, const std::string& interfaceName)
        : m_kernel(kernel)
        , m_interfaceName(interfaceName)
    {
    }

    Report report()
    {
        for (int attempt = 0; attempt < MostTriggers; ++attempt) {
            m_kernel.drainEvents(); // they tell of earlier scans
            const int error = m_kernel.trigger();
            if (error == EPERM)
                return stored("no permission to scan (CAP_NET_ADMIN)", ExitStatus::NotPermitted);
            const bool otherScan = error == EBUSY;
            if (error != 0 && !otherScan)
                return refused(error);
            if (otherScan)
                m_remarks.push_back("another scan is under way: taking its results");
            const std::optional<ScanEnd> end = waitForEnd(otherScan);
            if (end == ScanEnd::Results)
                return listed();
            if (!end) {
                if (!otherScan)
                    m_kernel.abort();
                return timedOut();
            }
            if (attempt + 1 < MostTriggers)
                m_remarks.push_back("the scan was aborted: once more");
        }
        return stored("the scan was aborted again", ExitStatus::KernelError);
    }

private:
    // Nothing when time ran out. Two interfaces of one radio share its scans and its list, so that
    // the end of either one's scan is what a busy radio has to be waited for.
    std::optional<ScanEnd> waitForEnd(bool ofRadio)
    {
        std::optional<ScanEnd> end;
        const auto take = [ofRadio, &end](ScanEnd heard, bool ofInterface) {
            if (!end && (ofInterface || ofRadio))
                end = heard;
        };
        Waited waited = Waited::All;
        while (!end && waited == Waited::All)
            waited = m_kernel.waitForEvents(take);
        // Among lost events may be the one that matters: another scan tells.
        if (!end && waited == Waited::Lost)
            end = ScanEnd::Aborted;
        return end;
    }

    // Reads a list, again when it changed meanwhile or a buffer ran over. `listOnce` begins anew
    // each time. Returns an errno.
    template <typename ListOnce> static int wholeList(const ListOnce& listOnce)
    {
        ListEnd end;
        for (int attempt = 0; attempt < MostDumps; ++attempt) {
            end = listOnce();
            if (!end.interrupted && end.error != ENOBUFS)
                break;
        }
        // A list that kept changing is still a list; one that was not read to its end is none.
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

    // Noise is a bonus: most drivers have none, and a failure is no reason to lose the list.
    void addNoise(std::vector<AccessPoint>& accessPoints)
    {
        std::map<int, int> noise;
        wholeList([this, &noise] {
            noise.clear();
            return m_kernel.listChannels([&noise](const ByteCursor& channel) {
                if (const auto entry = readSurvey(channel))
                    noise[entry->frequencyMhz] = entry->dbm;
            });
        });
        for (AccessPoint& accessPoint : accessPoints) {
            const auto entry = noise.find(accessPoint.frequencyMhz);
            if (entry != noise.end())
                accessPoint.noiseDbm = entry->second;
        }
    }

    Report listed()
    {
        Heard heard;
        const int error = readList(heard);
        return error == 0 ? written(std::move(heard)) : refused(error);
    }

    // The kernel's list of what was heard before, with its age.
    Report stored(const std::string& why, ExitStatus statusWhenEmpty)
    {
        Heard heard;
        const int error = readList(heard);
        if (error != 0)
            return refused(error);
        // Nothing heard is what a scan finds out; here none was made.
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

    Report written(Heard heard)
    {
        addNoise(heard.accessPoints);
        return withRemarks(reportOf(std::move(heard)));
    }

    Report refused(int error)
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
        default:
            return failed(ExitStatus::KernelError,
                "scanning with " + name + " failed: " + std::strerror(error));
        }
    }

    Report timedOut() const
    {
        return failed(ExitStatus::TimedOut, m_interfaceName + ": the scan did not end in time");
    }

    Report failed(ExitStatus status, const std::string& reason) const
    {
        return withRemarks(failure(status, reason));
    }

    Report withRemarks(Report report) const
    {
        report.remarks.insert(report.remarks.begin(), m_remarks.begin(), m_remarks.end());
        return report;
    }

    ScanKernel& m_kernel;
    const std::string& m_interfaceName;
    std::vector<std::string> m_remarks;
};

} // namespace

Report scanWith(ScanKernel& kernel, const std::string& interfaceName)
{
    const Access access = kernel.open();
    if (access != Access::Granted)
        return noAccess(access, interfaceName);
    return Scan(kernel, interfaceName).report();
}

} // namespace wifiscan

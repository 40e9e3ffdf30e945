#include "nl80211scan.h"

#include "interfaces.h"
#include "interruption.h"
#include "netlink.h"
#include "privilege.h"
#include "rfkill.h"
#include "scannedchannels.h"
#include "scanpolicy.h"

#include <cerrno>
#include <linux/nl80211.h>
#include <netlink/genl/ctrl.h>

namespace wifiscan {

namespace {

using wireless::Answer;
using wireless::attributeOf;
using wireless::Deadline;
using wireless::Lookup;
using wireless::Message;
using wireless::Ready;

constexpr const char* Radios = "/sys/class/ieee80211";
constexpr std::chrono::milliseconds ScanTime{30000};
constexpr std::chrono::milliseconds AbortTime{1000};

Access accessOf(Lookup lookup)
{
    switch (lookup) {
    case Lookup::Found:
        return Access::Granted;
    case Lookup::NoInterface:
        return Access::NoInterface;
    case Lookup::NotWireless:
        return Access::NotWireless;
    case Lookup::NoNl80211:
        return Access::NoNl80211;
    case Lookup::NoAnswer:
        break;
    }
    return Access::NoAnswer;
}

ByteCursor cursorOver(const nlattr* attribute)
{
    if (attribute == nullptr)
        return {};
    return {nla_data(attribute), static_cast<std::size_t>(nla_len(attribute))};
}

// The kernel over nl80211: the socket for events, the family's number and the deadline over all.
class Nl80211Kernel : public ScanKernel {
public:
    Nl80211Kernel(Lookup lookup, const wireless::Interface& interface)
        : m_lookup(lookup)
        , m_interface(interface)
    {
    }

    Access open() override
    {
        m_events = wireless::openSocket(); // first, so that errno tells why it cannot
        if (!m_events)
            return Access::NoSocket;
        if (m_lookup != Lookup::Found)
            return accessOf(m_lookup);
        m_family = genl_ctrl_resolve(m_events.get(), NL80211_GENL_NAME);
        if (m_family < 0)
            return Access::NoAnswer;
        // Before any trigger: a scan can end before its own acknowledgement has been read.
        const int group =
            genl_ctrl_resolve_grp(m_events.get(), NL80211_GENL_NAME, NL80211_MULTICAST_GROUP_SCAN);
        const bool listening = group >= 0 && nl_socket_add_membership(m_events.get(), group) >= 0
            && nl_socket_set_nonblocking(m_events.get()) >= 0;
        return listening ? Access::Granted : Access::NoEvents;
    }

    Milliseconds now() const override
    {
        return std::chrono::duration_cast<Milliseconds>(
            std::chrono::steady_clock::now().time_since_epoch());
    }

    std::vector<RadioFrequency> frequencies() override
    {
        const Message request = message(NL80211_CMD_GET_WIPHY, NLM_F_DUMP);
        // Without it the kernel reports only as much as fits into one message.
        if (!request || nla_put_flag(request.get(), NL80211_ATTR_SPLIT_WIPHY_DUMP) != 0)
            return {};
        std::vector<RadioFrequency> all;
        const Answer answer = exchange(request, m_deadline, [&all](const nlmsghdr* header) {
            addFrequencies(cursorOver(attributeOf(header, NL80211_ATTR_WIPHY_BANDS)), all);
        });
        return answer.error == 0 && !answer.interrupted ? all : std::vector<RadioFrequency>();
    }

    void drainEvents() override { wireless::readEvents(m_events.get(), m_deadline, nullptr); }

    // No flags: flushing the kernel's list would lose the results of a scan just before.
    int trigger(const std::vector<int>& frequencies) override
    {
        const Message request = message(NL80211_CMD_TRIGGER_SCAN, 0);
        if (!request)
            return ENOMEM;
        nlattr* const names = nla_nest_start(request.get(), NL80211_ATTR_SCAN_SSIDS);
        if (names == nullptr || nla_put(request.get(), 1, 0, "") != 0)
            return ENOMEM;
        nla_nest_end(request.get(), names);
        if (!frequencies.empty() && !putFrequencies(request.get(), frequencies))
            return ENOMEM;
        const int error = [&] {
            const RaisedPrivilege raised;
            return exchange(request, m_deadline).error;
        }();
        if (error == EPERM)
            dropPrivilege(); // it is of no use here; a service is asked instead
        return error;
    }

    void abort() override
    {
        const RaisedPrivilege raised;
        exchange(message(NL80211_CMD_ABORT_SCAN, 0), Deadline(AbortTime));
    }

    Waited waitForEvents(Milliseconds atMost, const pollfd& other, const TakeEvent& take) override
    {
        switch (waitReadable(m_events.get(), m_deadline.sooner(atMost), other)) {
        case Ready::Messages:
            break;
        case Ready::Other:
            return Waited::Other;
        case Ready::Interrupted:
            return Waited::Interrupted;
        case Ready::TimedOut:
            return Waited::TimedOut;
        }
        const bool all =
            wireless::readEvents(m_events.get(), m_deadline, [&](const nlmsghdr* header) {
                ScanEvent event;
                if (readEvent(header, event))
                    take(event);
            });
        return all ? Waited::All : Waited::Lost;
    }

    ListEnd listAccessPoints(const TakeEntry& take) override
    {
        dropPrivilege(); // no scan follows; anyone may have sent the elements
        return list(NL80211_CMD_GET_SCAN, NL80211_ATTR_BSS, take);
    }

    ListEnd listChannels(const TakeEntry& take) override
    {
        return list(NL80211_CMD_GET_SURVEY, NL80211_ATTR_SURVEY_INFO, take);
    }

    bool isBlocked() override
    {
        dropPrivilege(); // no scan follows
        return wifiscan::isBlocked(Radios, m_interface.radio);
    }

private:
    // Null if there is no memory for it.
    Message message(int command, int flags) const
    {
        Message message(nlmsg_alloc());
        if (!message)
            return nullptr;
        const bool fits = genlmsg_put(message.get(), NL_AUTO_PORT, NL_AUTO_SEQ, m_family, 0, flags,
                              static_cast<std::uint8_t>(command), 0)
            && nla_put_u32(message.get(), NL80211_ATTR_IFINDEX, m_interface.index) == 0;
        return fits ? std::move(message) : nullptr;
    }

    ListEnd list(int command, int attribute, const TakeEntry& take) const
    {
        const Answer answer = exchange(message(command, NLM_F_DUMP), m_deadline,
            [&](const nlmsghdr* header) { take(cursorOver(attributeOf(header, attribute))); });
        return {answer.error, answer.interrupted};
    }

    static bool putFrequencies(nl_msg* request, const std::vector<int>& frequencies)
    {
        nlattr* const list = nla_nest_start(request, NL80211_ATTR_SCAN_FREQUENCIES);
        int number = 0;
        for (const int frequency : frequencies) {
            if (list == nullptr
                || nla_put_u32(request, ++number, static_cast<std::uint32_t>(frequency)) != 0)
                return false;
        }
        nla_nest_end(request, list);
        return true;
    }

    // False if the event is not the end of a scan of this radio.
    bool readEvent(const nlmsghdr* header, ScanEvent& event) const
    {
        const int command = wireless::commandOf(header);
        if (command != NL80211_CMD_NEW_SCAN_RESULTS && command != NL80211_CMD_SCAN_ABORTED)
            return false;
        event.end = command == NL80211_CMD_SCAN_ABORTED ? ScanEnd::Aborted : ScanEnd::Results;
        std::uint32_t number = 0;
        event.ofInterface = wireless::readNumber(header, NL80211_ATTR_IFINDEX, number)
            && number == m_interface.index;
        if (!event.ofInterface
            && !(wireless::readNumber(header, NL80211_ATTR_WIPHY, number)
                && number == m_interface.radio))
            return false;
        event.anyName = hasAnyName(cursorOver(attributeOf(header, NL80211_ATTR_SCAN_SSIDS)));
        event.frequencies =
            readScanFrequencies(cursorOver(attributeOf(header, NL80211_ATTR_SCAN_FREQUENCIES)));
        return true;
    }

    const Lookup m_lookup;
    const wireless::Interface m_interface; // told only when it was found
    const Deadline m_deadline{ScanTime, interruption()};
    wireless::Socket m_events; // joined to the group "scan"
    int m_family = -1;
};

} // namespace

KernelSource::KernelSource(std::string interfaceName, Bands bands)
    : m_interfaceName(std::move(interfaceName))
    , m_bands(bands)
{
}

ScanResult KernelSource::scan()
{
    wireless::Interface interface = {};
    const Lookup lookup = wireless::findInterface(m_interfaceName, interface);
    Nl80211Kernel kernel(lookup, interface);
    // The service knows interfaces by the kernel's own names.
    const std::unique_ptr<ScanService> service = networkManager(interface.name);
    return scanWith(kernel, service.get(), m_interfaceName, m_bands);
}

} // namespace wifiscan

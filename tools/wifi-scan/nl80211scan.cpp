#include "nl80211scan.h"

#include "netlink.h"
#include "radio.h"
#include "scanpolicy.h"

#include <cerrno>
#include <linux/nl80211.h>
#include <net/if.h>
#include <netlink/genl/ctrl.h>

namespace wifiscan {

namespace {

constexpr std::chrono::milliseconds ScanTime{30000};
constexpr std::chrono::milliseconds AbortTime{1000};

// The kernel over nl80211: the socket for events, the family's number and the deadline over all.
class Nl80211Kernel : public ScanKernel {
public:
    explicit Nl80211Kernel(const std::string& interfaceName)
        : m_interfaceIndex(if_nametoindex(interfaceName.c_str()))
        , m_radio("/sys/class/net/" + interfaceName + "/phy80211")
    {
    }

    Access open() override
    {
        if (m_interfaceIndex == 0)
            return Access::NoInterface;
        m_events = openSocket();
        if (!m_events)
            return Access::NoSocket;
        m_family = genl_ctrl_resolve(m_events.get(), NL80211_GENL_NAME);
        if (m_family < 0)
            return Access::NoNl80211;
        if (!m_radio.exists())
            return Access::NotWireless;
        // Before any trigger: a scan can end before its own acknowledgement has been read.
        const int group =
            genl_ctrl_resolve_grp(m_events.get(), NL80211_GENL_NAME, NL80211_MULTICAST_GROUP_SCAN);
        const bool listening = group >= 0 && nl_socket_add_membership(m_events.get(), group) >= 0
            && nl_socket_set_nonblocking(m_events.get()) >= 0;
        return listening ? Access::Granted : Access::NoEvents;
    }

    void drainEvents() override { readEvents(m_events.get(), m_deadline, nullptr); }

    // No flags: to flush the kernel's list would lose what a scan just before has heard.
    int trigger() override
    {
        const Message request = message(NL80211_CMD_TRIGGER_SCAN, 0);
        if (!request)
            return ENOMEM;
        nlattr* const names = nla_nest_start(request.get(), NL80211_ATTR_SCAN_SSIDS);
        if (names == nullptr || nla_put(request.get(), 1, 0, "") != 0)
            return ENOMEM;
        nla_nest_end(request.get(), names);
        return exchange(request, m_deadline).error;
    }

    void abort() override { exchange(message(NL80211_CMD_ABORT_SCAN, 0), Deadline(AbortTime)); }

    Waited waitForEvents(const TakeEnd& take) override
    {
        if (!waitReadable(m_events.get(), m_deadline))
            return Waited::TimedOut;
        const bool all = readEvents(m_events.get(), m_deadline, [&](const nlmsghdr* header) {
            const bool ofInterface = isOfInterface(header);
            if (!ofInterface && !isOfRadio(header))
                return;
            const int command = commandOf(header);
            if (command == NL80211_CMD_NEW_SCAN_RESULTS)
                take(ScanEnd::Results, ofInterface);
            else if (command == NL80211_CMD_SCAN_ABORTED)
                take(ScanEnd::Aborted, ofInterface);
        });
        return all ? Waited::All : Waited::Lost;
    }

    ListEnd listAccessPoints(const TakeEntry& take) override
    {
        return list(NL80211_CMD_GET_SCAN, NL80211_ATTR_BSS, take);
    }

    ListEnd listChannels(const TakeEntry& take) override
    {
        return list(NL80211_CMD_GET_SURVEY, NL80211_ATTR_SURVEY_INFO, take);
    }

    bool isBlocked() override { return m_radio.isBlocked(); }

private:
    // None when there is no memory for it.
    Message message(int command, int flags) const
    {
        Message message(nlmsg_alloc());
        if (!message)
            return nullptr;
        const bool fits = genlmsg_put(message.get(), NL_AUTO_PORT, NL_AUTO_SEQ, m_family, 0, flags,
                              static_cast<std::uint8_t>(command), 0)
            && nla_put_u32(message.get(), NL80211_ATTR_IFINDEX, m_interfaceIndex) == 0;
        return fits ? std::move(message) : nullptr;
    }

    ListEnd list(int command, int attribute, const TakeEntry& take) const
    {
        const Answer answer = exchange(message(command, NLM_F_DUMP), m_deadline,
            [&](const nlmsghdr* header) { take(attributeOf(header, attribute)); });
        return {answer.error, answer.interrupted};
    }

    bool isOfInterface(const nlmsghdr* header) const
    {
        ByteCursor payload = attributeOf(header, NL80211_ATTR_IFINDEX);
        const std::uint32_t index = payload.u32Host();
        return payload.ok() && index == m_interfaceIndex;
    }

    bool isOfRadio(const nlmsghdr* header) const
    {
        ByteCursor payload = attributeOf(header, NL80211_ATTR_WIPHY);
        const std::uint32_t index = payload.u32Host();
        return payload.ok() && m_radio.index() == index;
    }

    const unsigned m_interfaceIndex; // 0 when there is no such interface
    const Radio m_radio;
    const Deadline m_deadline{ScanTime};
    Socket m_events; // joined to the group "scan"
    int m_family = -1;
};

} // namespace

KernelSource::KernelSource(std::string interfaceName)
    : m_interfaceName(std::move(interfaceName))
{
}

Report KernelSource::scan()
{
    Nl80211Kernel kernel(m_interfaceName);
    return scanWith(kernel, m_interfaceName);
}

} // namespace wifiscan

#include "interfaces.h"

#include "environment.h"
#include "netlink.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <linux/nl80211.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <netlink/genl/ctrl.h>

namespace wireless {

namespace {

/// Time limit of a request for interfaces.
const std::chrono::milliseconds LookupTime(1000);

/// Sets `family` to the number of the family nl80211 and returns Found; otherwise returns the
/// reason.
Lookup findFamily(int& family)
{
    const Socket socket = openSocket();
    if (!socket)
        return Lookup::NoAnswer;
    family = genl_ctrl_resolve(socket.get(), NL80211_GENL_NAME);
    if (family >= 0)
        return Lookup::Found;
    return family == -NLE_OBJ_NOTFOUND ? Lookup::NoNl80211 : Lookup::NoAnswer;
}

/// A request for one interface, or for all with index 0. Null when memory runs out.
Message question(int family, unsigned index)
{
    Message message(nlmsg_alloc());
    if (!message
        || genlmsg_put(message.get(), NL_AUTO_PORT, NL_AUTO_SEQ, family, 0,
               index == 0 ? NLM_F_DUMP : 0, NL80211_CMD_GET_INTERFACE, 0)
            == nullptr
        || (index != 0 && nla_put_u32(message.get(), NL80211_ATTR_IFINDEX, index) != 0))
        return nullptr;
    return message;
}

/// The index of the interface with this name or alternative name; 0 if there is none.
/// if_nametoindex() knows both, but takes no more than IF_NAMESIZE - 1 characters, and alternative
/// names may be longer.
unsigned indexOf(const std::string& name)
{
    if (name.size() < IF_NAMESIZE)
        return if_nametoindex(name.c_str());
    Message message(nlmsg_alloc_simple(RTM_GETLINK, 0));
    ifinfomsg link = {};
    if (!message || nlmsg_append(message.get(), &link, sizeof link, NLMSG_ALIGNTO) != 0
        || nla_put_string(message.get(), IFLA_ALT_IFNAME, name.c_str()) != 0)
        return 0;
    unsigned index = 0;
    exchange(
        message, Deadline(LookupTime),
        [&index](const nlmsghdr* header) {
            if (nlmsg_datalen(header) >= static_cast<int>(sizeof(ifinfomsg)))
                index = static_cast<unsigned>(
                    static_cast<const ifinfomsg*>(nlmsg_data(header))->ifi_index);
        },
        NETLINK_ROUTE);
    return index;
}

/// Returns false if the message is not about a network interface: some radios have a wireless
/// device without one.
bool readInterface(const nlmsghdr* header, Interface& found)
{
    const nlattr* const name = attributeOf(header, NL80211_ATTR_IFNAME);
    if (name == nullptr || !readNumber(header, NL80211_ATTR_IFINDEX, found.index)
        || !readNumber(header, NL80211_ATTR_IFTYPE, found.type)
        || !readNumber(header, NL80211_ATTR_WIPHY, found.radio))
        return false;
    const char* const text = static_cast<const char*>(nla_data(name));
    found.name.assign(text, ::strnlen(text, static_cast<std::size_t>(nla_len(name))));
    return !found.name.empty() && found.index != 0;
}

} // namespace

const char* const UsualName = "wlan0";

std::vector<Interface> interfaces()
{
    std::vector<Interface> all;
    int family = 0;
    if (findFamily(family) != Lookup::Found)
        return all;
    const auto take = [&all](const nlmsghdr* header) {
        Interface found;
        if (readInterface(header, found))
            all.push_back(found);
    };
    const Deadline deadline(LookupTime);
    Answer answer = {0, true};
    while (answer.interrupted && !deadline.hasPassed()) {
        all.clear();
        answer = exchange(question(family, 0), deadline, take);
    }
    std::sort(all.begin(), all.end(),
        [](const Interface& a, const Interface& b) { return a.index < b.index; });
    return all;
}

Lookup findInterface(const std::string& name, Interface& found)
{
    const unsigned index = indexOf(name);
    if (index == 0)
        return Lookup::NoInterface;
    int family = 0;
    const Lookup lookup = findFamily(family);
    if (lookup != Lookup::Found)
        return lookup;
    bool have = false;
    const Answer answer =
        exchange(question(family, index), Deadline(LookupTime), [&](const nlmsghdr* header) {
            Interface candidate;
            if (readInterface(header, candidate)) {
                found = candidate;
                have = true;
            }
        });
    if (answer.error == ENODEV)
        return Lookup::NotWireless;
    return answer.error == 0 && have ? Lookup::Found : Lookup::NoAnswer;
}

std::string interfaceInUse()
{
    const char* const chosen = std::getenv(environment::Interface);
    if (chosen != nullptr && *chosen != '\0')
        return chosen;
    Interface usual;
    if (findInterface(UsualName, usual) == Lookup::Found)
        return UsualName;
    const std::vector<Interface> all = interfaces();
    return all.empty() ? UsualName : all.front().name;
}

} // namespace wireless

#include "nl80211scan.h"

#include "bss.h"
#include "writer.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <linux/nl80211.h>
#include <map>
#include <memory>
#include <net/if.h>
#include <netlink/genl/ctrl.h>
#include <netlink/genl/genl.h>
#include <netlink/netlink.h>
#include <poll.h>
#include <sys/socket.h>

namespace wifiscan {

namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;

constexpr milliseconds ScanTime{30000};
constexpr milliseconds AbortTime{1000};
constexpr int MostDumps = 5;    // each begun again, since the list changed or a buffer ran over
constexpr int MostTriggers = 2; // a scan that was aborted is tried once more
constexpr int ReceiveBuffer = 1024 * 1024; // bytes; the kernel drops messages beyond

// A moment that nothing here waits beyond.
class Deadline {
public:
    explicit Deadline(milliseconds time)
        : m_end(std::chrono::steady_clock::now() + time)
    {
    }

    milliseconds left() const
    {
        const auto time = m_end - std::chrono::steady_clock::now();
        return std::max(milliseconds(0), std::chrono::duration_cast<milliseconds>(time));
    }

    bool hasPassed() const { return left().count() == 0; }

private:
    std::chrono::steady_clock::time_point m_end;
};

template <auto Free> struct Freer {
    template <typename Object> void operator()(Object* object) const { Free(object); }
};
using Socket = std::unique_ptr<nl_sock, Freer<nl_socket_free>>;
using Message = std::unique_ptr<nl_msg, Freer<nlmsg_free>>;
using Callbacks = std::unique_ptr<nl_cb, Freer<nl_cb_put>>;

// A generic netlink socket whose reads never block; none when the kernel refuses one.
Socket openSocket()
{
    Socket socket(nl_socket_alloc());
    if (!socket || genl_connect(socket.get()) < 0)
        return nullptr;
    // Past the system's limit only with CAP_NET_ADMIN; a smaller buffer costs another dump at most.
    const int file = nl_socket_get_fd(socket.get());
    if (::setsockopt(file, SOL_SOCKET, SO_RCVBUFFORCE, &ReceiveBuffer, sizeof ReceiveBuffer) != 0)
        ::setsockopt(file, SOL_SOCKET, SO_RCVBUF, &ReceiveBuffer, sizeof ReceiveBuffer);
    // The family look-ups of libnl read as well; they must not outlive the deadline either.
    const timeval bound{1, 0};
    ::setsockopt(file, SOL_SOCKET, SO_RCVTIMEO, &bound, sizeof bound);
    return socket;
}

// True when there is something to read before the deadline.
bool waitReadable(nl_sock* socket, const Deadline& deadline)
{
    if (deadline.hasPassed())
        return false;
    pollfd poll = {nl_socket_get_fd(socket), POLLIN, 0};
    int count = 0;
    do {
        count = ::poll(&poll, 1, static_cast<int>(deadline.left().count()));
    } while (count < 0 && errno == EINTR && !deadline.hasPassed());
    return count > 0;
}

// One request and what came back. `error` is an errno, 0 for success; ETIME is our own deadline.
struct Exchange {
    std::function<void(nlmsghdr*)> take;
    const Deadline& deadline;
    int error = 0;
    bool finished = false;
    bool interrupted = false; // what came is not one consistent list

    void finish(int code)
    {
        error = code;
        finished = true;
    }
};

int onValid(nl_msg* message, void* argument)
{
    auto* const exchange = static_cast<Exchange*>(argument);
    if (exchange->deadline.hasPassed())
        return NL_STOP;
    if (exchange->take)
        exchange->take(nlmsg_hdr(message));
    return NL_OK;
}

// The end of a dump carries the error that ended it, if one did.
int onFinish(nl_msg* message, void* argument)
{
    const nlmsghdr* const header = nlmsg_hdr(message);
    ByteCursor payload(nlmsg_data(header), static_cast<std::size_t>(nlmsg_datalen(header)));
    const auto code = static_cast<std::int32_t>(payload.u32Host());
    static_cast<Exchange*>(argument)->finish(code < 0 ? -code : 0);
    return NL_STOP;
}

int onAcknowledged(nl_msg*, void* argument)
{
    static_cast<Exchange*>(argument)->finish(0);
    return NL_STOP;
}

int onError(sockaddr_nl*, nlmsgerr* error, void* argument)
{
    static_cast<Exchange*>(argument)->finish(-error->error);
    return NL_STOP;
}

int onInterrupted(nl_msg*, void* argument)
{
    static_cast<Exchange*>(argument)->interrupted = true;
    return NL_OK;
}

Callbacks callbacksFor(Exchange& exchange)
{
    Callbacks callbacks(nl_cb_alloc(NL_CB_DEFAULT));
    if (callbacks) {
        nl_cb_set(callbacks.get(), NL_CB_VALID, NL_CB_CUSTOM, onValid, &exchange);
        nl_cb_set(callbacks.get(), NL_CB_FINISH, NL_CB_CUSTOM, onFinish, &exchange);
        nl_cb_set(callbacks.get(), NL_CB_ACK, NL_CB_CUSTOM, onAcknowledged, &exchange);
        nl_cb_set(callbacks.get(), NL_CB_DUMP_INTR, NL_CB_CUSTOM, onInterrupted, &exchange);
        nl_cb_err(callbacks.get(), NL_CB_CUSTOM, onError, &exchange);
    }
    return callbacks;
}

const nlattr* findAttribute(const nlmsghdr* header, int type)
{
    auto* const generic = static_cast<genlmsghdr*>(nlmsg_data(header));
    if (!genlmsg_valid_hdr(const_cast<nlmsghdr*>(header), 0))
        return nullptr;
    return nla_find(genlmsg_attrdata(generic, 0), genlmsg_attrlen(generic, 0), type);
}

// A cursor over what an attribute of a message holds; empty when the message has none such.
ByteCursor attributeOf(const nlmsghdr* header, int type)
{
    const nlattr* const attribute = findAttribute(header, type);
    if (attribute == nullptr)
        return {};
    return {nla_data(attribute), static_cast<std::size_t>(nla_len(attribute))};
}

std::string lineOf(const fs::path& path)
{
    std::ifstream file(path);
    std::string line;
    std::getline(file, line);
    return line;
}

// What sysfs tells of the radio behind an interface.
class Radio {
public:
    explicit Radio(const std::string& interfaceName)
        : m_path(fs::path("/sys/class/net") / interfaceName / "phy80211")
    {
    }

    bool exists() const
    {
        std::error_code ignored;
        return fs::exists(m_path, ignored);
    }

    // The kernel's number of it; none when it is not told.
    std::optional<std::uint32_t> index() const
    {
        const std::string text = lineOf(m_path / "index");
        char* end = nullptr;
        const unsigned long number = std::strtoul(text.c_str(), &end, 10);
        if (end == text.c_str() || number > UINT32_MAX)
            return std::nullopt;
        return static_cast<std::uint32_t>(number);
    }

    bool isBlocked() const
    {
        std::error_code ignored;
        for (const fs::directory_entry& entry : fs::directory_iterator(m_path, ignored)) {
            const fs::path& path = entry.path();
            const bool blocks = lineOf(path / "soft") == "1" || lineOf(path / "hard") == "1";
            if (path.filename().string().rfind("rfkill", 0) == 0 && blocks)
                return true;
        }
        return false;
    }

private:
    fs::path m_path;
};

enum class ScanEnd { Results, Aborted, TimedOut };

// One scan of one interface: the sockets, the family's number and the deadline over all of it.
class Scan {
public:
    Scan(std::string interfaceName, unsigned interfaceIndex)
        : m_interfaceName(std::move(interfaceName))
        , m_interfaceIndex(interfaceIndex)
        , m_radio(m_interfaceName)
    {
    }

    Report report()
    {
        m_events = openSocket();
        if (!m_events)
            return failure(ExitStatus::KernelError, "cannot open a netlink socket");
        m_family = genl_ctrl_resolve(m_events.get(), NL80211_GENL_NAME);
        if (m_family < 0) {
            return failure(ExitStatus::NoNl80211,
                "this machine's kernel has no wireless interfaces (no nl80211)");
        }
        if (!m_radio.exists()) {
            return failure(
                ExitStatus::NotWireless, m_interfaceName + " is not a wireless interface");
        }
        // Before the trigger: a scan can end before its own acknowledgement has been read.
        const int group =
            genl_ctrl_resolve_grp(m_events.get(), NL80211_GENL_NAME, NL80211_MULTICAST_GROUP_SCAN);
        if (group < 0 || nl_socket_add_membership(m_events.get(), group) < 0
            || nl_socket_set_nonblocking(m_events.get()) < 0)
            return failure(ExitStatus::KernelError, "cannot listen for the end of a scan");
        return scan();
    }

private:
    Report scan()
    {
        for (int attempt = 0; attempt < MostTriggers; ++attempt) {
            drainEvents();
            const int error = trigger();
            if (error == EPERM)
                return stored("no permission to scan (CAP_NET_ADMIN)", ExitStatus::NotPermitted);
            const bool otherScan = error == EBUSY;
            if (error != 0 && !otherScan)
                return refused(error);
            if (otherScan)
                m_remarks.push_back("another scan is under way: taking its results");
            const ScanEnd end = waitForEnd(otherScan);
            if (end == ScanEnd::Results)
                return listed();
            if (end == ScanEnd::TimedOut) {
                if (!otherScan)
                    abortScan();
                return timedOut();
            }
            if (attempt + 1 < MostTriggers)
                m_remarks.push_back("the scan was aborted: once more");
        }
        return stored("the scan was aborted again", ExitStatus::KernelError);
    }

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

    // Sends a request on a socket of its own, so that no answer of an earlier one can be waiting in
    // it, and reads until it is answered. False when the answer is not whole and worth asking for
    // again.
    bool exchange(const Message& message, Exchange& answer) const
    {
        const Socket socket = openSocket();
        const Callbacks callbacks = callbacksFor(answer);
        if (!socket || !callbacks || !message || nl_socket_set_nonblocking(socket.get()) < 0) {
            answer.finish(ENOMEM);
            return true;
        }
        const int sent = nl_send_auto(socket.get(), message.get());
        if (sent < 0)
            answer.finish(EIO);
        while (!answer.finished) {
            if (!waitReadable(socket.get(), answer.deadline)) {
                answer.finish(ETIME);
                break;
            }
            const int result = nl_recvmsgs(socket.get(), callbacks.get());
            if (result < 0 && result != -NLE_AGAIN && !answer.finished)
                answer.finish(ENOBUFS); // the one way in which reading from the kernel fails
        }
        return !answer.interrupted && answer.error != ENOBUFS;
    }

    // An active scan on all channels. No flags: to flush the kernel's list would lose what a scan
    // just before has heard.
    int trigger() const
    {
        const Message request = message(NL80211_CMD_TRIGGER_SCAN, 0);
        if (!request)
            return ENOMEM;
        nlattr* const names = nla_nest_start(request.get(), NL80211_ATTR_SCAN_SSIDS);
        if (names == nullptr || nla_put(request.get(), 1, 0, "") != 0)
            return ENOMEM;
        nla_nest_end(request.get(), names);
        Exchange trigger{nullptr, m_deadline};
        exchange(request, trigger);
        return trigger.error;
    }

    void abortScan() const
    {
        const Deadline deadline(AbortTime);
        Exchange abort{nullptr, deadline};
        exchange(message(NL80211_CMD_ABORT_SCAN, 0), abort);
    }

    // Two interfaces of one radio share its scans and its list, so that the end of either one's
    // scan is what a busy radio has to be waited for.
    bool isOurs(const nlmsghdr* header, bool ofRadio) const
    {
        ByteCursor interfaceIndex = attributeOf(header, NL80211_ATTR_IFINDEX);
        if (interfaceIndex.u32Host() == m_interfaceIndex && interfaceIndex.ok())
            return true;
        ByteCursor radioIndex = attributeOf(header, NL80211_ATTR_WIPHY);
        const std::uint32_t index = radioIndex.u32Host();
        return ofRadio && radioIndex.ok() && m_radio.index() == index;
    }

    // Hands over the events that wait in the socket. False when some were lost.
    bool readEvents(const std::function<void(nlmsghdr*)>& take) const
    {
        Exchange events{take, m_deadline};
        const Callbacks callbacks = callbacksFor(events);
        if (!callbacks)
            return false;
        // Events are answers to nothing and have no sequence.
        nl_cb_set(
            callbacks.get(), NL_CB_SEQ_CHECK, NL_CB_CUSTOM,
            [](nl_msg*, void*) -> int { return NL_OK; }, nullptr);
        int result = 0;
        do {
            result = nl_recvmsgs(m_events.get(), callbacks.get());
        } while (result >= 0 && !m_deadline.hasPassed());
        return result >= 0 || result == -NLE_AGAIN;
    }

    // What came before the trigger tells of earlier scans.
    void drainEvents() const { readEvents(nullptr); }

    ScanEnd waitForEnd(bool ofRadio) const
    {
        while (waitReadable(m_events.get(), m_deadline)) {
            std::optional<ScanEnd> end;
            const bool all = readEvents([this, ofRadio, &end](nlmsghdr* header) {
                if (end || !isOurs(header, ofRadio))
                    return;
                const int command = static_cast<genlmsghdr*>(nlmsg_data(header))->cmd;
                if (command == NL80211_CMD_NEW_SCAN_RESULTS)
                    end = ScanEnd::Results;
                else if (command == NL80211_CMD_SCAN_ABORTED)
                    end = ScanEnd::Aborted;
            });
            // Among lost events may be the one that matters: another scan tells.
            if (end || !all)
                return end.value_or(ScanEnd::Aborted);
        }
        return ScanEnd::TimedOut;
    }

    // Asks for a whole list, again when it changed meanwhile or a buffer ran over. `begin` is
    // called before each attempt, `take` for each entry. Returns an errno.
    int dump(int command, const std::function<void()>& begin,
        const std::function<void(nlmsghdr*)>& take) const
    {
        int error = 0;
        for (int attempt = 0; attempt < MostDumps; ++attempt) {
            begin();
            Exchange dump{take, m_deadline};
            if (exchange(message(command, NLM_F_DUMP), dump))
                return dump.error;
            error = dump.error;
        }
        // A list that kept changing is still a list; one that was not read to its end is none.
        return error;
    }

    int readList(Heard& heard) const
    {
        const auto begin = [&heard] { heard = {}; };
        return dump(NL80211_CMD_GET_SCAN, begin, [&heard](nlmsghdr* header) {
            const ByteCursor bss = attributeOf(header, NL80211_ATTR_BSS);
            if (const auto accessPoint = readBss(bss, heard.malformedElements))
                heard.accessPoints.push_back(*accessPoint);
            else
                ++heard.malformedAccessPoints;
        });
    }

    // Noise is a bonus: most drivers have none, and a failure is no reason to lose the list.
    void addNoise(std::vector<AccessPoint>& accessPoints) const
    {
        std::map<int, int> noise;
        const auto begin = [&noise] { noise.clear(); };
        dump(NL80211_CMD_GET_SURVEY, begin, [&noise](nlmsghdr* header) {
            if (const auto entry = readSurvey(attributeOf(header, NL80211_ATTR_SURVEY_INFO)))
                noise[entry->frequencyMhz] = entry->dbm;
        });
        for (AccessPoint& accessPoint : accessPoints) {
            const auto entry = noise.find(accessPoint.frequencyMhz);
            if (entry != noise.end())
                accessPoint.noiseDbm = entry->second;
        }
    }

    Report listed() const
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

    Report written(Heard heard) const
    {
        addNoise(heard.accessPoints);
        return withRemarks(reportOf(std::move(heard)));
    }

    Report refused(int error) const
    {
        const std::string& name = m_interfaceName;
        switch (error) {
        case ENETDOWN:
        case ERFKILL:
            if (error == ERFKILL || m_radio.isBlocked())
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

    const std::string m_interfaceName;
    const unsigned m_interfaceIndex;
    const Radio m_radio;
    const Deadline m_deadline{ScanTime};
    Socket m_events; // joined to the group "scan"
    int m_family = -1;
    std::vector<std::string> m_remarks;
};

} // namespace

KernelSource::KernelSource(std::string interfaceName)
    : m_interfaceName(std::move(interfaceName))
{
}

Report KernelSource::scan()
{
    const unsigned index = if_nametoindex(m_interfaceName.c_str());
    if (index == 0) {
        return failure(
            ExitStatus::NoSuchInterface, "there is no network interface " + m_interfaceName);
    }
    return Scan(m_interfaceName, index).report();
}

} // namespace wifiscan

#include "netlink.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>

namespace wireless {

namespace {

using std::chrono::milliseconds;

constexpr int ReceiveBuffer = 1024 * 1024; // bytes; the kernel drops messages beyond

using Callbacks = std::unique_ptr<nl_cb, Freer<nl_cb, nl_cb_put>>;

// State of one request, or of one reading of events.
struct Exchange {
    Exchange(const TakeMessage& takeMessage, const Deadline& end)
        : take(takeMessage)
        , deadline(end)
        , answer()
        , finished(false)
    {
    }

    void finish(int error)
    {
        answer.error = error;
        finished = true;
    }

    const TakeMessage& take;
    const Deadline& deadline;
    Answer answer;
    bool finished;
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

// The last message of a dump carries a negative error number if an error ended the dump.
int onFinish(nl_msg* message, void* argument)
{
    const nlmsghdr* const header = nlmsg_hdr(message);
    std::int32_t code = 0;
    if (nlmsg_datalen(header) >= static_cast<int>(sizeof code))
        std::memcpy(&code, nlmsg_data(header), sizeof code);
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
    static_cast<Exchange*>(argument)->answer.interrupted = true;
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

} // namespace

Deadline::Deadline(milliseconds time, int interruption)
    : m_end(std::chrono::steady_clock::now() + time)
    , m_interruption(interruption)
{
}

Deadline Deadline::sooner(milliseconds time) const
{
    return Deadline(std::min(time, left()), m_interruption);
}

milliseconds Deadline::left() const
{
    const auto time = m_end - std::chrono::steady_clock::now();
    return std::max(milliseconds(0), std::chrono::duration_cast<milliseconds>(time));
}

Socket openSocket(int protocol)
{
    Socket socket(nl_socket_alloc());
    if (!socket || nl_connect(socket.get(), protocol) < 0)
        return nullptr;
    // The system may allow less; a smaller buffer only makes lost messages more likely.
    const int file = nl_socket_get_fd(socket.get());
    ::setsockopt(file, SOL_SOCKET, SO_RCVBUF, &ReceiveBuffer, sizeof ReceiveBuffer);
    // libnl's look-ups of a family read from the socket without a deadline; limit each read.
    const timeval bound{1, 0};
    ::setsockopt(file, SOL_SOCKET, SO_RCVTIMEO, &bound, sizeof bound);
    return socket;
}

Ready waitReadable(nl_sock* socket, const Deadline& deadline, const pollfd& other)
{
    // poll() ignores a file of -1.
    pollfd files[] = {
        {deadline.interruption(), POLLIN, 0}, {nl_socket_get_fd(socket), POLLIN, 0}, other};
    int count = 0;
    do {
        count = ::poll(files, 3, static_cast<int>(deadline.left().count()));
    } while (count < 0 && errno == EINTR);
    if (count <= 0 || deadline.hasPassed())
        return files[0].revents != 0 ? Ready::Interrupted : Ready::TimedOut;
    return files[0].revents != 0 ? Ready::Interrupted
        : files[1].revents != 0  ? Ready::Messages
                                 : Ready::Other;
}

Answer exchange(
    const Message& request, const Deadline& deadline, const TakeMessage& take, int protocol)
{
    Exchange exchange(take, deadline);
    // A new socket cannot hold the answer to an earlier request.
    const Socket socket = openSocket(protocol);
    if (!socket)
        return {errno, false};
    const Callbacks callbacks = callbacksFor(exchange);
    if (!callbacks || !request || nl_socket_set_nonblocking(socket.get()) < 0)
        return {ENOMEM, false};
    if (nl_send_auto(socket.get(), request.get()) < 0)
        return {EIO, false};
    while (!exchange.finished) {
        const Ready ready = waitReadable(socket.get(), deadline);
        if (ready != Ready::Messages) {
            exchange.finish(ready == Ready::Interrupted ? EINTR : ETIME);
            break;
        }
        const int result = nl_recvmsgs(socket.get(), callbacks.get());
        if (result < 0 && result != -NLE_AGAIN && !exchange.finished)
            exchange.finish(ENOBUFS); // a read from the kernel fails only if messages were lost
    }
    return exchange.answer;
}

bool readEvents(nl_sock* socket, const Deadline& deadline, const TakeMessage& take)
{
    Exchange events(take, deadline);
    const Callbacks callbacks = callbacksFor(events);
    if (!callbacks)
        return false;
    // Events do not answer a request, so their sequence numbers are not checked.
    nl_cb_set(
        callbacks.get(), NL_CB_SEQ_CHECK, NL_CB_CUSTOM, [](nl_msg*, void*) -> int { return NL_OK; },
        nullptr);
    int result = 0;
    do {
        result = nl_recvmsgs(socket, callbacks.get());
    } while (result >= 0 && !deadline.hasPassed());
    return result >= 0 || result == -NLE_AGAIN;
}

int commandOf(const nlmsghdr* header)
{
    return static_cast<const genlmsghdr*>(nlmsg_data(header))->cmd;
}

const nlattr* attributeOf(const nlmsghdr* header, int type)
{
    auto* const generic = static_cast<genlmsghdr*>(nlmsg_data(header));
    if (!genlmsg_valid_hdr(const_cast<nlmsghdr*>(header), 0))
        return nullptr;
    return nla_find(genlmsg_attrdata(generic, 0), genlmsg_attrlen(generic, 0), type);
}

bool readNumber(const nlmsghdr* header, int type, std::uint32_t& number)
{
    const nlattr* const attribute = attributeOf(header, type);
    if (attribute == nullptr || nla_len(attribute) != static_cast<int>(sizeof number))
        return false;
    number = nla_get_u32(attribute);
    return true;
}

} // namespace wireless

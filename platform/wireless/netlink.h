#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <netlink/genl/genl.h>
#include <netlink/netlink.h>
#include <poll.h>

namespace wireless {

/// The latest end of a wait, and an optional file that ends it earlier.
class Deadline {
public:
    /// The deadline is `time` from now. `interruption` is an open file descriptor, owned by the
    /// caller; it ends every wait when it can be read. -1 means no such file.
    explicit Deadline(std::chrono::milliseconds time, int interruption = -1);

    /// The same, but no later than `time` from now.
    Deadline sooner(std::chrono::milliseconds time) const;

    /// Time left until the deadline; zero after it.
    std::chrono::milliseconds left() const;

    bool hasPassed() const { return left().count() == 0; }
    int interruption() const { return m_interruption; }

private:
    std::chrono::steady_clock::time_point m_end;
    int m_interruption;
};

/// Deleter for std::unique_ptr that calls libnl's function for the object's type.
template <typename Object, void (*Free)(Object*)> struct Freer {
    void operator()(Object* object) const { Free(object); }
};
using Socket = std::unique_ptr<nl_sock, Freer<nl_sock, nl_socket_free>>;
using Message = std::unique_ptr<nl_msg, Freer<nl_msg, nlmsg_free>>;

/// Receives one message, which is valid only during the call.
using TakeMessage = std::function<void(const nlmsghdr* header)>;

/// A netlink socket with a receive buffer of up to 1 MiB. Its blocking reads take a second at most.
/// Null if the kernel refuses it.
Socket openSocket(int protocol = NETLINK_GENERIC);

/// Reason for the end of a wait.
enum class Ready { Messages, Other, Interrupted, TimedOut };

/// Waits until the socket can be read or an event of `other` occurs; -1 as the file of `other`
/// means that there is no other file.
Ready waitReadable(nl_sock* socket, const Deadline& deadline, const pollfd& other = {-1, 0, 0});

/// The result of a request.
struct Answer {
    int error;        ///< an errno, 0 for success
    bool interrupted; ///< the kernel's list changed during the dump and may be inconsistent
};

/// Sends a request and passes the messages of the answer to `take`, until the answer ends. The
/// error is ETIME at the deadline, EINTR when interrupted, EIO if sending fails, ENOBUFS if
/// messages were lost, and ENOMEM if `request` is null. Other errors are the kernel's.
Answer exchange(const Message& request, const Deadline& deadline, const TakeMessage& take = nullptr,
    int protocol = NETLINK_GENERIC);

/// Passes the waiting events of a non-blocking socket to `take`. Returns false if events were lost.
bool readEvents(nl_sock* socket, const Deadline& deadline, const TakeMessage& take);

/// The command of a generic netlink message. `header` must come from exchange() or readEvents().
int commandOf(const nlmsghdr* header);

/// An attribute of a message; null if the message does not have it.
const nlattr* attributeOf(const nlmsghdr* header, int type);

/// Reads an attribute that is a 32-bit number. Returns false if the message does not have it with
/// this length.
bool readNumber(const nlmsghdr* header, int type, std::uint32_t& number);

} // namespace wireless

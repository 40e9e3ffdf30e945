#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <netlink/genl/genl.h>
#include <netlink/netlink.h>
#include <poll.h>

namespace wireless {

/// A moment that nothing here waits beyond, and what else ends the waiting.
class Deadline {
public:
    /// `interruption` is an open file that ends every wait once it can be read, and stays its
    /// owner's; -1 for none.
    explicit Deadline(std::chrono::milliseconds time, int interruption = -1);

    /// The same, but no later than `time` from now.
    Deadline sooner(std::chrono::milliseconds time) const;

    /// What is left until then; zero afterwards.
    std::chrono::milliseconds left() const;

    bool hasPassed() const { return left().count() == 0; }
    int interruption() const { return m_interruption; }

private:
    std::chrono::steady_clock::time_point m_end;
    int m_interruption;
};

/// Calls libnl's function for objects of a kind, so that a std::unique_ptr can own one.
template <typename Object, void (*Free)(Object*)> struct Freer {
    void operator()(Object* object) const { Free(object); }
};
using Socket = std::unique_ptr<nl_sock, Freer<nl_sock, nl_socket_free>>;
using Message = std::unique_ptr<nl_msg, Freer<nl_msg, nlmsg_free>>;

/// Takes one message, which stays where it is until it returns.
using TakeMessage = std::function<void(const nlmsghdr* header)>;

/// A generic netlink socket with a large buffer, whose blocking reads take a second at most; none
/// when the kernel refuses one.
Socket openSocket();

/// Why a wait ended.
enum class Ready { Messages, Other, Interrupted, TimedOut };

/// Waits until the socket can be read, or what `other` waits for has come. Its file may be -1:
/// none.
Ready waitReadable(nl_sock* socket, const Deadline& deadline, const pollfd& other = {-1, 0, 0});

/// What came back on a request.
struct Answer {
    int error;        ///< an errno, 0 for success
    bool interrupted; ///< what was listed is not one consistent list
};

/// Sends a request and hands over what it is answered with, until the answer ends. The error is
/// ETIME at the deadline, EINTR when interrupted, ENOBUFS when messages were lost, and ENOMEM when
/// `request` is none.
Answer exchange(
    const Message& request, const Deadline& deadline, const TakeMessage& take = nullptr);

/// Hands over the events that wait in a socket that does not block. False when some were lost.
bool readEvents(nl_sock* socket, const Deadline& deadline, const TakeMessage& take);

/// The command of a generic netlink message, which must have been handed over here.
int commandOf(const nlmsghdr* header);

/// An attribute of a message; null when it has none such.
const nlattr* attributeOf(const nlmsghdr* header, int type);

/// Reads an attribute of a message that is a 32-bit number. False when there is none of that
/// length.
bool readNumber(const nlmsghdr* header, int type, std::uint32_t& number);

} // namespace wireless

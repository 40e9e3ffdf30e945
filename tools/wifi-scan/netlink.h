#pragma once

#include "bytecursor.h"

#include <chrono>
#include <functional>
#include <memory>
#include <netlink/genl/genl.h>
#include <netlink/netlink.h>

namespace wifiscan {

/// A moment that nothing here waits beyond.
class Deadline {
public:
    explicit Deadline(std::chrono::milliseconds time);

    /// What is left until then; zero afterwards.
    std::chrono::milliseconds left() const;

    bool hasPassed() const { return left().count() == 0; }

private:
    std::chrono::steady_clock::time_point m_end;
};

/// Calls libnl's function for objects of a kind, so that a std::unique_ptr can own one.
template <auto Free> struct Freer {
    template <typename Object> void operator()(Object* object) const { Free(object); }
};
using Socket = std::unique_ptr<nl_sock, Freer<nl_socket_free>>;
using Message = std::unique_ptr<nl_msg, Freer<nlmsg_free>>;

/// Takes one message, which stays where it is until it returns.
using TakeMessage = std::function<void(const nlmsghdr* header)>;

/// A generic netlink socket with a large buffer, whose blocking reads take a second at most; none
/// when the kernel refuses one.
Socket openSocket();

/// True when there is something to read before the deadline.
bool waitReadable(nl_sock* socket, const Deadline& deadline);

/// What came back on a request.
struct Answer {
    int error = 0;            ///< an errno, 0 for success
    bool interrupted = false; ///< what was listed is not one consistent list
};

/// Sends a request and hands over what it is answered with, until the answer ends. The error is
/// ETIME at the deadline, ENOBUFS when messages were lost, and ENOMEM when `request` is none.
Answer exchange(const Message& request, const Deadline& deadline, const TakeMessage& take = {});

/// Hands over the events that wait in a socket that does not block. False when some were lost.
bool readEvents(nl_sock* socket, const Deadline& deadline, const TakeMessage& take);

/// The command of a generic netlink message, which must have been handed over here.
int commandOf(const nlmsghdr* header);

/// A cursor over what an attribute of a message holds; empty when the message has none such.
ByteCursor attributeOf(const nlmsghdr* header, int type);

} // namespace wifiscan

#include "privilege.h"

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace wifiscan {

namespace {

enum class Privilege { Dropped, Lowered, Raised };

// A capability that the program does not have cannot be raised; the kernel refuses the request that
// needs it then.
void set(Privilege privilege)
{
    constexpr __u32 Bit = 1U << CAP_NET_ADMIN; // in the first of two words of capabilities
    __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct sets[_LINUX_CAPABILITY_U32S_3] = {};
    if (::syscall(SYS_capget, &header, sets) != 0)
        return;
    if (privilege == Privilege::Dropped) {
        sets[0].permitted &= ~Bit;
        sets[0].inheritable &= ~Bit;
    }
    sets[0].effective &= ~Bit;
    if (privilege == Privilege::Raised)
        sets[0].effective |= sets[0].permitted & Bit;
    ::syscall(SYS_capset, &header, sets);
}

} // namespace

RaisedPrivilege::RaisedPrivilege()
{
    set(Privilege::Raised);
}

RaisedPrivilege::~RaisedPrivilege()
{
    set(Privilege::Lowered);
}

void lowerPrivilege()
{
    set(Privilege::Lowered);
}

void dropPrivilege()
{
    set(Privilege::Dropped);
}

} // namespace wifiscan

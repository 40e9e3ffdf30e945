#include "ifconfig.h"

#include "interfaces.h"
#include "privilege.h"

#include <net/if.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace wifiscan {

void bringUp(const std::string& interfaceName)
{
    wireless::Interface interface = {};
    if (wireless::findInterface(interfaceName, interface) != wireless::Lookup::Found)
        return;
    ifreq request = {};
    if (interface.name.size() >= sizeof request.ifr_name)
        return;
    interface.name.copy(request.ifr_name, sizeof request.ifr_name - 1);
    const int socket = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (socket < 0)
        return;
    if (::ioctl(socket, SIOCGIFFLAGS, &request) == 0 && (request.ifr_flags & IFF_UP) == 0) {
        request.ifr_flags = static_cast<short>(request.ifr_flags | IFF_UP);
        const RaisedPrivilege raised;
        ::ioctl(socket, SIOCSIFFLAGS, &request);
    }
    ::close(socket);
}

} // namespace wifiscan

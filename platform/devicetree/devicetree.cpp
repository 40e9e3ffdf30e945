#include "devicetree.h"

#include "environment.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace devicetree {

namespace {

std::string variable(const char* name)
{
    const char* const value = std::getenv(name);
    return value ? value : "";
}

std::string homeFolder()
{
    std::string home = variable("HOME");
    if (!home.empty())
        return home;
    const passwd* const user = getpwuid(getuid());
    return user && user->pw_dir ? user->pw_dir : "/tmp";
}

} // namespace

std::string root()
{
    std::string named = variable(environment::DeviceRoot);
    while (named.size() > 1 && named[named.size() - 1] == '/')
        named.erase(named.size() - 1);
    if (!named.empty() && named != "/")
        return named;
    // The XDG Base Directory Specification: a relative path in the variable is ignored.
    std::string data = variable("XDG_DATA_HOME");
    if (data.empty() || data[0] != '/')
        data = homeFolder() + "/.local/share";
    return data + "/wifiondivo/device";
}

} // namespace devicetree

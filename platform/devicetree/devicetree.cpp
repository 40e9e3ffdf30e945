#include "devicetree.h"

#include "environment.h"

#include <cstdlib>
#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace devicetree {

namespace {

const off_t MaxFileBytes = 65536;

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

std::string contentOf(const char* path)
{
    std::string content;
    const int file = open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return content;
    struct stat info;
    if (fstat(file, &info) == 0 && S_ISREG(info.st_mode) && info.st_size <= MaxFileBytes) {
        content.resize(static_cast<std::string::size_type>(info.st_size));
        const ssize_t length = read(file, &content[0], content.size());
        content.resize(length > 0 ? static_cast<std::string::size_type>(length) : 0);
    }
    close(file);
    return content;
}

} // namespace devicetree

#include "output.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

namespace wifiscan {

namespace {

// The mode that a plainly created file gets; mkstemp() gives the owner alone access.
mode_t newFileMode()
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

bool fillAndClose(int file, const std::string& text)
{
    const bool written =
        writeAll(file, text) && ::fchmod(file, newFileMode()) == 0 && ::fsync(file) == 0;
    const int error = errno;
    const bool closed = ::close(file) == 0;
    if (!written)
        errno = error;
    return written && closed;
}

} // namespace

bool writeAll(int file, const std::string& text)
{
    std::size_t size = 0;
    while (size < text.size()) {
        const ssize_t count = ::write(file, text.data() + size, text.size() - size);
        if (count < 0 && errno != EINTR)
            return false;
        if (count > 0)
            size += static_cast<std::size_t>(count);
    }
    return true;
}

bool keep(const std::string& path, const std::string& text)
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
        return false;
    }
    std::string temporary = path + ".XXXXXX";
    const int file = ::mkstemp(temporary.data());
    if (file < 0)
        return false;
    if (fillAndClose(file, text) && std::rename(temporary.c_str(), path.c_str()) == 0)
        return true;
    const int error = errno;
    ::unlink(temporary.c_str());
    errno = error;
    return false;
}

} // namespace wifiscan

#include "atomicfile.h"

#include "textcursor.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace wifiscan {

namespace {

namespace fs = std::filesystem;

constexpr const char* Mark = ".new-"; // between a file's name and the number of the process

// Removes the temporary files of killed programs beside a path.
void removeLeftOvers(const fs::path& path)
{
    const std::string beginning = path.filename().string() + Mark;
    std::error_code ignored;
    const fs::directory_iterator folder(path.has_parent_path() ? path.parent_path() : ".", ignored);
    for (const fs::directory_entry& entry : folder) {
        const std::string name = entry.path().filename().string();
        std::string_view number = name;
        if (!takePrefix(number, beginning))
            continue;
        const std::optional<pid_t> process = takeNumber<pid_t>(number);
        if (process && *process > 0 && number.empty() && ::kill(*process, 0) != 0 && errno == ESRCH)
            fs::remove(entry.path(), ignored);
    }
}

bool fillAndClose(int file, const std::string& text, std::optional<mode_t> mode)
{
    const bool written =
        (!mode || ::fchmod(file, *mode) == 0) && writeAll(file, text) && ::fsync(file) == 0;
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
    std::optional<mode_t> mode; // of the file that is replaced
    if (::stat(path.c_str(), &status) == 0) {
        if (!S_ISREG(status.st_mode)) {
            errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
            return false;
        }
        mode = status.st_mode & 0777;
    }
    removeLeftOvers(path);
    const std::string temporary = path + Mark + std::to_string(::getpid());
    ::unlink(temporary.c_str()); // of an earlier process of that number
    const int file = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file < 0)
        return false;
    if (fillAndClose(file, text, mode) && std::rename(temporary.c_str(), path.c_str()) == 0)
        return true;
    const int error = errno;
    ::unlink(temporary.c_str());
    errno = error;
    return false;
}

} // namespace wifiscan

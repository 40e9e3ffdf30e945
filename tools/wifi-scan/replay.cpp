#include "replay.h"

#include "iwtext.h"
#include "lines.h"
#include "writer.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace wifiscan {

namespace {

Replay unusable(const std::string& path, const std::string& reason)
{
    return {ReplayKind::None, {}, path + ": " + reason};
}

// Reads to the end of the file, or one byte more than is allowed. False with errno on an error.
bool readAll(int file, std::string& contents)
{
    contents.resize(LargestReplay + 1);
    std::size_t size = 0;
    while (size < contents.size()) {
        const ssize_t count = ::read(file, &contents[size], contents.size() - size);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return false;
        if (count == 0)
            break;
        size += static_cast<std::size_t>(count);
    }
    contents.resize(size);
    return true;
}

Replay readOpened(int file, const std::string& path)
{
    struct stat status = {};
    if (::fstat(file, &status) != 0)
        return unusable(path, std::strerror(errno));
    if (!S_ISREG(status.st_mode))
        return unusable(path, "not a regular file");
    Replay replay;
    if (!readAll(file, replay.contents))
        return unusable(path, std::strerror(errno));
    if (replay.contents.size() > LargestReplay)
        return unusable(path, "larger than 1 MiB, which no scan is");
    replay.kind = kindOf(replay.contents);
    if (replay.kind == ReplayKind::None)
        return unusable(path, "neither a scenario nor the text of \"iw dev IFACE scan\"");
    return replay;
}

} // namespace

ReplayKind kindOf(std::string_view contents)
{
    for (std::string_view text = contents; !text.empty();) {
        std::string_view line = takeLine(text);
        if (takePrefix(line, "wifiscan: "))
            return ReplayKind::Scenario;
    }
    return isIwText(contents) ? ReplayKind::IwText : ReplayKind::None;
}

Replay readReplay(const std::string& path)
{
    const int file = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (file < 0)
        return unusable(path, std::strerror(errno));
    Replay replay = readOpened(file, path);
    ::close(file);
    return replay;
}

ReplaySource::ReplaySource(std::string path)
    : m_path(std::move(path))
{
}

Report ReplaySource::scan()
{
    Replay replay = readReplay(m_path);
    switch (replay.kind) {
    case ReplayKind::Scenario:
        return {std::move(replay.contents), {}, ExitStatus::Done};
    case ReplayKind::IwText:
        return reportOf(readIwText(replay.contents));
    case ReplayKind::None:
        break;
    }
    return failure(ExitStatus::BadReplay, "cannot replay " + replay.problem);
}

} // namespace wifiscan

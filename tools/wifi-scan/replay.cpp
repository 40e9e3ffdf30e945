#include "replay.h"

#include "capture.h"
#include "iwtext.h"
#include "textcursor.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace wifiscan {

namespace {

Replay unusable(const std::string& name, const std::string& reason)
{
    Replay replay;
    replay.problem = name + ": " + reason;
    return replay;
}

// Reads to the end of the file, or a little more than is allowed. False with errno on an error.
bool readAll(int file, std::string& contents)
{
    char part[65536];
    while (contents.size() <= MaxReplayBytes) {
        const ssize_t count = ::read(file, part, sizeof part);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return count == 0;
        contents.append(part, static_cast<std::size_t>(count));
    }
    return true;
}

bool isScenario(std::string_view text)
{
    while (!text.empty()) {
        if (takeLine(text).substr(0, 10) == "wifiscan: ")
            return true;
    }
    return false;
}

// The name of another tool that printed the text; empty if it is unknown.
std::string otherTool(std::string_view text)
{
    const auto has = [](std::string_view line, std::string_view words) {
        return line.find(words) != std::string_view::npos;
    };
    while (!text.empty()) {
        const std::string_view line = takeLine(text);
        if (has(line, "Cell ") && has(line, " - Address: "))
            return "iwlist";
        if (has(line, "SSID ") && has(line, " CHAN ") && has(line, " SIGNAL"))
            return "nmcli";
    }
    return {};
}

// Why contents of no known kind are of no use.
std::string reasonAgainst(std::string_view contents)
{
    const std::string_view mark = contents.substr(0, 2);
    if (mark == "\x1f\x8b")
        return "packed by gzip; unpack it first, with gunzip";
    if (mark == "\xff\xfe" || mark == "\xfe\xff")
        return "a text in UTF-16, of which only UTF-8 can be read";
    if (kindOfIwText(contents) == IwText::Masked)
        return "its addresses are masked, and without them access points cannot be told apart";
    const bool isText = contents.find('\0') == std::string_view::npos;
    const std::string tool = isText ? otherTool(contents) : "";
    return tool.empty()
        ? "neither a scenario nor a capture of frames nor the text of \"iw dev IFACE scan\""
        : "this is the text of " + tool + "; that of \"iw dev IFACE scan\" is what can be read";
}

Replay scenarioOf(std::string contents, const std::string& name)
{
    const auto lines = std::count(contents.begin(), contents.end(), '\n');
    if (contents.size() > MaxScenarioBytes || lines > MaxScenarioLines)
        return unusable(name, "larger than a scenario can be, which is 64 KiB or 256 lines");
    Replay replay;
    replay.kind = ReplayKind::Scenario;
    replay.scenario = std::move(contents);
    return replay;
}

Replay readOpened(int file, const std::string& path)
{
    struct stat status = {};
    if (::fstat(file, &status) != 0)
        return unusable(path, std::strerror(errno));
    if (!S_ISREG(status.st_mode))
        return unusable(path, "not a regular file");
    std::string contents;
    if (!readAll(file, contents))
        return unusable(path, std::strerror(errno));
    return readContents(std::move(contents), path);
}

Replay readFrames(std::string_view contents, const std::string& name)
{
    Capture capture = readCapture(contents);
    if (!capture.problem.empty())
        return unusable(name, capture.problem);
    Replay replay;
    replay.kind = ReplayKind::Capture;
    replay.heard = std::move(capture.heard);
    return replay;
}

} // namespace

Replay readContents(std::string contents, const std::string& name)
{
    if (contents.size() > MaxReplayBytes)
        return unusable(name, "larger than 16 MiB, which no scan is");
    if (isCapture(contents))
        return readFrames(contents, name);
    if (isScenario(contents))
        return scenarioOf(std::move(contents), name);
    if (kindOfIwText(contents) != IwText::Readable)
        return unusable(name, reasonAgainst(contents));
    Replay replay;
    replay.kind = ReplayKind::IwText;
    replay.heard = readIwText(contents);
    return replay;
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

ScanResult ReplaySource::scan()
{
    Replay replay = readReplay(m_path);
    if (replay.kind == ReplayKind::None)
        return failure(ExitStatus::BadReplay, "cannot replay " + replay.problem);
    ScanResult result = scanResultOf(std::move(replay.heard));
    result.scenario = std::move(replay.scenario);
    return result;
}

} // namespace wifiscan

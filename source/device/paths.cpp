#include "device/paths.h"

namespace wifiondivo {
namespace device {

namespace {

/// Quotes a text for use as a word of a shell command, or as the beginning of a word.
std::string shellQuoted(const std::string& text)
{
    std::string quoted = "'";
    for (const char character : text) {
        if (character == '\'')
            quoted += "'\\''";
        else
            quoted += character;
    }
    return quoted + "'";
}

} // namespace

std::string path(const char* onTestSet)
{
    return root() + onTestSet;
}

std::string command(const char* onTestSet)
{
    const std::string folder = root();
    if (folder.empty())
        return onTestSet;
    std::string rooted;
    char before = ' ';
    for (const char* next = onTestSet; *next; before = *next++) {
        if (*next == '/' && before == ' ')
            rooted += shellQuoted(folder);
        rooted += *next;
    }
    return rooted;
}

std::string makeFolder(const std::string& path)
{
    return "mkdir -p " + shellQuoted(path);
}

} // namespace device
} // namespace wifiondivo

#include "device/paths.h"

namespace wifiondivo {
namespace device {

namespace {

/// Quotes a text as one word of a shell command.
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

std::string makeFolder(const std::string& path)
{
    return "mkdir -p " + shellQuoted(path);
}

} // namespace device
} // namespace wifiondivo

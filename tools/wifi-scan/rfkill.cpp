#include "rfkill.h"

#include <fstream>
#include <string>

namespace wifiscan {

namespace {

namespace fs = std::filesystem;

std::string lineOf(const fs::path& path)
{
    std::ifstream file(path);
    std::string line;
    std::getline(file, line);
    return line;
}

bool isOff(const fs::path& rfkill)
{
    return rfkill.filename().string().rfind("rfkill", 0) == 0
        && (lineOf(rfkill / "soft") == "1" || lineOf(rfkill / "hard") == "1");
}

} // namespace

bool isBlocked(const fs::path& radios, std::uint32_t index)
{
    std::error_code ignored;
    for (const fs::directory_entry& radio : fs::directory_iterator(radios, ignored)) {
        // A radio can be renamed, so that its number is not told by its name.
        if (lineOf(radio.path() / "index") != std::to_string(index))
            continue;
        for (const fs::directory_entry& entry : fs::directory_iterator(radio.path(), ignored)) {
            if (isOff(entry.path()))
                return true;
        }
    }
    return false;
}

} // namespace wifiscan

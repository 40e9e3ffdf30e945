#include "CNetUpdateHelper.h"

#include "devicetree.h"

#include <algorithm>
#include <cstring>
#include <sstream>
#include <string>
#include <strings.h>

namespace swupdate {

namespace {

std::string trimmed(const std::string& text)
{
    const char* const blanks = " \t\r";
    const std::string::size_type first = text.find_first_not_of(blanks);
    if (first == std::string::npos)
        return std::string();
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

} // namespace

CNetUpdateHelper::CNetUpdateHelper() { }

CNetUpdateHelper::~CNetUpdateHelper() { }

int CNetUpdateHelper::GetVersion2(const char* path, char* buffer, unsigned int size)
{
    if (size == 0)
        return -1;
    buffer[0] = '\0';
    const std::string key = "version=";
    std::istringstream in(devicetree::contentOf(path));
    for (std::string line; std::getline(in, line);) {
        if (strncasecmp(line.c_str(), key.c_str(), key.size()) != 0)
            continue;
        const std::string version = trimmed(line.substr(key.size()));
        const std::string::size_type kept =
            std::min(version.size(), static_cast<std::string::size_type>(size - 1));
        std::memcpy(buffer, version.data(), kept);
        buffer[kept] = '\0';
        return 0;
    }
    return -1;
}

} // namespace swupdate

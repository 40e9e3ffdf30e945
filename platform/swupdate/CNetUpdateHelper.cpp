#include "CNetUpdateHelper.h"

#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <sstream>
#include <string>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

namespace swupdate {

namespace {

const off_t MaxFileBytes = 65536;

/// The content of a file; empty if it cannot be read, is not a regular file or is larger than
/// MaxFileBytes. Reading another kind of file might block.
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
    std::istringstream in(contentOf(path));
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

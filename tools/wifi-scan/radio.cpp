#include "radio.h"

#include "lines.h"

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

} // namespace

Radio::Radio(fs::path folder)
    : m_folder(std::move(folder))
{
}

bool Radio::exists() const
{
    std::error_code ignored;
    return fs::exists(m_folder, ignored);
}

std::optional<std::uint32_t> Radio::index() const
{
    const std::string line = lineOf(m_folder / "index");
    std::string_view text = line;
    return takeNumber<std::uint32_t>(text);
}

bool Radio::isBlocked() const
{
    std::error_code ignored;
    for (const fs::directory_entry& entry : fs::directory_iterator(m_folder, ignored)) {
        const fs::path& path = entry.path();
        const bool blocks = lineOf(path / "soft") == "1" || lineOf(path / "hard") == "1";
        if (path.filename().string().rfind("rfkill", 0) == 0 && blocks)
            return true;
    }
    return false;
}

} // namespace wifiscan

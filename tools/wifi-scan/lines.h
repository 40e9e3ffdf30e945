#pragma once

#include <charconv>
#include <optional>
#include <string_view>

namespace wifiscan {

/// Takes the next line off a text, without its line feed and a carriage return before that.
/// The last one need not be ended. Call it while the text is not empty.
inline std::string_view takeLine(std::string_view& text)
{
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return line;
}

/// Takes a beginning off a text, if it begins so.
inline bool takePrefix(std::string_view& text, std::string_view prefix)
{
    if (text.substr(0, prefix.size()) != prefix)
        return false;
    text.remove_prefix(prefix.size());
    return true;
}

/// Takes a number off the beginning of a text, in digits of the base. Nothing when there is none or
/// when it does not fit; the text stays then.
template <typename Number> std::optional<Number> takeNumber(std::string_view& text, int base = 10)
{
    Number number = 0;
    const char* const end = text.data() + text.size();
    const std::from_chars_result result = std::from_chars(text.data(), end, number, base);
    if (result.ec != std::errc())
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(result.ptr - text.data()));
    return number;
}

} // namespace wifiscan

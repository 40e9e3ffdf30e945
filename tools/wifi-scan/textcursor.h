#pragma once

#include "accesspoint.h"

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

/// Takes a number off the beginning of a text, in digits of the base. Returns nothing if there is
/// no number or when it does not fit; the text stays then.
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

/// Takes two hexadecimal digits off the beginning of a text. Nothing without them; the text stays
/// then.
inline std::optional<std::uint8_t> takeHexByte(std::string_view& text)
{
    std::string_view digits = text.substr(0, 2);
    const std::optional<std::uint8_t> byte = takeNumber<std::uint8_t>(digits, 16);
    if (!byte || !digits.empty() || text.size() < 2)
        return std::nullopt;
    text.remove_prefix(2);
    return byte;
}

/// Takes "aa:bb:cc:dd:ee:ff" off the beginning of a text. Nothing when there is no whole address.
inline std::optional<Address> takeAddress(std::string_view& text)
{
    Address address = {};
    for (std::size_t i = 0; i < address.size(); ++i) {
        const std::optional<std::uint8_t> byte =
            i == 0 || takePrefix(text, ":") ? takeHexByte(text) : std::nullopt;
        if (!byte)
            return std::nullopt;
        address[i] = *byte;
    }
    return address;
}

} // namespace wifiscan

#include "iwtext.h"

#include "lines.h"

#include <optional>
#include <vector>

namespace wifiscan {

namespace {

std::optional<std::uint8_t> takeHexByte(std::string_view& text)
{
    std::string_view digits = text.substr(0, 2);
    if (digits.size() < 2)
        return std::nullopt;
    const std::optional<std::uint8_t> byte = takeNumber<std::uint8_t>(digits, 16);
    if (!byte || !digits.empty())
        return std::nullopt;
    text.remove_prefix(2);
    return byte;
}

// "aa:bb:cc:dd:ee:ff(on wlan0)", with or without the blank, or nothing behind the address.
std::optional<Address> readHead(std::string_view text)
{
    Address address = {};
    for (std::size_t i = 0; i < address.size(); ++i) {
        if (i > 0 && !takePrefix(text, ":"))
            return std::nullopt;
        const std::optional<std::uint8_t> byte = takeHexByte(text);
        if (!byte)
            return std::nullopt;
        address[i] = *byte;
    }
    if (!text.empty() && text.front() != '(' && text.front() != ' ')
        return std::nullopt;
    return address;
}

// iw writes each byte of a name that is not printable ASCII, backslashes and outer blanks as \xNN.
std::string unescaped(std::string_view text)
{
    std::string name;
    while (!text.empty()) {
        std::string_view escape = text;
        std::optional<std::uint8_t> byte;
        if (takePrefix(escape, "\\x"))
            byte = takeHexByte(escape);
        if (byte) {
            name += static_cast<char>(*byte);
            text = escape;
        } else {
            name += text.front();
            text.remove_prefix(1);
        }
    }
    return name;
}

// "-57.00 dBm" from a driver that knows levels, "60/100" from one that does not.
Signal readSignal(std::string_view text)
{
    const bool negative = !text.empty() && text.front() == '-';
    const std::optional<int> whole = takeNumber<int>(text);
    if (!whole)
        return {};
    if (takePrefix(text, "/"))
        return {Signal::Unit::Percent, *whole < 0 ? 0 : *whole > 100 ? 100 : *whole};
    if (*whole < -1000 || *whole > 1000)
        return {};
    int hundredths = 0;
    if (takePrefix(text, ".")) {
        std::string_view digits = text.substr(0, 2);
        const bool oneDigit = digits.size() < 2 || digits[1] < '0' || digits[1] > '9';
        hundredths = takeNumber<std::uint8_t>(digits).value_or(0) * (oneDigit ? 10 : 1);
    }
    // Of "-0.50" the sign stands before a zero.
    return {Signal::Unit::Mbm, *whole * 100 + (negative ? -hundredths : hundredths)};
}

// "ESS Privacy ShortSlotTime (0x0411)"
unsigned readCapability(std::string_view text)
{
    const std::size_t hex = text.rfind("(0x");
    if (hex != std::string_view::npos) {
        std::string_view digits = text.substr(hex + 3);
        if (const std::optional<unsigned> bits = takeNumber<unsigned>(digits, 16))
            return *bits;
    }
    const bool privacy = text.find("Privacy") != std::string_view::npos;
    const bool ibss = text.find("IBSS") != std::string_view::npos;
    return (privacy ? CapabilityPrivacy : 0) | (ibss ? CapabilityIbss : 0);
}

// One access point of the text, line by line.
class Block {
public:
    explicit Block(const Address& address) { m_accessPoint.address = address; }

    // The block's keys are indented as its first line is; what is indented deeper belongs to a
    // section, where the same words mean something else.
    void takeLine(std::string_view line, int& malformedElements)
    {
        const std::size_t indent = line.find_first_not_of(" \t");
        if (indent == std::string_view::npos)
            return;
        if (m_indent == 0)
            m_indent = indent;
        if (indent == m_indent)
            takeKey(line.substr(indent), malformedElements);
    }

    std::optional<AccessPoint> accessPoint() const
    {
        AccessPoint result = m_accessPoint;
        if (result.frequencyMhz == 0)
            result.frequencyMhz = frequencyOf24GhzChannel(m_channel);
        if (result.frequencyMhz == 0)
            return std::nullopt;
        result.adHoc = (m_capability & CapabilityIbss) != 0;
        result.security = securityOf(m_rsn, m_wpa, (m_capability & CapabilityPrivacy) != 0);
        return result;
    }

private:
    void takeKey(std::string_view text, int& malformedElements)
    {
        if (takePrefix(text, "SSID:"))
            takeName(text, malformedElements);
        else if (takePrefix(text, "freq: "))
            m_accessPoint.frequencyMhz = takeNumber<int>(text).value_or(0);
        else if (takePrefix(text, "signal: "))
            m_accessPoint.signal = readSignal(text);
        else if (takePrefix(text, "capability: "))
            m_capability = readCapability(text);
        else if (takePrefix(text, "last seen: "))
            takeAge(text);
        else if (takePrefix(text, "DS Parameter set: channel "))
            m_channel = takeNumber<int>(text).value_or(0);
        else if (takePrefix(text, "RSN:"))
            m_rsn = true;
        else if (takePrefix(text, "WPA:"))
            m_wpa = true;
    }

    // iw can print the elements of the probe response and then those of the beacon, in which a
    // hidden network does not tell its name.
    void takeName(std::string_view text, int& malformedElements)
    {
        takePrefix(text, " ");
        const std::string name = unescaped(text);
        if (name.size() > LongestName)
            ++malformedElements;
        else if (isHidden(m_accessPoint.name))
            m_accessPoint.name = name;
    }

    // Newer versions print a second line of the kind, "last seen: 512.345s [boottime]".
    void takeAge(std::string_view text)
    {
        const std::optional<std::uint32_t> age = takeNumber<std::uint32_t>(text);
        if (age && takePrefix(text, " ms ago"))
            m_accessPoint.ageMs = age;
    }

    AccessPoint m_accessPoint;
    std::size_t m_indent = 0;
    int m_channel = 0;
    unsigned m_capability = 0;
    bool m_rsn = false;
    bool m_wpa = false;
};

constexpr std::string_view BlockBegin = "BSS ";

} // namespace

bool isIwText(std::string_view text)
{
    while (!text.empty()) {
        std::string_view line = takeLine(text);
        if (takePrefix(line, BlockBegin) && readHead(line))
            return true;
    }
    return false;
}

Heard readIwText(std::string_view text)
{
    Heard heard;
    std::vector<Block> blocks;
    bool inBlock = false; // lines below a broken head belong to no block
    while (!text.empty()) {
        std::string_view line = takeLine(text);
        if (takePrefix(line, BlockBegin)) {
            const std::optional<Address> address = readHead(line);
            inBlock = address.has_value();
            if (address)
                blocks.emplace_back(*address);
            else
                ++heard.malformedAccessPoints;
        } else if (inBlock) {
            blocks.back().takeLine(line, heard.malformedElements);
        }
    }
    for (const Block& block : blocks) {
        if (const std::optional<AccessPoint> accessPoint = block.accessPoint())
            heard.accessPoints.push_back(*accessPoint);
        else
            ++heard.malformedAccessPoints;
    }
    return heard;
}

} // namespace wifiscan

#include "iwtext.h"

#include "lines.h"
#include "report.h"

#include <algorithm>
#include <optional>

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
std::optional<Address> readAddress(std::string_view text)
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

constexpr std::string_view BlockBegin = "BSS ";

// What stands behind "BSS " at the begin of a line.
struct Head {
    enum class Kind { None, Whole, Masked, Broken };

    Kind kind = Kind::None;
    Address address = {};
};

// People who show a text to others put "xx" or a word in the place of digits.
bool isMasked(std::string_view text)
{
    const std::size_t interface = text.find("(on ");
    const auto colons = std::count(text.begin(), text.end(), ':');
    return (interface != std::string_view::npos || colons >= 5)
        && text.substr(0, interface).find_first_not_of("0123456789abcdefABCDEF: ")
        != std::string_view::npos;
}

Head readHead(std::string_view line)
{
    if (!takePrefix(line, BlockBegin))
        return {};
    if (const std::optional<Address> address = readAddress(line))
        return {Head::Kind::Whole, *address};
    return {isMasked(line) ? Head::Kind::Masked : Head::Kind::Broken, {}};
}

std::string_view blanksOf(std::string_view line)
{
    return line.substr(0, std::min(line.find_first_not_of(" \t"), line.size()));
}

// Takes a byte order mark off.
std::string_view withoutMark(std::string_view text)
{
    takePrefix(text, "\xef\xbb\xbf");
    return text;
}

// The first head with an address, be it masked. Its indent is that of the whole text.
struct FirstHead {
    Head::Kind kind = Head::Kind::None;
    std::string_view indent;
};

FirstHead findHead(std::string_view text)
{
    FirstHead found;
    while (!text.empty()) {
        std::string_view line = takeLine(text);
        const std::string_view indent = blanksOf(line);
        line.remove_prefix(indent.size());
        const Head::Kind kind = readHead(line).kind;
        if (kind == Head::Kind::Whole)
            return {kind, indent};
        if (kind == Head::Kind::Masked && found.kind == Head::Kind::None)
            found = {kind, indent};
    }
    return found;
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
        const std::size_t size = digits.size();
        hundredths = takeNumber<std::uint8_t>(digits).value_or(0);
        if (size - digits.size() == 1)
            hundredths *= 10;
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
//
// iw prints nothing at a block's end, so that a text that was cut off can end as a whole one does.
// isSettled() is true when no line that could follow would change what was read: head lines come
// before the elements, and the elements in the order of the frame, the name first. A network that
// is not RSN yet may become so by a later line, unless its capability says that it does not
// encrypt. Two things cannot be told from a cut: a network of WPA1 or WEP that ends the text is
// never settled, and one that announces RSN without the privacy bit, against the standard, can
// be taken for an open one when the text is cut before that line.
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
        m_followed = indent == 0 && m_indent > 0;
        if (m_indent == 0)
            m_indent = indent;
        if (indent == m_indent)
            takeKey(line.substr(indent), malformedElements);
    }

    // Lines of a block are indented: one that is not ends it.
    bool isSettled(bool isLast) const
    {
        if (!isLast || m_followed)
            return true;
        // Of two sets of elements the second one may tell the name.
        const bool nameIsSettled = m_inElements && !(m_setFollows && isHidden(m_accessPoint.name));
        const bool methodIsSettled =
            m_rsn || (m_capability && (*m_capability & CapabilityPrivacy) == 0 && !m_wpa);
        return nameIsSettled && methodIsSettled && accessPoint();
    }

    std::optional<AccessPoint> accessPoint() const
    {
        AccessPoint result = m_accessPoint;
        if (result.frequencyMhz == 0)
            result.frequencyMhz = frequencyOf24GhzChannel(m_channel);
        if (result.frequencyMhz == 0)
            return std::nullopt;
        const unsigned capability = m_capability.value_or(0);
        result.adHoc = (capability & CapabilityIbss) != 0;
        result.security = securityOf(m_rsn, m_wpa, (capability & CapabilityPrivacy) != 0);
        return result;
    }

private:
    void takeKey(std::string_view text, int& malformedElements)
    {
        if (takePrefix(text, "SSID:"))
            takeName(text, malformedElements);
        else if (takePrefix(text, "freq: "))
            m_accessPoint.frequencyMhz = std::max(0, takeNumber<int>(text).value_or(0));
        else if (takePrefix(text, "signal: "))
            m_accessPoint.signal = readSignal(text);
        else if (takePrefix(text, "capability: "))
            m_capability = readCapability(text);
        else if (takePrefix(text, "last seen: "))
            takeAge(text);
        else if (takePrefix(text, "DS Parameter set: channel "))
            m_channel = takeNumber<int>(text).value_or(0);
        else if (takePrefix(text, "Supported rates:"))
            m_inElements = true;
        else if (takePrefix(text, "Information elements from "))
            beginSet(text);
        else if (takePrefix(text, "RSN:"))
            m_rsn = true;
        else if (takePrefix(text, "WPA:"))
            m_wpa = true;
    }

    void beginSet(std::string_view source)
    {
        m_setFollows = takePrefix(source, "Probe");
        m_inElements = !isHidden(m_accessPoint.name);
    }

    // iw can print the elements of the probe response and then those of the beacon, in which a
    // hidden network does not tell its name.
    void takeName(std::string_view text, int& malformedElements)
    {
        m_inElements = true;
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
    std::optional<unsigned> m_capability;
    bool m_rsn = false;
    bool m_wpa = false;
    bool m_inElements = false; // and has passed where the name stands
    bool m_setFollows = false; // those of the beacon behind those of the probe response
    bool m_followed = false;   // by a line that is not indented
};

} // namespace

IwText kindOfIwText(std::string_view text)
{
    switch (findHead(withoutMark(text)).kind) {
    case Head::Kind::Whole:
        return IwText::Readable;
    case Head::Kind::Masked:
        return IwText::Masked;
    case Head::Kind::None:
    case Head::Kind::Broken:
        break;
    }
    return IwText::None;
}

Heard readIwText(std::string_view text)
{
    text = withoutMark(text);
    const std::string_view indent = findHead(text).indent;
    Heard heard;
    std::size_t masked = 0;
    bool isCut = false;
    std::optional<Block> block; // none below a head without an address
    const auto endBlock = [&heard, &block, &isCut](bool isLast) {
        if (!block)
            return;
        const std::optional<AccessPoint> accessPoint = block->accessPoint();
        if (!block->isSettled(isLast))
            isCut = true;
        else if (accessPoint)
            heard.accessPoints.push_back(*accessPoint);
        else
            ++heard.malformedAccessPoints;
        block.reset();
    };

    while (!text.empty()) {
        const bool isWhole = text.find('\n') != std::string_view::npos;
        std::string_view line = takeLine(text);
        takePrefix(line, indent);
        const Head head = readHead(line);
        if (head.kind == Head::Kind::None) {
            // What is left of a line that was cut off would be read wrongly.
            if (block && (isWhole || blanksOf(line).empty()))
                block->takeLine(line, heard.malformedElements);
            continue;
        }
        endBlock(false);
        if (head.kind == Head::Kind::Whole)
            block.emplace(head.address);
        else if (!isWhole)
            isCut = true;
        else if (head.kind == Head::Kind::Masked)
            ++masked;
        else
            ++heard.malformedAccessPoints;
    }
    endBlock(true);
    remarkCount(heard.remarks, masked, "access point(s) left out: their addresses are masked");
    if (isCut)
        heard.remarks.push_back("the last access point left out: the text ends in its middle, or "
                                "as if it did");
    return heard;
}

} // namespace wifiscan

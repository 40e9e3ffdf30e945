#include "iwtext.h"

#include "network.h"
#include "scanresult.h"
#include "textcursor.h"

#include <algorithm>
#include <optional>

namespace wifiscan {

namespace {

// "aa:bb:cc:dd:ee:ff(on wlan0)", with or without the blank, or only the address.
std::optional<Address> readAddress(std::string_view text)
{
    const std::optional<Address> address = takeAddress(text);
    if (!text.empty() && text.front() != '(' && text.front() != ' ')
        return std::nullopt;
    return address;
}

constexpr std::string_view BlockBegin = "BSS ";

// The text after "BSS " at the beginning of a line.
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

// Keys begin so too, as "BSS Load:".
Head readHead(std::string_view line)
{
    if (!takePrefix(line, BlockBegin))
        return {};
    if (const std::optional<Address> address = readAddress(line))
        return {Head::Kind::Whole, *address};
    if (isMasked(line))
        return {Head::Kind::Masked, {}};
    const std::string_view word = line.substr(0, line.find_first_of(" ("));
    const bool isAddress = word.find_first_not_of("0123456789abcdefABCDEF:") == word.npos;
    return {isAddress ? Head::Kind::Broken : Head::Kind::None, {}};
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
// isSettled() is true if no further line could change the result: head lines come
// before the elements, and the elements in the order of the frame, the name first. A network that
// is not RSN yet may become so by a later line, unless its capability says that it does not
// encrypt. Two things cannot be told from a cut: a network of WPA1 or WEP that ends the text is
// never settled, and one that announces RSN without the privacy bit, against the standard, can
// be taken for an open one when the text is cut before that line.
class Block {
public:
    explicit Block(const Address& address) { m_accessPoint.address = address; }

    // The block's keys have the indent of its first line. Lines with a deeper indent or an asterisk
    // belong to a section, where the same words mean something else.
    void takeLine(std::string_view line, int& malformedElements)
    {
        const std::size_t indent = line.find_first_not_of(" \t");
        if (indent == std::string_view::npos)
            return;
        m_followed = indent == 0 && m_indent > 0;
        if (m_indent == 0)
            m_indent = indent;
        std::string_view text = line.substr(indent);
        if (takePrefix(text, "* ") || indent != m_indent)
            takeItem(text);
        else
            takeKey(text, malformedElements);
    }

    // Lines of a block are indented: one that is not ends it.
    bool isSettled(bool isLast) const
    {
        if (!isLast || m_followed)
            return true;
        // Of two sets of elements the second one may tell the name, and a mesh tells it later.
        const unsigned capability = m_capability.value_or(CapabilityPrivacy);
        const bool nameFollows = m_setFollows || (capability & CapabilityEss) == 0;
        const bool isNamed = !isHidden(m_elements.name) || !m_elements.meshId.empty();
        const bool nameIsSettled = m_inElements && (isNamed || !nameFollows);
        const bool methodIsSettled =
            m_elements.rsn || ((capability & CapabilityPrivacy) == 0 && !m_elements.wpa);
        return nameIsSettled && methodIsSettled && accessPoint(isLast);
    }

    // Of a last one the details are not known, since lines that tell them may be cut off.
    std::optional<AccessPoint> accessPoint(bool isLast) const
    {
        AccessPoint result = m_accessPoint;
        if (!describeNetwork(m_frequencyMhz, m_capability.value_or(0), m_elements, result))
            return std::nullopt;
        if (isLast && !m_followed)
            result.details = {};
        return result;
    }

private:
    void takeKey(std::string_view text, int& malformedElements)
    {
        m_coded = takePrefix(text, "EHT Operation:") ? Coded::Eht
            : takePrefix(text, "HE Operation:")      ? Coded::He6
                                                     : Coded::None;
        if (takePrefix(text, "SSID:"))
            takeName(text, m_elements.name, malformedElements);
        else if (takePrefix(text, "MESH ID:"))
            takeName(text, m_elements.meshId, malformedElements);
        else if (takePrefix(text, "freq: "))
            m_frequencyMhz = std::max(0, takeNumber<int>(text).value_or(0));
        else if (takePrefix(text, "signal: "))
            m_accessPoint.signal = readSignal(text);
        else if (takePrefix(text, "capability: "))
            m_capability = readCapability(text);
        else if (takePrefix(text, "last seen: "))
            takeAge(text);
        else if (takePrefix(text, "DS Parameter set: channel "))
            setByte(text, m_elements.channel);
        else if (takePrefix(text, "Supported rates:")
            || takePrefix(text, "Extended supported rates:"))
            takeRates(text);
        else if (takePrefix(text, "Information elements from "))
            beginSet(text);
        else if (takePrefix(text, "RSN:"))
            m_elements.rsn = true;
        else if (takePrefix(text, "WPA:"))
            m_elements.wpa = true;
        else if (takePrefix(text, "HotSpot 2.0 OSEN:"))
            m_elements.osen = true;
        else if (takePrefix(text, "HT capabilities:"))
            addAmendment(m_elements, Amendment::N);
        else if (takePrefix(text, "VHT capabilities:"))
            addAmendment(m_elements, Amendment::Ac);
        else if (takePrefix(text, "HE capabilities:"))
            addAmendment(m_elements, Amendment::Ax);
        else if (takePrefix(text, "EHT capabilities:"))
            addAmendment(m_elements, Amendment::Be);
    }

    // A line of a section. But for the widths of HE and EHT operation no two sections have the same
    // ones.
    void takeItem(std::string_view text)
    {
        HtOperation& ht = m_elements.ht;
        std::optional<Segments>& vht = m_elements.vht;
        std::optional<Load>& load = m_elements.load;
        if (takePrefix(text, "Authentication suites: "))
            takeSuites(text);
        else if (takePrefix(text, "primary channel: "))
            setByte(text, ht.channel);
        else if (takePrefix(text, "secondary channel offset: "))
            ht.secondary = text == "above" ? 1 : text == "below" ? -1 : 0;
        else if (takePrefix(text, "STA channel width: "))
            ht.wide = text == "any";
        else if (takePrefix(text, "channel width: "))
            setByte(text, (vht ? *vht : vht.emplace()).code);
        else if (vht && takePrefix(text, "center freq segment 1: "))
            setByte(text, vht->first);
        else if (vht && takePrefix(text, "center freq segment 2: "))
            setByte(text, vht->second);
        else if (takePrefix(text, "station count: "))
            load = Load{takeNumber<std::uint16_t>(text).value_or(0), 0};
        else if (load && takePrefix(text, "channel utilisation: "))
            load->busy = takeNumber<std::uint8_t>(text).value_or(0) / 255.0;
        else if (takePrefix(text, "MLD MAC: "))
            m_elements.mldAddress = readAddress(text);
        else if (m_coded != Coded::None)
            takeCoded(text);
    }

    // The same lines in HE operation, for 6 GHz, and in EHT operation.
    void takeCoded(std::string_view text)
    {
        Segments& segments = m_coded == Coded::He6 ? m_elements.he6
            : m_elements.eht                       ? *m_elements.eht
                                                   : m_elements.eht.emplace();
        if (takePrefix(text, "Primary Channel: "))
            setByte(text, m_elements.channel6);
        else if (takePrefix(text, "Channel Width: "))
            segments.code = codeOf(text);
        else if (takePrefix(text, "Center Frequency Segment 0: "))
            setByte(text, segments.first);
        else if (takePrefix(text, "Center Frequency Segment 1: "))
            setByte(text, segments.second);
    }

    static void setByte(std::string_view text, int& number)
    {
        number = takeNumber<std::uint8_t>(text).value_or(0);
    }

    // The element's code of "20 MHz" to "320 MHz", and of "80+80 or 160 MHz".
    static int codeOf(std::string_view width)
    {
        const int mhz = takePrefix(width, "80+80") ? 160 : takeNumber<int>(width).value_or(0);
        int code = 0;
        while (code < 4 && 20 << code < mhz)
            ++code;
        return code;
    }

    // "1.0* 5.5* 6.0"
    void takeRates(std::string_view text)
    {
        m_inElements = true;
        while (takePrefix(text, " ")) {
            const std::string_view rate = text.substr(0, text.find_first_of("* "));
            text.remove_prefix(std::min(text.find(' '), text.size()));
            const bool isOld = rate == "1.0" || rate == "2.0" || rate == "5.5" || rate == "11.0";
            if (!rate.empty())
                addAmendment(m_elements, isOld ? Amendment::B : Amendment::G);
        }
    }

    // "PSK FT/IEEE 802.1X IEEE 802.1X/SHA-256 00-0f-ac:24": the same names in other spellings.
    void takeSuites(std::string_view text)
    {
        static constexpr std::pair<std::string_view, std::string_view> Spellings[] = {
            {"IEEE 802.1X", "802.1X"}, {"SHA-", "SHA"}, {"802.1X/SUITE", "SUITE"}, {"/", "-"}};
        std::string names(text);
        for (const auto& [theirs, ours] : Spellings) {
            for (std::size_t at = 0; (at = names.find(theirs, at)) != names.npos; at += ours.size())
                names.replace(at, theirs.size(), ours);
        }
        std::string_view rest = names;
        while (!rest.empty()) {
            const std::string_view name = rest.substr(0, rest.find(' '));
            rest.remove_prefix(std::min(name.size() + 1, rest.size()));
            addSuite(name);
        }
    }

    void addSuite(std::string_view name)
    {
        std::uint32_t organisation = 0;
        std::string_view number = name;
        for (int i = 0; i < 3; ++i, takePrefix(number, "-"))
            organisation = organisation << 8 | takeHexByte(number).value_or(0);
        std::optional<unsigned> type;
        if (takePrefix(number, ":"))
            type = takeNumber<std::uint8_t>(number);
        if (!name.empty())
            addKeyManagement(
                m_elements, type ? keyManagementName(organisation, *type) : std::string(name));
    }

    void beginSet(std::string_view source)
    {
        m_setFollows = takePrefix(source, "Probe");
        m_inElements = !isHidden(m_elements.name);
    }

    // iw can print the elements of the probe response and then those of the beacon, in which a
    // hidden network does not tell its name.
    void takeName(std::string_view text, std::string& name, int& malformedElements)
    {
        m_inElements = true;
        takePrefix(text, " ");
        const std::string read = unescaped(text);
        if (read.size() > MaxSsidBytes)
            ++malformedElements;
        else if (isHidden(name))
            name = read;
    }

    // Newer versions print a second line of the kind, "last seen: 512.345s [boottime]".
    void takeAge(std::string_view text)
    {
        const std::optional<std::uint32_t> age = takeNumber<std::uint32_t>(text);
        if (age && takePrefix(text, " ms ago"))
            m_accessPoint.ageMs = age;
    }

    AccessPoint m_accessPoint; // without the data of the elements
    int m_frequencyMhz = 0;
    std::optional<unsigned> m_capability;
    Elements m_elements;
    std::size_t m_indent = 0;
    bool m_inElements = false; // and has passed where the name stands
    enum class Coded { None, He6, Eht } m_coded = Coded::None; // the section's widths
    bool m_setFollows = false; // the elements of the beacon follow those of the probe response
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
    std::optional<Block> block; // null below a head without an address
    const auto endBlock = [&heard, &block, &isCut](bool isLast) {
        if (!block)
            return;
        const std::optional<AccessPoint> accessPoint = block->accessPoint(isLast);
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
            // The rest of a line that was cut off would be read wrongly.
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

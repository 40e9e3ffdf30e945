#include "elements.h"

#include <algorithm>
#include <cstdio>

namespace wifiscan {

namespace {

constexpr std::uint8_t VendorElement = 221;
constexpr std::uint8_t ExtensionElement = 255;

constexpr std::size_t HtOperationSize = 22;
constexpr std::size_t VhtOperationSize = 5;
constexpr std::size_t LoadSize = 5;
constexpr std::size_t SuiteSize = 4;
constexpr std::size_t PairwiseKeyIdSize = 16;

// The organisations that give out suites and vendor elements: the standard itself, the one whose
// number WPA uses, and the Wi-Fi Alliance.
constexpr std::uint32_t Ieee80211 = 0x000fac;
constexpr std::uint32_t WpaOrganisation = 0x0050f2;
constexpr std::uint32_t WifiAlliance = 0x506f9a;

std::uint32_t takeOrganisation(ByteCursor& body)
{
    const std::uint32_t high = body.u8();
    const std::uint32_t middle = body.u8();
    return high << 16 | middle << 8 | body.u8();
}

// A count and as many entries. Leaves the body as it is when it has ended already, since each part
// after the version may be missing together with all that follow it.
void skipList(ByteCursor& body, std::size_t entrySize)
{
    if (body.remaining() > 0)
        body.skip(body.u16LittleEndian() * entrySize);
}

void skipOptional(ByteCursor& body, std::size_t size)
{
    if (body.remaining() > 0)
        body.skip(size);
}

// RSN (9.4.2.24) and, after their vendor heads, WPA and OSEN share this layout. Where the list of
// key management is missing, its default is 802.1X. OSEN has no version. Bytes after the last
// known part belong to later editions of the standard.
bool takeSecurity(ByteCursor body, bool hasVersion, Elements& elements)
{
    if (hasVersion)
        body.skip(2);
    skipOptional(body, SuiteSize); // group cipher
    skipList(body, SuiteSize);     // pairwise ciphers
    if (body.ok() && body.remaining() == 0)
        addKeyManagement(elements, keyManagementName(Ieee80211, 1));
    ByteCursor suites = body;
    skipList(body, SuiteSize);
    const bool listIsWhole = body.ok();
    for (int left = listIsWhole && suites.remaining() > 0 ? suites.u16LittleEndian() : 0; left > 0;
         --left) {
        const std::uint32_t organisation = takeOrganisation(suites);
        addKeyManagement(elements, keyManagementName(organisation, suites.u8()));
    }
    skipOptional(body, 2); // capabilities
    skipList(body, PairwiseKeyIdSize);
    skipOptional(body, SuiteSize); // group management cipher
    return body.ok();
}

bool takeName(ByteCursor body, Elements& elements)
{
    if (body.remaining() > MaxSsidBytes)
        return false;
    if (!elements.named)
        elements.name = body.rest();
    elements.named = true;
    return true;
}

bool takeMeshId(ByteCursor body, Elements& elements)
{
    if (body.remaining() > MaxSsidBytes)
        return false;
    if (elements.meshId.empty())
        elements.meshId = body.rest();
    return true;
}

bool takeChannel(ByteCursor body, Elements& elements)
{
    if (body.remaining() != 1)
        return false;
    if (elements.channel == 0)
        elements.channel = body.u8();
    return true;
}

// Rates are in units of 500 kbit/s; 802.11b has four of them, 1, 2, 5.5 and 11 Mbit/s. The highest
// bit marks those that every station must know, and 0xff and its neighbours are no rates.
bool takeRates(ByteCursor body, Elements& elements)
{
    while (body.remaining() > 0) {
        const int rate = body.u8() & 0x7f;
        addAmendment(elements,
            rate == 2 || rate == 4 || rate == 11 || rate == 22 ? Amendment::B
                : rate < 120                                   ? Amendment::G
                                                               : Amendment::Unknown);
    }
    return true;
}

bool takeHtOperation(ByteCursor body, Elements& elements)
{
    if (body.remaining() != HtOperationSize)
        return false;
    HtOperation& ht = elements.ht;
    if (ht.channel != 0)
        return true;
    ht.channel = body.u8();
    const unsigned offset = body.u8();
    ht.secondary = (offset & 3) == 1 ? 1 : (offset & 3) == 3 ? -1 : 0;
    ht.wide = (offset & 4) != 0;
    ht.segment = body.u16LittleEndian() >> 5 & 0xff;
    return true;
}

Segments takeSegments(ByteCursor& body, unsigned codeMask)
{
    Segments segments;
    segments.code = static_cast<int>(body.u8() & codeMask);
    segments.first = body.u8();
    segments.second = body.u8();
    return segments;
}

bool takeVhtOperation(ByteCursor body, Elements& elements)
{
    if (body.remaining() != VhtOperationSize)
        return false;
    if (!elements.vht)
        elements.vht = takeSegments(body, 0xff);
    return true;
}

// HE operation (IEEE 802.11ax-2021, 9.4.2.249): which optional parts follow is told by its first
// three bytes.
bool takeHeOperation(ByteCursor body, Elements& elements)
{
    const unsigned low = body.u16LittleEndian();
    const unsigned high = body.u8();
    body.skip(1 + 2); // colour, streams
    if ((low & 0x4000) != 0) {
        const Segments segments = takeSegments(body, 0xff);
        if (body.ok() && !elements.vht)
            elements.vht = segments;
    }
    if ((low & 0x8000) != 0)
        body.skip(1); // number of co-hosted networks
    if ((high & 2) != 0) {
        const int channel = body.u8();
        const Segments segments = takeSegments(body, 3);
        body.skip(1); // least rate
        if (body.ok() && elements.channel6 == 0) {
            elements.channel6 = channel;
            elements.he6 = segments;
        }
    }
    return body.ok();
}

// EHT operation (IEEE 802.11be, 9.4.2.321)
bool takeEhtOperation(ByteCursor body, Elements& elements)
{
    const bool tellsWidth = (body.u8() & 1) != 0;
    body.skip(4); // streams
    if (tellsWidth) {
        const Segments segments = takeSegments(body, 7);
        if (body.ok() && !elements.eht)
            elements.eht = segments;
    }
    return body.ok();
}

// The multi-link element's basic form, type 0, begins with its length and the device's address.
bool takeMultiLink(ByteCursor body, Elements& elements)
{
    if ((body.u16LittleEndian() & 7) != 0 || elements.mldAddress)
        return body.ok();
    Address address = {};
    const std::size_t length = body.u8();
    body.copy(address.data(), address.size());
    if (!body.ok() || length < 1 + address.size())
        return false;
    elements.mldAddress = address;
    return true;
}

bool takeLoad(ByteCursor body, Elements& elements)
{
    if (body.remaining() != LoadSize)
        return false;
    const int stations = body.u16LittleEndian();
    if (!elements.load)
        elements.load = Load{stations, body.u8() / 255.0};
    return true;
}

bool takeRsn(ByteCursor body, Elements& elements)
{
    elements.rsn = true;
    return takeSecurity(body, true, elements);
}

bool takeWpa(ByteCursor body, Elements& elements)
{
    elements.wpa = true;
    return takeSecurity(body, true, elements);
}

bool takeOsen(ByteCursor body, Elements& elements)
{
    elements.osen = true;
    addKeyManagement(elements, "OSEN");
    return takeSecurity(body, false, elements);
}

// Capabilities prove an amendment by standing there.
template <Amendment Proven> bool takeCapabilities(ByteCursor /*body*/, Elements& elements)
{
    addAmendment(elements, Proven);
    return true;
}

struct Reader {
    ElementKind kind;
    bool isInherited;
    bool (*take)(ByteCursor body, Elements& elements); // false for contents that cannot be read
};

constexpr Reader Readers[] = {
    {elementKind(0), false, takeName},
    {elementKind(1), true, takeRates},
    {elementKind(3), true, takeChannel},
    {elementKind(11), true, takeLoad},
    {elementKind(45), true, takeCapabilities<Amendment::N>},
    {elementKind(48), true, takeRsn},
    {elementKind(50), true, takeRates},
    {elementKind(61), true, takeHtOperation},
    {elementKind(114), false, takeMeshId},
    {elementKind(191), true, takeCapabilities<Amendment::Ac>},
    {elementKind(192), true, takeVhtOperation},
    {elementKind(VendorElement, WpaOrganisation << 8 | 1), true, takeWpa},
    {elementKind(VendorElement, WifiAlliance << 8 | 18), true, takeOsen},
    {extensionKind(35), true, takeCapabilities<Amendment::Ax>},
    {extensionKind(36), true, takeHeOperation},
    {extensionKind(106), true, takeEhtOperation},
    {extensionKind(107), false, takeMultiLink},
    {extensionKind(108), true, takeCapabilities<Amendment::Be>},
};

const Reader* readerOf(ElementKind kind)
{
    const auto reader = std::find_if(std::begin(Readers), std::end(Readers),
        [kind](const Reader& entry) { return entry.kind == kind; });
    return reader != std::end(Readers) ? reader : nullptr;
}

// The bytes before the contents: nothing, an extension's own id, or a vendor's organisation and
// type.
std::size_t headSize(std::uint8_t id)
{
    return id == VendorElement ? 4 : id == ExtensionElement ? 1 : 0;
}

} // namespace

bool takeElement(ByteCursor& row, Element& element)
{
    if (row.remaining() == 0)
        return false;
    element.id = row.u8();
    element.body = row.take(row.u8());
    return row.ok();
}

Elements readElements(ByteCursor bytes)
{
    Elements elements;
    Element element;
    while (takeElement(bytes, element))
        readElement(element, elements);
    if (!bytes.ok())
        ++elements.malformed;
    return elements;
}

void readElement(const Element& element, Elements& elements)
{
    const Reader* const reader = readerOf(kindOf(element));
    if (reader == nullptr)
        return;
    ByteCursor body = element.body;
    body.skip(headSize(element.id));
    if (!reader->take(body, elements))
        ++elements.malformed;
}

ElementKind kindOf(const Element& element)
{
    ByteCursor head = element.body;
    std::uint32_t more = 0;
    for (std::size_t left = headSize(element.id); left > 0; --left)
        more = more << 8 | head.u8();
    return elementKind(element.id, more);
}

bool isInherited(ElementKind kind)
{
    const Reader* const reader = readerOf(kind);
    return reader != nullptr && reader->isInherited;
}

std::string keyManagementName(std::uint32_t organisation, unsigned type)
{
    static constexpr const char* Standard[] = {"802.1X", "PSK", "FT-802.1X", "FT-PSK",
        "802.1X-SHA256", "PSK-SHA256", "TDLS-TPK", "SAE", "FT-SAE", "AP-PEER-KEY", "SUITE-B",
        "SUITE-B-192", "FT-802.1X-SHA384", "FILS-SHA256", "FILS-SHA384", "FT-FILS-SHA256",
        "FT-FILS-SHA384", "OWE", "FT-PSK-SHA384", "PSK-SHA384", "PASN", "FT-802.1X-SHA384",
        "802.1X-SHA384", "SAE-EXT-KEY", "FT-SAE-EXT-KEY"};
    const std::size_t known = organisation == Ieee80211 ? std::size(Standard)
        : organisation == WpaOrganisation               ? 2 // the first two are the same
                                                        : 0;
    if (type >= 1 && type <= known)
        return Standard[type - 1];
    if (organisation == WifiAlliance && (type == 1 || type == 2))
        return type == 1 ? "OSEN" : "DPP";
    char text[sizeof "00-00-00:4294967295"];
    std::snprintf(text, sizeof text, "%02X-%02X-%02X:%u", organisation >> 16 & 0xff,
        organisation >> 8 & 0xff, organisation & 0xff, type);
    return text;
}

void addKeyManagement(Elements& elements, const std::string& name)
{
    std::vector<std::string>& all = elements.keyManagement;
    if (std::find(all.begin(), all.end(), name) == all.end())
        all.push_back(name);
}

void addAmendment(Elements& elements, Amendment amendment)
{
    elements.amendment = std::max(elements.amendment, amendment);
}

} // namespace wifiscan

#include "elements.h"

#include "accesspoint.h"

namespace wifiscan {

namespace {

enum ElementId : std::uint8_t {
    SsidElement = 0,
    DsParameterElement = 3,
    RsnElement = 48,
    HtOperationElement = 61,
    VendorElement = 221,
};

constexpr std::size_t HtOperationSize = 22;
constexpr std::size_t SuiteSize = 4;
constexpr std::size_t PairwiseKeyIdSize = 16;

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

// RSN (9.4.2.24) and, behind its vendor head, WPA share this layout. Which suites are named does
// not matter: the reader of our output tells three methods apart, and none of them by suite. Bytes
// behind the last known part belong to later editions of the standard.
bool isWholeSecurityBody(ByteCursor body)
{
    body.skip(2);                  // version
    skipOptional(body, SuiteSize); // group cipher
    skipList(body, SuiteSize);     // pairwise ciphers
    skipList(body, SuiteSize);     // key management
    skipOptional(body, 2);         // capabilities
    skipList(body, PairwiseKeyIdSize);
    skipOptional(body, SuiteSize); // group management cipher
    return body.ok();
}

bool takeName(ByteCursor body, Elements& elements, bool& haveName)
{
    if (body.remaining() > LongestName)
        return false;
    if (!haveName)
        elements.name = body.rest();
    haveName = true;
    return true;
}

// Both elements that tell the channel begin with it.
bool takeChannel(ByteCursor body, std::size_t size, int& channel)
{
    if (body.remaining() != size)
        return false;
    if (channel == 0)
        channel = body.u8();
    return true;
}

bool takeRsn(const ByteCursor& body, Elements& elements)
{
    elements.rsn = true;
    return isWholeSecurityBody(body);
}

bool takeVendor(ByteCursor body, Elements& elements)
{
    // Vendors put what they like behind their three bytes; only WPA's head is known here.
    static constexpr std::uint8_t WpaHead[] = {0x00, 0x50, 0xf2, 0x01};
    std::uint8_t head[sizeof WpaHead] = {};
    body.copy(head, sizeof head);
    if (!body.ok() || std::memcmp(head, WpaHead, sizeof head) != 0)
        return true;
    elements.wpa = true;
    return isWholeSecurityBody(body);
}

} // namespace

Elements readElements(ByteCursor bytes)
{
    Elements elements;
    bool haveName = false;
    while (bytes.remaining() > 0) {
        const std::uint8_t id = bytes.u8();
        const std::uint8_t length = bytes.u8();
        const ByteCursor body = bytes.take(length);
        bool whole = bytes.ok();
        if (whole && id == SsidElement)
            whole = takeName(body, elements, haveName);
        else if (whole && id == DsParameterElement)
            whole = takeChannel(body, 1, elements.channel);
        else if (whole && id == HtOperationElement)
            whole = takeChannel(body, HtOperationSize, elements.htChannel);
        else if (whole && id == RsnElement)
            whole = takeRsn(body, elements);
        else if (whole && id == VendorElement)
            whole = takeVendor(body, elements);
        if (!whole)
            ++elements.malformed;
    }
    return elements;
}

} // namespace wifiscan

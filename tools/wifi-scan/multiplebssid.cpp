#include "multiplebssid.h"

#include <algorithm>
#include <set>

namespace wifiscan {

namespace {

constexpr std::uint8_t ProfileSubelement = 0; // of the element Multiple BSSID (9.4.2.45)

ByteCursor cursorOver(const std::string& bytes)
{
    return {bytes.data(), bytes.size()};
}

// One network's own elements, put together when they are spread over two elements Multiple BSSID.
struct Profile {
    unsigned addressBits = 0; // how many low bits of the address are the network's own
    std::string elements;
};

bool beginsProfile(ByteCursor subelement)
{
    return subelement.u8() == NontransmittedCapabilityElement && subelement.ok();
}

// A profile begins with the capability; one that does not and comes first in its element goes on
// with the last one of the element before.
std::vector<Profile> profilesIn(ByteCursor row, int& malformed)
{
    std::vector<Profile> profiles;
    Element element;
    while (takeElement(row, element)) {
        if (element.id != MultipleBssidElement)
            continue;
        ByteCursor subelements = element.body;
        const unsigned addressBits = subelements.u8();
        bool isFirst = true;
        Element subelement;
        while (takeElement(subelements, subelement)) {
            if (subelement.id != ProfileSubelement)
                continue;
            if (isFirst && !profiles.empty() && !beginsProfile(subelement.body))
                profiles.back().elements += subelement.body.rest();
            else
                profiles.push_back({addressBits, subelement.body.rest()});
            isFirst = false;
        }
        malformed += subelements.ok() ? 0 : 1;
    }
    return profiles;
}

// Tells elements of different meaning apart: the id, and behind it an extension's own id or a
// vendor's organisation and type.
using Kind = std::string;
constexpr char Extension = static_cast<char>(ExtensionElement);

Kind kindOf(const Element& element)
{
    const std::size_t more = element.id == VendorElement ? 4
        : element.id == ExtensionElement                 ? 1
                                                         : 0;
    ByteCursor body = element.body;
    return static_cast<char>(element.id) + body.take(std::min(more, body.remaining())).rest();
}

void append(const Element& element, std::string& row)
{
    ByteCursor body = element.body;
    row += static_cast<char>(element.id);
    row += static_cast<char>(body.remaining());
    row += body.rest();
}

struct Inheritable {
    Kind kind;
    std::string bytes;
};

// The frame's elements that its other networks may inherit: of each kind the first, and no others
// than are read. Name and multi-link device are always a network's own.
std::vector<Inheritable> inheritableOf(ByteCursor row)
{
    static const std::set<Kind> read = {"\x01", "\x03", "\x0b", "\x2d", "\x30", "\x32", "\x3d",
        "\xbf", "\xc0", "\xff\x23", "\xff\x24", "\xff\x6a", "\xff\x6c", {"\xdd\x00\x50\xf2\x01", 5},
        "\xdd\x50\x6f\x9a\x12"};
    std::vector<Inheritable> all;
    std::set<Kind> seen;
    Element element;
    while (takeElement(row, element)) {
        const Kind kind = kindOf(element);
        if (read.count(kind) == 0 || !seen.insert(kind).second)
            continue;
        all.push_back({kind, {}});
        append(element, all.back().bytes);
    }
    return all;
}

// The elements of a profile, and behind them those that it inherits: all that it neither has itself
// nor names in its element Non-Inheritance (9.4.2.240), by ids and by ids of extensions.
std::string withInherited(const std::string& profile, const std::vector<Inheritable>& inheritable)
{
    std::string all;
    std::set<Kind> own;
    Element element;
    for (ByteCursor row = cursorOver(profile); takeElement(row, element);) {
        append(element, all);
        own.insert(kindOf(element));
        if (kindOf(element) != Kind{Extension, static_cast<char>(NonInheritanceExtension)})
            continue;
        element.body.skip(1);
        for (const char id : element.body.take(element.body.u8()).rest())
            own.insert(Kind{id});
        for (const char id : element.body.take(element.body.u8()).rest())
            own.insert(Kind{Extension, id});
    }
    for (const Inheritable& inherited : inheritable) {
        if (own.count(inherited.kind) == 0 && own.count(inherited.kind.substr(0, 1)) == 0)
            all += inherited.bytes;
    }
    return all;
}

// The address of the n-th network: its low bits are the transmitted one's, plus n.
Address addressOf(Address address, unsigned bits, unsigned index)
{
    const unsigned mask = (1u << bits) - 1;
    const unsigned low = address.back();
    address.back() = static_cast<std::uint8_t>((low & ~mask) | ((low + index) & mask));
    return address;
}

} // namespace

int addNontransmitted(
    ByteCursor elements, unsigned capability, int heardMhz, std::vector<AccessPoint>& accessPoints)
{
    int malformed = 0;
    const std::vector<Profile> profiles = profilesIn(elements, malformed);
    if (profiles.empty())
        return malformed;
    const AccessPoint transmitted = accessPoints.back();
    const std::vector<Inheritable> inheritable = inheritableOf(elements);
    for (const Profile& profile : profiles) {
        unsigned ownCapability = capability;
        unsigned index = 0;
        Element element;
        for (ByteCursor row = cursorOver(profile.elements); takeElement(row, element);) {
            if (element.id == NontransmittedCapabilityElement)
                ownCapability = element.body.u16LittleEndian();
            else if (element.id == MultipleBssidIndexElement)
                index = element.body.u8();
        }
        if (profile.addressBits > 8 || index == 0 || index >= 1u << profile.addressBits) {
            ++malformed;
            continue;
        }
        malformed += readElements(cursorOver(profile.elements)).malformed;
        const std::string row = withInherited(profile.elements, inheritable);
        AccessPoint accessPoint = transmitted;
        accessPoint.address = addressOf(transmitted.address, profile.addressBits, index);
        if (describeNetwork(heardMhz, ownCapability, readElements(cursorOver(row)), accessPoint))
            accessPoints.push_back(accessPoint);
    }
    return malformed;
}

} // namespace wifiscan

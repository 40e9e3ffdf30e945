#include "multiplebssid.h"

#include <map>
#include <set>

namespace wifiscan {

namespace {

constexpr std::uint8_t MultipleBssidElement = 71;
constexpr std::uint8_t ProfileSubelement = 0; // of the element before (9.4.2.45)
constexpr std::uint8_t CapabilityElement = 83;
constexpr std::uint8_t IndexElement = 85;
constexpr ElementKind NonInheritance = extensionKind(56);

// One network's own elements, put together when they are spread over two elements Multiple BSSID.
struct Profile {
    unsigned addressBits = 0; // how many low bits of the address are the network's own
    std::string elements;
};

bool beginsProfile(ByteCursor subelement)
{
    return subelement.u8() == CapabilityElement;
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

// The frame's elements that its other networks may inherit: of each kind the first.
using Inheritable = std::map<ElementKind, Element>;

Inheritable inheritableIn(ByteCursor row)
{
    Inheritable all;
    Element element;
    while (takeElement(row, element)) {
        const ElementKind kind = kindOf(element);
        if (isInherited(kind))
            all.try_emplace(kind, element);
    }
    return all;
}

// A network as its profile and the elements that it inherits describe it.
struct Described {
    unsigned capability = 0;
    unsigned index = 0; // in the set of networks; 0 is the one that sends
    Elements elements;
};

// The element Non-Inheritance (9.4.2.240) names elements by ids and by ids of extensions.
void addNamed(ByteCursor body, std::set<ElementKind>& kinds)
{
    body.skip(1);
    ByteCursor ids = body.take(body.u8());
    ByteCursor extensions = body.take(body.u8());
    while (ids.remaining() > 0)
        kinds.insert(elementKind(ids.u8()));
    while (extensions.remaining() > 0)
        kinds.insert(extensionKind(extensions.u8()));
}

Described describe(ByteCursor profile, unsigned capability, const Inheritable& inheritable)
{
    Described network;
    network.capability = capability;
    std::set<ElementKind> notInherited;
    Element element;
    while (takeElement(profile, element)) {
        const ElementKind kind = kindOf(element);
        notInherited.insert(kind);
        if (element.id == CapabilityElement)
            network.capability = element.body.u16LittleEndian();
        else if (element.id == IndexElement)
            network.index = element.body.u8();
        else if (kind == NonInheritance)
            addNamed(element.body, notInherited);
        else
            readElement(element, network.elements);
    }
    // Inherited ones are counted where they stand.
    const int malformed = network.elements.malformed + (profile.ok() ? 0 : 1);
    for (const auto& [kind, inherited] : inheritable) {
        if (notInherited.count(kind) == 0 && notInherited.count(elementKind(inherited.id)) == 0)
            readElement(inherited, network.elements);
    }
    network.elements.malformed = malformed;
    return network;
}

// The address of the n-th network: its low bits are those of the network that sends, plus n.
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
    const AccessPoint transmitted = accessPoints.back();
    const Inheritable inheritable = inheritableIn(elements);
    for (const Profile& profile : profilesIn(elements, malformed)) {
        const Described network =
            describe({profile.elements.data(), profile.elements.size()}, capability, inheritable);
        malformed += network.elements.malformed;
        if (profile.addressBits > 8 || network.index == 0
            || network.index >= 1u << profile.addressBits) {
            ++malformed;
            continue;
        }
        AccessPoint accessPoint = transmitted;
        accessPoint.address = addressOf(transmitted.address, profile.addressBits, network.index);
        if (describeNetwork(heardMhz, network.capability, network.elements, accessPoint))
            accessPoints.push_back(accessPoint);
    }
    return malformed;
}

} // namespace wifiscan

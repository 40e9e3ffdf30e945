#include "network.h"

#include <cstdlib>

namespace wifiscan {

namespace {

// From here on up, on 60 GHz, the field's low bits are a number of a kind instead (9.4.1.4, DMG).
constexpr int MinDmgMhz = 45000;

int frequencyIn(Band band, const Elements& elements)
{
    if (band == Band::Ghz6)
        return frequencyOf(band, elements.channel6);
    const int frequency = frequencyOf(band, elements.channel);
    return frequency != 0 ? frequency : frequencyOf(band, elements.ht.channel);
}

int frequencyFrom(int heardMhz, const Elements& elements)
{
    if (heardMhz != 0) {
        const int told = frequencyIn(bandOf(heardMhz), elements);
        return told != 0 ? told : heardMhz;
    }
    // 6 GHz first, where the element is of no other band.
    for (const Band band : {Band::Ghz6, Band::Ghz2, Band::Ghz5}) {
        if (const int told = frequencyIn(band, elements))
            return told;
    }
    return 0;
}

Security securityOf(const Elements& elements, unsigned capability)
{
    if (elements.rsn || elements.osen)
        return Security::Wpa2;
    if (elements.wpa)
        return Security::Wpa1;
    return (capability & CapabilityPrivacy) != 0 ? Security::Wep : Security::Open;
}

const char* standardOf(Band band, Amendment amendment)
{
    switch (amendment) {
    case Amendment::Be:
        return "be";
    case Amendment::Ax:
        return "ax";
    case Amendment::Ac:
        // Not defined for 2.4 GHz, where some offer it all the same.
        return band == Band::Ghz2 ? "n" : "ac";
    case Amendment::N:
        return "n";
    case Amendment::G:
    case Amendment::B:
        return band != Band::Ghz2 ? "a" : amendment == Amendment::G ? "g" : "b";
    case Amendment::Unknown:
        break;
    }
    return nullptr;
}

// A width in MHz and its centres as channel numbers; 160 with two centres is 80+80.
struct Width {
    int mhz = 0;
    int first = 0;
    int second = 0;
};

// From 80 MHz on, a second centre eight channels away is that of 160 MHz, of which the first one is
// a half; one farther away is that of a second 80 MHz.
Width fromEighty(const Segments& segments, int second)
{
    const int apart = second == 0 ? 0 : std::abs(second - segments.first);
    return apart == 8 ? Width{160, second}
        : apart > 16  ? Width{160, segments.first, second}
                      : Width{80, segments.first};
}

Width vhtWidth(const Segments& vht, int secondOfHt)
{
    switch (vht.code) {
    case 1:
        return fromEighty(vht, vht.second != 0 ? vht.second : secondOfHt);
    case 2: // the codes of the first edition
        return {160, vht.first};
    case 3:
        return {160, vht.first, vht.second};
    default:
        return {}; // 20 or 40 MHz, which HT operation tells
    }
}

// HE operation on 6 GHz, and EHT operation, which adds a code for 320 MHz.
Width codedWidth(const Segments& segments, bool isEht)
{
    if (segments.code <= 2)
        return {20 << segments.code, segments.first};
    if (!isEht)
        return fromEighty(segments, segments.second);
    return segments.code <= 4 ? Width{20 << segments.code, segments.second} : Width{};
}

// The primary channel has its place within the width, or the element is wrong.
bool isPlausible(const Width& width, int primary)
{
    const int span = width.second != 0 ? 80 : width.mhz;
    const int apart = std::abs(width.first - primary);
    return span != 0 && apart <= span / 10 - 2 && apart % 4 == (span == 20 ? 0 : 2);
}

Width widthOf(Band band, int primary, const Elements& elements)
{
    const HtOperation& ht = elements.ht;
    Width told;
    if (elements.eht)
        told = codedWidth(*elements.eht, true);
    if (isPlausible(told, primary))
        return told;
    if (band == Band::Ghz6) {
        told = codedWidth(elements.he6, false);
        return elements.channel6 != 0 && isPlausible(told, primary) ? told : Width{};
    }
    if (elements.vht && band == Band::Ghz5)
        told = vhtWidth(*elements.vht, ht.segment);
    if (isPlausible(told, primary))
        return told;
    if (ht.channel != 0 && ht.wide && ht.secondary != 0)
        return {40, primary + 2 * ht.secondary};
    // Without HT operation, only a network that is known to be older has a known width.
    const bool isOlder = elements.amendment == Amendment::B || elements.amendment == Amendment::G;
    return ht.channel != 0 || isOlder ? Width{20, primary} : Width{};
}

Details detailsOf(int frequencyMhz, Security security, const Elements& elements)
{
    Details details;
    const Band band = bandOf(frequencyMhz);
    const int primary = band == Band::Ghz6 ? channelOf6Ghz(frequencyMhz) : channelOf(frequencyMhz);
    const Width width = primary == 0 ? Width() : widthOf(band, primary, elements);
    details.widthMhz = width.mhz;
    for (const int centre : {width.first, width.second}) {
        if (centre != 0)
            details.centresMhz.push_back(frequencyMhz + 5 * (centre - primary));
    }
    if (!elements.keyManagement.empty() || security == Security::Open || security == Security::Wep)
        details.keyManagement = elements.keyManagement;
    details.load = elements.load;
    details.standard = standardOf(band, elements.amendment);
    details.mldAddress = elements.mldAddress;
    return details;
}

} // namespace

bool describeNetwork(
    int heardMhz, unsigned capability, const Elements& elements, AccessPoint& accessPoint)
{
    accessPoint.frequencyMhz = frequencyFrom(heardMhz, elements);
    if (accessPoint.frequencyMhz == 0)
        return false;
    // A mesh has an empty SSID, and a name of its own kind.
    accessPoint.name =
        isHidden(elements.name) && !elements.meshId.empty() ? elements.meshId : elements.name;
    accessPoint.adHoc = (capability & CapabilityIbss) != 0 && accessPoint.frequencyMhz < MinDmgMhz;
    accessPoint.security = securityOf(elements, capability);
    accessPoint.details = detailsOf(accessPoint.frequencyMhz, accessPoint.security, elements);
    return true;
}

} // namespace wifiscan

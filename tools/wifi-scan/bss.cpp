#include "bss.h"

#include "attributes.h"
#include "network.h"

#include <algorithm>
#include <linux/nl80211.h>

namespace wifiscan {

std::optional<AccessPoint> readBss(ByteCursor attributes, int& malformedElements)
{
    AccessPoint accessPoint;
    bool haveAddress = false;
    std::uint32_t frequency = 0;
    std::uint16_t capability = 0;
    std::uint32_t mbm = 0;
    std::uint8_t percent = 0;
    std::uint32_t age = 0;
    std::optional<ByteCursor> elementBytes;
    std::optional<ByteCursor> beaconBytes;

    Attribute attribute;
    while (takeAttribute(attributes, attribute)) {
        bool whole = true;
        switch (attribute.type) {
        case NL80211_BSS_BSSID:
            whole = haveAddress = extract(attribute.payload, accessPoint.address);
            break;
        case NL80211_BSS_FREQUENCY:
            whole = extract(attribute.payload, frequency);
            break;
        case NL80211_BSS_CAPABILITY:
            whole = extract(attribute.payload, capability);
            break;
        case NL80211_BSS_SIGNAL_MBM:
            whole = extract(attribute.payload, mbm);
            accessPoint.signal = {Signal::Unit::Mbm, static_cast<std::int32_t>(mbm)};
            break;
        case NL80211_BSS_SIGNAL_UNSPEC:
            whole = extract(attribute.payload, percent);
            accessPoint.signal = {Signal::Unit::Percent, std::min<int>(percent, 100)};
            break;
        case NL80211_BSS_SEEN_MS_AGO:
            whole = extract(attribute.payload, age);
            accessPoint.ageMs = age;
            break;
        case NL80211_BSS_INFORMATION_ELEMENTS:
            elementBytes = attribute.payload;
            break;
        case NL80211_BSS_BEACON_IES:
            beaconBytes = attribute.payload;
            break;
        default:
            break;
        }
        if (!whole)
            return std::nullopt;
    }
    if (!attributes.ok() || !haveAddress)
        return std::nullopt;

    // The first may come from a probe response, which names a hidden network; the second never.
    const Elements elements =
        readElements(elementBytes ? *elementBytes : beaconBytes.value_or(ByteCursor()));
    malformedElements += elements.malformed;

    if (frequency > INT32_MAX
        || !describeNetwork(static_cast<int>(frequency), capability, elements, accessPoint))
        return std::nullopt;
    return accessPoint;
}

std::optional<ChannelUse> readSurvey(ByteCursor attributes)
{
    std::uint32_t frequency = 0;
    std::uint8_t level = 0;
    std::uint64_t time = 0;
    std::uint64_t busy = 0;
    bool haveBusy = false;
    Attribute attribute;
    while (takeAttribute(attributes, attribute)) {
        bool whole = true;
        if (attribute.type == NL80211_SURVEY_INFO_FREQUENCY)
            whole = extract(attribute.payload, frequency);
        else if (attribute.type == NL80211_SURVEY_INFO_NOISE)
            whole = extract(attribute.payload, level);
        else if (attribute.type == NL80211_SURVEY_INFO_TIME)
            whole = extract(attribute.payload, time);
        else if (attribute.type == NL80211_SURVEY_INFO_TIME_BUSY)
            whole = haveBusy = extract(attribute.payload, busy);
        if (!whole)
            return std::nullopt;
    }
    if (!attributes.ok() || frequency == 0 || frequency > INT32_MAX)
        return std::nullopt;
    ChannelUse use;
    use.frequencyMhz = static_cast<int>(frequency);
    if (level >= 0x80) // the byte is a signed one
        use.noiseDbm = level - 0x100;
    if (haveBusy && time > 0 && busy <= time)
        use.busy = static_cast<double>(busy) / static_cast<double>(time);
    return use;
}

} // namespace wifiscan

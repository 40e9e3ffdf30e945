#include "scannedchannels.h"

#include "attributes.h"

#include <linux/nl80211.h>

namespace wifiscan {

namespace {

// Nothing but a number that is above 0 is a frequency.
bool extractFrequency(const ByteCursor& payload, int& frequency)
{
    std::uint32_t number = 0;
    if (!extract(payload, number) || number == 0 || number > INT32_MAX)
        return false;
    frequency = static_cast<int>(number);
    return true;
}

void addFrequency(ByteCursor attributes, std::vector<RadioFrequency>& frequencies)
{
    RadioFrequency frequency;
    bool disabled = false;
    Attribute attribute;
    while (takeAttribute(attributes, attribute)) {
        if (attribute.type == NL80211_FREQUENCY_ATTR_FREQ
            && !extractFrequency(attribute.payload, frequency.mhz))
            return;
        frequency.radar = frequency.radar || attribute.type == NL80211_FREQUENCY_ATTR_RADAR;
        disabled = disabled || attribute.type == NL80211_FREQUENCY_ATTR_DISABLED;
    }
    if (attributes.ok() && frequency.mhz != 0 && !disabled)
        frequencies.push_back(frequency);
}

} // namespace

void addFrequencies(ByteCursor bands, std::vector<RadioFrequency>& frequencies)
{
    Attribute band;
    while (takeAttribute(bands, band)) {
        Attribute part;
        while (takeAttribute(band.payload, part)) {
            if (part.type != NL80211_BAND_ATTR_FREQS)
                continue;
            Attribute frequency;
            while (takeAttribute(part.payload, frequency))
                addFrequency(frequency.payload, frequencies);
        }
    }
}

std::vector<int> readScanFrequencies(ByteCursor frequencies)
{
    std::vector<int> all;
    Attribute entry;
    while (takeAttribute(frequencies, entry)) {
        int frequency = 0;
        if (!extractFrequency(entry.payload, frequency))
            return {};
        all.push_back(frequency);
    }
    return frequencies.ok() ? all : std::vector<int>();
}

bool hasAnyName(ByteCursor names)
{
    Attribute name;
    while (takeAttribute(names, name)) {
        if (name.payload.remaining() == 0)
            return true;
    }
    return false;
}

} // namespace wifiscan

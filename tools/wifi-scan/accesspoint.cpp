#include "accesspoint.h"

namespace wifiscan {

bool isHidden(const std::string& name)
{
    return name.find_first_not_of('\0') == std::string::npos;
}

int channelOf(int frequencyMhz)
{
    if (frequencyMhz == 2484)
        return 14;
    if (frequencyMhz % 5 == 2 && frequencyMhz >= 2412 && frequencyMhz <= 2472)
        return (frequencyMhz - 2407) / 5;
    // Below 5150 MHz lie a few regional channels whose numbers would be taken for 2.4 GHz.
    if (frequencyMhz % 5 == 0 && frequencyMhz >= 5150 && frequencyMhz < 5925)
        return (frequencyMhz - 5000) / 5;
    return 0;
}

int channelOf6Ghz(int frequencyMhz)
{
    if (frequencyMhz == 5935) // off the grid of the others
        return 2;
    if (frequencyMhz % 5 == 0 && frequencyMhz >= 5955 && frequencyMhz <= 7115)
        return (frequencyMhz - 5950) / 5;
    return 0;
}

int frequencyOf24GhzChannel(int channel)
{
    if (channel == 14)
        return 2484;
    return channel >= 1 && channel <= 13 ? 2407 + 5 * channel : 0;
}

int frequencyOfChannel(int channel)
{
    const int frequency = 5000 + 5 * channel;
    return channel > 14 && channelOf(frequency) == channel ? frequency
                                                           : frequencyOf24GhzChannel(channel);
}

Security securityOf(bool rsn, bool wpa, bool privacy)
{
    if (rsn)
        return Security::Wpa2;
    if (wpa)
        return Security::Wpa1;
    return privacy ? Security::Wep : Security::Open;
}

} // namespace wifiscan

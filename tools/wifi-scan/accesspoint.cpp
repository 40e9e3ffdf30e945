#include "accesspoint.h"

namespace wifiscan {

bool isHidden(const std::string& name)
{
    return name.find_first_not_of('\0') == std::string::npos;
}

Band bandOf(int frequencyMhz)
{
    if (frequencyMhz >= 5925 && frequencyMhz <= 7125)
        return Band::Ghz6;
    if (frequencyMhz >= 5150 && frequencyMhz < 5925)
        return Band::Ghz5;
    return frequencyMhz >= 2400 && frequencyMhz < 2500 ? Band::Ghz2 : Band::Other;
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

int frequencyOf(Band band, int channel)
{
    int frequency = 0;
    if (band == Band::Ghz2)
        frequency = channel == 14 ? 2484 : 2407 + 5 * channel;
    else if (band == Band::Ghz5)
        frequency = 5000 + 5 * channel;
    else if (band == Band::Ghz6)
        frequency = channel == 2 ? 5935 : 5950 + 5 * channel;
    const int number = band == Band::Ghz6 ? channelOf6Ghz(frequency) : channelOf(frequency);
    return number != 0 && number == channel ? frequency : 0;
}

} // namespace wifiscan

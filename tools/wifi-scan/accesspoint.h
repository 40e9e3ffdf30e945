#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace wifiscan {

/// How strongly an access point is heard. Drivers give one of two figures, or none.
struct Signal {
    enum class Unit {
        None,    ///< the driver gave no figure; value is 0
        Mbm,     ///< a level in hundredths of a dBm: -6700 is -67 dBm
        Percent, ///< a strength of 0 to 100 without a physical unit
    };

    Unit unit = Unit::None;
    int value = 0;
};

/// The method as the reader of the tool's output can tell it; newer methods count as Wpa2.
enum class Security { Open, Wep, Wpa1, Wpa2 };

using Address = std::array<std::uint8_t, 6>;

/// One access point as it was heard. A plain value; every source fills it.
struct AccessPoint {
    Address address = {};
    std::string name;     ///< the SSID's raw bytes, 0 to 32 of them, any value
    bool adHoc = false;   ///< an independent network of stations, without an access point
    int frequencyMhz = 0; ///< centre of the primary 20 MHz channel; 0 when unknown
    Signal signal;
    Security security = Security::Open;
    std::optional<int> noiseDbm;        ///< of its channel, below 0
    std::optional<std::uint32_t> ageMs; ///< since it was last heard
};

/// What a source heard, and how much of it could not be read.
struct Heard {
    std::vector<AccessPoint> accessPoints;
    int malformedElements = 0;             ///< each cost that element alone
    int malformedAccessPoints = 0;         ///< each cost that access point alone
    std::vector<std::string> remarks = {}; ///< what else there is to say of it, a sentence each
};

/// The longest SSID, in bytes (IEEE 802.11-2020, 9.4.2.2).
constexpr std::size_t LongestName = 32;

/// True for a name that the network keeps to itself: none, an empty one, or zero bytes only.
bool isHidden(const std::string& name);

/// The channel number of a frequency in the 2.4 GHz band (1 to 14) or the 5 GHz band (from 30);
/// 0 for any other frequency. 6 GHz numbers its channels from 1 again, so that a number alone
/// would be taken for 2.4 GHz: it has none here.
int channelOf(int frequencyMhz);

/// The channel number of a frequency in the 6 GHz band, 1 to 233; 0 for any other frequency.
int channelOf6Ghz(int frequencyMhz);

/// The frequency in MHz of a 2.4 GHz channel, 1 to 14; 0 for any other number.
int frequencyOf24GhzChannel(int channel);

/// The frequency in MHz of a channel of 2.4 GHz (1 to 14) or 5 GHz (30 to 184); 0 for any other.
int frequencyOfChannel(int channel);

/// The method told by the elements and the capability field: the best that is offered.
Security securityOf(bool rsn, bool wpa, bool privacy);

/// The capability information field (IEEE 802.11-2020, 9.4.1.4), as far as it is used.
constexpr unsigned CapabilityIbss = 1u << 1;
constexpr unsigned CapabilityPrivacy = 1u << 4;

} // namespace wifiscan

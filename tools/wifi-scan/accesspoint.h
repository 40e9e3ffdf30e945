#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace wifiscan {

/// The level of an access point. Drivers report one of two figures, or no figure.
struct Signal {
    enum class Unit {
        None,    ///< the driver gave no figure; value is 0
        Mbm,     ///< a level in hundredths of a dBm: -6700 is -67 dBm
        Percent, ///< a strength of 0 to 100 without a physical unit
    };

    Unit unit = Unit::None;
    int value = 0;

    /// False without a figure, and for a level that no receiver hears: 0 dBm and above stands for
    /// an unset value.
    bool isKnown() const { return unit == Unit::Percent || (unit == Unit::Mbm && value < 0); }
};

/// The method as the reader of the tool's output can tell it; newer methods count as Wpa2.
enum class Security { Open, Wep, Wpa1, Wpa2 };

using Address = std::array<std::uint8_t, 6>;

/// The use of an access point, from its BSS Load element.
struct Load {
    int stations = 0; ///< 0 to 65535
    double busy = 0;  ///< the share of time in which it finds the channel in use, 0 to 1
};

/// Details that the output lines cannot hold. An unknown member is empty, 0 or null.
struct Details {
    int widthMhz = 0;            ///< in operation: 20, 40, 80, 160 or 320
    std::vector<int> centresMhz; ///< of that width; two for 80+80, which counts as 160
    std::optional<std::vector<std::string>> keyManagement; ///< all that are offered
    std::optional<Load> load;
    std::optional<double> busy;        ///< of its channel, as the receiver found it, 0 to 1
    const char* standard = nullptr;    ///< newest offered amendment of IEEE 802.11, as "ax"
    std::optional<bool> dfs;           ///< its channel needs radar detection here
    std::optional<Address> mldAddress; ///< of the multi-link device whose link this is
};

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
    Details details = {};
};

/// The access points that a source heard, and the number of unreadable parts.
struct Heard {
    std::vector<AccessPoint> accessPoints;
    int malformedElements = 0;             ///< each cost that element alone
    int malformedAccessPoints = 0;         ///< each cost that access point alone
    std::vector<std::string> remarks = {}; ///< further sentences for the user
};

/// The longest SSID, in bytes (IEEE 802.11-2020, 9.4.2.2).
constexpr std::size_t MaxSsidBytes = 32;

/// True if the network hides its name: the name is missing, empty or all zero bytes.
bool isHidden(const std::string& name);

/// The bands whose channels have numbers here.
enum class Band { Other, Ghz2, Ghz5, Ghz6 };

Band bandOf(int frequencyMhz);

/// The channel number of a frequency in the 2.4 GHz band (1 to 14) or the 5 GHz band (from 30);
/// 0 for any other frequency. 6 GHz numbers its channels from 1 again, so that a number alone
/// would be read as 2.4 GHz, so it gets no number here.
int channelOf(int frequencyMhz);

/// The channel number of a frequency in the 6 GHz band, 1 to 233; 0 for any other frequency.
int channelOf6Ghz(int frequencyMhz);

/// The frequency in MHz of a band's channel: 1 to 14, 30 to 184 or 1 to 233; 0 for any other
/// number.
int frequencyOf(Band band, int channel);

} // namespace wifiscan

#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace wireless {

/// A wireless network interface, as the kernel's nl80211 tells it. Interfaces of other network
/// namespaces do not count, whatever sysfs shows.
struct Interface {
    std::string name; ///< the kernel's own name of it, never an alternative one
    unsigned index;   ///< the number of the interface, above 0
    unsigned type;    ///< one of NL80211_IFTYPE_...
    unsigned radio;   ///< the number of the radio that it uses
};

/// What came of looking for an interface.
enum class Lookup {
    Found,
    NoInterface, ///< there is none of that name, nor has one it as an alternative name
    NotWireless,
    NoNl80211, ///< the kernel has no wireless part at all
    NoAnswer,  ///< the kernel could not be asked
};

/// All wireless interfaces, in the order in which they were made; none when the kernel cannot be
/// asked. Waits a second for the kernel at most, as the others here do.
std::vector<Interface> interfaces();

/// Looks for an interface by its name or an alternative one. Fills `found` only when it is found.
Lookup findInterface(const std::string& name, Interface& found);

/// The name of the interface that the test set uses: the value of the environment variable
/// environment::Interface, which need not exist, if it is set and not empty; else "wlan0" where
/// that is wireless; else the first wireless interface; else "wlan0".
std::string interfaceInUse();

/// The name that stands for the interface in use in the test set's own commands: "wlan0".
extern const char* const UsualName;

} // namespace wireless

#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace wireless {

/// A wireless network interface, as reported by the kernel's nl80211. Interfaces of other network
/// namespaces are not included.
struct Interface {
    std::string name; ///< the kernel's primary name, never an alternative one
    unsigned index;   ///< the kernel's number of the interface, above 0
    unsigned type;    ///< one of NL80211_IFTYPE_...
    unsigned radio;   ///< the kernel's number of the radio (NL80211_ATTR_WIPHY)
};

/// The result of a search for an interface.
enum class Lookup {
    Found,
    NoInterface, ///< no interface has that name or alternative name
    NotWireless,
    NoNl80211, ///< the kernel has no nl80211
    NoAnswer,  ///< the kernel did not answer, or with an error
};

/// All wireless interfaces, in ascending order of their index; empty if the kernel does not answer.
/// The functions of this header wait about a second for each question to the kernel.
std::vector<Interface> interfaces();

/// Looks for an interface by its name or an alternative name. Fills `found` only if it returns
/// Found.
Lookup findInterface(const std::string& name, Interface& found);

/// The name of the interface in use: the value of environment::Interface if it is set and not
/// empty, even if that interface does not exist; otherwise "wlan0" if it is wireless; otherwise the
/// first wireless interface; otherwise "wlan0".
std::string interfaceInUse();

/// The name that means the interface in use in the test set's commands: "wlan0".
extern const char* const UsualName;

} // namespace wireless

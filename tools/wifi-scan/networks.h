#pragma once

#include "accesspoint.h"

#include <map>

namespace wifiscan {

/// Merges access points into networks. A network is identified by its address, its band (two radios
/// can share an address) and its name.
class Networks {
public:
    /// Adds one access point. Of the same network the strongest stays, or the youngest where it
    /// has moved to another channel meanwhile, which the kernel lists beside the old one.
    void add(AccessPoint accessPoint);

    /// Takes all networks out. One that was heard with and without its name is among them with it
    /// only, at the better level of the two.
    std::vector<AccessPoint> take();

private:
    using Radio = std::pair<Address, int>; // and a number for the band
    std::map<std::pair<Radio, std::string>, AccessPoint> m_networks;
};

} // namespace wifiscan

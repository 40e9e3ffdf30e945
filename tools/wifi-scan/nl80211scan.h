#pragma once

#include "scanpolicy.h"

namespace wifiscan {

/// Scans with a wireless interface of this machine, over nl80211. Needs CAP_NET_ADMIN and the
/// interface up; without the privilege it asks NetworkManager to scan, and when that does not it
/// reports the kernel's results of earlier scans. The whole takes 30 seconds at most, and
/// ends at once when the program is asked to end (see interruption()).
class KernelSource : public Source {
public:
    KernelSource(std::string interfaceName, Bands bands);

    ScanResult scan() override;

private:
    std::string m_interfaceName;
    Bands m_bands;
};

} // namespace wifiscan

#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace wifiscan {

/// What sysfs tells of the radio behind a wireless interface. Each question looks anew.
class Radio {
public:
    /// `folder` is the radio's own, as /sys/class/net/wlan0/phy80211 is; it need not exist.
    explicit Radio(std::filesystem::path folder);

    /// False for an interface that is not wireless, or is gone.
    bool exists() const;

    /// The kernel's number of it; none when it is not told.
    std::optional<std::uint32_t> index() const;

    /// True when one of its rfkill switches is off, in software or hardware.
    bool isBlocked() const;

private:
    std::filesystem::path m_folder;
};

} // namespace wifiscan

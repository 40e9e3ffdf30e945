#pragma once

#include <cstdint>
#include <filesystem>

namespace wifiscan {

/// True when one of the rfkill switches of a radio is off, in software or hardware. `radios` is the
/// folder of all radios in sysfs, /sys/class/ieee80211, and `index` the kernel's number of one. A
/// radio that is not shown there, as in a network namespace with another one's sysfs, is not known
/// to be blocked.
bool isBlocked(const std::filesystem::path& radios, std::uint32_t index);

} // namespace wifiscan

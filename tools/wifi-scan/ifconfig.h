#pragma once

#include <string>

namespace wifiscan {

/// Brings a wireless interface up, by its name or an alternative one. Where that is not needed, not
/// allowed or not possible it does nothing: the next scan reports the fault. Other kinds
/// of interfaces are left alone.
void bringUp(const std::string& interfaceName);

} // namespace wifiscan

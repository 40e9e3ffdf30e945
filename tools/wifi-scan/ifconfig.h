#pragma once

#include <string>

namespace wifiscan {

/// Brings a wireless interface up, by its name or an alternative one. Where that is not needed, not
/// allowed or not possible it does nothing: the scan that follows tells what is wrong. Other kinds
/// of interfaces are left alone.
void bringUp(const std::string& interfaceName);

} // namespace wifiscan

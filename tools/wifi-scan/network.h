#pragma once

#include "elements.h"

namespace wifiscan {

/// The capability information field (IEEE 802.11-2020, 9.4.1.4), as far as it is used.
constexpr unsigned CapabilityEss = 1u << 0;
constexpr unsigned CapabilityIbss = 1u << 1;
constexpr unsigned CapabilityPrivacy = 1u << 4;

/// Fills in the network's own data: frequency, name, method, mode and details. The sources
/// share it, so that the kernel, a frame and a text make the same network of the same facts.
///
/// `heardMhz` is where the receiver stood, 0 when that is not known. A receiver hears neighbouring
/// channels too: it tells the band, and the channel only when no element does. False when nothing
/// tells the frequency.
bool describeNetwork(
    int heardMhz, unsigned capability, const Elements& elements, AccessPoint& accessPoint);

} // namespace wifiscan

#pragma once

#include "accesspoint.h"

#include <climits>

namespace wifiscan {

/// dBm at which the quality is 0; each dB above it counts one, up to MaxQuality, as Linux drivers
/// have it.
constexpr int QualityZeroDbm = -110;
constexpr int MaxQuality = 70;

/// The level of an access point whose level is unknown: weaker than any other.
constexpr int UnknownMbm = INT_MIN;

/// One scale for both kinds of figure, in hundredths of a dBm, so that they can be compared.
inline int levelMbm(const Signal& signal)
{
    if (!signal.isKnown())
        return UnknownMbm;
    return signal.unit == Signal::Unit::Mbm ? signal.value
                                            : QualityZeroDbm * 100 + signal.value * MaxQuality;
}

} // namespace wifiscan

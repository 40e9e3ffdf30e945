#pragma once

#include "accesspoint.h"

namespace wifiscan {

/// dBm at which the quality is 0; each dB above it counts one, up to MostQuality, as Linux drivers
/// have it.
constexpr int QualityZeroDbm = -110;
constexpr int MostQuality = 70;

/// One scale for both kinds of figure, in hundredths of a dBm, so that they can be compared; no
/// figure counts as the weakest.
inline int levelMbm(const Signal& signal)
{
    switch (signal.unit) {
    case Signal::Unit::Mbm:
        return signal.value;
    case Signal::Unit::Percent:
        return QualityZeroDbm * 100 + signal.value * MostQuality;
    case Signal::Unit::None:
        break;
    }
    return QualityZeroDbm * 100;
}

} // namespace wifiscan

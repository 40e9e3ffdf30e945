#pragma once

#include "accesspoint.h"
#include "bytecursor.h"

#include <optional>

namespace wifiscan {

/// Reads the contents of one NL80211_ATTR_BSS: an access point of the kernel's list. Nothing when
/// an attribute does not end within the bytes, when one that is used has not its exact length, or
/// when address or frequency is missing. Elements that could not be read are added to
/// `malformedElements`.
std::optional<AccessPoint> readBss(ByteCursor attributes, int& malformedElements);

/// The receiver's measurements on one channel. Drivers may report either figure or no figure.
struct ChannelUse {
    int frequencyMhz = 0;
    std::optional<int> noiseDbm; ///< below 0
    std::optional<double> busy;  ///< the share of the time there in which it was in use, 0 to 1
};

/// Reads the contents of one NL80211_ATTR_SURVEY_INFO. Nothing when it is malformed.
std::optional<ChannelUse> readSurvey(ByteCursor attributes);

} // namespace wifiscan

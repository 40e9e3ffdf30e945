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

/// The noise on one frequency.
struct Noise {
    int frequencyMhz = 0;
    int dbm = 0; ///< below 0
};

/// Reads the contents of one NL80211_ATTR_SURVEY_INFO. Nothing when it is malformed, or when the
/// driver gives no noise, as most do.
std::optional<Noise> readSurvey(ByteCursor attributes);

} // namespace wifiscan

#pragma once

#include "accesspoint.h"
#include "bytecursor.h"

namespace wifiscan {

/// What a capture puts before each IEEE 802.11 frame.
enum class FrameHead { None, Radiotap };

/// A captured frame, as far as it tells of an access point.
struct Frame {
    enum class Kind {
        AccessPoint, ///< a beacon or a probe response
        Other,
        BadChecksum, ///< the receiver found it damaged
        Malformed,   ///< it ends too early, is part of a frame, or its channel is not known
    };

    Kind kind = Kind::Other;
    AccessPoint accessPoint;   ///< without an age; only of the kind AccessPoint
    int malformedElements = 0; ///< in it
};

/// Reads one frame. Frequency, level and noise are from the radiotap head; a frequency that is not
/// there is that of the channel which the DS parameter set or HT operation names.
Frame readFrame(ByteCursor bytes, FrameHead head);

} // namespace wifiscan

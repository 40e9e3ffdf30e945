#pragma once

#include "accesspoint.h"
#include "bytecursor.h"

namespace wifiscan {

/// The kind of head that a capture has before each IEEE 802.11 frame.
enum class FrameHead { None, Radiotap, Ppi };

/// A captured frame, as far as it tells of an access point.
struct Frame {
    enum class Kind {
        AccessPoint, ///< a beacon or a probe response
        Other,
        BadChecksum, ///< the receiver found it damaged
        Malformed,   ///< it ends too early, is part of a frame, or its channel is not known
    };

    Kind kind = Kind::Other;
    /// The sender's network, then those that it sends for (Multiple BSSID), all without
    /// an age; of the kind AccessPoint only.
    std::vector<AccessPoint> accessPoints;
    int malformedElements = 0; ///< in it
};

/// Reads one frame. The head tells level, noise and where the receiver stood; see
/// describeNetwork().
Frame readFrame(ByteCursor bytes, FrameHead head);

} // namespace wifiscan

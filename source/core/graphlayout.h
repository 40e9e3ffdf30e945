#pragma once

#include <QPoint>
#include <QSize>

namespace wifiondivo {

struct Band;

/// Geometry of a spectrum graph, in pixels of the widget. All numbers are integers, and each
/// division truncates toward zero.
struct GraphLayout {
    // The frame of the drawing. 50 pixels below it stay free, because the tab bar takes part of the
    // region and the lower end of the page is cut off.
    int left;
    int top;
    int right;
    int bottom;
    int axisX;       ///< x of the signal axis
    int axisY;       ///< y of the channel axis, at -100 dBm
    int pitch;       ///< distance of neighbouring channels
    int firstTick;   ///< x of the first channel's tick
    int decibelStep; ///< change of y for 10 dB more; negative
};

/// An access point's trapezoid, open at its base on the channel axis.
struct ApShape {
    int left;  ///< x of the base's left end
    int right; ///< x of the base's right end
    int top;   ///< y of the upper side, which is shorter by Inset at each end
    static const int Inset = 10;
};

const int SignalMarks = 8; ///< -100, -90, ..., -30 dBm

/// The layout for a region of this size.
GraphLayout graphLayout(const Band& band, const QSize& region);

/// x of the tick of the band's channel `index`.
int tickX(const GraphLayout& layout, int index);
/// Left end of the baseline of that channel's label.
QPoint channelLabelAt(const Band& band, const GraphLayout& layout, int index);
/// y of mark `mark`; mark 0 is -100 dBm.
int markY(const GraphLayout& layout, int mark);
/// y of the level -`level` dBm, limited to -2^30 to 2^30.
int levelY(const GraphLayout& layout, int level);
/// Shape of an access point with the level -`level` dBm on the band's channel `index`.
ApShape apShape(const Band& band, const GraphLayout& layout, int index, int level);
/// Left end of the baseline of caption line 0 or 1.
QPoint captionAt(const GraphLayout& layout, int line);

} // namespace wifiondivo

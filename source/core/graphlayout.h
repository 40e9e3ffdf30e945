#pragma once

#include <QPoint>
#include <QSize>

namespace wifiondivo {

struct Band;

/// Geometry of a spectrum graph: whole numbers in, pixels of the widget out. Signed 32-bit
/// arithmetic, each division truncating toward zero.
struct GraphLayout {
    // The frame of the drawing. 50 pixels below it stay free, since the tab bar takes as much of
    // the region and a page's lower end is cut off.
    int left;
    int top;
    int right;
    int bottom;
    int axisX;       ///< the signal axis
    int axisY;       ///< the channel axis, -100 dBm
    int pitch;       ///< distance of neighbouring channels
    int firstTick;   ///< the first channel's tick
    int decibelStep; ///< 10 dB upwards; negative
};

/// An access point's open trapezoid; its base lies on the channel axis.
struct ApShape {
    int left; ///< at the base
    int right;
    int top; ///< y of the upper side, which is Inset shorter at either end
    static const int Inset = 10;
};

const int SignalMarks = 8; ///< -100, -90, ..., -30 dBm

/// The layout for a region of this size.
GraphLayout graphLayout(const Band& band, const QSize& region);

/// x of the tick of the band's channel `index`.
int tickX(const GraphLayout& layout, int index);
/// Where that channel's label begins, on its baseline.
QPoint channelLabelAt(const Band& band, const GraphLayout& layout, int index);
/// y of mark `mark`, 0 being -100 dBm.
int markY(const GraphLayout& layout, int mark);
/// y of the level -`level` dBm; for a level that no radio has, at most 2^30 pixels away.
int levelY(const GraphLayout& layout, int level);
/// Shape of an access point on the band's channel `index`.
ApShape apShape(const Band& band, const GraphLayout& layout, int index, int level);
/// Where caption line 0 or 1 begins, on its baseline.
QPoint captionAt(const GraphLayout& layout, int line);

} // namespace wifiondivo

#include "core/graphlayout.h"

#include "core/band.h"

namespace wifiondivo {

namespace {

/// Limit of a coordinate: outside every screen, and small enough that a sum of two does not
/// overflow.
const qint64 FarOutside = 1 << 30;

} // namespace

GraphLayout graphLayout(const Band& band, const QSize& region)
{
    GraphLayout layout;
    layout.left = 0;
    layout.top = 0;
    layout.right = region.width();
    layout.bottom = region.height() - 50;
    layout.axisX = layout.left + 35;
    layout.axisY = layout.bottom - 45;
    layout.pitch = (layout.right - layout.axisX) / band.axisPitches;
    layout.firstTick = layout.axisX + band.leadingPitches * layout.pitch + band.leadingPixels;
    layout.decibelStep = (layout.top - layout.axisY) / SignalMarks;
    return layout;
}

int tickX(const GraphLayout& layout, int index)
{
    return layout.firstTick + index * layout.pitch;
}

QPoint channelLabelAt(const Band& band, const GraphLayout& layout, int index)
{
    const LabelPlacement& placement = band.labels[index < band.labels[1].firstIndex ? 0 : 1];
    const int x = tickX(layout, index) - (placement.halfPitchLeft ? layout.pitch / 2 : 0)
        + placement.offset + placement.step * (index - placement.firstIndex);
    return QPoint(x, layout.axisY + 17);
}

int markY(const GraphLayout& layout, int mark)
{
    return layout.axisY + mark * layout.decibelStep;
}

int levelY(const GraphLayout& layout, int level)
{
    const qint64 y = layout.axisY + (100 - static_cast<qint64>(level)) * layout.decibelStep / 10;
    return static_cast<int>(qBound(-FarOutside, y, FarOutside));
}

ApShape apShape(const Band& band, const GraphLayout& layout, int index, int level)
{
    ApShape shape;
    shape.left = layout.left + band.shapeOffset + index * layout.pitch
        + (band.shapeHalfPitchRight ? layout.pitch / 2 : 0);
    shape.right = shape.left + band.shapePitches * layout.pitch + band.shapePixels;
    shape.top = levelY(layout, level);
    return shape;
}

QPoint captionAt(const GraphLayout& layout, int line)
{
    return QPoint(layout.left + (layout.right - layout.left) / 10, layout.top + 15 + line * 20);
}

} // namespace wifiondivo

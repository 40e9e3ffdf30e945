#include "views/graphpainter.h"

#include "core/band.h"
#include "core/graphlayout.h"

#include <QPainter>
#include <QString>

namespace wifiondivo {

const QColor wifi_user_clolor[] = {
    QColor(138, 43, 226),
    QColor(127, 255, 0),
    // Only red and green of this entry are fixed. The blue makes a plum that differs from the
    // violet two entries before, and from red, which only the selection has.
    QColor(138, 43, 96),
    QColor(0, 200, 140),
    QColor(255, 97, 3),
    QColor(227, 207, 87),
    QColor(255, 255, 0),
    QColor(115, 115, 128),
    QColor(0, 0, 255),
    QColor(34, 139, 34),
    QColor(221, 160, 221),
    QColor(0, 255, 127),
    QColor(51, 161, 201),
    QColor(0, 0, 0),
    QColor(8, 46, 8),
    QColor(255, 215, 0),
    QColor(210, 105, 30),
    QColor(255, 90, 71),
    QColor(48, 128, 2),
    QColor(0, 255, 25),
};

namespace {

void paintChannelAxis(QPainter& painter, const Band& band, const GraphLayout& layout)
{
    painter.drawLine(layout.axisX, layout.axisY, layout.right, layout.axisY);
    for (int index = 0; index < band.channelCount; ++index) {
        const int x = tickX(layout, index);
        painter.drawLine(x, layout.axisY, x, layout.axisY + 2);
        painter.drawText(
            channelLabelAt(band, layout, index), QString::number(band.channels[index]));
    }
}

void paintSignalAxis(QPainter& painter, const GraphLayout& layout)
{
    painter.drawLine(layout.axisX, layout.axisY, layout.axisX, layout.top);
    for (int mark = 0; mark < SignalMarks; ++mark) {
        const int level = 100 - 10 * mark;
        const int y = markY(layout, mark);
        if (level == 70) { // the reference line lies half a step below this mark, at -75 dBm
            const int reference = y - layout.decibelStep / 2;
            painter.setPen(Qt::blue);
            painter.drawLine(layout.axisX, reference, layout.right, reference);
            painter.setPen(Qt::black);
        }
        if (mark > 0)
            painter.drawLine(layout.axisX, y, layout.axisX - 2, y);
        painter.drawText(layout.left, y + 5, QString::fromLatin1("-%1").arg(level));
    }
}

/// Draws the three sides of an access point's shape. `inwards`, in pixels, moves the flanks towards
/// the middle and the top side down.
void paintShape(QPainter& painter, const Band& band, const GraphLayout& layout,
    const GraphShape& accessPoint, int inwards)
{
    const ApShape shape = apShape(band, layout, accessPoint.channelIndex, accessPoint.level);
    const int topLeft = shape.left + ApShape::Inset;
    const int topRight = shape.right - ApShape::Inset;
    painter.drawLine(topLeft, shape.top + inwards, topRight, shape.top + inwards);
    painter.drawLine(shape.left + inwards, layout.axisY, topLeft + inwards, shape.top);
    painter.drawLine(shape.right - inwards, layout.axisY, topRight - inwards, shape.top);
}

void paintSelection(
    QPainter& painter, const Band& band, const GraphLayout& layout, const GraphContents& contents)
{
    painter.setPen(Qt::red);
    // Network names are mostly UTF-8. Convert explicitly: QString's default conversion of 8-bit
    // texts, which the list uses, is Latin-1 with Qt 4.
    painter.drawText(captionAt(layout, 0), QString::fromUtf8(contents.network));
    painter.drawText(captionAt(layout, 1), QString::fromUtf8(contents.neighbours));
    paintShape(painter, band, layout, contents.selection, 0);
    paintShape(painter, band, layout, contents.selection, 1);
}

} // namespace

void paintGraph(
    QPainter& painter, const Band& band, const QSize& region, const GraphContents& contents)
{
    const GraphLayout layout = graphLayout(band, region);
    painter.setPen(Qt::black);
    paintChannelAxis(painter, band, layout);
    paintSignalAxis(painter, layout);
    for (int i = 0; i < contents.shapeCount; ++i) {
        const GraphShape& shape = contents.shapes[i];
        painter.setPen(wifi_user_clolor[shape.color]);
        paintShape(painter, band, layout, shape, 0);
    }
    if (contents.hasSelection)
        paintSelection(painter, band, layout, contents);
}

} // namespace wifiondivo

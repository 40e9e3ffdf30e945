#include "graphpainter.h"

#include "band.h"
#include "graphlayout.h"
#include "signallevel.h"

#include <QPainter>
#include <QString>

namespace wifiondivo {

const QColor wifi_user_clolor[20] = {
    QColor(138, 43, 226),
    QColor(127, 255, 0),
    // Only red and green of this entry are given. With this blue it is a plum that can be told from
    // the violet two entries before it, and from the red that is the selection's alone.
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

const int ColorCount = sizeof wifi_user_clolor / sizeof wifi_user_clolor[0];

int levelOfEntry(const ScanEntry& entry)
{
    return levelOfSignal(leadingInteger(fieldText(entry.signal)));
}

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

/// Draws the three open sides, each end moved `inwards` to the middle and the top as far down.
void paintShape(QPainter& painter, const GraphLayout& layout, const ApShape& shape, int inwards)
{
    const int topLeft = shape.left + ApShape::Inset;
    const int topRight = shape.right - ApShape::Inset;
    painter.drawLine(topLeft, shape.top + inwards, topRight, shape.top + inwards);
    painter.drawLine(shape.left + inwards, layout.axisY, topLeft + inwards, shape.top);
    painter.drawLine(shape.right - inwards, layout.axisY, topRight - inwards, shape.top);
}

/// Draws all access points of the band but the selected one, and returns the selected one's index
/// in the table: the last that carries the selected BSSID, or -1.
int paintAccessPoints(QPainter& painter, const Band& band, const GraphLayout& layout,
    const stEXT_WIFISCAN_result& table, const SelectedBssid& selected)
{
    int chanColorIndex[MaxBandChannels];
    for (int index = 0; index < band.channelCount; ++index)
        chanColorIndex[index] = index - 1;

    int selectedEntry = -1;
    for (int i = 0; i <= lastEntry(table); ++i) {
        const ScanEntry& entry = table.ap[i];
        if (entry.channel < band.firstSelectableChannel)
            continue;
        if (isSelected(entry, selected)) { // without a selection: an entry without a BSSID
            selectedEntry = i;
            continue;
        }
        const int index = channelIndex(band, entry.channel);
        if (index < 0)
            continue;
        chanColorIndex[index] = (chanColorIndex[index] + 1) % ColorCount;
        painter.setPen(wifi_user_clolor[chanColorIndex[index]]);
        paintShape(painter, layout, apShape(band, layout, index, levelOfEntry(entry)), 0);
    }
    return selectedEntry;
}

/// Networks name themselves in UTF-8, which is said here, since QString's own conversion of 8-bit
/// texts, as the list uses it, is Latin-1 with Qt 4.
void paintCaptions(QPainter& painter, const Band& band, const GraphLayout& layout,
    const stEXT_WIFISCAN_result& table, int selectedEntry)
{
    const ScanEntry& entry = table.ap[selectedEntry];
    // Neighbours of either band count, drawn or not. Channels are numbered in steps of 5 MHz, so
    // networks 20 MHz wide overlap when their channels differ by less than 4. That holds for 5 GHz
    // as well: the channels drawn there do not overlap each other, but one such as 38 overlaps two
    // of them. The selected access point is not its own neighbour.
    int cochannel = 0;
    int overlapping = 0;
    for (int i = 0; i <= lastEntry(table); ++i) {
        const int channel = table.ap[i].channel;
        if (channel <= 0 || i == selectedEntry)
            continue;
        const qint64 distance = qAbs(static_cast<qint64>(channel) - entry.channel);
        if (distance == 0)
            ++cochannel;
        else if (distance <= 3)
            ++overlapping;
    }

    const QString network = QString::fromUtf8(fieldText(entry.essid).c_str())
        + QLatin1String(band.beforeChannel) + QString::number(entry.channel)
        + QString::fromLatin1("  Signal:-%1dBm").arg(levelOfEntry(entry));
    const QString neighbours = QString::fromLatin1("Co-Channel:") + QString::number(cochannel)
        + QLatin1String(band.beforeOverlapping) + QString::number(overlapping);
    painter.drawText(captionAt(layout, 0), network);
    painter.drawText(captionAt(layout, 1), neighbours);
}

void paintSelection(QPainter& painter, const Band& band, const GraphLayout& layout,
    const stEXT_WIFISCAN_result& table, int selectedEntry)
{
    const ScanEntry& entry = table.ap[selectedEntry];
    const int index = channelIndex(band, entry.channel);
    if (index < 0)
        return;
    painter.setPen(Qt::red);
    paintCaptions(painter, band, layout, table, selectedEntry);
    const ApShape shape = apShape(band, layout, index, levelOfEntry(entry));
    paintShape(painter, layout, shape, 0);
    paintShape(painter, layout, shape, 1);
}

} // namespace

void paintGraph(QPainter& painter, const Band& band, const QSize& region, int occupiedChannels,
    const stEXT_WIFISCAN_result* table, const SelectedBssid& selected)
{
    const GraphLayout layout = graphLayout(band, region);
    painter.setPen(Qt::black);
    paintChannelAxis(painter, band, layout);
    paintSignalAxis(painter, layout);
    if (occupiedChannels <= 0 || !table)
        return;
    const int selectedEntry = paintAccessPoints(painter, band, layout, *table, selected);
    if (selectedEntry >= 0)
        paintSelection(painter, band, layout, *table, selectedEntry);
}

} // namespace wifiondivo

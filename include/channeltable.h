#pragma once

#include <QList>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>

#include <cstdio>

class CPageTable;
class CWidget;
class QProgressBar;

namespace wifiondivo {

const int ChannelRowsPerPage = 9;

/// One row of a channel table as it is shown.
struct ChannelRow {
    int channel;
    int apCount;
    QString bestText;
    int best; ///< value of the bar, 0 to 100
};

/// The first `count` rows of a summary, its best signals put into words by `bestText`.
template <typename Byte>
QList<ChannelRow> channelRows(int count, const Byte* channels, const Byte* accessPoints,
    const Byte* bests, QString (*bestText)(int best))
{
    QList<ChannelRow> rows;
    for (int i = 0; i < count; ++i) {
        const ChannelRow row = {channels[i], accessPoints[i], bestText(bests[i]), bests[i]};
        rows.append(row);
    }
    return rows;
}

/// Widths of the four columns, and a bar's place over the fourth, for a region of the given size.
/// All are in pixels, truncated; in whole numbers, so that they come out the same on every machine.
int channelColumnWidth(int column, const QSize& region);
/// `rowOnPage` counts from 0.
QRect channelBarGeometry(int rowOnPage, const QSize& region);

/// Builds the empty table of a channel table view, with its layout on `view`, which becomes its
/// owner. `labels` are those of the four columns, translated in the view's own class.
CPageTable* createChannelTable(CWidget* view, const QStringList& labels);

/// Fills the table's rows and gives it a new bar for each, in place of those in `bars`, which it
/// deletes. `bar` is set to each new bar in turn. The first page is shown.
void fillChannelTable(CPageTable* table, const QList<ChannelRow>& rows, QList<QProgressBar*>& bars,
    QProgressBar*& bar);

/// Shows the bars of page `page` and hides the others; pages other than the first two change
/// nothing.
void showChannelBars(const QList<QProgressBar*>& bars, int page);

/// Writes a band's section of the HTML report: its occupied channels, strongest first. Without any
/// it writes nothing.
void writeChannelSection(
    FILE* file, int fontSize, const char* title, const QList<ChannelRow>& occupied);

} // namespace wifiondivo

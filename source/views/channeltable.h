#pragma once

#include "core/channelsummary.h"
#include "hostbinding.h"

#include <QRect>
#include <QSize>
#include <QStringList>

class QProgressBar;

namespace wifiondivo {

const int ChannelRowsPerPage = 9;

/// Width of column 0 to 3 for a region of the given size, in pixels, truncated. The arithmetic uses
/// integers only, so that the result is the same on every machine.
int channelColumnWidth(int column, const QSize& region);
/// Rectangle of a bar over the last column. `rowOnPage` counts from 0.
QRect channelBarGeometry(int rowOnPage, const QSize& region);

/// Builds the empty table of a channel table view and its layout on `view`, which owns both.
/// `labels` are the four column titles, translated in the context of the view's class.
CPageTable* createChannelTable(CWidget* view, const QStringList& labels);

/// Fills the table's rows and shows the first page. Deletes the bars in `bars` and creates a new
/// one for each row; `bar` is set to the last new bar. Without rows, the table becomes as
/// createChannelTable() made it and `bar` does not change.
void fillChannelTable(CPageTable* table, const QList<ChannelRow>& rows, QList<QProgressBar*>& bars,
    QProgressBar*& bar);

/// Shows the bars of page `page` and hides the others. Pages other than 0 and 1 change nothing.
void showChannelBars(const QList<QProgressBar*>& bars, int page);

} // namespace wifiondivo

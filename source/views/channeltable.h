#pragma once

#include "core/channelsummary.h"
#include "hostbinding.h"

#include <QRect>
#include <QSize>
#include <QStringList>

class QProgressBar;

namespace wifiondivo {

const int ChannelRowsPerPage = 9;

/// Widths of the four columns, and a bar's place over the fourth, for a region of the given size.
/// All are in pixels, truncated; in whole numbers, so that they come out the same on every machine.
int channelColumnWidth(int column, const QSize& region);
/// `rowOnPage` counts from 0.
QRect channelBarGeometry(int rowOnPage, const QSize& region);

/// Builds the empty table of a channel table view, with its layout on `view`, which becomes its
/// owner. `labels` are those of the four columns, translated in the view's own class.
CPageTable* createChannelTable(CWidget* view, const QStringList& labels);

/// Fills the table's rows and gives it a new bar for each, in place of those in `bars`, which it
/// deletes. `bar` is set to each new bar in turn. The first page is shown. No rows leave the table
/// as createChannelTable() made it.
void fillChannelTable(CPageTable* table, const QList<ChannelRow>& rows, QList<QProgressBar*>& bars,
    QProgressBar*& bar);

/// Shows the bars of page `page` and hides the others; pages other than the first two change
/// nothing.
void showChannelBars(const QList<QProgressBar*>& bars, int page);

} // namespace wifiondivo

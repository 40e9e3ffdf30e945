#include "views/channeltable.h"

#include "hostbinding.h"

#include <QProgressBar>
#include <QVBoxLayout>

namespace wifiondivo {

namespace {

/// Column widths, in tenths of the region's width.
const int ColumnTenths[] = {2, 2, 2, 4};
const int ColumnCount = sizeof ColumnTenths / sizeof ColumnTenths[0];

} // namespace

int channelColumnWidth(int column, const QSize& region)
{
    return region.width() * ColumnTenths[column] / 10;
}

QRect channelBarGeometry(int rowOnPage, const QSize& region)
{
    const int step = region.height() / 12 - 5;
    const int x = region.width() * 6 / 10;
    const int width = (region.width() * 4 - 40) / 10;
    return QRect(x + 1, step * (rowOnPage + 1) + 1, width, step - 2);
}

CPageTable* createChannelTable(CWidget* view, const QStringList& labels)
{
    QVBoxLayout* const layout = new QVBoxLayout(view);
    CPageTable* const table = new CPageTable(view);
    const QSize region = kit::tabRegion().size();
    table->setFixedSize(region.width(), region.height());
    table->setHorizontalHeaderLabels(labels);
    for (int column = 0; column < ColumnCount; ++column)
        table->setColumnWidth(column, channelColumnWidth(column, region));
    table->setMaxVisibleRows(ChannelRowsPerPage);
    table->setRowCount(ChannelRowsPerPage);
    table->setBackgroundColor(kit::pageBackground());
    layout->addWidget(table);
    layout->addStretch();
    layout->setContentsMargins(0, 0, 0, 0);
    return table;
}

void fillChannelTable(CPageTable* table, const QList<ChannelRow>& rows, QList<QProgressBar*>& bars,
    QProgressBar*& bar)
{
    table->setCurrentPage(0);
    qDeleteAll(bars);
    bars.clear();
    if (rows.isEmpty()) {
        table->setRowCount(0);
        table->setRowCount(ChannelRowsPerPage);
    }
    const QSize region = kit::tabRegion().size();
    for (int i = 0; i < rows.size(); ++i) {
        if (table->rowCount() <= i)
            table->insertRow(i);
        const ChannelRow& row = rows.at(i);
        table->setCellValue(i, 0, QString::number(row.channel));
        table->setCellValue(i, 1, QString::number(row.apCount));
        table->setCellValue(i, 2, row.bestText);
        bar = new QProgressBar(table);
        bars.append(bar);
        bar->setGeometry(channelBarGeometry(i % ChannelRowsPerPage, region));
        bar->setRange(0, 100);
        // Set the value before showing the bar: a visible bar repaints itself and the table below
        // at once.
        bar->setValue(row.best);
        bar->setVisible(i < ChannelRowsPerPage);
    }
}

void showChannelBars(const QList<QProgressBar*>& bars, int page)
{
    if (page != 0 && page != 1)
        return;
    for (int i = 0; i < bars.size(); ++i)
        bars.at(i)->setVisible(i / ChannelRowsPerPage == page);
}

} // namespace wifiondivo

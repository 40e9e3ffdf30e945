#include "../tests/core/analyser.h"
#include "comparison.h"
#include "include/2_4Graph.h"
#include "include/2_4GraphCh.h"
#include "include/5GraphCh.h"
#include "surroundings.h"
#include "views/channeltable.h"

#include <QAbstractEventDispatcher>
#include <QImage>
#include <QPainter>
#include <QPicture>
#include <QProgressBar>

#include <ctime>
#include <malloc.h>

using namespace wifiondivo;

namespace {

/// Paints a 2.4 GHz graph with a selected access point, or has Qt draw the same from a recording.
void paintGraph(benchmark::State& state, bool floor)
{
    const stEXT_WIFISCAN_result table = scanTable(int(state.range()));
    Wifiondivo_2_4GraphCH channels(nullptr);
    channels.creatChannelsList(table);
    Wifiondivo_2_4Graph graph(nullptr);
    graph.GetAPList(table);
    graph.markSelectedSSID({0, 1});
    QPicture picture;
    graph.render(&picture);
    QImage image(graph.size(), QImage::Format_RGB32);
    while (state.KeepRunning()) {
        if (floor)
            QPainter(&image).drawPicture(0, 0, picture);
        else
            graph.render(&image);
    }
}

/// Fills the page table of a view with so many rows and a bar on each, as bare as the toolkit
/// allows.
void fillBare(QWidget& view, int rows)
{
    CPageTable* const table = view.findChild<CPageTable*>();
    qDeleteAll(table->findChildren<QProgressBar*>(QString(), Qt::FindDirectChildrenOnly));
    table->setRowCount(rows);
    for (int row = 0; row < rows; ++row) {
        table->setCellValue(row, 0, "149");
        table->setCellValue(row, 1, "12");
        table->setCellValue(row, 2, "67%");
        QProgressBar* const bar = new QProgressBar(table);
        bar->setGeometry(channelBarGeometry(row % ChannelRowsPerPage, table->size()));
        bar->setValue(67);
        bar->setVisible(row < ChannelRowsPerPage);
    }
}

/// Fills the tables of both bands, shown, again and again, until they are painted.
void fillTables(benchmark::State& state, bool floor)
{
    const stEXT_WIFISCAN_result table = scanTable(int(state.range()));
    Wifiondivo_2_4GraphCH channels2_4(nullptr);
    Wifiondivo_5GraphCH channels5(nullptr);
    channels2_4.show();
    channels5.show();
    while (state.KeepRunning()) {
        if (floor) {
            fillBare(channels2_4, ChannelCount2_4);
            fillBare(channels5, ChannelCount5);
        } else {
            channels2_4.creatChannelsList(table);
            channels5.creatChannelsList(table);
        }
        QCoreApplication::processEvents();
    }
}

/// Processor time of this thread, in milliseconds.
double threadTime()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

/// Scans, and returns for how many milliseconds the event loop was kept at most.
double scan(Analyser& analyser)
{
    layOutput(127);
    analyser.buttons["Scan"]->click();
    QAbstractEventDispatcher* const dispatcher = QAbstractEventDispatcher::instance();
    double longest = 0;
    for (bool served = true; served || !analyser.buttons["Scan"]->isEnabled();) {
        const double begin = threadTime();
        served = dispatcher->processEvents(QEventLoop::AllEvents);
        longest = std::max(longest, threadTime() - begin);
    }
    return longest;
}

void keepEventLoop(benchmark::State& state)
{
    Analyser analyser;
    double total = 0;
    while (state.KeepRunning())
        total += scan(analyser);
    state.counters["value"] = benchmark::Counter(total, benchmark::Counter::kAvgIterations);
}

double usedMebibytes()
{
    const struct mallinfo2 heap = mallinfo2();
    return double(heap.uordblks + heap.hblkhd) / (1024 * 1024);
}

void showAllViews(benchmark::State& state)
{
    double used = 0;
    while (state.KeepRunning()) {
        Analyser analyser;
        QCoreApplication::processEvents();
        const double before = usedMebibytes();
        scan(analyser);
        for (int tab = 0; tab < analyser.tabs->count(); ++tab) {
            analyser.tabs->setCurrentIndex(tab);
            QCoreApplication::processEvents();
        }
        used = std::max(used, usedMebibytes() - before);
    }
    state.counters["value"] = used;
}

} // namespace

void compareViews()
{
    compare(
        "paint a graph, with a selection", "a recording of it, played", 0.8, Growing, paintGraph);
    compare("rebuild both channel tables, shown", "the same cells and bars, values set first", 1.3,
        Growing, fillTables);
    compare("event loop kept at most, all of a scan delivered", "16 ms", 2.0 / 16, Most,
        against(16, keepEventLoop));
    compare("heap with all views shown, over the utility before a scan", "1 MiB", 2, Most,
        against(1, showAllViews));
}

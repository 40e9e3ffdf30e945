#include "../tests/core/analyser.h"
#include "2_4Graph.h"
#include "2_4GraphCh.h"
#include "5GraphCh.h"
#include "comparison.h"
#include "surroundings.h"
#include "views/channeltable.h"

#include <QAbstractEventDispatcher>
#include <QImage>
#include <QPainter>
#include <QProgressBar>

#include <ctime>
#include <malloc.h>

using namespace wifiondivo;

namespace {

/// A line or a text that a graph draws.
struct Stroke {
    QColor color;
    QLine line;
    QPointF baseline;
    QString text; ///< null for a line
};

std::vector<Stroke> strokesOf(QWidget& widget)
{
    std::vector<Stroke> strokes;
    for (const QString& entry : PaintRecorder::logOf(widget)) {
        const QStringList words = entry.split(' ');
        const auto number = [&words](int word, int place) {
            return words.value(word).split(',').value(place).toDouble();
        };
        if (words.first() == "text")
            strokes.push_back(
                {words.at(1), {}, {number(2, 0), number(2, 1)}, entry.section(' ', 3)});
        else
            strokes.push_back({words.at(1),
                {int(number(2, 0)), int(number(2, 1)), int(number(3, 0)), int(number(3, 1))}, {},
                {}});
    }
    return strokes;
}

/// A widget with the same lines and texts as another.
class Copy : public QWidget {
public:
    explicit Copy(QWidget& original)
        : m_strokes(strokesOf(original))
    {
        resize(original.size());
        setFont(original.font());
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        QColor color;
        for (const Stroke& stroke : m_strokes) {
            if (stroke.color != color)
                painter.setPen(color = stroke.color);
            if (stroke.text.isNull())
                painter.drawLine(stroke.line);
            else
                painter.drawText(stroke.baseline, stroke.text);
        }
    }

private:
    const std::vector<Stroke> m_strokes;
};

/// Paints a 2.4 GHz graph with a selected access point, or its copy.
void paintGraph(benchmark::State& state, bool copied)
{
    const stEXT_WIFISCAN_result table = scanTable(int(state.range()));
    Wifiondivo_2_4GraphCH channels(nullptr);
    channels.creatChannelsList(table);
    Wifiondivo_2_4Graph graph(nullptr);
    graph.GetAPList(table);
    graph.markSelectedSSID({0, 1});
    Copy copy(graph);
    QWidget& painted = copied ? static_cast<QWidget&>(copy) : graph;
    QImage image(graph.size(), QImage::Format_RGB32);
    while (state.KeepRunning())
        painted.render(&image);
}

/// Fills the tables of both bands, shown, again and again by `fill`, until they are painted.
void fillTables(
    benchmark::State& state, QWidget& first, QWidget& second, const std::function<void()>& fill)
{
    first.show();
    second.show();
    QCoreApplication::processEvents();
    while (state.KeepRunning()) {
        fill();
        QCoreApplication::processEvents();
    }
}

void showChannels(benchmark::State& state)
{
    const stEXT_WIFISCAN_result table = scanTable(int(state.range()));
    Wifiondivo_2_4GraphCH channels2_4(nullptr);
    Wifiondivo_5GraphCH channels5(nullptr);
    fillTables(state, channels2_4, channels5, [&] {
        channels2_4.creatChannelsList(table);
        channels5.creatChannelsList(table);
    });
}

/// A page table of so many rows with a bar on each, as bare as the toolkit allows.
struct BareTable {
    explicit BareTable(int count)
        : rows(count)
        , pages(createChannelTable(&view, {"Channel", "AP", "Best Signal", "Best Signal Bar"}))
    {
        pages->setRowCount(rows);
    }
    void fill()
    {
        qDeleteAll(bars);
        bars.clear();
        for (int row = 0; row < rows; ++row) {
            pages->setCellValue(row, 0, "149");
            pages->setCellValue(row, 1, "12");
            pages->setCellValue(row, 2, "67%");
            QProgressBar* const bar = new QProgressBar(pages);
            bars.append(bar);
            bar->setGeometry(channelBarGeometry(row % ChannelRowsPerPage, pages->size()));
            bar->setValue(67);
            bar->setVisible(row < ChannelRowsPerPage);
        }
    }
    int rows;
    CWidget view;
    CPageTable* pages;
    QList<QProgressBar*> bars;
};

void showBareTables(benchmark::State& state)
{
    BareTable first(ChannelCount2_4);
    BareTable second(ChannelCount5);
    fillTables(state, first.view, second.view, [&] {
        first.fill();
        second.fill();
    });
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
        "paint a graph, with a selection", "a widget with the same lines and texts", 1.05, Growing,
        [](benchmark::State& state) { paintGraph(state, false); },
        [](benchmark::State& state) { paintGraph(state, true); });
    compare("rebuild both channel tables, shown", "the same cells and bars, values set first", 1.3,
        Growing, showChannels, showBareTables);
    compare("event loop kept at most, all of a scan delivered", "16 ms", 2.0 / 16, Most,
        keepEventLoop, fixed(16));
    compare("heap with all views shown, over the utility before a scan", "1 MiB", 2, Most,
        showAllViews, fixed(1));
}

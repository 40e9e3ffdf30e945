#include "../texttable.h"
#include "core/band.h"
#include "include/2_4Graph.h"
#include "include/2_4GraphCh.h"
#include "include/5Graph.h"
#include "include/5GraphCh.h"
#include "paintrecorder.h"
#include "scantable.h"
#include "views/graphpainter.h"

#include <QPainter>
#include <QtTest>

using namespace wifiondivo;

namespace {

const QSize Screen(640, 400); // the tab region

/// The recorder's log of paintGraph() on a band with occupied channels.
QStringList painted(bool band5, const stEXT_WIFISCAN_result& table, const char* selected = "none",
    const QSize& region = Screen)
{
    SelectedBssid bssid = {};
    qstrncpy(reinterpret_cast<char*>(bssid), selected, sizeof bssid);
    PaintRecorder recorder(region);
    QPainter painter(&recorder);
    const Band& band = band5 ? Band5 : Band2_4;
    paintGraph(painter, band, region, graphContents(band, 1, &table, bssid));
    painter.end();
    return recorder.log();
}

QStringList axesOnly(bool band5)
{
    return painted(band5, stEXT_WIFISCAN_result());
}

/// The lines of a shape given as "colour left top right", for each of its colours; with a fifth
/// word the lines within the shape by which a selection is doubled.
QStringList shapes(const QString& text)
{
    const QStringList words = text.split(' ');
    const int left = words.at(1).toInt();
    const int top = words.at(2).toInt();
    const int right = words.at(3).toInt();
    const int inwards = words.size() - 4;
    const auto line = [&](int x1, int y1, int x2, int y2) {
        return QString(" %1,%2 %3,%4").arg(x1).arg(y1).arg(x2).arg(y2);
    };
    QStringList lines;
    for (const QString& colour : words.at(0).split(','))
        for (const QString& side : {line(left + 10, top + inwards, right - 10, top + inwards),
                 line(left + inwards, 305, left + 10 + inwards, top),
                 line(right - inwards, 305, right - 10 - inwards, top)})
            lines << "line #" + colour + side;
    return lines;
}

/// A graph whose selection can be read.
template <typename Graph> class Readable : public Graph {
public:
    Readable()
        : Graph(nullptr)
    {
    }
    /// Sends steps, one letter each (Right, Left, Up, Down), after a scan if one is given, and
    /// tells the selection after each as "BSSID channel cursor".
    QString walk(const QString& steps, const QString& scan = QString())
    {
        if (!scan.isEmpty())
            this->GetAPList(scanTable(scan));
        QStringList log;
        for (const QChar letter : steps) {
            this->markSelectedSSID(
                {(letter == 'D') - (letter == 'U'), (letter == 'R') - (letter == 'L')});
            log << selection();
        }
        return log.join(", ");
    }
    QString selection() const
    {
        return QString("%1 %2 %3")
            .arg(reinterpret_cast<const char*>(this->m_curBSSiD))
            .arg(this->m_curChan)
            .arg(this->current);
    }
};

typedef Readable<Wifiondivo_2_4Graph> Graph2_4;
typedef Readable<Wifiondivo_5Graph> Graph5;

} // namespace

class GraphsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { qRegisterMetaType<stEXT_WIFISCAN_result>("stEXT_WIFISCAN_result"); }
    void init() { ap2_4 = ap5 = 1; }

    void drawsTheAxes()
    {
        // Each channel as its mark's place, its caption's place and its number.
        const char* const channels[] = {
            "107 104 1, 142 139 2, 177 174 3, 212 209 4, 247 244 5, 282 279 6, 317 314 7, 352 349 "
            "8, 387 384 9, 422 412 10, 457 450 11, 492 488 12, 527 526 13",
            "97 89 36, 157 149 40, 217 209 44, 277 269 48, 337 329 149, 397 389 153, 457 439 157, "
            "517 503 161, 577 567 165"};
        for (bool band5 : {false, true}) {
            QStringList lines("line #000000 35,305 640,305");
            for (const QString& channel : QString(channels[band5]).split(", ")) {
                const QStringList words = channel.split(' ');
                lines << QString("line #000000 %1,305 %1,307").arg(words.at(0))
                      << QString("text #000000 %1,322 %2").arg(words.at(1), words.at(2));
            }
            lines << "line #000000 35,305 35,0"
                  << "text #000000 0,310 -100";
            for (int level : {90, 80, 70, 60, 50, 40, 30}) {
                const int y = 305 - (100 - level) / 10 * 38;
                lines << QString("line #000000 35,%1 33,%1").arg(y)
                      << QString("text #000000 0,%1 -%2").arg(y + 5).arg(level);
                if (level == 80)
                    lines << "line #0000ff 35,210 640,210";
            }
            QCOMPARE(axesOnly(band5), lines);
        }
    }

    void drawsAccessPoints_data() { addTableOf(QFINDTESTDATA("shapes.txt")); }
    void drawsAccessPoints()
    {
        QFETCH(QByteArray, expected);
        bool band5;
        const QString scan = inputAndBand(band5);
        QStringList lines = axesOnly(band5);
        for (const QString& line : QString::fromUtf8(expected).split('\n', Qt::SkipEmptyParts))
            lines += line.startsWith("text") ? QStringList(line) : shapes(line);
        QCOMPARE(painted(band5, scanTable(scan), "S"), lines);
    }

    /// A region of 479 x 271: the axes meet at 35,176; a mark is 176 / 8 = 22 pixels high, and the
    /// pitch is 444 / 17 = 26 in the 2.4 GHz band, 444 / 10 = 44 in the 5 GHz band.
    void fitsAnotherRegion()
    {
        const struct {
            bool band5;
            const char* scan;
            QStringList lines;
        } rows[] = {
            // Channel 6: 40 + 5 * 26, 4 * 26 - 6 wide. Channel 13: 89 + 12 * 26, -10 + 3 * 3.
            {false, "6/-47/S",
                {"line #000000 401,176 401,178", "text #000000 400,193 13",
                    "line #ff0000 180,60 258,60", "line #ff0000 170,176 180,60",
                    "line #ff0000 268,176 258,60"}},
            // Channel 149: 37 + 4 * 44 + 22. Channel 165: 81 + 8 * 44, -22 + 12 + 2 * 4.
            {true, "149/-47/S",
                {"line #000000 433,176 433,178", "text #000000 431,193 165",
                    "line #ff0000 245,60 269,60", "line #ff0000 235,176 245,60",
                    "line #ff0000 279,176 269,60"}},
        };
        for (const auto& row : rows) {
            const QStringList log = painted(row.band5, scanTable(row.scan), "S", QSize(479, 271));
            QStringList expected = row.lines;
            expected << "line #000000 35,176 479,176"
                     << "line #000000 35,22 33,22"
                     << "text #000000 0,27 -30"
                     << "line #0000ff 35,121 479,121"; // 176 - 3 * 22 + 11
            for (const QString& line : expected)
                QVERIFY2(
                    log.contains(line), qPrintable(line + " is missing in\n" + log.join('\n')));
            QCOMPARE(log.filter(QRegularExpression("^text #ff0000 47,(15|35) ")).size(), 2);
        }
    }

    void comparesWhatASelectionKeeps()
    {
        const QByteArray kept(19, '7'); // its characters
        stEXT_WIFISCAN_result table =
            scanTable("6/-45/" + kept + "-, 6/-45, 6/-45/" + kept.left(18));
        std::memset(&table.ap[2], '7', sizeof table.ap[2]); // fields full to their last byte
        table.ap[2].channel = 6;
        setField(table.ap[2].signal, "-35");
        const QStringList log = painted(false, table, kept).mid(axesOnly(false).size());
        QCOMPARE(log.size(), 3 + 8); // one other shape, one selection
        const int width = sizeof table.ap[2].essid;
        QVERIFY(log.at(3).endsWith(' ' + QString(width, '7') + "   Channel:6  Signal:-35dBm"));
    }

    void paintsTheWidgets()
    {
        for (bool band5 : {false, true}) {
            ap2_4 = !band5; // the other band is empty
            ap5 = band5;
            const stEXT_WIFISCAN_result table = scanTable("6/-45/A, 149/-45/B");
            std::unique_ptr<CWidget> graph(band5
                    ? static_cast<CWidget*>(new Wifiondivo_5Graph(nullptr))
                    : new Wifiondivo_2_4Graph(nullptr));
            QCOMPARE(band5 ? ondivo_5Graph : ondivo_2_4Graph, 1);
            QCOMPARE(graph->size(), Screen);
            QCOMPARE(PaintRecorder::logOf(*graph), axesOnly(band5)); // no table yet
            QVERIFY(QMetaObject::invokeMethod(
                graph.get(), "GetAPList", Q_ARG(stEXT_WIFISCAN_result, table)));
            QCOMPARE(PaintRecorder::logOf(*graph), painted(band5, table));
            QImage image(Screen, QImage::Format_RGB32);
            graph->render(&image);
            // The top side of either band's access point, and the area above it.
            QCOMPARE(image.pixelColor(330, 96), wifi_user_clolor[band5 ? 4 : 5]);
            QCOMPARE(image.pixelColor(330, 90), QColor(Qt::white));
            ap2_4 = band5; // now only the other band has any
            ap5 = !band5;
            QCOMPARE(PaintRecorder::logOf(*graph), axesOnly(band5)); // no occupied channel
            {
                const Wifiondivo_2_4Graph younger2_4(nullptr);
                const Wifiondivo_5Graph younger5(nullptr);
                graph.reset(); // an old window may go only when a new one is there
                QCOMPARE(band5 ? ondivo_5Graph : ondivo_2_4Graph, 1);
            }
            QCOMPARE(band5 ? ondivo_5Graph : ondivo_2_4Graph, 0);
        }
    }

    void walks_data() { addTableOf(QFINDTESTDATA("walks.txt")); }
    void walks()
    {
        bool band5;
        const QString input = inputAndBand(band5);
        Graph2_4 graph2_4;
        Graph5 graph5;
        QStringList log;
        for (const QString& line : input.split('\n')) {
            const QString steps = line.section(": ", 0, 0);
            const QString scan = line.section(": ", 1);
            log << (band5 ? graph5.walk(steps, scan) : graph2_4.walk(steps, scan));
        }
        QTEST(log.join('\n').toUtf8(), "expected");
    }

    void ignoresSteps()
    {
        const char scan[] = "6/-40/A, 36/-40/A";
        Graph2_4 graph;
        graph.GetAPList(scanTable(scan));
        for (const stEXT_WIFI_UDRL& step : {stEXT_WIFI_UDRL{0, 0}, {0, 2}, {-3, 0}, {1, -2}}) {
            graph.markSelectedSSID(step);
            QCOMPARE(graph.selection(), QString(" 0 -1"));
        }
        graph.markSelectedSSID({1, 1}); // both: the channel search alone
        QCOMPARE(graph.selection(), QString("A 6 6"));
        Graph2_4 gone;
        ondivo_2_4Graph = 0;
        QCOMPARE(gone.walk("R", scan), QString(" 0 -1"));
        ap2_4 = 0;
        QCOMPARE(Graph2_4().walk("R", scan), QString(" 0 -1"));
        QCOMPARE(Graph5().walk("R", scan), QString("A 36 0"));
        ap5 = 0;
        QCOMPARE(Graph5().walk("R", scan), QString(" 0 -1"));
    }

    void ordersAWholeTable()
    {
        ordersAWholeTableOf<Graph2_4>(6, 1);
        ordersAWholeTableOf<Graph5>(149, 36);
        QCOMPARE(Graph5().get5GAPPos(149), 5);
    }

private:
    /// 127 access points on one channel, each weaker than the one before.
    template <typename Graph> static void ordersAWholeTableOf(int channel, int emptyChannel)
    {
        QString scan;
        for (int i = 1; i <= 127; ++i)
            scan += QString("%1/-%2/%2, ").arg(channel).arg(i);
        Graph graph;
        graph.GetAPList(scanTable(scan));
        graph.show();
        RepaintCounter repaints(&graph);
        repaints.taken();
        QCOMPARE(graph.findBestSSID(channel), 127);
        QCOMPARE(repaints.taken(), 1);
        graph.findClosersignalSSID(1, 1);
        QCOMPARE(repaints.taken(), 1);
        graph.markSelectedSSID({0, 0});
        QCOMPARE(repaints.taken(), 1);
        graph.GetAPList(scanTable(scan)); // shown by the next painting
        graph.findClosersignalSSID(1, 0);
        graph.markSelectedSSID({0, 2});
        const qint32 occupied = std::exchange(channel > 14 ? ap5 : ap2_4, 0);
        graph.markSelectedSSID({0, 0});
        QCOMPARE(repaints.taken(), 0);
        (channel > 14 ? ap5 : ap2_4) = occupied;
        QCOMPARE(graph.findBestSSID(emptyChannel), -1);
        for (int i = 1; i <= 127; ++i) {
            QCOMPARE(graph.findClosersignalSSID(i % 127 + 1, -1), i);
            QCOMPARE(graph.findClosersignalSSID(i, 1), i % 127 + 1);
        }
        for (int outside : {-1, 128, 1000000})
            QCOMPARE(graph.findClosersignalSSID(outside, 1), -1);
        for (int noStep : {0, 5})
            QCOMPARE(graph.findClosersignalSSID(1, noStep), -1);
    }
};

QTEST_MAIN(GraphsTest)
#include "tst_graphs.moc"

#include "2_4Graph.h"
#include "2_4GraphCh.h"
#include "5Graph.h"
#include "5GraphCh.h"
#include "core/band.h"
#include "paintrecorder.h"
#include "scantable.h"
#include "views/graphpainter.h"

#include <QPainter>
#include <QtTest>

using namespace wifiondivo;

namespace {

const QSize Screen(640, 400); // the tab region

/// Whether the row is one of 5 GHz, as its name then begins.
bool isBand5()
{
    return QTest::currentDataTag()[0] == '5';
}

/// What paintGraph() draws on a band with occupied channels, as the recorder writes it.
QStringList painted(bool band5, const stEXT_WIFISCAN_result& table, const char* selected = "none")
{
    SelectedBssid bssid = {};
    qstrncpy(reinterpret_cast<char*>(bssid), selected, sizeof bssid);
    PaintRecorder recorder(Screen);
    QPainter painter(&recorder);
    const Band& band = band5 ? Band5 : Band2_4;
    paintGraph(painter, band, Screen, graphContents(band, 1, &table, bssid));
    painter.end();
    return recorder.log();
}

QStringList axesOnly(bool band5)
{
    return painted(band5, stEXT_WIFISCAN_result());
}

/// The lines of a shape given as "colour left top right", moved `inwards` as the second of a
/// selection is.
QStringList shape(const QString& text, int inwards = 0)
{
    const QStringList parts = text.split(' ');
    const int left = parts.at(1).toInt();
    const int top = parts.at(2).toInt();
    const int right = parts.at(3).toInt();
    const auto line = [&](int x1, int y1, int x2, int y2) {
        return QString("line #%1 %2,%3 %4,%5").arg(parts.at(0)).arg(x1).arg(y1).arg(x2).arg(y2);
    };
    return {line(left + 10, top + inwards, right - 10, top + inwards),
        line(left + inwards, 305, left + 10 + inwards, top),
        line(right - inwards, 305, right - 10 - inwards, top)};
}

/// A graph whose selection can be read.
template <typename Graph> class Readable : public Graph {
public:
    Readable()
        : Graph(nullptr)
    {
    }
    /// Sends steps, one letter each (Right, Left, Up, Down), and tells the selection after each as
    /// "BSSID channel cursor".
    QString walk(const QString& steps)
    {
        QStringList log;
        for (const QChar letter : steps) {
            this->markSelectedSSID(
                {(letter == 'D') - (letter == 'U'), (letter == 'R') - (letter == 'L')});
            log << selection();
        }
        return log.join(", ");
    }
    /// The same with this table.
    QString walk(const QString& steps, const QString& scan)
    {
        this->GetAPList(scanTable(scan));
        return walk(steps);
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

    void drawsTheAxes_data()
    {
        QTest::addColumn<QString>("ticks");
        QTest::addColumn<QString>("labels");
        QTest::addColumn<QString>("channels");
        QTest::newRow("2.4 GHz") << "107 142 177 212 247 282 317 352 387 422 457 492 527"
                                 << "104 139 174 209 244 279 314 349 384 412 450 488 526"
                                 << "1 2 3 4 5 6 7 8 9 10 11 12 13";
        QTest::newRow("5 GHz") << "97 157 217 277 337 397 457 517 577"
                               << "89 149 209 269 329 389 439 503 567"
                               << "36 40 44 48 149 153 157 161 165";
    }
    void drawsTheAxes()
    {
        QFETCH(QString, ticks);
        QFETCH(QString, labels);
        QFETCH(QString, channels);
        QStringList expected{"line #000000 35,305 640,305"};
        for (int i = 0; i <= ticks.count(' '); ++i) {
            expected << QString("line #000000 %1,305 %1,307").arg(ticks.section(' ', i, i))
                     << "text #000000 " + labels.section(' ', i, i) + ",322 "
                    + channels.section(' ', i, i);
        }
        expected << "line #000000 35,305 35,0"
                 << "text #000000 0,310 -100";
        for (int mark = 1, y = 267; mark < 8; ++mark, y -= 38) { // -305 / 8 = -38
            if (mark == 3) // 191 + 38 / 2, half-way to -80 dBm
                expected << "line #0000ff 35,210 640,210";
            expected << QString("line #000000 35,%1 33,%1").arg(y)
                     << QString("text #000000 0,%1 -%2").arg(y + 5).arg(100 - 10 * mark);
        }
        QCOMPARE(axesOnly(isBand5()), expected);
    }

    void drawsAccessPoints_data()
    {
        QTest::addColumn<QString>("scan"); // BSSID "S" is selected
        QTest::addColumn<QString>("shapes");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("selection");
        const auto row = [](const char* name, const char* scan, const char* shapes,
                             const char* caption = "", const char* selection = "") {
            QTest::newRow(name) << scan << shapes << caption << selection;
        };
        // Top of level 45: 305 + 55 * -38 / 10 = 96. Channel 6 from 40 + 5 * 35, 4 * 35 - 6 wide.
        // Level 95: 19 up. Level 35: 65 * 38 / 10 = 247 up. Level 110: below the axis by one step.
        row("2.4 GHz, colours in turn", "6/-45 dBm, 6/-100, 6/0, 1/100, 6/-110",
            "e3cf57 215 96 349|ffff00 215 305 349|737380 215 286 349|8a2be2 40 58 174|"
            "0000ff 215 343 349");
        // 149 is at position 5: 37 + 4 * 60 + 30, one pitch wide.
        row("5 GHz, colours in turn", "36/-45, 36/-45, 149/-45 dBm",
            "8a2be2 67 96 127|7fff00 67 96 127|ff6103 307 96 367");
        row("2.4 GHz, farther away than any screen", "6/-9999999999", "e3cf57 215 1073741824 349");
        row("2.4 GHz, other channels", "0/-45, 14/-45, 36/-45, -1/-45", "");
        row("5 GHz, other channels", "35/-45, 52/-45, 6/-45", "");
        row("2.4 GHz, selection",
            "6/-45 dBm/S/Office %1, 6/-45, 3/-45, 9/-45, 10/-45, 2/-45, 36/-45",
            "e3cf57 215 96 349|8a2b60 110 96 244|0000ff 320 96 454|228b22 355 96 489|"
            "7fff00 75 96 209",
            "Office %1   Channel:6  Signal:-45dBm|Co-Channel:1  Overlapping:2",
            "ff0000 215 96 349");
        row("2.4 GHz, channel 14 overlaps 13", "14/-50, 13/-45/S", "",
            "   Channel:13  Signal:-45dBm|Co-Channel:0  Overlapping:1", "ff0000 460 96 594");
        row("2.4 GHz, channel 0 is none", "0/-50, 2/-45/S", "",
            "   Channel:2  Signal:-45dBm|Co-Channel:0  Overlapping:0", "ff0000 75 96 209");
        row("2.4 GHz, the last of equal BSSIDs", "1/-45/S, 6/-45/S/two", "",
            "two   Channel:6  Signal:-45dBm|Co-Channel:0  Overlapping:0", "ff0000 215 96 349");
        row("2.4 GHz, selected on another band", "36/-45/S", "");
        row("5 GHz, selection", "149/-50, 149/-45/S/Caf\xc3\xa9, 151/-70, 153/-70, 35/-70/S",
            "ff6103 307 115 367|e3cf57 367 191 427",
            "Caf\xc3\xa9    Channel:149  Signal:-45dBm|Co-Channel:1    Overlapping:1",
            "ff0000 307 96 367");
        row("5 GHz, selected off the plan", "52/-45/S", "");
    }
    void drawsAccessPoints()
    {
        QFETCH(QString, scan);
        QFETCH(QString, shapes);
        QFETCH(QString, caption);
        QFETCH(QString, selection);
        QStringList expected = axesOnly(isBand5());
        for (const QString& each : shapes.split('|', Qt::SkipEmptyParts))
            expected << shape(each);
        if (!caption.isEmpty()) {
            expected << "text #ff0000 64,15 " + caption.section('|', 0, 0)
                     << "text #ff0000 64,35 " + caption.section('|', 1, 1);
            expected << shape(selection) << shape(selection, 1);
        }
        QCOMPARE(painted(isBand5(), scanTable(scan), "S"), expected);
    }

    void wrapsTheColours()
    {
        QString scan;
        for (int i = 0; i < 21; ++i)
            scan += "40/-45, 2/-45, ";
        for (bool band5 : {false, true}) {
            const QStringList shapes = painted(band5, scanTable(scan)).mid(axesOnly(band5).size());
            QCOMPARE(shapes.size(), 21 * 3);
            QCOMPARE(shapes.at(60), shapes.at(0));
            QVERIFY(shapes.at(3) != shapes.at(0));
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
            ap2_4 = ap5 = 1;
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
            const QColor flank = wifi_user_clolor[band5 ? 4 : 5];
            QCOMPARE(
                image.pixelColor(330, 96), flank); // the top side of either band's access point
            QCOMPARE(image.pixelColor(330, 90), QColor(Qt::white));
            ap2_4 = ap5 = 0;
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

    void walks_data()
    {
        QTest::addColumn<QString>("scan");
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("log");
        const auto row = [](const char* name, const char* scan, const char* steps,
                             const char* log) { QTest::newRow(name) << scan << steps << log; };
        const char two[] = "6/-40/A, 11/-50/C, 6/-70/B";
        row("2.4 GHz to the right", two, "RRR", "B 6 6, C 11 11, B 6 6");
        row("2.4 GHz to the left", two, "LLL", "C 11 11, B 6 6, C 11 11");
        row("2.4 GHz, up and down go around, the channel's own search ends with the last",
            "6/-40/A, 6/-70/B", "RUUDR", "B 6 6, A 6 6, B 6 6, A 6 6, B 6 6");
        row("2.4 GHz, ends of the band", "1/-40/A, 13/-50/B", "RLR", "A 1 1, B 13 13, A 1 1");
        row("2.4 GHz, nothing in the band", "36/-40/A", "RLUD", " 0 1,  0 1,  0 1,  0 1");
        row("2.4 GHz, equal signals, strongest last", "6/-50/P, 6/-50/Q, 6/-40/R", "RDDD",
            "R 6 6, Q 6 6, P 6 6, R 6 6"); // the exchange of P and R puts P behind Q
        row("2.4 GHz, nothing selected, entries without a BSSID", "6/-50, 6/-40/A, 0/-50/Z", "UD",
            " 0 -1,  0 -1");
        row("5 GHz, ends of the plan", "36/-40/A, 165/-50/B", "LRRL",
            "B 165 8, A 36 0, B 165 8, A 36 0");
        row("5 GHz, within the plan", "40/-40/A, 149/-50/B", "RRRL",
            "A 40 1, B 149 4, A 40 1, B 149 4");
        row("5 GHz, only off the plan", "52/-40/A", "RL", " 0 0,  0 8");
        row("5 GHz, equal signals, strongest between", "36/-50/P, 36/-40/R, 36/-50/Q", "RUUU",
            "Q 36 0, P 36 0, R 36 0, Q 36 0");
    }
    void walks()
    {
        QFETCH(QString, scan);
        QFETCH(QString, steps);
        QTEST(isBand5() ? Graph5().walk(steps, scan) : Graph2_4().walk(steps, scan), "log");
    }

    void ignoresSteps()
    {
        const char scan[] = "6/-40/A, 36/-40/A";
        QCOMPARE(Graph2_4().walk("RU"), QString(" 0 -1,  0 -1")); // no table
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

    void keepsTheSelectionAcrossScans()
    {
        Graph5 graph;
        QCOMPARE(graph.walk("R", "40/-40/A, 149/-50/B"), QString("A 40 1"));
        QCOMPARE(graph.walk("UR", "48/-50/B"), QString("A 40 1, B 48 3"));
    }

    void ordersAWholeTable()
    {
        ordersAWholeTableOf<Graph2_4>(6, 1);
        ordersAWholeTableOf<Graph5>(149, 36);
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
        QCOMPARE(graph.findBestSSID(channel), 127);
        QCOMPARE(graph.findBestSSID(emptyChannel), -1);
        QCOMPARE(graph.findClosersignalSSID(5, 0), -1);
        for (int i = 1; i <= 127; ++i) {
            QCOMPARE(graph.findClosersignalSSID(i, -1), i == 1 ? 127 : i - 1);
            QCOMPARE(graph.findClosersignalSSID(i, 1), i == 127 ? 1 : i + 1);
        }
        for (int outside : {-1, 128, 1000000})
            QCOMPARE(graph.findClosersignalSSID(outside, 1), -1);
        QCOMPARE(graph.findClosersignalSSID(1, 5), -1);
    }
};

QTEST_MAIN(GraphsTest)
#include "tst_graphs.moc"

#include "2_4Graph.h"
#include "2_4GraphCh.h"
#include "5Graph.h"
#include "5GraphCh.h"
#include "core/band.h"
#include "core/graphlayout.h"
#include "paintrecorder.h"
#include "scantable.h"
#include "views/graphpainter.h"

#include <QPainter>
#include <QtTest>

using namespace wifiondivo;

namespace {

const QSize Screen(640, 400); // the tab region
const char Selected[] = "66:66:66:66:66:66";

const Band& bandOf(bool band5)
{
    return band5 ? Band5 : Band2_4;
}

/// What paintGraph() draws on a band with occupied channels, as the recorder writes it.
QStringList painted(bool band5, const stEXT_WIFISCAN_result& table, const char* selected = "none")
{
    SelectedBssid bssid = {};
    qstrncpy(reinterpret_cast<char*>(bssid), selected, sizeof bssid);
    PaintRecorder recorder(Screen);
    QPainter painter(&recorder);
    const Band& band = bandOf(band5);
    paintGraph(painter, band, Screen, graphContents(band, 1, &table, bssid));
    painter.end();
    return recorder.log();
}

QStringList axesOnly(bool band5)
{
    return painted(band5, stEXT_WIFISCAN_result());
}

/// The three lines of a shape, with its corners from the left base around to the right base.
QStringList shape(const char* colour, int left, int top, int right)
{
    const auto line = [colour](int x1, int y1, int x2, int y2) {
        return QString("line %1 %2,%3 %4,%5").arg(colour).arg(x1).arg(y1).arg(x2).arg(y2);
    };
    return {line(left + 10, top, right - 10, top), line(left, 305, left + 10, top),
        line(right, 305, right - 10, top)};
}

} // namespace

Q_DECLARE_METATYPE(ScanTable)

class GraphsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { qRegisterMetaType<stEXT_WIFISCAN_result>("stEXT_WIFISCAN_result"); }

    void laysOutTheAxes_data()
    {
        QTest::addColumn<bool>("band5");
        QTest::addColumn<QSize>("region");
        QTest::addColumn<QList<int>>("tickX");
        QTest::addColumn<QList<int>>("labelX");
        QTest::addColumn<QList<int>>("marks");
        const QList<int> marks{305, 267, 229, 191, 153, 115, 77, 39}; // -305 / 8 = -38
        QTest::newRow("2.4 GHz, 640 x 400")
            << false << Screen
            << QList<int>{107, 142, 177, 212, 247, 282, 317, 352, 387, 422, 457, 492, 527}
            << QList<int>{104, 139, 174, 209, 244, 279, 314, 349, 384, 412, 450, 488, 526} << marks;
        QTest::newRow("5 GHz, 640 x 400")
            << true << Screen << QList<int>{97, 157, 217, 277, 337, 397, 457, 517, 577}
            << QList<int>{89, 149, 209, 269, 329, 389, 439, 503, 567} << marks;
        // 5 GHz at 320 x 240: pitch 285 / 10 = 28; first tick 35 + 28 + 2; axis 240 - 95 = 145;
        // step -145 / 8 = -18; the last labels stand at tick - 14 + 12 + 4 * (i - 6)
        QTest::newRow("5 GHz, 320 x 240")
            << true << QSize(320, 240) << QList<int>{65, 93, 121, 149, 177, 205, 233, 261, 289}
            << QList<int>{57, 85, 113, 141, 169, 197, 231, 263, 295}
            << QList<int>{145, 127, 109, 91, 73, 55, 37, 19};
        // 2.4 GHz at 800 x 480: pitch 765 / 17 = 45; first tick 35 + 90 + 2; axis 385; -385 / 8 =
        // -48
        QTest::newRow("2.4 GHz, 800 x 480")
            << false << QSize(800, 480)
            << QList<int>{127, 172, 217, 262, 307, 352, 397, 442, 487, 532, 577, 622, 667}
            << QList<int>{124, 169, 214, 259, 304, 349, 394, 439, 484, 522, 570, 618, 666}
            << QList<int>{385, 337, 289, 241, 193, 145, 97, 49};
    }
    void laysOutTheAxes()
    {
        QFETCH(bool, band5);
        QFETCH(QSize, region);
        const GraphLayout layout = graphLayout(bandOf(band5), region);
        QList<int> ticks, labels, marks;
        for (int index = 0; index < bandOf(band5).channelCount; ++index) {
            ticks << tickX(layout, index);
            labels << channelLabelAt(bandOf(band5), layout, index).x();
        }
        for (int mark = 0; mark < SignalMarks; ++mark)
            marks << markY(layout, mark);
        QTEST(ticks, "tickX");
        QTEST(labels, "labelX");
        QTEST(marks, "marks");
    }

    void drawsTheAxes()
    {
        // 191 + 38 / 2 = 210 is half-way between -70 and -80 dBm.
        const QStringList signalAxis{"line #000000 35,305 35,0", "text #000000 0,310 -100",
            "line #000000 35,267 33,267", "text #000000 0,272 -90", "line #000000 35,229 33,229",
            "text #000000 0,234 -80",
            "line #0000ff 35,210 640,210", // 191 + 38 / 2, half-way to -80 dBm
            "line #000000 35,191 33,191", "text #000000 0,196 -70", "line #000000 35,153 33,153",
            "text #000000 0,158 -60", "line #000000 35,115 33,115", "text #000000 0,120 -50",
            "line #000000 35,77 33,77", "text #000000 0,82 -40", "line #000000 35,39 33,39",
            "text #000000 0,44 -30"};
        const QStringList log2_4 = axesOnly(false);
        QCOMPARE(log2_4.at(0), QString("line #000000 35,305 640,305"));
        QCOMPARE(log2_4.at(1), QString("line #000000 107,305 107,307"));
        QCOMPARE(log2_4.at(2), QString("text #000000 104,322 1"));
        QCOMPARE(log2_4.at(26), QString("text #000000 526,322 13"));
        QCOMPARE(QStringList(log2_4.mid(27)), signalAxis);
        const QStringList log5 = axesOnly(true);
        QCOMPARE(log5.at(17), QString("line #000000 577,305 577,307"));
        QCOMPARE(log5.at(18), QString("text #000000 567,322 165"));
        QCOMPARE(QStringList(log5.mid(19)), signalAxis);
    }

    void drawsShapes_data()
    {
        QTest::addColumn<bool>("band5");
        QTest::addColumn<ScanTable>("scan");
        QTest::addColumn<QStringList>("expected");
        // Top of level 45: 305 + 55 * -38 / 10 = 96. Channel 6 from 40 + 5 * 35, 4 * 35 - 6 wide.
        QTest::newRow("2.4 GHz, channel 6")
            << false << ScanTable().add(6, "-45 dBm") << shape("#e3cf57", 215, 96, 349);
        QTest::newRow("2.4 GHz, colours in turn")
            << false << ScanTable().add(6, "-100").add(6, "0").add(1, "100").add(6, "-110")
            << shape("#e3cf57", 215, 305, 349) + shape("#ffff00", 215, 286, 349) // level 95: 19 up
                + shape("#8a2be2", 40, 58, 174)    // level 35: 65 * 38 / 10 = 247 up
                + shape("#737380", 215, 343, 349); // below the axis by one step
        // 149 is at position 5: 37 + 4 * 60 + 30, one pitch wide.
        QTest::newRow("5 GHz, channel 149")
            << true << ScanTable().add(149, "-45 dBm") << shape("#ff6103", 307, 96, 367);
        QTest::newRow("5 GHz, colours in turn")
            << true << ScanTable().add(36, "-45").add(36, "-45").add(149, "-45")
            << shape("#8a2be2", 67, 96, 127) + shape("#7fff00", 67, 96, 127)
                + shape("#ff6103", 307, 96, 367);
        QTest::newRow("2.4 GHz, other channels")
            << false << ScanTable().add(0, "-45").add(14, "-45").add(36, "-45").add(-1, "-45")
            << QStringList();
        QTest::newRow("5 GHz, other channels")
            << true << ScanTable().add(35, "-45").add(52, "-45").add(6, "-45") << QStringList();
    }
    void drawsShapes()
    {
        QFETCH(bool, band5);
        QFETCH(ScanTable, scan);
        const QStringList log = painted(band5, scan);
        const QStringList axes = axesOnly(band5);
        QCOMPARE(QStringList(log.mid(0, axes.size())), axes);
        QTEST(QStringList(log.mid(axes.size())), "expected");
    }

    void wrapsTheColours()
    {
        ScanTable scan;
        for (int i = 0; i < 21; ++i)
            scan.add(40, "-45").add(2, "-45");
        for (bool band5 : {false, true}) {
            const QStringList shapes = painted(band5, scan).mid(axesOnly(band5).size());
            QCOMPARE(shapes.size(), 21 * 3);
            QCOMPARE(shapes.at(60), shapes.at(0));
            QVERIFY(shapes.at(3) != shapes.at(0));
        }
        for (int i = 1; i < 20; ++i)
            QVERIFY(wifi_user_clolor[i] != wifi_user_clolor[i - 1]);
    }

    void drawsTheSelection_data()
    {
        QTest::addColumn<bool>("band5");
        QTest::addColumn<ScanTable>("scan");
        QTest::addColumn<QStringList>("expected"); // behind axes and other shapes
        const QStringList red6{"line #ff0000 225,96 339,96", "line #ff0000 215,305 225,96",
            "line #ff0000 349,305 339,96", "line #ff0000 225,97 339,97",
            "line #ff0000 216,305 226,96", "line #ff0000 348,305 338,96"};
        QTest::newRow("2.4 GHz")
            << false
            << ScanTable()
                   .add(6, "-45 dBm", Selected, "Office %1")
                   .addOn({6, 3, 9, 10, 6, 2, 36}, "-70")
            << QStringList{"text #ff0000 64,15 Office %1   Channel:6  Signal:-45dBm",
                   "text #ff0000 64,35 Co-Channel:2  Overlapping:2"}
                + red6;
        QTest::newRow("2.4 GHz, channel 14 overlaps 13")
            << false << ScanTable().add(14, "-50").add(13, "-45", Selected)
            << QStringList{"text #ff0000 64,15    Channel:13  Signal:-45dBm",
                   "text #ff0000 64,35 Co-Channel:0  Overlapping:1"};
        QTest::newRow("2.4 GHz, channel 0 is none")
            << false << ScanTable().add(0, "-50").add(2, "-45", Selected)
            << QStringList{"text #ff0000 64,15    Channel:2  Signal:-45dBm",
                   "text #ff0000 64,35 Co-Channel:0  Overlapping:0"};
        QTest::newRow("2.4 GHz, the last of equal BSSIDs")
            << false << ScanTable().add(1, "-45", Selected).add(6, "-45", Selected, "two")
            << QStringList{"text #ff0000 64,15 two   Channel:6  Signal:-45dBm",
                   "text #ff0000 64,35 Co-Channel:0  Overlapping:0"}
                + red6;
        QTest::newRow("2.4 GHz, selected on another band")
            << false << ScanTable().add(36, "-45", Selected) << QStringList();
        QTest::newRow("5 GHz") << true
                               << ScanTable()
                                      .add(149, "-50")
                                      .add(149, "-45", Selected, "Caf\xc3\xa9")
                                      .add(151, "-70")
                                      .add(153, "-70")
                                      .add(35, "-70", Selected)
                               << QStringList{QString::fromUtf8(
                                                  "text #ff0000 64,15 Caf\xc3\xa9    Channel:149  "
                                                  "Signal:-45dBm"),
                                      "text #ff0000 64,35 Co-Channel:1    Overlapping:1",
                                      "line #ff0000 317,96 357,96", "line #ff0000 307,305 317,96",
                                      "line #ff0000 367,305 357,96", "line #ff0000 317,97 357,97",
                                      "line #ff0000 308,305 318,96", "line #ff0000 366,305 356,96"};
        QTest::newRow("5 GHz, selected off the plan")
            << true << ScanTable().add(52, "-45", Selected) << QStringList();
    }
    void drawsTheSelection()
    {
        QFETCH(bool, band5);
        QFETCH(ScanTable, scan);
        QFETCH(QStringList, expected);
        const QStringList red = painted(band5, scan, Selected).filter("#ff0000");
        QCOMPARE(QStringList(red.mid(0, expected.size())), expected);
        if (expected.isEmpty())
            QCOMPARE(red, expected);
    }

    void comparesWhatASelectionKeeps()
    {
        ScanTable scan;
        scan.add(6, "-45", "0123456789012345678-one")
            .add(6, "-45", "0123456789012345678-two")
            .add(6, "-45", "012345678901234567");
        const QStringList log = painted(false, scan, "0123456789012345678");
        QCOMPARE(log.size(), axesOnly(false).size() + 3 + 8); // one other shape, one selection
    }

    void paintsTheWidgets()
    {
        for (bool band5 : {false, true})
            paintsTheWidget(band5);
    }

    void knowsThePositions()
    {
        Wifiondivo_5Graph graph(nullptr);
        QList<int> positions;
        for (int channel : {36, 40, 44, 48, 149, 153, 157, 161, 165, 52, 100, 6, 0})
            positions << graph.get5GAPPos(channel);
        QCOMPARE(positions, (QList<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 0, 0, 0}));
    }

    void takesAnyTable()
    {
        // Whatever a table holds, a shape has three lines on known channels, in one of the colours.
        QRandomGenerator random(42);
        for (int i = 0; i < 60; ++i) {
            const stEXT_WIFISCAN_result table = anyTable(random);
            for (bool band5 : {false, true}) {
                const QStringList lines =
                    painted(band5, table, "0123456789012345678").mid(axesOnly(band5).size());
                QCOMPARE(lines.filter("line").size() % 3, 0);
                QCOMPARE(lines.filter("text").size(), lines.filter("#ff0000").isEmpty() ? 0 : 2);
            }
        }
    }

private:
    static void paintsTheWidget(bool band5)
    {
        const ScanTable scan = ScanTable().add(6, "-45", "A").add(149, "-45", "B");
        std::unique_ptr<CWidget> graph(band5 ? static_cast<CWidget*>(new Wifiondivo_5Graph(nullptr))
                                             : new Wifiondivo_2_4Graph(nullptr));
        QCOMPARE(band5 ? ondivo_5Graph : ondivo_2_4Graph, 1);
        QCOMPARE(graph->size(), Screen);
        ap2_4 = ap5 = 1;
        QCOMPARE(logOf(*graph), axesOnly(band5)); // no table yet
        QVERIFY(QMetaObject::invokeMethod(
            graph.get(), "GetAPList", Q_ARG(stEXT_WIFISCAN_result, scan.table())));
        QCOMPARE(logOf(*graph), painted(band5, scan));
        const QImage image = imageOf(*graph);
        const QColor flank = wifi_user_clolor[band5 ? 4 : 5];
        QCOMPARE(image.pixelColor(330, 96), flank); // the top side of either band's access point
        QCOMPARE(image.pixelColor(330, 90), QColor(Qt::white));
        QCOMPARE(image.pixelColor(500, 210), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(600, 305), QColor(Qt::black));
        QCOMPARE(image.pixelColor(600, 399), QColor(Qt::white));
        ap2_4 = ap5 = 0;
        QCOMPARE(logOf(*graph), axesOnly(band5)); // the band has no occupied channel
        graph.reset();
        QCOMPARE(band5 ? ondivo_5Graph : ondivo_2_4Graph, 0);
    }

    static QStringList logOf(QWidget& widget) { return PaintRecorder::logOf(widget); }
    static QImage imageOf(QWidget& widget)
    {
        QImage image(Screen, QImage::Format_RGB32);
        widget.render(&image);
        return image;
    }
};

QTEST_MAIN(GraphsTest)
#include "tst_graphs.moc"

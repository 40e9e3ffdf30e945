#include "2_4Graph.h"
#include "2_4GraphCh.h"
#include "5Graph.h"
#include "5GraphCh.h"
#include "eventcounter.h"
#include "scantable.h"

#include <QtTest>

using namespace wifiondivo;

namespace {

/// A graph whose selection can be read.
template <typename Graph> class Readable : public Graph {
public:
    Readable()
        : Graph(nullptr)
    {
    }
    QString selection() const
    {
        return QString("%1 %2 %3")
            .arg(reinterpret_cast<const char*>(this->m_curBSSiD))
            .arg(this->m_curChan)
            .arg(this->current);
    }
};

/// Sends steps, one letter each (Right, Left, Up, Down), and writes down the selection after each
/// as "BSSID channel cursor".
template <typename Graph>
QStringList walk(const QString& steps, const stEXT_WIFISCAN_result* table, const Graph& graph)
{
    QStringList log;
    if (table)
        const_cast<Graph&>(graph).GetAPList(*table);
    for (const QChar letter : steps) {
        const stEXT_WIFI_UDRL step = {letter == 'U' ? -1
                : letter == 'D'                     ? 1
                                                    : 0,
            letter == 'L'       ? -1
                : letter == 'R' ? 1
                                : 0};
        const_cast<Graph&>(graph).markSelectedSSID(step);
        log << graph.selection();
    }
    return log;
}

typedef Readable<Wifiondivo_2_4Graph> Graph2_4;
typedef Readable<Wifiondivo_5Graph> Graph5;

} // namespace

Q_DECLARE_METATYPE(ScanTable)

class NavigationTest : public QObject {
    Q_OBJECT
private slots:
    void init() { ap2_4 = ap5 = 1; }

    void walks_data()
    {
        QTest::addColumn<bool>("band5");
        QTest::addColumn<ScanTable>("scan");
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QStringList>("log");
        const ScanTable two = ScanTable().add(6, "-40", "A").add(11, "-50", "C").add(6, "-70", "B");
        QTest::newRow("2.4 GHz to the right")
            << false << two << "RRR" << QStringList{"B 6 6", "C 11 11", "B 6 6"};
        QTest::newRow("2.4 GHz to the left")
            << false << two << "LLL" << QStringList{"C 11 11", "B 6 6", "C 11 11"};
        const ScanTable one = ScanTable().add(6, "-40", "A").add(6, "-70", "B");
        QTest::newRow("2.4 GHz, up and down go around, the channel's own search ends with the last")
            << false << one << "RUUDR" << QStringList{"B 6 6", "A 6 6", "B 6 6", "A 6 6", "B 6 6"};
        QTest::newRow("2.4 GHz, ends of the band")
            << false << ScanTable().add(1, "-40", "A").add(13, "-50", "B") << "RLR"
            << QStringList{"A 1 1", "B 13 13", "A 1 1"};
        QTest::newRow("2.4 GHz, nothing in the band")
            << false << ScanTable().add(36, "-40", "A") << "RLUD"
            << QStringList{" 0 1", " 0 1", " 0 1", " 0 1"};
        const ScanTable plan = ScanTable().add(40, "-40", "A").add(149, "-50", "B");
        QTest::newRow("5 GHz to the right")
            << true << plan << "RRRL" << QStringList{"A 40 1", "B 149 4", "A 40 1", "B 149 4"};
        QTest::newRow("5 GHz to the left")
            << true << plan << "LL" << QStringList{"B 149 4", "A 40 1"};
        QTest::newRow("5 GHz, ends of the plan")
            << true << ScanTable().add(36, "-40", "A").add(165, "-50", "B") << "LRRL"
            << QStringList{"B 165 8", "A 36 0", "B 165 8", "A 36 0"};
        QTest::newRow("5 GHz, only off the plan")
            << true << ScanTable().add(52, "-40", "A") << "RL" << QStringList{" 0 0", " 0 8"};
        // R, Q, P: the exchange of P and R puts P behind Q.
        QTest::newRow("equal signals, strongest last")
            << false << ScanTable().add(6, "-50", "P").add(6, "-50", "Q").add(6, "-40", "R")
            << "RDDD" << QStringList{"R 6 6", "Q 6 6", "P 6 6", "R 6 6"};
        QTest::newRow("equal signals, strongest between")
            << true << ScanTable().add(36, "-50", "P").add(36, "-40", "R").add(36, "-50", "Q")
            << "RUUU" << QStringList{"Q 36 0", "P 36 0", "R 36 0", "Q 36 0"};
        QTest::newRow("nothing selected, entries without a BSSID")
            << false << ScanTable().add(6, "-50").add(6, "-40", "A").add(0, "-50", "Z") << "UD"
            << QStringList{" 0 -1", " 0 -1"};
    }
    void walks()
    {
        QFETCH(bool, band5);
        QFETCH(ScanTable, scan);
        QFETCH(QString, steps);
        QTEST(band5 ? walk(steps, &scan.table(), Graph5()) : walk(steps, &scan.table(), Graph2_4()),
            "log");
    }

    void ignoresSteps()
    {
        const ScanTable scan = ScanTable().add(6, "-40", "A").add(36, "-40", "A");
        QCOMPARE(walk("RU", nullptr, Graph2_4()), (QStringList{" 0 -1", " 0 -1"}));
        Graph2_4 graph;
        graph.GetAPList(scan);
        for (const stEXT_WIFI_UDRL& step : {stEXT_WIFI_UDRL{0, 0}, {0, 2}, {-3, 0}, {1, -2}}) {
            graph.markSelectedSSID(step);
            QCOMPARE(graph.selection(), QString(" 0 -1"));
        }
        graph.markSelectedSSID({1, 1}); // both: the channel search alone
        QCOMPARE(graph.selection(), QString("A 6 6"));
        Graph2_4 gone;
        ondivo_2_4Graph = 0;
        QCOMPARE(walk("R", &scan.table(), gone), QStringList(" 0 -1"));
        ap2_4 = 0;
        QCOMPARE(walk("R", &scan.table(), Graph2_4()), QStringList(" 0 -1"));
        QCOMPARE(walk("R", &scan.table(), Graph5()), QStringList("A 36 0"));
        ap5 = 0;
        QCOMPARE(walk("R", &scan.table(), Graph5()), QStringList(" 0 -1"));
    }

    void keepsTheSelectionAcrossScans()
    {
        Graph5 graph;
        graph.GetAPList(ScanTable().add(40, "-40", "A").add(149, "-50", "B"));
        QCOMPARE(walk("R", nullptr, graph), QStringList("A 40 1"));
        graph.GetAPList(ScanTable().add(48, "-50", "B"));
        QCOMPARE(walk("UR", nullptr, graph), (QStringList{"A 40 1", "B 48 3"}));
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
        ScanTable scan;
        for (int i = 1; i <= 127; ++i)
            scan.add(channel, QByteArray::number(-i), QByteArray::number(i));
        Graph graph;
        graph.GetAPList(scan);
        graph.show();
        QVERIFY(QTest::qWaitForWindowExposed(&graph));
        QCOMPARE(paintedFor(graph, [&] { QCOMPARE(graph.findBestSSID(channel), 127); }), 1);
        QCOMPARE(paintedFor(graph, [&] { QCOMPARE(graph.findBestSSID(emptyChannel), -1); }), 1);
        QCOMPARE(paintedFor(graph, [&] { QCOMPARE(graph.findClosersignalSSID(5, 1), 6); }), 1);
        QCOMPARE(paintedFor(graph, [&] { QCOMPARE(graph.findClosersignalSSID(5, 0), -1); }), 0);
        for (int i = 1; i <= 127; ++i) {
            QCOMPARE(graph.findClosersignalSSID(i, -1), i == 1 ? 127 : i - 1);
            QCOMPARE(graph.findClosersignalSSID(i, 1), i == 127 ? 1 : i + 1);
        }
        for (int outside : {-1, 128, 1000000})
            QCOMPARE(graph.findClosersignalSSID(outside, 1), -1);
        QCOMPARE(graph.findClosersignalSSID(1, 5), -1);
    }
    template <typename Action> static int paintedFor(QWidget& widget, Action action)
    {
        EventCounter paints(&widget, QEvent::Paint);
        paints.taken(); // what was due before
        action();
        return paints.taken();
    }
};

QTEST_MAIN(NavigationTest)
#include "tst_navigation.moc"

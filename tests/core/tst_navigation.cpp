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

class NavigationTest : public QObject {
    Q_OBJECT
private slots:
    void init() { ap2_4 = ap5 = 1; }

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
        const bool band5 = QTest::currentDataTag()[0] == '5';
        QTEST(band5 ? Graph5().walk(steps, scan) : Graph2_4().walk(steps, scan), "log");
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
        graph.show();
        QVERIFY(QTest::qWaitForWindowExposed(&graph));
        EventCounter paints(&graph, QEvent::Paint);
        paints.taken(); // what was due before
        QCOMPARE(graph.findBestSSID(channel), 127);
        QCOMPARE(paints.taken(), 1);
        QCOMPARE(graph.findBestSSID(emptyChannel), -1);
        QCOMPARE(paints.taken(), 1);
        QCOMPARE(graph.findClosersignalSSID(5, 1), 6);
        QCOMPARE(paints.taken(), 1);
        QCOMPARE(graph.findClosersignalSSID(5, 0), -1);
        QCOMPARE(paints.taken(), 0);
        for (int i = 1; i <= 127; ++i) {
            QCOMPARE(graph.findClosersignalSSID(i, -1), i == 1 ? 127 : i - 1);
            QCOMPARE(graph.findClosersignalSSID(i, 1), i == 127 ? 1 : i + 1);
        }
        for (int outside : {-1, 128, 1000000})
            QCOMPARE(graph.findClosersignalSSID(outside, 1), -1);
        QCOMPARE(graph.findClosersignalSSID(1, 5), -1);
    }
};

QTEST_MAIN(NavigationTest)
#include "tst_navigation.moc"

#include "2_4Graph.h"
#include "2_4GraphCh.h"
#include "5Graph.h"
#include "5GraphCh.h"
#include "core/signallevel.h"
#include "cpagetable.h"
#include "eventcounter.h"
#include "paintrecorder.h"
#include "scantable.h"
#include "views/channeltable.h"

#include <QProgressBar>
#include <QtTest>

using namespace wifiondivo;

namespace {

/// A channel table of either band, and the band's summary as plain numbers.
class View {
public:
    explicit View(bool band5)
        : m_band5(band5)
    {
        m_widget.reset(band5 ? static_cast<CWidget*>(new Wifiondivo_5GraphCH(nullptr))
                             : new Wifiondivo_2_4GraphCH(nullptr));
        pages = m_widget->findChild<CPageTable*>();
        m_widget->show();
    }
    void receive(const stEXT_WIFISCAN_result& table)
    {
        QVERIFY(QMetaObject::invokeMethod(
            m_widget.get(), "creatChannelsList", Q_ARG(stEXT_WIFISCAN_result, table)));
    }
    QList<int> channels() const { return m_band5 ? numbers(Channel5Text) : numbers(ChannelText); }
    QList<int> counts() const { return m_band5 ? numbers(AP5Text) : numbers(APText); }
    QList<int> bests() const { return m_band5 ? numbers(Best5Text) : numbers(BestText); }
    int occupied() const { return m_band5 ? ap5 : ap2_4; }
    QList<QProgressBar*> bars() const { return pages->findChildren<QProgressBar*>(); }

    CPageTable* pages;

private:
    template <typename Byte, int N> static QList<int> numbers(const Byte (&bytes)[N])
    {
        return QList<int>(std::begin(bytes), std::end(bytes));
    }
    bool m_band5;
    std::unique_ptr<CWidget> m_widget;
};

const QList<int> AllOf2_4{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13};
const QList<int> AllOf5{36, 40, 44, 48, 149, 153, 157, 161, 165};

} // namespace

Q_DECLARE_METATYPE(ScanTable)

class ChannelTablesTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { qRegisterMetaType<stEXT_WIFISCAN_result>("stEXT_WIFISCAN_result"); }

    void convertsSignals_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("percent");
        QTest::addColumn<int>("level");
        // (s + 95) * 100 / 60 below -34; the level is 95 - 60 * s / 100, or -s
        QTest::newRow("-35") << "-35 dBm" << 100 << 35;
        QTest::newRow("-34") << "-34 dBm" << 100 << 34;
        QTest::newRow("-1") << "-1" << 100 << 1;
        QTest::newRow("-36") << "-36 dBm" << 98 << 36; // 59 * 100 / 60 = 98.3
        QTest::newRow("-40") << "-40 dBm" << 91 << 40;
        QTest::newRow("-65") << "-65 dBm" << 50 << 65;
        QTest::newRow("-95") << "-95 dBm" << 0 << 95;
        QTest::newRow("-96") << "-96 dBm" << -1 << 96; // -100 / 60 truncates to -1
        QTest::newRow("-100") << "-100 dBm" << -8 << 100;
        QTest::newRow("0") << "0" << 0 << 95;
        QTest::newRow("1") << "1" << 1 << 95;    // 60 / 100 truncates to 0
        QTest::newRow("99") << "99" << 99 << 36; // 5940 / 100 = 59
        QTest::newRow("100") << "100" << 100 << 35;
        QTest::newRow("ratio") << "43/70" << 43 << 70; // 95 - 25
        QTest::newRow("none") << "dBm" << 0 << 95;
        QTest::newRow("beyond 32 bits") << "-9999999999" << -2147483647 << 2147483647;
    }
    void convertsSignals()
    {
        QFETCH(QString, text);
        ScanEntry entry = {};
        setField(entry.signal, text.toLatin1());
        const int signal = signalNumber(entry);
        QTEST(Wifiondivo_5GraphCH(nullptr).signalToDbM(signal), "level");
        QTEST(Wifiondivo_5GraphCH(nullptr).signalChange(signal), "percent");
        QTEST(Wifiondivo_2_4GraphCH(nullptr).signalChange(signal), "percent");
        QTEST(Wifiondivo_2_4Graph(nullptr).signalToDbM(signal), "level");
        QTEST(Wifiondivo_5Graph(nullptr).signalToDbM(signal), "level");
    }

    void sortsChannels_data()
    {
        QTest::addColumn<bool>("band5");
        QTest::addColumn<ScanTable>("table");
        QTest::addColumn<QList<int>>("channels");
        QTest::addColumn<QList<int>>("counts"); // of the first rows
        QTest::addColumn<QList<int>>("bests");  // of the first rows
        QTest::addColumn<int>("occupied");
        QTest::newRow("2.4 GHz, none") << false << ScanTable().add(36, "-40").add(14, "-40")
                                       << AllOf2_4 << QList<int>{0} << QList<int>{0} << 0;
        QTest::newRow("5 GHz, none") << true << ScanTable().add(6, "-40").add(52, "-40") << AllOf5
                                     << QList<int>{0} << QList<int>{0} << 0;
        // -47 dBm is 80 percent. Filling row 0, channel 6 leads; 11 equals it and has more access
        // points than channel 1, whose place it is, so it takes the lead. Channel 1 lands in
        // row 10. Filling row 1 with 6 in place of 2, row 2 with 3, and so on.
        QTest::newRow("2.4 GHz, two equals")
            << false << ScanTable().add(6, "-47").add(6, "-47").add(11, "-47").add(11, "-47")
            << QList<int>{11, 6, 3, 4, 5, 2, 7, 8, 9, 10, 1, 12, 13} << QList<int>{2, 2, 0}
            << QList<int>{80, 80, 0} << 2;
        QTest::newRow("5 GHz, one") << true << ScanTable().add(149, "-65 dBm")
                                    << QList<int>{149, 40, 44, 48, 36, 153, 157, 161, 165}
                                    << QList<int>{1, 0} << QList<int>{50, 0} << 1;
        // The strongest stands first already: an equal one takes its place only with more.
        QTest::newRow("2.4 GHz, first of equals")
            << false << ScanTable().add(1, "70").add(2, "70") << AllOf2_4 << QList<int>{1, 1}
            << QList<int>{70, 70} << 2;
        QTest::newRow("2.4 GHz, later with more")
            << false << ScanTable().add(1, "70").add(2, "70").add(2, "3")
            << QList<int>{2, 1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13} << QList<int>{2, 1}
            << QList<int>{70, 70} << 2;
        QTest::newRow("2.4 GHz, weak ones count")
            << false << ScanTable().add(6, "-50").add(6, "-70").add(6, "-60").add(1, "-100 dBm")
            << QList<int>{6, 1, 3, 4, 5, 2, 7, 8, 9, 10, 11, 12, 13} << QList<int>{3, 1, 0}
            << QList<int>{75, 0, 0} << 2;
        // 300 is kept in 8 bits as 44, which 50 then exceeds.
        QTest::newRow("5 GHz, beyond 8 bits")
            << true << ScanTable().add(165, "300").add(165, "50").add(421, "90")
            << QList<int>{165, 40, 44, 48, 149, 153, 157, 161, 36} << QList<int>{2, 0}
            << QList<int>{50, 0} << 1;
    }
    void sortsChannels()
    {
        QFETCH(bool, band5);
        QFETCH(ScanTable, table);
        QFETCH(QList<int>, counts);
        QFETCH(QList<int>, bests);
        View view(band5);
        view.receive(table);
        QTEST(view.channels(), "channels");
        QCOMPARE(view.counts().mid(0, counts.size()), counts);
        QCOMPARE(view.bests().mid(0, bests.size()), bests);
        QTEST(view.occupied(), "occupied");
    }

    void showsRowsAndBars_data()
    {
        QTest::addColumn<bool>("band5");
        QTest::addColumn<QStringList>("first"); // row 0: channel, access points, best signal
        QTest::addColumn<QString>("emptyBest");
        QTest::addColumn<int>("rows");
        QTest::newRow("2.4 GHz") << false << QStringList{"13", "2", "50%"} << "0%" << 13;
        QTest::newRow("5 GHz") << true << QStringList{"161", "2", "- 65dBm"} << "null" << 9;
    }
    void showsRowsAndBars()
    {
        QFETCH(bool, band5);
        QFETCH(QStringList, first);
        QFETCH(QString, emptyBest);
        QFETCH(int, rows);
        View view(band5);
        QCOMPARE(view.pages->rowCount(), 9);
        QCOMPARE(view.bars().size(), 0);
        // Columns of 2, 2, 2 and 4 tenths of 640 pixels: lines at 128, 256 and 384.
        const QStringList lines = PaintRecorder::logOf(*view.pages).filter("line");
        for (int x : {128, 256, 384})
            QCOMPARE(lines.filter(QString(" %1,0 %1,").arg(x)).size(), 1);
        const ScanTable scan =
            ScanTable().add(13, "-65").add(161, "-65").add(13, "-99").add(161, "-99");
        for (int scans = 0; scans < 2; ++scans) {
            view.pages->setCurrentPage(scans);
            view.receive(scan);
            QCOMPARE(view.pages->currentPage(), 0);
            QCOMPARE(view.pages->pageCount(), (rows + 8) / 9);
            QCOMPARE(view.pages->rowCount(), rows);
            QCOMPARE(view.bars().size(), rows);
            QCOMPARE((QStringList{view.pages->cellValue(0, 0), view.pages->cellValue(0, 1),
                         view.pages->cellValue(0, 2)}),
                first);
            QCOMPARE(view.pages->cellValue(rows - 1, 1), QString("0"));
            QCOMPARE(view.pages->cellValue(rows - 1, 2), emptyBest);
            QCOMPARE(view.pages->cellValue(0, 3), QString());
            for (int row = 0; row < rows; ++row) {
                // 400 / 12 - 5 = 28 a row, below a header of 28; 640 * 0.6 + 1 and 640 * 0.4 - 4
                QCOMPARE(view.bars().at(row)->geometry(), QRect(385, 29 + row % 9 * 28, 252, 26));
                QCOMPARE(view.bars().at(row)->isVisible(), row < 9);
                QCOMPARE(view.bars().at(row)->value(), row == 0 ? 50 : 0);
            }
        }
        // A bar that were seen before it has its value would paint the table once more.
        QVERIFY(QTest::qWaitForWindowExposed(view.pages->window()));
        EventCounter paints(view.pages, QEvent::Paint);
        paints.taken();
        view.receive(scan);
        QCOMPARE(paints.count(), 0);
        QCOMPARE(paints.taken(), 1);
        int shown = 0;
        for (int page : {1, 7, -1, 0, 2}) {
            QVERIFY(QMetaObject::invokeMethod(view.pages, "currentPageChanged", Q_ARG(int, page)));
            shown = page == 0 || page == 1 ? page : shown; // others change nothing
            for (int row = 0; row < rows; ++row)
                QCOMPARE(view.bars().at(row)->isVisible(), row / 9 == shown);
        }
    }

    void measuresAsFloatingPointWould()
    {
        for (int width = 0; width <= 5000; ++width) {
            const QSize region(width, 480);
            volatile double tenths[] = {0.2 * width, 0.6 * width, 0.4 * width, 0.4 * width - 4.0};
            QCOMPARE(channelColumnWidth(1, region), int(tenths[0]));
            QCOMPARE(channelColumnWidth(3, region), int(tenths[2]));
            const QRect bar = channelBarGeometry(2, region);
            QCOMPARE(bar.x(), int(tenths[1]) + 1);
            QCOMPARE(bar.width(), int(tenths[3]));
            QCOMPARE(bar.y(), 35 * 3 + 1); // 480 / 12 - 5 = 35
            QCOMPARE(bar.height(), 33);
        }
    }
};

QTEST_MAIN(ChannelTablesTest)
#include "tst_channeltables.moc"

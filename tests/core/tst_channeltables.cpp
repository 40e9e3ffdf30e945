#include "2_4Graph.h"
#include "2_4GraphCh.h"
#include "5Graph.h"
#include "5GraphCh.h"
#include "core/signallevel.h"
#include "cpagetable.h"
#include "paintrecorder.h"
#include "scantable.h"

#include <QProgressBar>
#include <QtTest>

using namespace wifiondivo;

namespace {

/// A channel table of either band.
class View {
public:
    explicit View(bool band5)
    {
        widget.reset(band5 ? static_cast<CWidget*>(new Wifiondivo_5GraphCH(nullptr))
                           : new Wifiondivo_2_4GraphCH(nullptr));
        pages = widget->findChild<CPageTable*>();
        widget->show();
    }
    void receive(const QString& scan)
    {
        QVERIFY(QMetaObject::invokeMethod(
            widget.get(), "creatChannelsList", Q_ARG(stEXT_WIFISCAN_result, scanTable(scan))));
    }
    /// Rows, bars, and the first cell.
    QString shown() const
    {
        return QString("%1 %2 ").arg(pages->rowCount()).arg(bars().size()) + pages->cellValue(0, 0);
    }
    QList<QProgressBar*> bars() const { return pages->findChildren<QProgressBar*>(); }

    std::unique_ptr<CWidget> widget;
    CPageTable* pages;
};

/// A summary's array, as one text.
template <typename Byte, int N> QString joined(const Byte (&numbers)[N])
{
    QStringList texts;
    for (Byte number : numbers)
        texts << QString::number(number);
    return texts.join(' ');
}

/// A band's summary: channels, access points, best signals, occupied channels.
QStringList summary(bool band5)
{
    if (band5)
        return {joined(Channel5Text), joined(AP5Text), joined(Best5Text), QString::number(ap5)};
    return {joined(ChannelText), joined(APText), joined(BestText), QString::number(ap2_4)};
}

const char AllOf2_4[] = "1 2 3 4 5 6 7 8 9 10 11 12 13";
const char AllOf5[] = "36 40 44 48 149 153 157 161 165";

} // namespace

class ChannelTablesTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { qRegisterMetaType<stEXT_WIFISCAN_result>("stEXT_WIFISCAN_result"); }

    void convertsSignals_data()
    {
        QTest::addColumn<int>("percent");
        QTest::addColumn<int>("level");
        const auto row = [](const char* text, int percent, int level) {
            QTest::newRow(text) << percent << level;
        };
        // (s + 95) * 100 / 60 below -34; the level is 95 - 60 * s / 100, or -s
        row("-34 dBm", 100, 34);
        row("-1", 100, 1);
        row("-36 dBm", 98, 36); // 59 * 100 / 60 = 98.3
        row("-65 dBm", 50, 65);
        row("-95 dBm", 0, 95);
        row("-96 dBm", -1, 96); // -100 / 60 truncates to -1
        row("0", 0, 95);
        row("1", 1, 95); // 60 / 100 truncates to 0
        row("43/70", 43, 70);
        row("dBm", 0, 95);
        row("-9999999999", -2147483647, 2147483647); // beyond 32 bits
    }
    void convertsSignals()
    {
        ScanEntry entry = {};
        setField(entry.signal, QTest::currentDataTag());
        const int signal = signalNumber(entry);
        QTEST(Wifiondivo_5GraphCH(nullptr).signalToDbM(signal), "level");
        QTEST(Wifiondivo_5GraphCH(nullptr).signalChange(signal), "percent");
        QTEST(Wifiondivo_2_4GraphCH(nullptr).signalChange(signal), "percent");
        QTEST(Wifiondivo_2_4Graph(nullptr).signalToDbM(signal), "level");
        QTEST(Wifiondivo_5Graph(nullptr).signalToDbM(signal), "level");
    }

    void sortsChannels_data()
    {
        QTest::addColumn<QString>("scan");
        QTest::addColumn<QString>("channels");
        QTest::addColumn<QString>("counts"); // of the first rows
        QTest::addColumn<QString>("bests");  // of the first rows
        QTest::addColumn<int>("occupied");
        const auto row = [](const char* name, const char* scan, const char* channels,
                             const char* counts, const char* bests, int occupied) {
            QTest::newRow(name) << scan << channels << counts << bests << occupied;
        };
        row("2.4 GHz, none", "36/-40, 14/-40", AllOf2_4, "0 ", "0 ", 0);
        row("5 GHz, none", "6/-40, 52/-40", AllOf5, "0 ", "0 ", 0);
        // -47 dBm is 80 percent. Filling row 0, channel 6 leads; 11 equals it and has more access
        // points than channel 1, whose place it is, so it takes the lead. Channel 1 lands in
        // row 10. Filling row 1 with 6 in place of 2, row 2 with 3, and so on.
        row("2.4 GHz, two equals", "6/-47, 6/-47, 11/-47, 11/-47", "11 6 3 4 5 2 7 8 9 10 1 12 13",
            "2 2 0 ", "80 80 0 ", 2);
        row("5 GHz, one", "149/-65 dBm", "149 40 44 48 36 153 157 161 165", "1 0 ", "50 0 ", 1);
        // The strongest stands first already: an equal one takes its place only with more.
        row("2.4 GHz, first of equals", "1/70, 2/70", AllOf2_4, "1 1 0 ", "70 70 0 ", 2);
        row("2.4 GHz, later with more", "1/70, 2/70, 2/3", "2 1 3 4 5 6 7 8 9 10 11 12 13", "2 1 ",
            "70 70 ", 2);
        row("2.4 GHz, weak ones count", "6/-50, 6/-70, 6/-60, 1/-100 dBm",
            "6 1 3 4 5 2 7 8 9 10 11 12 13", "3 1 0 ", "75 0 0 ", 2);
        // 300 is kept in 8 bits as 44, which 50 then exceeds.
        row("5 GHz, beyond 8 bits", "165/300, 165/50, 421/90", "165 40 44 48 149 153 157 161 36",
            "2 0 ", "50 0 ", 1);
    }
    void sortsChannels()
    {
        QFETCH(QString, scan);
        QFETCH(QString, counts);
        QFETCH(QString, bests);
        const bool band5 = QTest::currentDataTag()[0] == '5';
        View view(band5);
        view.receive(scan);
        QTEST(summary(band5).at(0), "channels");
        QCOMPARE(summary(band5).at(1).left(counts.size()), counts);
        QCOMPARE(summary(band5).at(2).left(bests.size()), bests);
        QTEST(summary(band5).at(3).toInt(), "occupied");
    }

    void takesTheSummaryAlong()
    {
        for (bool band5 : {false, true}) {
            const QStringList none = summary(band5);
            QVERIFY(!none.join("").contains(QRegularExpression("[1-9]")));
            std::unique_ptr<View> old(new View(band5));
            old->widget->initialize(); // as a host may call it
            QCOMPARE(old->shown(), QString("9 0 "));
            old->receive("13/-65, 161/-65");
            std::unique_ptr<View> young(new View(band5)); // while the old one is there still
            QCOMPARE(summary(band5), none);
            old->widget->initialize();
            QCOMPARE(old->shown(), QString("9 0 "));
            young->receive("12/-65, 157/-65");
            const QStringList heard = summary(band5);
            QVERIFY(heard.at(0).startsWith(band5 ? "157 " : "12 "));
            old->receive("13/-65, 161/-65");
            old.reset();
            QCOMPARE(summary(band5), heard);
            young.reset();
            QCOMPARE(summary(band5), none);
        }
    }

    void showsRowsAndBars()
    {
        for (bool band5 : {false, true}) {
            const int rows = band5 ? 9 : 13;
            View view(band5);
            CPageTable& pages = *view.pages;
            // Columns of 2, 2, 2 and 4 tenths of 640 pixels: lines at 128, 256 and 384.
            const QStringList lines = PaintRecorder::logOf(pages).filter("line");
            for (int x : {128, 256, 384})
                QCOMPARE(lines.filter(QString(" %1,0 %1,").arg(x)).size(), 1);
            const QString scan = "13/-65, 161/-65, 13/-99, 161/-99";
            for (int scans = 0; scans < 2; ++scans) {
                pages.setCurrentPage(scans);
                view.receive(scan);
                QCOMPARE(pages.currentPage(), 0);
                QCOMPARE(pages.pageCount(), (rows + 8) / 9);
                QCOMPARE(pages.rowCount(), rows);
                QCOMPARE(view.bars().size(), rows);
                QStringList cells;
                for (int column = 0; column < 4; ++column)
                    cells << pages.cellValue(0, column);
                QCOMPARE(cells.join(' '), QString(band5 ? "161 2 - 65dBm " : "13 2 50% "));
                QCOMPARE(pages.cellValue(rows - 1, 1), QString("0"));
                QCOMPARE(pages.cellValue(rows - 1, 2), QString(band5 ? "null" : "0%"));
                for (int row = 0; row < rows; ++row) {
                    // 400 / 12 - 5 = 28 a row, below a header of 28; 640 * 0.6 + 1 and 640 * 0.4 -
                    // 4
                    QCOMPARE(
                        view.bars().at(row)->geometry(), QRect(385, 29 + row % 9 * 28, 252, 26));
                    QCOMPARE(view.bars().at(row)->isVisible(), row < 9);
                    QCOMPARE(view.bars().at(row)->value(), row == 0 ? 50 : 0);
                }
            }
            int shown = 0;
            for (int page : {1, 7, -1, 0, 2}) {
                QVERIFY(QMetaObject::invokeMethod(&pages, "currentPageChanged", Q_ARG(int, page)));
                shown = page == 0 || page == 1 ? page : shown; // others change nothing
                for (int row = 0; row < rows; ++row)
                    QCOMPARE(view.bars().at(row)->isVisible(), row / 9 == shown);
            }
        }
    }
};

QTEST_MAIN(ChannelTablesTest)
#include "tst_channeltables.moc"

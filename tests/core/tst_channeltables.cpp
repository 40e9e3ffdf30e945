#include "../texttable.h"
#include "core/signallevel.h"
#include "cpagetable.h"
#include "include/2_4Graph.h"
#include "include/2_4GraphCh.h"
#include "include/5Graph.h"
#include "include/5GraphCh.h"
#include "scantable.h"

#include <QProgressBar>
#include <QTableView>
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

/// A band's summary: channels, access points and best signals row by row, occupied channels.
QString summary(bool band5)
{
    const QStringList lines = band5
        ? QStringList{joined(Channel5Text), joined(AP5Text), joined(Best5Text)}
        : QStringList{joined(ChannelText), joined(APText), joined(BestText)};
    return lines.join('\n') + QString("\n%1").arg(band5 ? ap5 : ap2_4);
}

} // namespace

class ChannelTablesTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { qRegisterMetaType<stEXT_WIFISCAN_result>("stEXT_WIFISCAN_result"); }

    void convertsSignals()
    {
        const struct {
            const char* text;
            int percent; // (s + 95) * 100 / 60 below -34
            int level;   // 95 - 60 * s / 100, or -s
        } rows[] = {
            {"-34 dBm", 100, 34}, {"-36 dBm", 98, 36}, // 59 * 100 / 60 = 98.3
            {"-65 dBm", 50, 65}, {"-96 dBm", -1, 96},  // -100 / 60 truncates to -1
            {"0", 0, 95}, {"1", 1, 95},                // 60 / 100 truncates to 0
            {"43/70", 43, 70}, {"dBm", 0, 95},
            {"-9999999999", -2147483647, 2147483647}, // beyond 32 bits
        };
        for (const auto& row : rows) {
            ScanEntry entry = {};
            setField(entry.signal, row.text);
            const int signal = signalNumber(entry);
            for (int level : {Wifiondivo_5GraphCH(nullptr).signalToDbM(signal),
                     Wifiondivo_2_4Graph(nullptr).signalToDbM(signal),
                     Wifiondivo_5Graph(nullptr).signalToDbM(signal)})
                QCOMPARE(level, row.level);
            QCOMPARE(Wifiondivo_5GraphCH(nullptr).signalChange(signal), row.percent);
            QCOMPARE(Wifiondivo_2_4GraphCH(nullptr).signalChange(signal), row.percent);
        }
    }

    void sortsChannels_data() { addTableOf(QFINDTESTDATA("channels.txt")); }
    void sortsChannels()
    {
        bool band5;
        const QString scan = inputAndBand(band5);
        View view(band5);
        view.receive(scan);
        QTEST(summary(band5).toUtf8(), "expected");
    }

    void keepsTheSummary()
    {
        for (bool band5 : {false, true}) {
            const auto clear =
                band5 ? &Wifiondivo_5GraphCH::clearSummary : &Wifiondivo_2_4GraphCH::clearSummary;
            clear();
            const QString none = summary(band5);
            QVERIFY(!none.contains(QRegularExpression("[1-9]")));
            std::unique_ptr<View> view(new View(band5));
            view->widget->initialize(); // as a host may call it
            QCOMPARE(view->shown(), QString("9 0 "));
            view->receive("13/-65, 161/-65");
            const QString heard = summary(band5);
            QVERIFY(heard.startsWith(band5 ? "161 " : "13 "));
            view.reset();
            QCOMPARE(summary(band5), heard);
            clear();
            QCOMPARE(summary(band5), none);
        }
    }

    void showsRowsAndBars()
    {
        for (bool band5 : {false, true}) {
            const int rows = band5 ? 9 : 13;
            View view(band5);
            CPageTable& pages = *view.pages;
            QCOMPARE(pages.pos(), QPoint(0, 0));
            // Columns of 2, 2, 2 and 4 tenths of 640 pixels.
            const QTableView& table = *pages.findChild<QTableView*>();
            for (int column : {0, 1, 2, 3})
                QCOMPARE(table.columnViewportPosition(column), column * 128);
            for (int scans = 0; scans < 2; ++scans) {
                pages.setCurrentPage(scans);
                view.receive("13/-65, 161/-65, 13/-99, 161/-99");
                QCOMPARE(pages.currentPage(), 0);
                QCOMPARE(pages.rowCount(), rows);
                QCOMPARE(pages.pageCount(), (rows + 8) / 9);
                QStringList cells;
                for (int row : {0, rows - 1})
                    for (int column = 0; column < 4; ++column)
                        cells << pages.cellValue(row, column);
                QCOMPARE(cells.join(' '),
                    QString(band5 ? "161 2 - 65dBm  165 0 null " : "13 2 50%  1 0 0% "));
                QCOMPARE(view.bars().size(), rows);
                for (int row = 0; row < rows; ++row) {
                    // 400 / 12 - 5 = 28 a row, below a header of 28; 640 * 0.6 and 640 * 0.4 less
                    const QProgressBar& bar = *view.bars().at(row);
                    QCOMPARE(bar.geometry(), QRect(385, 29 + row % 9 * 28, 252, 26));
                    QCOMPARE(bar.isVisible(), row < 9);
                    QCOMPARE(bar.value(), row == 0 ? 50 : 0);
                    QCOMPARE(bar.maximum() - bar.minimum(), 100);
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

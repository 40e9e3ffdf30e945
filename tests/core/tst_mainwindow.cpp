#include "analyser.h"
#include "cmessagebox.h"
#include "cwidgetstyle.h"
#include "device/paths.h"
#include "include/2_4Graph.h"
#include "include/2_4GraphCh.h"
#include "include/5Graph.h"
#include "include/5GraphCh.h"
#include "include/scan.h"

#include <QLabel>
#include <QTabBar>

#include <thread>

using namespace wifiondivo;

namespace {

/// The tests' own language while it exists: each text after a sign of the context in which it was
/// looked up, short enough for the columns of a table.
class Marked : public QTranslator {
public:
    Marked() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        static const QMap<QString, QString> signs{{"QObject", "Q'"}, {"CWifiondivo", "W'"},
            {"CToolbox", "T'"}, {"CScanResult", "L'"}, {"Wifiondivo_2_4GraphCH", "2'"},
            {"Wifiondivo_5GraphCH", "5'"}};
        return signs.value(QString(context).remove("wifiondivo::"), "?'") + text;
    }
};

/// The signals and slots of a class, in the order of their numbers, each with its parameters'
/// names.
QString methodsOf(const QMetaObject& type)
{
    QStringList methods;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        const QMetaMethod method = type.method(i);
        methods << method.name() + '(' + method.parameterNames().join(", ") + ')';
    }
    return methods.join(' ');
}

const QByteArray BothBands = apLine(1, "one", 6, "-40 dBm") + apLine(2, "two", 149, "-50 dBm")
    + apLine(3, "three", 7, "-60 dBm");

} // namespace

class MainWindowTest : public QObject {
    Q_OBJECT
private slots:
    void init() { world::reset(); }

    void buildsInOrder()
    {
        QDir(QString::fromStdString(device::path(device::ResultFolders[0]))).removeRecursively();
        {
            Analyser first;
            const QString results = "mkdir -p '/home/fileman/k510";
            const QStringList made{
                "'", "/k510-rslt'", "/k510-rslt/wifiport'", "/k510-rslt/wifiport/SSID-result'"};
            QCOMPARE(world::log().join('\n'),
                "rm /etc/wpa_supplicant.conf\n" + results + made.join('\n' + results));
        }
        world::reset();
        Analyser analyser; // existing folders are not made again
        QCOMPARE(world::log(), QStringList("rm /etc/wpa_supplicant.conf"));

        QCOMPARE(analyser.tabs->currentIndex(), 0);
        QCOMPARE(analyser.window->focusPolicy(), Qt::StrongFocus);
        QCOMPARE(analyser.tabs->geometry(), QRect(0, 0, 640, 400));
        QCOMPARE(analyser.strip->geometry(), QRect(640, 0, 80, 400));
        // Tabs of 120 pixels, 4 apart, 12 at the separator after the second: the third ends at
        // 380, the last one begins at 508.
        for (const auto& [x, tab] : {std::make_pair(377, 2), std::make_pair(509, 4)}) {
            QWidget* const bar = analyser.tabs->childAt(x, 20);
            QTest::mousePress(bar, Qt::LeftButton, {}, bar->mapFrom(analyser.tabs, {x, 20}));
            QCOMPARE(analyser.tabs->currentIndex(), tab);
        }
        QCOMPARE(analyser.list->geometry(), QRect(1, 24, 638, 279));
        QCOMPARE(analyser.status->geometry(), QRect(1, 1, 638, 23));
        QCOMPARE(analyser.buttons["Scan"]->geometry(), QRect(4, 1, 72, 48));
        const QImage strip = analyser.strip->grab().toImage();
        for (int x : {0, 1}) // a border at the left alone
            QCOMPARE(strip.pixelColor(x, 399) == Qt::white, x == 0);
        analyser.window->resize(800, 480);
        QCoreApplication::processEvents();
        QCOMPARE(analyser.tabs->size(), QSize(640, 400));
    }

    void numbersItsSlots()
    {
        const QString graph = "GetAPList(m_pWiFiScanResult) markSelectedSSID(m_WIFI_UDRL)";
        const QString table =
            "creatChannelsList(m_pWiFiScanResult) onCurrentPageChanged(pageIndex)";
        QCOMPARE(methodsOf(Wifiondivo_2_4Graph::staticMetaObject), graph);
        QCOMPARE(methodsOf(Wifiondivo_5Graph::staticMetaObject), graph);
        QCOMPARE(methodsOf(Wifiondivo_2_4GraphCH::staticMetaObject), table);
        QCOMPARE(methodsOf(Wifiondivo_5GraphCH::staticMetaObject), table);
        QCOMPARE(methodsOf(CScanResult::staticMetaObject),
            QString("sigApEssidChanged(essid) sigApBssidChanged(bssid) sigApEncType(mode) "
                    "addScanResultRecord(info) scanBegin() scanError() scanEnd() scanNoResult() "
                    "clearApList() setCurApEncType(in_bssid)"));
        QCOMPARE(methodsOf(CToolbox::staticMetaObject),
            QString("sigWifiScanStart() sigWifiScan2_4UDRL(step) enableBtnScanAp(flag) "
                    "enableBtnScanAp() onWifiboxshow(index) onBtnCmd()"));
    }

    void coloursTheInnerTabs()
    {
        Analyser analyser;
        CTabWidget* const tabs = analyser.tabs->findChild<CTabWidget*>();
        tabs->addTab(new QWidget, "other");
        const QTabBar* const bar = tabs->findChild<QTabBar*>();
        const QImage image = tabs->grab().toImage();
        const QStringList log = PaintRecorder::logOf(*tabs);
        const CWidgetStyle::ColorCode codes[][2] = {
            {CWidgetStyle::SelectedTabBackground, CWidgetStyle::SelectedTabText},
            {CWidgetStyle::ReleasedTabBackground, CWidgetStyle::ReleasedTabText}};
        for (int tab : {0, 1}) {
            const QRect place = bar->tabRect(tab).translated(bar->pos());
            QCOMPARE(image.pixelColor(place.left() + 6, place.center().y()),
                CWidgetStyle::getColor(codes[tab][0]));
            const QString text = "text " + CWidgetStyle::getColor(codes[tab][1]).name();
            QCOMPARE(log.filter(text).filter(tabs->tabText(tab)).size(), 1);
        }
    }

    void saysItsTexts()
    {
        // Texts that a change of language sets again, and texts that keep the first language.
        const QStringList again{"W'Scan", "W'2.4Graph", "W'2.4GraphCH", "W'5.0GraphCH",
            "W'5.0Graph", "W'AP List", "Q'WIFI Scan:", "T'Scan"};
        QStringList once{"T'Right", "T'Left", "T'Up", "T'Down", "Q'ESSID", "Q'BSSID", "L'Channel",
            "2'Channel", "2'AP", "2'Best Signal", "2'Best Signal Bar", "5'Channel", "5'AP",
            "5'Best Signal", "5'Best Signal Bar"};
        for (const bool builtBefore : {false, true}) {
            std::unique_ptr<Marked> language(builtBefore ? nullptr : new Marked);
            Analyser analyser;
            if (builtBefore) {
                language.reset(new Marked);
                analyser.window->translate();
                once.replaceInStrings(QRegularExpression("^.'"), "");
            }
            QStringList texts;
            for (int tab = 0; tab < 5; ++tab)
                texts << analyser.tabs->tabText(tab);
            texts << analyser.tabs->findChild<CTabWidget*>()->tabText(0) << analyser.status->text();
            for (CPushButton* button : analyser.strip->findChildren<CPushButton*>())
                texts << button->text();
            analyser.list->clear(); // and with it goes the list's own hint
            texts << PaintRecorder::textsOf(*analyser.list);
            analyser.window->show();
            for (const int page : {2, 3}) {
                analyser.tabs->setCurrentIndex(page);
                texts << analyser.pageTexts(page);
            }
            texts.removeAll(QString()); // of columns without a title
            QCOMPARE(texts, again + once);
        }
    }

    void showsTheButtonsOfATab()
    {
        Analyser analyser;
        const auto shown = [&] { return PaintRecorder::textsOf(*analyser.strip).join(' '); };
        QCOMPARE(shown(), QString("Scan"));
        for (int band : {1, 4}) {
            ap2_4 = band == 1; // the other band is empty
            ap5 = band == 4;
            for (int tab : {1, 2, 3, 4, 0}) {
                analyser.tabs->setCurrentIndex(tab);
                const char* const arrows = tab == band ? "Right Left Up Down" : "";
                QCOMPARE(shown(), QString(tab == 0 ? "Scan" : arrows));
                QCOMPARE(analyser.buttons[tab == 0 ? "Scan" : "Right"]->y(), 1); // at the top
            }
        }
    }

    void listsAccessPoints()
    {
        CScanResult page;
        AccessPointList* const list = page.findChild<AccessPointList*>();
        stK510_WIFISCAN_APDATA ap = {};
        const auto row = [&](const char* signal, int encKey,
                             const char* encType) -> const _APInfo& {
            setField(ap.str_signal, signal);
            setField(ap.enctype, encType);
            ap.with_enc = encKey;
            page.addScanResultRecord(ap);
            return list->item(list->count() - 1)->info();
        };
        QCOMPARE(row("-67 dBm", 1, "WPA2")._signal, 43); // 110 - 67
        QCOMPARE(row("-110 dBm", 1, "WPA2")._signal, 0);
        QCOMPARE(row("43/70", 1, "WPA2")._signal, 43);
        QCOMPARE(row("-- dBm", 1, "WPA2")._signal, 0);
        QCOMPARE(row("/70", 1, "WPA2")._signal, 0);
        QCOMPARE(row("-0 dBm", 1, "WPA2")._signal, 110);
        QCOMPARE(row("", 1, "WPA2")._secMode, Security_WPA2);
        QCOMPARE(row("", 5, "WEP")._secMode, Security_WEP);
        QCOMPARE(row("", 1, "WPA")._secMode, Security_None);
        QCOMPARE(row("", 0, "WPA2")._secMode, Security_None); // open whatever the method

        setField(ap.bssid, "00:11:22:33:44:55");
        setField(ap.essid, "Caf\xc3\xa9");
        ap.channel = 36;
        const _APInfo& last = row("", 1, "WPA1");
        QCOMPARE(last._channel, 36);
        QCOMPARE(last._statMsg, QString());
        QList<int> modes;
        connect(&page, &CScanResult::sigApEncType, this, [&](SecurityMode mode) { modes << mode; });
        QSignalSpy essid(&page, SIGNAL(sigApEssidChanged(QString)));
        QSignalSpy bssid(&page, SIGNAL(sigApBssidChanged(QString)));
        list->setCurrentRow(list->count() - 1);
        page.setCurApEncType("no such row");
        QCOMPARE(modes, QList<int>{Security_WPA1});
        QCOMPARE(essid.value(0).value(0).toString(), QString::fromUtf8("Caf\xc3\xa9"));
        QCOMPARE(bssid.value(0).value(0).toString(), QString("00:11:22:33:44:55"));
    }

    void followsAScan()
    {
        const struct {
            const char* ending; // of the tool's output
            const char* status;
            const char* translated; // after a change of language
            bool isScanEnabled;
        } rows[] = {
            {"over", "WIFI Scan Finished", "WIFI Scan Finished", true},
            {"fail", "WIFI Scan Failed", "WIFI Scan Failed", true},
            {"NoResults", "WIFI Scan No Results", "WIFI Scan Finished", false},
            {"", "WIFI Scan In Progress...", "WIFI Scan In Progress...", false},
        };
        for (const auto& row : rows) {
            Analyser analyser;
            const auto look = [&] { return analyser.buttons["Scan"]->grab().toImage(); };
            const QImage ready = look();
            HeldScan scan(analyser, BothBands + "wifiscan: " + row.ending + '\n');
            QCOMPARE(analyser.status->text(), QString("WIFI Scan Start..."));
            QVERIFY(!analyser.buttons["Scan"]->isEnabled());
            QVERIFY(look() != ready);
            analyser.tabs->setCurrentIndex(3);
            analyser.window->scanWifi(); // during a scan it only shows the list
            QCOMPARE(analyser.tabs->currentIndex(), 0);
            const bool onGraph = row.isScanEnabled;
            analyser.tabs->setCurrentIndex(onGraph ? 1 : 0);
            scan.open();
            QVERIFY(world::finishScan());
            // The strip follows a change of the tab, not the end of a scan.
            QCOMPARE(
                PaintRecorder::textsOf(*analyser.strip).join(' '), QString(onGraph ? "" : "Scan"));
            const QString tool = "/usr/local/k510/sbin/wifi-scan wlan0 scanning";
            QCOMPARE(world::log().join("; "),
                "ifconfig wlan0 up; " + tool + "; pause 1; " + tool
                    + " > /tmp/ondivo_wifi_scanres; pause 1");
            QCOMPARE(analyser.status->text(), QString(row.status));
            QCOMPARE(analyser.list->count(), 3);
            QCOMPARE(analyser.buttons["Scan"]->isEnabled(), row.isScanEnabled);
            QCOMPARE(look() == ready, row.isScanEnabled); // green again
            analyser.window->translate();
            QCOMPARE(analyser.status->text(), QString(row.translated));
        }
    }

    void movesTheSelectionsOfBothGraphs()
    {
        Analyser analyser;
        QByteArray air;
        for (int cell = 1; cell <= 8; ++cell) { // A, B, C on 6, D on 7; E, F, G on 149, H on 153
            const char name[] = {char('@' + cell), '\0'};
            const int channels[] = {153, 6, 6, 6, 7, 149, 149, 149};
            air += apLine(cell, name, channels[cell % 8], QByteArray::number(-40 - cell));
        }
        analyser.scan(air + Over);
        for (int tab : {1, 4}) {
            analyser.tabs->setCurrentIndex(tab);
            RepaintCounter repaints(analyser.tabs->widget(tab));
            QString log;
            for (const char* arrow : {"Right", "Up", "Down", "Left"}) {
                repaints.taken();
                analyser.buttons[arrow]->click();
                QCOMPARE(repaints.taken(), 1); // of the one that is seen
                for (int graph : {1, 4})
                    log += analyser.pageTexts(graph).filter("Signal:").value(0).left(1);
            }
            QCOMPARE(log, QString("CGBFCGDH")); // the one listed last is found first
        }
    }

    void endsAScanBeforeItGoes()
    {
        Analyser analyser;
        HeldScan scan(analyser, Over);
        // The window waits in this thread, so that another one has to let the scan go on; late
        // enough that the window would be gone if it did not wait.
        std::thread later([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
            scan.open();
        });
        analyser.window.reset();
        QCOMPARE(world::log().count("pause 1"), 2); // the scan went to its end
        later.join();
    }

    void saysThatThereIsNoAdapter()
    {
        Analyser analyser;
        analyser.adapter->SetPlugged(false);
        world::reset();
        onModal([&] { analyser.buttons["Scan"]->click(); },
            [&](QWidget* modal) {
                QVERIFY(qobject_cast<CMessageBox*>(modal));
                QCOMPARE(modal->size(), QSize(450, 270));
                QCOMPARE(modal->windowTitle(), QString("Tips"));
                QCOMPARE(modal->findChildren<QLabel*>().last()->text(),
                    QString("WIFI device can't be detected!"));
                const QList<CPushButton*> buttons = modal->findChildren<CPushButton*>();
                QCOMPARE(buttons.size(), 1);
                QCOMPARE(buttons.at(0)->text(), QString("OK"));
                buttons.at(0)->click();
            });
        QVERIFY(analyser.buttons["Scan"]->isEnabled());
        QCOMPARE(analyser.status->text(), QString("WIFI Scan:"));
        QCOMPARE(world::log(), QStringList());
        for (QWidget* widget : QApplication::allWidgets())
            QVERIFY(!qobject_cast<CMessageBox*>(widget));
    }

    void goesWhileItIsAsking()
    {
        for (auto ask : {&CWifiondivo::scanWifi, &CWifiondivo::saveTestResult}) {
            Analyser analyser;
            analyser.adapter->SetPlugged(false);
            onModal([&] { (analyser.window.get()->*ask)(); },
                [&](QWidget*) {
                    analyser.window.reset();
                    QVERIFY(!QApplication::activeModalWidget()); // it went with who asked
                });
        }
    }
};

QTEST_MAIN(MainWindowTest)
#include "tst_mainwindow.moc"

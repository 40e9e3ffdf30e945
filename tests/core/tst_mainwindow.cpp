#include "2_4GraphCh.h"
#include "5GraphCh.h"
#include "analyser.h"
#include "cmessagebox.h"
#include "cwidgetstyle.h"
#include "device/paths.h"
#include "eventcounter.h"
#include "scan.h"

#include <QLabel>
#include <QProgressBar>

#include <thread>

using namespace wifiondivo;

namespace {

/// How a text reads in the tests' own language: behind a sign of the context in which it was looked
/// up, short enough for the columns of a table.
QString marked(const QString& context, const QString& text)
{
    static const QMap<QString, QString> signs{{"QObject", "Q'"}, {"wifiondivo::CWifiondivo", "W'"},
        {"wifiondivo::CToolbox", "T'"}, {"wifiondivo::CScanResult", "L'"},
        {"wifiondivo::Wifiondivo_2_4GraphCH", "2'"}, {"wifiondivo::Wifiondivo_5GraphCH", "5'"}};
    return signs.value(context, "?'") + text;
}

class Marked : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return marked(context, text);
    }
};

/// The language for a part of a test.
class InMarkedLanguage {
public:
    InMarkedLanguage() { QCoreApplication::installTranslator(&m_marked); }
    ~InMarkedLanguage() { QCoreApplication::removeTranslator(&m_marked); }

private:
    Marked m_marked;
};

QStringList titles(const CTabWidget& tabs)
{
    QStringList titles;
    for (int tab = 0; tab < tabs.count(); ++tab)
        titles << tabs.tabText(tab);
    return titles;
}

const QByteArray BothBands = apLine(1, "one", 6, "-40 dBm") + apLine(2, "two", 149, "-50 dBm")
    + apLine(3, "three", 7, "-60 dBm");

} // namespace

class MainWindowTest : public QObject {
    Q_OBJECT
private slots:
    void init()
    {
        ap2_4 = ap5 = 0;
        world::reset();
    }

    void buildsInOrder()
    {
        QDir(QString::fromStdString(device::path(device::ResultFolders[0]))).removeRecursively();
        {
            Analyser first;
            const QString results = "mkdir -p '/home/fileman/k510";
            QCOMPARE(world::log(),
                (QStringList{"rm /etc/wpa_supplicant.conf", results + "'", results + "/k510-rslt'",
                    results + "/k510-rslt/wifiport'",
                    results + "/k510-rslt/wifiport/SSID-result'"}));
        }
        world::reset();
        Analyser analyser; // what exists is not made again
        QCOMPARE(world::log(), QStringList("rm /etc/wpa_supplicant.conf"));

        QCOMPARE(analyser.tabs->currentIndex(), 0);
        QCOMPARE(analyser.shownButtons(), QString("Scan"));
        QCOMPARE(analyser.window->focusPolicy(), Qt::StrongFocus);
        QCOMPARE(analyser.tabs->geometry(), QRect(0, 0, 640, 400));
        QCOMPARE(analyser.window->findChild<CToolbox*>()->geometry(), QRect(640, 0, 80, 400));
        // Tabs of 120 pixels, 4 apart, 12 at the separator behind the second: the third ends at
        // 380.
        QTest::mousePress(analyser.tabs, Qt::LeftButton, {}, QPoint(377, 20));
        QCOMPARE(analyser.tabs->currentIndex(), 2);
        QTest::mousePress(analyser.tabs, Qt::LeftButton, {}, QPoint(509, 20)); // the fifth begins
        QCOMPARE(analyser.tabs->currentIndex(), 4);
        QCOMPARE(analyser.tabs->maximumSize(), QSize(640, 400));
        QCOMPARE(analyser.button("Scan")->y(), 1); // the buttons stand at the top
        for (int tab = 0; tab < 5; ++tab) {
            const QSize size = tab == 2 || tab == 3
                ? analyser.tabs->widget(tab)->findChild<CPageTable*>()->size()
                : analyser.tabs->widget(tab)->size();
            QCOMPARE(size, QSize(640, 400));
        }
        QCOMPARE(analyser.list->size(), QSize(638, 279));
        QCOMPARE(analyser.status->height(), 23);
    }

    void saysItsTexts_data()
    {
        QTest::addColumn<bool>("builtMarked");
        QTest::addColumn<bool>("translated"); // after it was built in English
        QTest::newRow("English") << false << false;
        QTest::newRow("another language from the start") << true << false;
        QTest::newRow("another language later") << false << true;
    }
    void saysItsTexts()
    {
        QFETCH(bool, builtMarked);
        QFETCH(bool, translated);
        std::unique_ptr<InMarkedLanguage> language;
        if (builtMarked)
            language.reset(new InMarkedLanguage);
        Analyser analyser;
        if (translated) {
            language.reset(new InMarkedLanguage);
            analyser.window->translate();
        }
        // What a change of language sets again, and what keeps the language it was built in.
        const auto again = [&](const QString& context, QStringList texts) {
            for (QString& text : texts)
                text = builtMarked || translated ? marked(context, text) : text;
            return texts;
        };
        const auto once = [&](const QString& context, const QStringList& texts) {
            return translated ? texts : again(context, texts);
        };
        QCOMPARE(titles(*analyser.tabs),
            again("wifiondivo::CWifiondivo",
                {"Scan", "2.4Graph", "2.4GraphCH", "5.0GraphCH", "5.0Graph"}));
        QCOMPARE(titles(*analyser.tabs->findChild<CTabWidget*>()),
            again("wifiondivo::CWifiondivo", {"AP List"}));
        QCOMPARE(analyser.status->text(), again("QObject", {"WIFI Scan:"}).at(0));
        QStringList buttons;
        for (CPushButton* button :
            analyser.window->findChild<CToolbox*>()->findChildren<CPushButton*>())
            buttons << button->text();
        QCOMPARE(buttons,
            again("wifiondivo::CToolbox", {"Scan"})
                + once("wifiondivo::CToolbox", {"Right", "Left", "Up", "Down"}));
        QCOMPARE(shown(PaintRecorder::textsOf(*analyser.list)),
            once("QObject", {"ESSID", "BSSID"}) + once("wifiondivo::CScanResult", {"Channel"}));
        const char* const classes[] = {"Wifiondivo_2_4GraphCH", "Wifiondivo_5GraphCH"};
        for (int table : {0, 1})
            QCOMPARE(shown(analyser.pageTexts(2 + table)),
                once(QString("wifiondivo::") + classes[table],
                    {"Channel", "AP", "Best Signal", "Best Signal Bar"}));
    }

    void showsTheButtonsOfATab()
    {
        const QString arrows = "Up Down Left Right";
        Analyser analyser;
        for (int band : {2, 5}) {
            ap2_4 = band == 2; // the other band is empty
            ap5 = band == 5;
            const QStringList buttons{
                "Scan", band == 2 ? arrows : "", "", "", band == 5 ? arrows : ""};
            for (int tab : {1, 2, 3, 4, 0}) {
                analyser.tabs->setCurrentIndex(tab);
                QCOMPARE(analyser.shownButtons(), buttons.at(tab));
            }
        }
    }

    void sendsSteps()
    {
        CToolbox toolbox(nullptr);
        QStringList sent;
        connect(&toolbox, &CToolbox::sigWifiScan2_4UDRL, this, [&](const stEXT_WIFI_UDRL& step) {
            sent << QString("%1 %2").arg(step.up_down).arg(step.right_left);
        });
        connect(&toolbox, &CToolbox::sigWifiScanStart, this, [&] { sent << "scan"; });
        const auto press = [&](const QStringList& texts) {
            for (CPushButton* button : toolbox.findChildren<CPushButton*>()) {
                if (texts.contains(button->text()))
                    button->click();
            }
        };
        for (const char* text : {"Up", "Down", "Left", "Right", "Scan"})
            press({text});
        QCOMPARE(sent, (QStringList{"-1 0", "1 0", "0 -1", "0 1", "scan"}));
        for (bool enabled : {false, true}) {
            toolbox.enableBtnScanAp(enabled);
            press({"Scan"});
            QCOMPARE(sent.count("scan"), enabled ? 2 : 1);
        }
    }

    void listsAccessPoints_data()
    {
        QTest::addColumn<QString>("signal");
        QTest::addColumn<QString>("encType");
        QTest::addColumn<int>("encKey");
        QTest::addColumn<int>("figure");
        QTest::addColumn<int>("mode");
        const auto row = [](const char* name, const char* signal, const char* encType, int encKey,
                             int figure, SecurityMode mode) {
            QTest::newRow(name) << signal << encType << encKey << figure << int(mode);
        };
        row("level", "-67 dBm", "WPA2", 1, 43, Security_WPA2); // 110 - 67
        row("weakest level", "-110 dBm", "WPA1", 1, 0, Security_WPA1);
        row("ratio", "43/70", "WEP", 5, 43, Security_WEP);
        row("no number", "-- dBm", "wep", 1, 0, Security_None);
        row("minus zero", "-0 dBm", "WPA", 1, 110, Security_None);
        row("open whatever the method", "x", "WPA2", 0, 0, Security_None);
    }
    void listsAccessPoints()
    {
        QFETCH(QString, signal);
        QFETCH(QString, encType);
        QFETCH(int, encKey);
        stK510_WIFISCAN_APDATA ap = {};
        setField(ap.bssid, "00:11:22:33:44:55");
        setField(ap.essid, "Caf\xc3\xa9");
        setField(ap.str_signal, signal.toLatin1());
        setField(ap.enctype, encType.toLatin1());
        ap.channel = 36;
        ap.with_enc = encKey;
        CScanResult page;
        page.addScanResultRecord(ap);
        AccessPointList* const list = page.findChild<AccessPointList*>();
        QCOMPARE(list->count(), 1);
        const _APInfo& row = list->item(0)->info();
        QCOMPARE(row._essid, QString::fromUtf8("Caf\xc3\xa9"));
        QCOMPARE(row._bssid, QString("00:11:22:33:44:55"));
        QCOMPARE(row._channel, 36);
        QCOMPARE(row._statMsg, QString());
        QTEST(row._signal, "figure");
        QTEST(int(row._secMode), "mode");
        QList<int> modes;
        connect(&page, &CScanResult::sigApEncType, this, [&](SecurityMode mode) { modes << mode; });
        QSignalSpy essid(&page, SIGNAL(sigApEssidChanged(QString)));
        QSignalSpy bssid(&page, SIGNAL(sigApBssidChanged(QString)));
        list->setCurrentRow(0);
        page.setCurApEncType("no such row");
        QFETCH(int, mode);
        QCOMPARE(modes, QList<int>{mode});
        QCOMPARE(essid.value(0).value(0).toString(), row._essid);
        QCOMPARE(bssid.value(0).value(0).toString(), row._bssid);
    }

    void followsAScan_data()
    {
        QTest::addColumn<QByteArray>("closing");
        QTest::addColumn<QString>("status");
        QTest::addColumn<QString>("translated"); // what a change of language makes of it
        QTest::addColumn<int>("channels2_4");
        QTest::addColumn<int>("channels5");
        QTest::addColumn<bool>("scanEnabled");
        const QString finished = "WIFI Scan Finished";
        QTest::newRow("finished") << QByteArray("over") << finished << finished << 2 << 1 << true;
        QTest::newRow("failed") << QByteArray("fail") << "WIFI Scan Failed"
                                << "WIFI Scan Failed" << 0 << 0 << true;
        QTest::newRow("no results")
            << QByteArray("NoResults") << "WIFI Scan No Results" << finished << 0 << 0 << false;
        QTest::newRow("no closing line") << QByteArray("x") << "WIFI Scan In Progress..."
                                         << "WIFI Scan In Progress..." << 0 << 0 << false;
    }
    void followsAScan()
    {
        QFETCH(QByteArray, closing);
        Analyser analyser;
        world::reset(BothBands + "wifiscan: " + closing + "\n");
        world::Gate gate;
        analyser.button("Scan")->click();
        QVERIFY(world::Gate::isReached());
        QCoreApplication::sendPostedEvents();
        QCOMPARE(analyser.status->text(), QString("WIFI Scan Start..."));
        QVERIFY(!analyser.button("Scan")->isEnabled());
        analyser.tabs->setCurrentIndex(3);
        analyser.window->scanWifi(); // during a scan it only shows the list
        QCOMPARE(analyser.tabs->currentIndex(), 0);
        gate.open();
        QVERIFY(world::finishScan());
        const QString tool = "/usr/local/k510/sbin/wifi-scan wlan0 scanning";
        QCOMPARE(world::log(),
            (QStringList{"ifconfig wlan0 up", tool, "pause 1", tool + " > /tmp/ondivo_wifi_scanres",
                "pause 1"}));
        QTEST(analyser.status->text(), "status");
        QTEST(int(ap2_4), "channels2_4");
        QTEST(int(ap5), "channels5");
        QCOMPARE(analyser.list->count(), 3);
        QTEST(analyser.button("Scan")->isEnabled(), "scanEnabled");
        analyser.window->translate();
        QTEST(analyser.status->text(), "translated");
    }

    void showsAScanOnEveryPage()
    {
        Analyser analyser;
        for (int tab = 1; tab < 5; ++tab) // nothing but axes and empty rows
            QCOMPARE(analyser.tabs->widget(tab)->findChildren<QProgressBar*>().size(), 0);
        analyser.scan(BothBands + Over);
        QCOMPARE(analyser.pageTexts(2).mid(4, 6), (QStringList{"6", "1", "91%", "7", "1", "58%"}));
        QCOMPARE(analyser.pageTexts(3).mid(4, 3), (QStringList{"149", "1", "- 50dBm"}));

        // An arrow moves the selection of both graphs, and the one that is seen paints it.
        for (int tab : {1, 4}) {
            analyser.tabs->setCurrentIndex(tab);
            EventCounter repaints(analyser.tabs->widget(tab), QEvent::Paint);
            repaints.taken();
            for (const char* arrow : {"Right", "Up", "Down", "Left"}) {
                analyser.button(arrow)->click();
                QCOMPARE(repaints.taken(), 1);
            }
        }
        QCOMPARE(
            analyser.pageTexts(4).filter("two"), QStringList("two    Channel:149  Signal:-50dBm"));
        QCOMPARE(analyser.pageTexts(1).filter("Channel:").size(), 2); // its two captions

        analyser.scan(apLine(1, "new", 36, "-40 dBm") + Over);
        QCOMPARE(analyser.list->count(), 1);
        QCOMPARE(ap2_4, 0);
        QCOMPARE(
            analyser.pageTexts(3).mid(4, 3), (QStringList{"36", "1", "- 41dBm"})); // by way of 91 %
        QCOMPARE(analyser.pageTexts(4).filter("Channel:"), QStringList());         // "two" is gone
    }

    void turnsThePageByItsButton()
    {
        Analyser analyser;
        analyser.scan(BothBands + Over);
        analyser.tabs->setCurrentIndex(2);
        CPageTable* const table = analyser.tabs->widget(2)->findChild<CPageTable*>();
        const QList<QProgressBar*> bars = table->findChildren<QProgressBar*>();
        QCOMPARE(bars.size(), 13);
        for (const char* page : {"nextPage", "previousPage"}) {
            const bool second = page == QLatin1String("nextPage");
            QTest::mouseClick(table->findChild<CPushButton*>(page), Qt::LeftButton);
            for (int row = 0; row < bars.size(); ++row)
                QCOMPARE(bars.at(row)->isVisible(), (row >= 9) == second);
        }
    }

    void endsAScanBeforeItGoes()
    {
        Analyser analyser;
        world::reset(Over);
        world::Gate gate;
        analyser.button("Scan")->click();
        QVERIFY(world::Gate::isReached());
        // The window waits in this thread, so that another one has to let the scan go on; late
        // enough that the window would be gone if it did not wait.
        std::thread later([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
            gate.open();
        });
        analyser.window.reset();
        QCOMPARE(world::log().count("pause 1"), 2); // the scan went to its end
        later.join();
    }

    void saysThatThereIsNoAdapter()
    {
        Analyser analyser;
        analyser.adapter->isPlugged = false;
        world::reset();
        onModal([&] { analyser.button("Scan")->click(); },
            [&](QWidget* modal) {
                QVERIFY(qobject_cast<CMessageBox*>(modal));
                QCOMPARE(modal->size(), QSize(450, 270));
                QCOMPARE(modal->windowTitle(), QString("Tips"));
                QCOMPARE(
                    modal->findChild<QLabel*>()->text(), QString("WIFI device can't be detected!"));
                const QList<CPushButton*> buttons = modal->findChildren<CPushButton*>();
                QCOMPARE(buttons.size(), 1);
                QCOMPARE(buttons.at(0)->text(), QString("OK"));
                buttons.at(0)->click();
            });
        QVERIFY(analyser.button("Scan")->isEnabled());
        QCOMPARE(analyser.status->text(), QString("WIFI Scan:"));
        QCOMPARE(world::log(), QStringList());
        for (QWidget* widget : QApplication::allWidgets())
            QVERIFY(!qobject_cast<CMessageBox*>(widget));
    }

    void goesWhileItIsAsking()
    {
        for (auto ask : {&CWifiondivo::scanWifi, &CWifiondivo::saveTestResult}) {
            Analyser analyser;
            analyser.adapter->isPlugged = false;
            onModal([&] { (analyser.window.get()->*ask)(); },
                [&](QWidget*) {
                    analyser.window.reset();
                    QVERIFY(!QApplication::activeModalWidget()); // it went with who asked
                });
        }
    }

    void makesFolders()
    {
        QTemporaryDir folder;
        const QString names[] = {"it's \"quoted\" 'twice'", "a/b/c", QString(200, 'x') + "/y",
            "$(touch injected); `touch injected`; x' ; touch injected; '"};
        for (const QString& name : names) {
            CWifiondivo::createDir((folder.path() + '/' + name).toUtf8());
            QVERIFY(QDir(folder.path() + '/' + name).exists());
        }
        QVERIFY(!QFile::exists("injected"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 4);
    }

private:
    /// The texts that are there; an untitled column paints nothing or an empty one.
    static QStringList shown(QStringList texts)
    {
        texts.removeAll(QString());
        return texts;
    }
};

QTEST_MAIN(MainWindowTest)
#include "tst_mainwindow.moc"

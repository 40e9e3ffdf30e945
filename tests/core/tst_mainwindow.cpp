#include "2_4GraphCh.h"
#include "5GraphCh.h"
#include "CBoardSpec.h"
#include "cmessagebox.h"
#include "CUsbBus.h"
#include "CUsbWifi.h"
#include "scan.h"
#include "scanfixture.h"
#include "wifiondivoplugin.h"

#include <QTimer>

using namespace wifiondivo;

class MainWindowTest : public QObject {
    Q_OBJECT
private slots:
    void init() { ap2_4 = ap5 = 0; }

    void builds()
    {
        QFile stored(WIFIONDIVO_DEVICE_ROOT "/etc/wpa_supplicant.conf");
        QVERIFY(stored.open(QIODevice::WriteOnly));
        stored.close();
        QDir(device::ResultFolders[0]).removeRecursively();
        Analyser analyser;
        QVERIFY(!stored.exists());
        QVERIFY(QDir(device::ReportFolder).exists());
        QStringList titles;
        for (int tab = 0; tab < analyser.tabs->count(); ++tab)
            titles << analyser.tabs->tabText(tab);
        QCOMPARE(titles, (QStringList{"Scan", "2.4Graph", "2.4GraphCH", "5.0GraphCH", "5.0Graph"}));
        QCOMPARE(analyser.tabs->currentIndex(), 0);
        QCOMPARE(analyser.shownButtons(), QString("Scan"));
        QCOMPARE(analyser.status->text(), QString("WIFI Scan:"));
        QCOMPARE(analyser.window->focusPolicy(), Qt::StrongFocus);
    }

    void showsTheButtonsOfATab()
    {
        const QString arrows = "Up Down Left Right";
        Analyser analyser;
        for (int band : {2, 5}) {
            ap2_4 = band == 2; // the other band is empty
            ap5 = band == 5;
            const QStringList shown{
                "Scan", band == 2 ? arrows : "", "", "", band == 5 ? arrows : ""};
            for (int tab : {1, 2, 3, 4, 0}) {
                analyser.tabs->setCurrentIndex(tab);
                QCOMPARE(analyser.shownButtons(), shown.at(tab));
            }
        }
    }

    void sendsSteps()
    {
        CToolbox toolbox(nullptr);
        QStringList steps;
        connect(&toolbox, &CToolbox::sigWifiScan2_4UDRL, this, [&](const stEXT_WIFI_UDRL& step) {
            steps << QString("%1 %2").arg(step.up_down).arg(step.right_left);
        });
        QSignalSpy starts(&toolbox, SIGNAL(sigWifiScanStart()));
        const auto press = [&](const char* text) {
            for (CPushButton* button : toolbox.findChildren<CPushButton*>()) {
                if (button->text() == text)
                    button->click();
            }
        };
        for (const char* text : {"Up", "Down", "Left", "Right", "Scan"})
            press(text);
        QCOMPARE(steps, (QStringList{"-1 0", "1 0", "0 -1", "0 1"}));
        QCOMPARE(starts.count(), 1);
        toolbox.enableBtnScanAp(false);
        press("Scan");
        QCOMPARE(starts.count(), 1);
        toolbox.enableBtnScanAp();
        press("Scan");
        QCOMPARE(starts.count(), 2);
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
        QTest::newRow("finished") << QByteArray("over") << "WIFI Scan Finished"
                                  << "WIFI Scan Finished" << 2 << 1 << true;
        QTest::newRow("failed") << QByteArray("fail") << "WIFI Scan Failed"
                                << "WIFI Scan Failed" << 0 << 0 << true;
        QTest::newRow("no results") << QByteArray("NoResults") << "WIFI Scan No Results"
                                    << "WIFI Scan Finished" << 0 << 0 << false;
    }
    void followsAScan()
    {
        QFETCH(QByteArray, closing);
        QFETCH(QString, status);
        Analyser analyser;
        analyser.replay(apLine(1, "one", 6, "-40 dBm") + apLine(2, "two", 149, "-50 dBm")
            + apLine(3, "three", 7, "-60 dBm") + "wifiscan: " + closing + "\n");
        analyser.pressScan();
        QVERIFY(!analyser.button("Scan")->isEnabled());
        QVERIFY(analyser.waitForStatus("WIFI Scan Start..."));
        analyser.tabs->setCurrentIndex(3);
        analyser.window->scanWifi(); // during a scan it only shows the list
        QCOMPARE(analyser.tabs->currentIndex(), 0);
        QVERIFY(analyser.waitForStatus(status.toLatin1()));
        QFETCH(int, channels2_4);
        QFETCH(int, channels5);
        QTRY_COMPARE(ap2_4, channels2_4);
        QTRY_COMPARE(ap5, channels5);
        QCOMPARE(analyser.list->count(), 3);
        QTEST(analyser.button("Scan")->isEnabled(), "scanEnabled");
        analyser.window->translate();
        QTEST(analyser.status->text(), "translated");
        QCOMPARE(analyser.tabs->tabText(4), QString("5.0Graph"));
    }

    void scansTwice()
    {
        Analyser analyser;
        analyser.replay(apLine(1, "one", 6, "-40 dBm") + "wifiscan: over\n");
        analyser.pressScan();
        QVERIFY(analyser.waitForStatus("WIFI Scan Finished"));
        analyser.replay(apLine(1, "two", 149, "-40 dBm") + apLine(2, "three", 6, "-40 dBm")
            + "wifiscan: over\n");
        analyser.pressScan();
        QVERIFY(analyser.waitForStatus("WIFI Scan Start..."));
        QCOMPARE(analyser.list->count(), 0);
        QVERIFY(analyser.waitForStatus("WIFI Scan Finished"));
        QTRY_COMPARE(ap5, 1);
        QCOMPARE(analyser.list->count(), 2);
        // A step reaches both graphs, and each has the table: its access point becomes red.
        for (int tab : {1, 4}) {
            QVERIFY(QTest::qWaitFor([&] {
                analyser.button("Right")->click();
                QImage image = analyser.tabs->widget(tab)->grab().toImage();
                return image.pixelColor(330, 77) == QColor(Qt::red); // -40 dBm on either graph
            }));
        }
    }

    void endsAScanBeforeItGoes()
    {
        Analyser analyser;
        analyser.replay("wifiscan: over\n");
        QFile output(device::ScanOutputFile);
        output.remove();
        analyser.pressScan();
        analyser.window.reset();
        QVERIFY(output.exists()); // the second run of the tool is over
    }

    void saysThatThereIsNoAdapter()
    {
        Analyser analyser;
        analyser.replay("wifiscan: over\n");
        plugAdapter(false);
        QSize box;
        QTimer::singleShot(0, this, [&box] {
            QWidget* const modal = QApplication::activeModalWidget();
            QVERIFY(qobject_cast<CMessageBox*>(modal));
            box = modal->size();
            QCOMPARE(modal->findChild<CPushButton*>()->text(), QString("OK"));
            modal->findChild<CPushButton*>()->click();
        });
        analyser.pressScan();
        plugAdapter(true);
        QCOMPARE(box, QSize(450, 270));
        QVERIFY(analyser.button("Scan")->isEnabled());
        QCOMPARE(analyser.status->text(), QString("WIFI Scan:"));
        for (QWidget* widget : QApplication::allWidgets())
            QVERIFY(!qobject_cast<CMessageBox*>(widget));
    }

    void goesWhileItIsAsking()
    {
        plugAdapter(false);
        qputenv("WIFI_SCAN_REPLAY", "some file");
        for (auto ask : {&CWifiondivo::scanWifi, &CWifiondivo::saveTestResult}) {
            Analyser analyser;
            bool asked = false;
            QTimer::singleShot(0, this, [&] {
                asked = QApplication::activeModalWidget();
                analyser.window.reset();
            });
            (analyser.window.get()->*ask)();
            QVERIFY(asked);
            QVERIFY(!QApplication::activeModalWidget());
        }
        plugAdapter(true);
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

    void livesThroughItsLifecycle()
    {
        QWidget host;
        wifiondivoPlugin plugin;
        QCOMPARE(plugin.qt_metacast("UtilInterface"),
            static_cast<void*>(static_cast<UtilInterface*>(&plugin)));
        QCOMPARE(plugin.qt_metacast("com.korvane.CommonUtil.UtilInterface/1.0"),
            plugin.qt_metacast("UtilInterface"));
        plugin.show();
        plugin.hide();
        plugin.update();
        plugin.terminate();
        QVERIFY(!plugin.stop());
        QVERIFY(!plugin.getObject());
        QVERIFY(plugin.bkgRun(&host));
        QVERIFY(!plugin.bIsStarted);
        const QPointer<QWidget> window = qobject_cast<QWidget*>(plugin.getObject());
        QVERIFY(window->isHidden());
        for (int times = 0; times < 2; ++times) {
            QVERIFY(plugin.start(&host));
            QVERIFY(plugin.bIsStarted);
            QCOMPARE(plugin.getObject(), window.data());
            QVERIFY(!window->isHidden());
        }
        QCOMPARE(host.findChildren<CWifiondivo*>().size(), 1);
        QVERIFY(plugin.stop());
        QVERIFY(!plugin.stop());
        QVERIFY(window->isHidden());
        plugin.show();
        QVERIFY(!window->isHidden());
        QVERIFY(!plugin.bIsStarted);
        plugin.terminate(); // in this host's toolkit, closing destroys the window
        QVERIFY(!window);
        QVERIFY(!plugin.getObject());
        plugin.update();
        QVERIFY(plugin.start(&host));
        QCOMPARE(host.findChildren<CWifiondivo*>().size(), 1);
    }

private:
    static void plugAdapter(bool plugged)
    {
        using namespace halmanager;
        CBus* const bus = CBoardSpec::GetInstance()->GetBus("UsbBus");
        CDevice* const device = dynamic_cast<CUsbBus*>(bus)->GetDevice("USB_WIFI");
        dynamic_cast<CUsbWifi*>(device)->SetPlugged(plugged);
    }
};

QTEST_MAIN(MainWindowTest)
#include "tst_mainwindow.moc"

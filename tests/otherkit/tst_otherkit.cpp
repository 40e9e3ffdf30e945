#include "2_4GraphCh.h"
#include "core/world.h"
#include "files.h"
#include "wifiondivoplugin.h"

#include <QtTest>

/// The analyser's own sources with another kit under them: only the binding is exchanged.
class OtherKitTest : public QObject {
    Q_OBJECT
private slots:
    void startsScansAndSaves()
    {
        static int messages;
        messages = 0;
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
            if (type != QtDebugMsg && ++messages != 0)
                std::fprintf(stderr, "%s\n", qPrintable(text));
        });
        QWidget host;
        wifiondivoPlugin plugin;
        QVERIFY(plugin.start(&host));
        const QPointer<QObject> window = plugin.getObject();
        CWidget* const analyser = host.findChild<wifiondivo::CWifiondivo*>();
        QVERIFY(window && analyser);

        world::reset("wifiscan: stat> CellNo=1, Address=a, ESSID=caf\xc3\xa9, Mode=Master, "
                     "Frequency=2.4, Channel=6, Quality=1/70, Signal=-67 dBm, Noise=-95 dBm, "
                     "EncKey=1, EncType=WPA1\nwifiscan: over\n");
        for (CPushButton* const button : host.findChildren<CPushButton*>()) {
            if (button->text() == "Scan")
                button->click();
        }
        QVERIFY(host.findChild<CPushButton*>(QString::number(CPushButton::StyleGray)));
        QVERIFY(world::finishScan());
        AccessPointList* const list = host.findChild<AccessPointList*>();
        QCOMPARE(list->m_items.size(), 1);
        const _APInfo& row = list->m_items.first().m_info;
        QCOMPARE(row._essid, QString("caf\u00e9"));
        QVERIFY(row._bssid == "a" && row._channel == 6 && row._signal == 43);
        QVERIFY(row._secMode == Security_WPA1 && row._statMsg.isEmpty());
        qRegisterMetaType<SecurityMode>("SecurityMode");
        QSignalSpy security(list->parentWidget(), SIGNAL(sigApEncType(SecurityMode)));
        emit list->currentAPBSSIDChanged("a");
        QCOMPARE(security.size(), 1);
        const auto view = host.findChild<wifiondivo::Wifiondivo_2_4GraphCH*>();
        QCOMPARE(view->findChild<CPageTable*>()->cell(0, 2), QString("46%"));

        QTest::keyClick(analyser, Qt::Key_F1);
        const QByteArray text = readFile(qEnvironmentVariable("TESTSET_DEVICE_ROOT")
            + "/home/fileman/k510/k510-rslt/wifiport/SSID-result/Save Test Result 5 100.html");
        QVERIFY(text.contains("OTHER-1") && !text.contains("MAC Address"));
        QVERIFY(text.contains("caf\xc3\xa9</td><td>WPA1"));

        plugin.terminate(); // this kit's window only hides and is used again
        QVERIFY(plugin.start(&host));
        QCOMPARE(plugin.getObject(), window.data());
        QCOMPARE(list->m_items.size(), 1);
        QCOMPARE(messages, 0);
    }
};

QTEST_MAIN(OtherKitTest)
#include "tst_otherkit.moc"

#include "../texttable.h"
#include "CBoardSpec.h"
#include "CUsbBus.h"
#include "CUsbWifi.h"
#include "include/wifiSSIDhelper.h"
#include "world.h"

#include <QtTest>

using namespace wifiondivo;

namespace {

const char GoodLine[] = "wifiscan: stat> CellNo=3, Address=00:11:22:33:44:55, ESSID=Office, "
                        "Mode=Master, Frequency=2.437 GHz, Channel=6, Quality=43/70, "
                        "Signal=-67 dBm, Noise=-95 dBm, EncKey=1, EncType=WPA2";

/// The good line with a part of it replaced.
QByteArray line(const QByteArray& part, const QByteArray& other)
{
    return QByteArray(GoodLine).replace(part, other);
}

/// A line as outputs.txt has it.
QByteArray lineOf(const QByteArray& text)
{
    const QByteArrayList words = text.split('/');
    if (words.first() == "stat")
        return GoodLine;
    if (words.first() == "s")
        return line(words.at(1), words.at(2));
    return text.startsWith("x*") ? QByteArray(text.mid(2).toInt(), 'x') : text;
}

/// The cell and the name of each entry.
QString entriesOf(const stEXT_WIFISCAN_result& table)
{
    QString entries;
    for (const ScanEntry& entry : table.ap)
        if (*entry.bssid)
            entries += QString(", %1 %2").arg(&entry - table.ap).arg(entry.essid);
    return entries;
}

} // namespace

class ScanEngineTest : public QObject {
    Q_OBJECT
private slots:
    void tellsTheOutputBySignals_data() { addTableOf(QFINDTESTDATA("outputs.txt")); }
    void tellsTheOutputBySignals()
    {
        QFETCH(QByteArray, input);
        WifiSSIDHelper worker;
        QStringList log;
        const auto note = [&](auto signal, const char* text) {
            connect(&worker, signal, [&log, text] { log << text; });
        };
        const auto noteTable = [&](auto signal, const char* text) {
            connect(&worker, signal, [&log, text](const stEXT_WIFISCAN_result& table) {
                log << text + entriesOf(table);
            });
        };
        note(&WifiSSIDHelper::sigWifiScanBegin, "begin");
        note(&WifiSSIDHelper::sigWifiScanError, "error");
        note(&WifiSSIDHelper::sigWifiSSIDScanEnd, "end");
        note(&WifiSSIDHelper::sigWifiSSIDScanNoResult, "none");
        noteTable(&WifiSSIDHelper::sigWifiSSID2_4GCHScanReply, "table 2.4");
        noteTable(&WifiSSIDHelper::sigWifiSSID_5GCHScanReply, "table 5");
        noteTable(&WifiSSIDHelper::sigWifiSSID2_4G_CHScanReply, "graph 2.4");
        noteTable(&WifiSSIDHelper::sigWifiSSID_5G_CHScanReply, "graph 5");
        connect(&worker, &WifiSSIDHelper::sigWifiSSIDScanReply,
            [&](const stK510_WIFISCAN_APDATA& ap) { log << QString("ap ") + ap.essid; });
        QByteArrayList lines;
        for (const QByteArray& text : input.chopped(1).split('\n'))
            lines << QByteArray::fromPercentEncoding(lineOf(text));
        world::reset(lines.join('\n'));
        QCOMPARE(worker.startWiFiScan(), 0); // in this thread
        static const QRegularExpression tables(
            "table 2\\.4(.*)\ntable 5\\1\ngraph 2\\.4\\1\ngraph 5\\1(?=\n|$)");
        QTEST(log.join('\n').replace(tables, "tables\\1").toUtf8(), "expected");
    }

    void fillsAnEmptyTable()
    {
        WifiSSIDHelper worker;
        stEXT_WIFISCAN_result table = {};
        connect(&worker, &WifiSSIDHelper::sigWifiSSID_5G_CHScanReply,
            [&](const stEXT_WIFISCAN_result& sent) { table = sent; });
        QByteArray noise = "unset";
        connect(&worker, &WifiSSIDHelper::sigWifiSSIDScanReply,
            [&](const stK510_WIFISCAN_APDATA& sent) { noise = sent.str_noise; });
        world::reset("wifiscan: fail\nwifiscan: NoResults\n" + line("CellNo=3", "CellNo=127") + '\n'
            + GoodLine + "\nwifiscan: over\n");
        worker.startWiFiScan();
        QCOMPARE(noise, QByteArray());
        QCOMPARE(table.cellno, 3); // of the line stored last, not the highest
        QCOMPARE((QList<int>{table.flag_valid, table.flag_pass, table.flag_fail, table.flag_abort}),
            (QList<int>{1, 1, 1, 1}));
        const ScanEntry& ap = table.ap[3];
        QCOMPARE((QByteArrayList{
                     ap.bssid, ap.essid, ap.quality, ap.signal, ap.frequency, ap.mode, ap.enctype}),
            (QByteArrayList{
                "00:11:22:33:44:55", "Office", "43/70", "-67 dBm", "2.437 GHz", "Master", "WPA2"}));
        QCOMPARE((QList<int>{ap.with_enc, ap.channel}), (QList<int>{1, 6}));

        world::reset(line("CellNo=3", "CellNo=2") + "\nwifiscan: over\n");
        worker.startWiFiScan();
        QCOMPARE(entriesOf(table), QString(", 2 Office"));
        QCOMPARE((QList<int>{table.flag_fail, table.flag_abort}), (QList<int>{0, 0}));
    }

    void asksTheBoardForTheAdapter()
    {
        using namespace halmanager;
        qputenv("WIFI_SCAN_REPLAY", "any"); // whatever adapter the machine has
        CBoardSpec::GetInstance()->Attach("UsbBus", nullptr);
        QVERIFY(!WifiSSIDHelper().isPlugged());
        struct CountingBus : CUsbBus {
            CDevice* GetDevice(const std::string& name) override
            {
                ++asked;
                return CUsbBus::GetDevice(name);
            }
            int asked = 0;
        };
        CountingBus* const bus = new CountingBus;
        CBoardSpec::GetInstance()->Attach("UsbBus", bus);
        QVERIFY(!WifiSSIDHelper().isPlugged());
        bus->Attach("USB_WIFI", new CDevice); // a device of another kind
        QVERIFY(!WifiSSIDHelper().isPlugged());
        CUsbWifi* const adapter = new CUsbWifi;
        for (int times = 0; times < 2; ++times)
            bus->Attach("USB_WIFI", adapter); // the second time it is the bus's own already
        bus->asked = 0;
        WifiSSIDHelper worker;
        QVERIFY(worker.isPlugged());
        adapter->SetPlugged(false); // it is asked each time
        QVERIFY(!worker.isPlugged());
        QCOMPARE(bus->asked, 1); // but looked up once
    }
};

QTEST_GUILESS_MAIN(ScanEngineTest)
#include "tst_scanengine.moc"

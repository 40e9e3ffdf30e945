#include "CBoardSpec.h"
#include "CUsbBus.h"
#include "CUsbWifi.h"
#include "wifiSSIDhelper.h"
#include "world.h"

#include <QtTest>

using namespace wifiondivo;

namespace {

const char GoodLine[] = "wifiscan: stat> CellNo=3, Address=00:11:22:33:44:55, ESSID=Office, "
                        "Mode=Master, Frequency=2.437 GHz, Channel=6, Quality=43/70, "
                        "Signal=-67 dBm, Noise=-95 dBm, EncKey=1, EncType=WPA2";

/// The good line with a part of it replaced.
QByteArray line(const char* from, const QByteArray& to)
{
    return QByteArray(GoodLine).replace(from, to);
}

/// Every signal of a scan that reads this output, in the order of emission.
QString signalsOf(const QByteArray& output)
{
    WifiSSIDHelper worker;
    QStringList log;
    const auto note = [&](auto signal, const char* text) {
        QObject::connect(&worker, signal, &worker, [&log, text] { log << text; });
    };
    note(&WifiSSIDHelper::sigWifiScanBegin, "begin");
    note(&WifiSSIDHelper::sigWifiScanError, "error");
    note(&WifiSSIDHelper::sigWifiSSIDScanEnd, "end");
    note(&WifiSSIDHelper::sigWifiSSIDScanNoResult, "none");
    note(&WifiSSIDHelper::sigWifiSSID2_4GCHScanReply, "table 2.4");
    note(&WifiSSIDHelper::sigWifiSSID_5GCHScanReply, "table 5");
    note(&WifiSSIDHelper::sigWifiSSID2_4G_CHScanReply, "graph 2.4");
    note(&WifiSSIDHelper::sigWifiSSID_5G_CHScanReply, "graph 5");
    QObject::connect(&worker, &WifiSSIDHelper::sigWifiSSIDScanReply, &worker,
        [&log](const stK510_WIFISCAN_APDATA& ap) { log << QString("ap ") + ap.essid; });
    world::reset(output);
    worker.startWiFiScan(); // in this thread
    return log.join(", ");
}

} // namespace

class ScanEngineTest : public QObject {
    Q_OBJECT
private slots:
    void acceptsAndRejects()
    {
        const QByteArray longest(255, 'w');
        const struct {
            const char* from; // of the good line
            QByteArray to;
            int cell; // 0: rejected
        } rows[] = {
            {"CellNo=3", "CellNo=1", 1},
            {"CellNo=3", "CellNo=127", 127},
            {"CellNo=3", "CellNo=0", 0},
            {"CellNo=3", "CellNo=128", 0},
            {"CellNo=3", "CellNo=4294967297", 0}, // 2^32 + 1
            {"CellNo=3", "CellNo=  +3", 3},
            {"CellNo=3", "CellNo=", 0},
            {"CellNo=3", " CellNo=3", 0},
            {", ", ",", 3},
            {", ", ", \t  ", 3},
            {"Channel=6,", "Channel=6 ,", 0},
            {"Office", "", 0},
            {"Office", "Of,fice", 0},
            {"WPA2", "WPA2 and more", 3},
            {"WPA2", "WPA2\r", 3},
            {"Office", longest, 3}, // a value of a whole line, and one longer than any line
            {"Office", longest + 'w', 0},
        };
        for (const auto& row : rows) {
            stIPC_WIFISCAN_result result;
            std::memset(&result, 0x5a, sizeof result);
            const stIPC_WIFISCAN_result before = result;
            const QByteArray text = line(row.from, row.to).mid(16);
            QVERIFY2(__read_result_from_scan_ondivo(text, &result) == (row.cell ? 0 : -1), text);
            if (row.cell)
                QCOMPARE(result.ap_number, row.cell);
            else
                QVERIFY(std::memcmp(&result, &before, sizeof result) == 0);
        }
    }

    void readsEveryPrefixInItsOwnBytes()
    {
        // Each in a block of exactly its size, so that the address sanitizer sees a byte too many.
        const QByteArray line = QByteArray(GoodLine).mid(16);
        const int firstLetter = line.indexOf("EncType=") + 8;
        for (int length = 0; length < line.size(); ++length) {
            const std::unique_ptr<char[]> prefix(new char[size_t(length) + 1]());
            std::memcpy(prefix.get(), line.constData(), size_t(length));
            stIPC_WIFISCAN_result result = {};
            QCOMPARE(__read_result_from_scan_ondivo(prefix.get(), &result),
                length > firstLetter ? 0 : -1);
        }
    }

    void cutsWideValues()
    {
        const auto wide = [](char letter, int size = 100) { return QByteArray(size, letter); };
        const QByteArray line = "CellNo=1, Address=" + wide('a') + ", ESSID=" + wide('e')
            + ", Mode=" + wide('m') + ", Frequency=" + wide('f')
            + ", Channel=99999999999, Quality=" + wide('q') + ", Signal=" + wide('s')
            + ", Noise=" + wide('n') + ", EncKey=-99999999999, EncType=" + wide('t');
        stIPC_WIFISCAN_result result = {};
        QCOMPARE(__read_result_from_scan_ondivo(line, &result), 0);
        QCOMPARE(result.ap_index, 1);
        const stK510_WIFISCAN_APDATA& ap = result.ap_data;
        QCOMPARE((QByteArrayList{ap.essid, ap.bssid, ap.mode, ap.frequency, ap.str_quality,
                     ap.str_signal, ap.str_noise, ap.enctype}),
            (QByteArrayList{wide('e', 31), wide('a', 31), wide('m', 7), wide('f', 31),
                wide('q', 31), wide('s', 31), wide('n', 31), wide('t', 4)}));
        QCOMPARE(ap.channel, 0x7fffffff);
        QCOMPARE(ap.with_enc, -0x7fffffff - 1);
    }

    void reportsTheOutputBySignals()
    {
        const QByteArray good = QByteArray(GoodLine) + '\n';
        const QString finished = ", end, table 2.4, table 5, graph 2.4, graph 5";
        const struct {
            QByteArray output;
            QString log; // behind "begin"
        } rows[] = {
            {"", ""},
            {"wifiscan: over\nwifiscan: overture\n", finished + finished},
            {good + "wifiscan: fail\n", ", ap Office, error"},
            {"wifiscan: timeout\n", ", error"},
            {"wifiscan: NoResults\n", ", none"},
            {"\nwifiscan:over\nWIFISCAN: over\nwifiscan: noresults\n" + line("> ", ">"), ""},
            {line("Channel=6", "Channel=0") + '\n', ""},
            {good + "wifiscan: stat> CellNo=4\n" + good, ", ap Office, ap Office"},
            // A line of 255 characters is left out, one of 256 ends the reading.
            {good + QByteArray(255, 'x') + "\nwifiscan: over", ", ap Office" + finished},
            {good + QByteArray(256, 'x') + "\nwifiscan: over\n", ", ap Office"},
            {QByteArray("wifiscan: ove\0r\n", 16) + GoodLine + "\r\n", ", ap Office"},
        };
        for (const auto& row : rows)
            QVERIFY2(signalsOf(row.output) == "begin" + row.log, row.output);
    }

    void fillsAnEmptyTable()
    {
        WifiSSIDHelper worker;
        stEXT_WIFISCAN_result table = {};
        connect(&worker, &WifiSSIDHelper::sigWifiSSID_5G_CHScanReply, this,
            [&](const stEXT_WIFISCAN_result& sent) { table = sent; });
        QByteArray noise = "unset";
        connect(&worker, &WifiSSIDHelper::sigWifiSSIDScanReply, this,
            [&](const stK510_WIFISCAN_APDATA& sent) { noise = sent.str_noise; });
        world::reset("wifiscan: fail\nwifiscan: NoResults\n" + line("CellNo=3", "CellNo=127") + '\n'
            + GoodLine + '\n' + line("Office", "new") + '\n' + line("CellNo=3", "CellNo=2")
            + "\nwifiscan: over\n");
        QCOMPARE(worker.startWiFiScan(), 0);
        QCOMPARE(table.cellno, 2); // of the line stored last, not the highest
        QCOMPARE((QList<int>{table.flag_valid, table.flag_pass, table.flag_fail, table.flag_abort}),
            (QList<int>{1, 1, 1, 1}));
        QCOMPARE(noise, QByteArray());
        QCOMPARE(table.ap[127].essid, "Office");
        const ScanEntry& ap = table.ap[3];
        QCOMPARE((QByteArrayList{
                     ap.bssid, ap.essid, ap.quality, ap.signal, ap.frequency, ap.mode, ap.enctype}),
            (QByteArrayList{
                "00:11:22:33:44:55", "new", "43/70", "-67 dBm", "2.437 GHz", "Master", "WPA2"}));
        QCOMPARE(ap.with_enc, 1);
        QCOMPARE(ap.channel, 6);
        QCOMPARE(table.ap[0].channel, 0);

        world::reset(line("CellNo=3", "CellNo=2") + "\nwifiscan: over\n");
        worker.startWiFiScan();
        QCOMPARE(table.ap[2].channel, 6);
        QCOMPARE(table.ap[3].channel, 0);
    }

    void asksTheBoardForTheAdapter()
    {
        using namespace halmanager;
        qputenv("WIFI_SCAN_REPLAY", "any"); // whatever adapter the machine has
        CBoardSpec::GetInstance()->Attach("UsbBus", nullptr);
        QVERIFY(!WifiSSIDHelper().isPlugged());
        CUsbBus* const bus = new CUsbBus;
        CBoardSpec::GetInstance()->Attach("UsbBus", bus);
        QVERIFY(!WifiSSIDHelper().isPlugged());
        bus->Attach("USB_WIFI", new CDevice); // a device of another kind
        QVERIFY(!WifiSSIDHelper().isPlugged());
        CUsbWifi* const adapter = new CUsbWifi;
        for (int times = 0; times < 2; ++times)
            bus->Attach("USB_WIFI", adapter); // the second time it is the bus's own already
        WifiSSIDHelper worker;
        QVERIFY(worker.isPlugged());
        adapter->SetPlugged(false); // it is asked each time
        QVERIFY(!worker.isPlugged());
    }
};

QTEST_GUILESS_MAIN(ScanEngineTest)
#include "tst_scanengine.moc"

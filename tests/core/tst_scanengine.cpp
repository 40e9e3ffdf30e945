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

/// The good line's fields with one of them replaced.
QByteArray fields(const char* from = "", const char* to = "")
{
    QByteArray line = QByteArray(GoodLine).mid(16);
    return *from ? line.replace(from, to) : line;
}

/// Writes down every signal of a worker in the order of emission.
void record(WifiSSIDHelper& worker, QStringList* log)
{
    const auto note = [&worker, log](auto signal, const char* text) {
        QObject::connect(&worker, signal, &worker, [log, text] { *log << text; });
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
        [log](const stK510_WIFISCAN_APDATA& ap) { *log << QString("ap %1").arg(ap.essid); });
}

} // namespace

class ScanEngineTest : public QObject {
    Q_OBJECT
private slots:
    void acceptsAndRejects_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<int>("cell"); // 0: rejected
        QTest::newRow("cell 1") << fields("CellNo=3", "CellNo=1") << 1;
        QTest::newRow("cell 127") << fields("CellNo=3", "CellNo=127") << 127;
        QTest::newRow("cell 0") << fields("CellNo=3", "CellNo=0") << 0;
        QTest::newRow("cell 128") << fields("CellNo=3", "CellNo=128") << 0;
        QTest::newRow("cell -1") << fields("CellNo=3", "CellNo=-1") << 0;
        QTest::newRow("cell 2^32 + 1") << fields("CellNo=3", "CellNo=4294967297") << 0;
        QTest::newRow("signed cell behind blanks") << fields("CellNo=3", "CellNo=  +3") << 3;
        QTest::newRow("no cell") << fields("CellNo=3", "CellNo=") << 0;
        QTest::newRow("blank before the fields") << " " + fields() << 0;
        QTest::newRow("no blanks behind commas") << fields(", ", ",") << 3;
        QTest::newRow("many blanks behind commas") << fields(", ", ", \t  ") << 3;
        QTest::newRow("blank before a comma") << fields("Channel=6,", "Channel=6 ,") << 0;
        QTest::newRow("empty ESSID") << fields("Office", "") << 0;
        QTest::newRow("comma in the ESSID") << fields("Office", "Of,fice") << 0;
        QTest::newRow("no EncType word") << fields("WPA2", "") << 0;
        QTest::newRow("text behind the EncType") << fields("WPA2", "WPA2 and more") << 3;
        QTest::newRow("carriage return") << fields("WPA2", "WPA2\r") << 3;
        QTest::newRow("cut short") << fields().left(fields().indexOf(", EncKey")) << 0;
        QTest::newRow("empty") << QByteArray() << 0;
        const QByteArray longest(255, 'w');
        QTest::newRow("value of a whole line") << fields("Office", longest) << 3;
        QTest::newRow("value longer than any line") << fields("Office", longest + 'w') << 0;
    }
    void acceptsAndRejects()
    {
        QFETCH(QByteArray, line);
        QFETCH(int, cell);
        stIPC_WIFISCAN_result result;
        std::memset(&result, 0x5a, sizeof result);
        const stIPC_WIFISCAN_result before = result;
        QCOMPARE(__read_result_from_scan_ondivo(line, &result), cell ? 0 : -1);
        if (cell)
            QCOMPARE(result.ap_number, cell);
        else
            QVERIFY(std::memcmp(&result, &before, sizeof result) == 0);
    }

    void readsEveryPrefixInItsOwnBytes()
    {
        // Each in a block of exactly its size, so that the address sanitizer sees a byte too many.
        const QByteArray line = fields();
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
        const auto wide = [](char letter) { return QByteArray(100, letter); };
        const QByteArray line = "CellNo=1, Address=" + wide('a') + ", ESSID=" + wide('e')
            + ", Mode=" + wide('m') + ", Frequency=" + wide('f')
            + ", Channel=99999999999, Quality=" + wide('q') + ", Signal=" + wide('s')
            + ", Noise=" + wide('n') + ", EncKey=-99999999999, EncType=" + wide('t');
        stIPC_WIFISCAN_result result = {};
        QCOMPARE(__read_result_from_scan_ondivo(line, &result), 0);
        QCOMPARE(result.ap_index, 1);
        const stK510_WIFISCAN_APDATA& ap = result.ap_data;
        QCOMPARE(QByteArray(ap.essid), wide('e').left(31));
        QCOMPARE(QByteArray(ap.bssid), wide('a').left(31));
        QCOMPARE(QByteArray(ap.mode), wide('m').left(7));
        QCOMPARE(QByteArray(ap.frequency), wide('f').left(31));
        QCOMPARE(QByteArray(ap.str_quality), wide('q').left(31));
        QCOMPARE(QByteArray(ap.str_signal), wide('s').left(31));
        QCOMPARE(QByteArray(ap.str_noise), wide('n').left(31));
        QCOMPARE(QByteArray(ap.enctype), wide('t').left(4));
        QCOMPARE(ap.channel, 0x7fffffff);
        QCOMPARE(ap.with_enc, -0x7fffffff - 1);
    }

    void reportsLinesBySignals_data()
    {
        QTest::addColumn<QByteArrayList>("lines");
        QTest::addColumn<QStringList>("log");
        const QStringList finished{"end", "table 2.4", "table 5", "graph 2.4", "graph 5"};
        const QByteArray good = GoodLine;
        const QByteArray noChannel = QByteArray(good).replace("Channel=6", "Channel=0");
        QTest::newRow("finished") << QByteArrayList{"wifiscan: over"} << finished;
        QTest::newRow("finished with a tail") << QByteArrayList{"wifiscan: overture"} << finished;
        QTest::newRow("finished twice")
            << QByteArrayList{"wifiscan: over", "wifiscan: over"} << finished + finished;
        QTest::newRow("failed") << QByteArrayList{good, "wifiscan: fail"}
                                << QStringList{"ap Office", "error"};
        QTest::newRow("timed out") << QByteArrayList{"wifiscan: timeout"} << QStringList{"error"};
        QTest::newRow("nothing found")
            << QByteArrayList{"wifiscan: NoResults"} << QStringList{"none"};
        QTest::newRow("other lines") << QByteArrayList{"", "wifiscan:over", "WIFISCAN: over",
            "wifiscan: noresults", "wifiscan: stat>CellNo=1"}
                                     << QStringList();
        QTest::newRow("channel 0 is not sent") << QByteArrayList{noChannel} << QStringList();
        QTest::newRow("one that cannot be parsed between others")
            << QByteArrayList{good, "wifiscan: stat> CellNo=4", good, "wifiscan: over"}
            << QStringList{"ap Office", "ap Office"} + finished;
    }
    void reportsLinesBySignals()
    {
        QFETCH(QByteArrayList, lines);
        QFETCH(QStringList, log);
        WifiSSIDHelper worker;
        QStringList seen;
        record(worker, &seen);
        for (const QByteArray& line : lines)
            QCOMPARE(worker.scanstep_scan_ondivo(line), 0);
        QCOMPARE(seen, log);
    }

    void keepsTheTable()
    {
        WifiSSIDHelper worker;
        stEXT_WIFISCAN_result table = {};
        connect(&worker, &WifiSSIDHelper::sigWifiSSID_5G_CHScanReply, this,
            [&table](const stEXT_WIFISCAN_result& sent) { table = sent; });
        const auto cell = [](const char* number, const char* essid) {
            return QByteArray(GoodLine).replace("CellNo=3", number).replace("Office", essid);
        };
        QByteArray noise = "unset";
        connect(&worker, &WifiSSIDHelper::sigWifiSSIDScanReply, this,
            [&noise](const stK510_WIFISCAN_APDATA& sent) { noise = sent.str_noise; });
        for (const QByteArray& line :
            {QByteArray("wifiscan: fail"), QByteArray("wifiscan: NoResults"),
                cell("CellNo=127", "first"), cell("CellNo=3", "old"), cell("CellNo=3", "new"),
                cell("CellNo=2", "last"), QByteArray("wifiscan: over")})
            worker.scanstep_scan_ondivo(line);
        QCOMPARE(table.cellno, 2); // of the line stored last, not the highest
        QCOMPARE(table.flag_valid, 1);
        QCOMPARE(table.flag_pass, 1);
        QCOMPARE(table.flag_fail, 1);
        QCOMPARE(table.flag_abort, 1);
        QCOMPARE(noise, QByteArray());
        QCOMPARE(table.ap[127].essid, "first");
        QCOMPARE(table.ap[3].essid, "new");
        QCOMPARE(table.ap[3].quality, "43/70");
        QCOMPARE(table.ap[3].signal, "-67 dBm");
        QCOMPARE(table.ap[3].frequency, "2.437 GHz");
        QCOMPARE(table.ap[3].mode, "Master");
        QCOMPARE(table.ap[3].enctype, "WPA2");
        QCOMPARE(table.ap[3].with_enc, 1);
        QCOMPARE(table.ap[3].channel, 6);
        QCOMPARE(table.ap[0].channel, 0);
    }

    void readsTheOutputFile_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QStringList>("log");
        const QByteArray good = QByteArray(GoodLine) + "\n";
        const QStringList finished{"end", "table 2.4", "table 5", "graph 2.4", "graph 5"};
        QTest::newRow("line of 255 characters, no line feed at the end")
            << good + QByteArray(255, 'x') + "\nwifiscan: over"
            << QStringList{"begin", "ap Office"} + finished;
        QTest::newRow("line of 256 characters ends the reading") << good + QByteArray(256, 'x')
                + "\nwifiscan: over\n" << QStringList{"begin", "ap Office"};
        QTest::newRow("no closing line, zero bytes, carriage returns")
            << QByteArray("wifiscan: ove\0r\n", 16) + GoodLine + "\r\n"
            << QStringList{"begin", "ap Office"};
        QTest::newRow("no output") << QByteArray() << QStringList{"begin"};
    }
    void readsTheOutputFile()
    {
        QFETCH(QByteArray, output);
        world::reset(output);
        WifiSSIDHelper worker;
        QStringList seen;
        record(worker, &seen);
        QCOMPARE(worker.startWiFiScan(), 0); // in this thread
        QTEST(seen, "log");
    }

    void beginsWithAnEmptyTable()
    {
        WifiSSIDHelper worker;
        QList<stEXT_WIFISCAN_result> tables;
        connect(&worker, &WifiSSIDHelper::sigWifiSSID2_4GCHScanReply, this,
            [&tables](const stEXT_WIFISCAN_result& sent) { tables << sent; });
        for (const char* cell : {"CellNo=3", "CellNo=2"}) {
            world::reset(QByteArray(GoodLine).replace("CellNo=3", cell) + "\nwifiscan: over\n");
            worker.startWiFiScan();
        }
        QCOMPARE(tables.size(), 2);
        QCOMPARE(tables.at(0).ap[3].channel, 6);
        QCOMPARE(tables.at(1).ap[2].channel, 6);
        QCOMPARE(tables.at(1).ap[3].channel, 0);
    }

    void asksTheBoardForTheAdapter()
    {
        using namespace halmanager;
        CUsbBus* const emptyBus = new CUsbBus;
        CBoardSpec::GetInstance()->Attach("UsbBus", emptyBus);
        QVERIFY(!WifiSSIDHelper().isPlugged());
        emptyBus->Attach("USB_WIFI", new CDevice); // a device of another kind
        QVERIFY(!WifiSSIDHelper().isPlugged());
        CBoardSpec::GetInstance()->Attach("UsbBus", nullptr);
        QVERIFY(!WifiSSIDHelper().isPlugged());
        CUsbBus* const bus = new CUsbBus;
        struct Adapter : CUsbWifi {
            bool IsPlugged() const override { return isPlugged; }
            bool isPlugged = false;
        };
        Adapter* const adapter = new Adapter;
        bus->Attach("USB_WIFI", adapter);
        CBoardSpec::GetInstance()->Attach("UsbBus", bus);
        WifiSSIDHelper worker;
        QVERIFY(!worker.isPlugged());
        adapter->isPlugged = true; // it is asked each time
        QVERIFY(worker.isPlugged());
    }
};

QTEST_GUILESS_MAIN(ScanEngineTest)
#include "tst_scanengine.moc"

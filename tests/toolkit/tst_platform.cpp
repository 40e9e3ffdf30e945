// The stand-in hardware library and update helper: what is found, read and owned.

#include "CBoardSpec.h"
#include "CNetUpdateHelper.h"
#include "CUsbBus.h"
#include "CUsbWifi.h"
#include "PlatE2PromServ.h"

#include <QtTest>

using namespace halmanager;

namespace {

class CountedDevice : public CDevice {
public:
    explicit CountedDevice(int& count)
        : m_count(++count)
    {
    }
    ~CountedDevice() override { --m_count; }

private:
    int& m_count;
};

} // namespace

class PlatformTest : public QObject {
    Q_OBJECT

private slots:
    void boardHasOneAdapter()
    {
        CBoardSpec* const board = CBoardSpec::GetInstance();
        QVERIFY(!board->GetBus("USB_WIFI"));
        CUsbBus* const bus = dynamic_cast<CUsbBus*>(board->GetBus("UsbBus"));
        QVERIFY(bus);
        QVERIFY(!bus->GetDevice("UsbBus"));
        CUsbWifi* const adapter = dynamic_cast<CUsbWifi*>(bus->GetDevice("USB_WIFI"));
        QVERIFY(adapter);

        qputenv("WIFI_SCAN_REPLAY", "");
        const bool isThere = adapter->IsPlugged(); // as the machine has one or not
        adapter->SetPlugged(!isThere);
        QCOMPARE(adapter->IsPlugged(), isThere);
        qputenv("WIFI_SCAN_REPLAY", "any.scan");
        for (const bool plugged : {false, true}) {
            adapter->SetPlugged(plugged);
            QCOMPARE(adapter->IsPlugged(), plugged);
        }
        QVERIFY(CUsbWifi().IsPlugged());
        qunsetenv("WIFI_SCAN_REPLAY");
    }

    void busOwnsItsDevices()
    {
        int count = 0;
        CUsbBus* const bus = new CUsbBus;
        CDevice* const first = new CountedDevice(count);
        bus->Attach("a", first);
        bus->Attach("b", new CountedDevice(count));
        bus->Attach("a", first); // is its own already
        QCOMPARE(count, 2);
        QCOMPARE(bus->GetDevice("a"), first);
        CDevice* const second = new CountedDevice(count);
        bus->Attach("a", second);
        QCOMPARE(count, 2);
        QCOMPARE(bus->GetDevice("a"), second);
        bus->Attach("b", nullptr);
        QCOMPARE(count, 1);
        QVERIFY(!bus->GetDevice("b"));
        CBoardSpec::GetInstance()->Attach("another", bus);
        QCOMPARE(CBoardSpec::GetInstance()->GetBus("another"), bus);
        CBoardSpec::GetInstance()->Attach("another", nullptr);
        QCOMPARE(count, 0);
    }

    void identity_data()
    {
        QTest::addColumn<QByteArray>("image");
        QTest::addColumn<QByteArray>("mac"); // empty when there is none, as the serial number
        QTest::addColumn<QByteArray>("serial");
        const auto row = [](const char* name, QByteArray image, const char* mac,
                             QByteArray serial) {
            QTest::newRow(name) << image << QByteArray::fromHex(mac) << serial;
        };
        const QByteArray longest = "1234567890123456789012345678901"; // 31 characters
        row("both", "mac=00:11:22:33:44:f5\nsn=SN 1\n", "0011223344f5", "SN 1");
        row("any order", "sn=2\n\nother=3\nmac=FF:EE:DD:CC:BB:AA", "ffeeddccbbaa", "2");
        row("first of its kind", "sn=1\nsn=2\n", "", "1");
        row("empty fields", "mac=\nsn=\n", "", "");
        row("longer keys", "xmac=00:11:22:33:44:55\nxsn=1\nsns=1\n", "", "");
        row("zero address", "mac=00:00:00:00:00:00\nsn=1\n", "", "1");
        row("short address", "mac=00:11:22:33:44\n", "", "");
        row("long address", "mac=00:11:22:33:44:55:66\n", "", "");
        row("32 characters", "sn=" + longest + '2', "", longest);
    }
    void identity()
    {
        QFETCH(const QByteArray, image);
        QFETCH(const QByteArray, mac);
        QFETCH(const QByteArray, serial);
        QTemporaryFile file;
        QVERIFY(file.open() && file.write(image) == image.size() && file.flush());
        qputenv("TESTSET_EEPROM", file.fileName().toLocal8Bit());
        const QByteArray untouched(40, '#');
        QByteArray read = untouched;
        PlatE2PromServ eeprom;
        QCOMPARE(eeprom.ReadMacAddr(read.data()), mac.isEmpty() ? -1 : 0);
        QCOMPARE(read, mac + untouched.mid(mac.size()));
        read = untouched;
        QCOMPARE(eeprom.ReadSN(read.data()), serial.isEmpty() ? -1 : 0);
        const QByteArray terminated = serial.isEmpty() ? serial : serial + '\0';
        QCOMPARE(read, terminated + untouched.mid(terminated.size()));
        qunsetenv("TESTSET_EEPROM");
    }

    void identityOfTheMachine()
    {
        qputenv("TESTSET_EEPROM", "");
        PlatE2PromServ eeprom;
        QByteArray mac(6, '\0');
        char serial[32] = "";
        const int isMissing = eeprom.ReadMacAddr(mac.data());
        QCOMPARE(eeprom.ReadSN(serial), isMissing); // both come from the wired interface
        const QByteArray expected = "DESK-" + mac.mid(3).toHex().toUpper();
        QCOMPARE(QByteArray(serial), isMissing ? QByteArray() : expected);
    }

    void version_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<int>("size");
        QTest::addColumn<QByteArray>("version"); // null when there is none
        const auto row = [](const char* name, const char* file, int size, const char* version) {
            QTest::newRow(name) << QByteArray(file) << size << QByteArray(version);
        };
        row("among others", "Vendor=x\nVERSION=1.2.3\nDate=y\n", 16, "1.2.3");
        row("outer blanks", "version=\t 1 2 \r\n", 16, "1 2");
        row("first of two", "version=1\nversion=2\n", 16, "1");
        row("longer keys", "versions=1\nmy version=1\n", 16, nullptr);
        row("no line", "", 16, nullptr);
        row("fills the buffer", "version=1.2.3", 6, "1.2.3");
        row("cut", "version=1.2.3", 5, "1.2.");
        row("room for nothing", "version=1.2.3", 1, "");
    }
    void version()
    {
        QFETCH(const QByteArray, file);
        QFETCH(const int, size);
        QFETCH(const QByteArray, version);
        QTemporaryFile info;
        QVERIFY(info.open() && info.write(file) == file.size() && info.flush());
        QByteArray buffer(20, '#');
        swupdate::CNetUpdateHelper helper;
        const QByteArray path = info.fileName().toLocal8Bit();
        const auto room = static_cast<unsigned int>(size);
        QCOMPARE(
            helper.GetVersion2(path.constData(), buffer.data(), room), version.isNull() ? -1 : 0);
        QCOMPARE(buffer, version + '\0' + QByteArray(19 - version.size(), '#'));
    }
    void versionOfNoFile()
    {
        char buffer[] = "##";
        swupdate::CNetUpdateHelper helper;
        QCOMPARE(helper.GetVersion2("/nonexistent/file", buffer, 0), -1);
        QCOMPARE(buffer[0], '#');
        QCOMPARE(helper.GetVersion2("/nonexistent/file", buffer, 1), -1);
        QCOMPARE(QByteArray(buffer, 2), QByteArray("\0#", 2));
    }
};

QTEST_GUILESS_MAIN(PlatformTest)
#include "tst_platform.moc"

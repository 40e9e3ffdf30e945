// The stand-in hardware library and update helper: what is found, read and owned.

#include "CBoardSpec.h"
#include "CNetUpdateHelper.h"
#include "CUsbBus.h"
#include "CUsbWifi.h"
#include "PlatE2PromServ.h"

#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace halmanager;

namespace {

struct CountedDevice : CDevice {
    CountedDevice() { ++count; }
    ~CountedDevice() override { --count; }
    static inline int count = 0;
};

/// A file that holds `text` as long as this lives.
struct WrittenFile {
    explicit WrittenFile(const QByteArray& text)
    {
        if (file.open() && file.write(text) == text.size() && file.flush())
            path = file.fileName().toLocal8Bit();
    }
    QTemporaryFile file;
    QByteArray path; ///< empty when it could not be written
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
        CUsbBus* const bus = new CUsbBus;
        CBoardSpec::GetInstance()->Attach("another", bus);
        CDevice* const first = new CountedDevice;
        CDevice* const second = new CountedDevice;
        bus->Attach("a", first);
        bus->Attach("b", new CountedDevice);
        bus->Attach("a", first); // is its own already
        QCOMPARE(CountedDevice::count, 3);
        bus->Attach("a", second);
        bus->Attach("b", nullptr);
        QCOMPARE(CountedDevice::count, 1);
        QCOMPARE(bus->GetDevice("a"), second);
        QVERIFY(!bus->GetDevice("b"));
        CBoardSpec::GetInstance()->Attach("another", nullptr);
        QCOMPARE(CountedDevice::count, 0);
    }

    void identity()
    {
        // Both answers and what the buffers hold then: the address in hexadecimal digits, the
        // serial number with a "|" where it ends; 23 is an untouched byte.
        const auto read = [](const QByteArray& image) {
            const WrittenFile file(image);
            qputenv("TESTSET_EEPROM", file.path);
            QByteArray mac(7, '#');
            QByteArray serial(40, '#');
            PlatE2PromServ eeprom;
            const int macAnswer = eeprom.ReadMacAddr(mac.data());
            const int serialAnswer = eeprom.ReadSN(serial.data());
            qunsetenv("TESTSET_EEPROM");
            serial.replace('#', "").replace('\0', '|');
            return QString("%1 ").arg(macAnswer) + mac.toHex() + QString(" %1 ").arg(serialAnswer)
                + serial;
        };
        const QString none = "-1 23232323232323 ";
        const QByteArray longest = "1234567890123456789012345678901"; // 31 characters
        QCOMPARE(read("mac=00:11:22:33:44:f5\nsn=SN 1\n"), QString("0 0011223344f523 0 SN 1|"));
        QCOMPARE(read("sn=2\n\nx=3\nmac=FF:EE:DD:CC:BB:AA"), QString("0 ffeeddccbbaa23 0 2|"));
        QCOMPARE(read("sn=1\nsn=2\n"), none + "0 1|");
        QCOMPARE(read("mac=\nsn=\n"), none + "-1 ");
        QCOMPARE(read("xmac=00:11:22:33:44:55\nxsn=1\nsns=1\n"), none + "-1 ");
        QCOMPARE(read("mac=00:00:00:00:00:00\nsn=1\n"), none + "0 1|");
        QCOMPARE(read("mac=00:11:22:33:44\n"), none + "-1 ");
        QCOMPARE(read("mac=00:11:22:33:44:55:66\n"), none + "-1 ");
        QCOMPARE(read("sn=" + longest + '2'), none + "0 " + longest + '|');
    }

    void version()
    {
        // What is answered and what the buffer holds then; a "|" ends the text, a "#" is untouched.
        const auto read = [](const QByteArray& text, unsigned int size) {
            const WrittenFile file(text);
            QByteArray buffer(8, '#');
            const int answer = swupdate::CNetUpdateHelper().GetVersion2(
                file.path.constData(), buffer.data(), size);
            return QString("%1 ").arg(answer) + buffer.replace('\0', '|');
        };
        QCOMPARE(read("Vendor=x\nVERSION=1.2.3\nDate=y\n", 8), QString("0 1.2.3|##"));
        QCOMPARE(read("version=\t 1 2 \r\n", 8), QString("0 1 2|####"));
        QCOMPARE(read("version=1\nversion=2\n", 8), QString("0 1|######"));
        QCOMPARE(read("versions=1\nmy version=1\n", 8), QString("-1 |#######"));
        QCOMPARE(read("version=1.2.3", 6), QString("0 1.2.3|##")); // fits
        QCOMPARE(read("version=1.2.3", 5), QString("0 1.2.|###"));
        QCOMPARE(read("version=1.2.3", 1), QString("0 |#######"));
        QCOMPARE(read("version=1.2.3", 0), QString("-1 ########"));
    }

    void readsSmallRegularFilesOnly()
    {
        const QByteArray text = "version=1\nsn=1\n";
        const WrittenFile largest(text + QByteArray(65536 - text.size(), 'x'));
        const WrittenFile larger(text + QByteArray(65537 - text.size(), 'x'));
        const QTemporaryDir folder;
        const QByteArray pipe = folder.filePath("pipe").toLocal8Bit();
        QCOMPARE(mkfifo(pipe, 0600), 0);
        const int writer = open(pipe, O_RDWR); // whoever reads is not kept waiting
        const auto read = [&](const QByteArray& path) {
            char version[8] = "";
            char serial[40] = "";
            qputenv("TESTSET_EEPROM", path);
            const bool isFilled = write(writer, text, size_t(text.size())) == text.size();
            const int versionAnswer =
                swupdate::CNetUpdateHelper().GetVersion2(path, version, sizeof version);
            const int serialAnswer = isFilled ? PlatE2PromServ().ReadSN(serial) : 99;
            qunsetenv("TESTSET_EEPROM");
            return QString("%1%2 %3%4")
                .arg(versionAnswer)
                .arg(version)
                .arg(serialAnswer)
                .arg(serial);
        };
        QCOMPARE(read(largest.path), QString("01 01"));
        QCOMPARE(read(larger.path), QString("-1 -1"));
        QCOMPARE(read(pipe), QString("-1 -1"));
        close(writer);
    }
};

QTEST_GUILESS_MAIN(PlatformTest)
#include "tst_platform.moc"

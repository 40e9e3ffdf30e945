// The stand-in hardware library and update helper: look-ups and files.

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

/// A file that holds `text` as long as this lives.
struct WrittenFile : QTemporaryFile {
    explicit WrittenFile(const QByteArray& text)
    {
        if (open() && write(text) == text.size() && flush())
            path = fileName().toLocal8Bit();
    }
    QByteArray path; ///< empty when it could not be written
};

/// Both answers and the buffers afterwards: the address in hexadecimal digits, the serial
/// number with a "|" where it ends; 23 is an untouched byte.
QByteArray identityIn(const QByteArray& path)
{
    qputenv("TESTSET_EEPROM", path);
    QByteArray mac(7, '#');
    QByteArray serial(40, '#');
    const QByteArray answer = QByteArray::number(PlatE2PromServ().ReadMacAddr(mac.data()));
    const QByteArray serialAnswer = QByteArray::number(PlatE2PromServ().ReadSN(serial.data()));
    qunsetenv("TESTSET_EEPROM");
    serial.replace('#', "").replace('\0', '|');
    return answer + ' ' + mac.toHex() + ' ' + serialAnswer + ' ' + serial;
}

/// The answer and the buffer of six bytes afterwards; a "|" ends the text, a "#" is untouched.
QByteArray versionIn(const QByteArray& path)
{
    QByteArray buffer(8, '#');
    const int answer = swupdate::CNetUpdateHelper().GetVersion2(path, buffer.data(), 6);
    return QByteArray::number(answer) + ' ' + buffer.replace('\0', '|');
}

} // namespace

class PlatformTest : public QObject {
    Q_OBJECT

private slots:
    void boardHasOneAdapter()
    {
        QVERIFY(!CBoardSpec::GetInstance()->GetBus("USB_WIFI"));
        CBus* const bus = CBoardSpec::GetInstance()->GetBus("UsbBus");
        CDevice* const device = dynamic_cast<CUsbBus*>(bus)->GetDevice("USB_WIFI");
        CUsbWifi* const adapter = dynamic_cast<CUsbWifi*>(device);
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
        qunsetenv("WIFI_SCAN_REPLAY");
    }

    void identity()
    {
        const QByteArray none = "-1 23232323232323 ";
        const QByteArray longest = "1234567890123456789012345678901"; // 31 characters
        const QByteArray rows[][2] = {
            {"mac=00:11:22:33:44:f5\nsn=SN 1\nsn=2\n", "0 0011223344f523 0 SN 1|"},
            {"x=3\n\nmac=FF:EE:DD:CC:BB:AA", "0 ffeeddccbbaa23 -1 "},
            {"mac=\nxsn=1\nsns=1\nsn=\n", none + "-1 "},
            {"xmac=00:11:22:33:44:55\nmac=00:00:00:00:00:00\n", none + "-1 "},
            {"mac=00:11:22:33:44:55:66\nsn=" + longest + '2', none + "0 " + longest + '|'},
        };
        for (const auto& row : rows)
            QCOMPARE(identityIn(WrittenFile(row[0]).path), row[1]);
    }

    void version()
    {
        const QByteArray rows[][2] = {{"Vendor=x\nVERSION=\t1 2 \r\nversion=3\n", "0 1 2|####"},
            {"versions=1\nmy version=1\n", "-1 |#######"}, {"version=1.2.3.4", "0 1.2.3|##"}};
        for (const auto& row : rows)
            QCOMPARE(versionIn(WrittenFile(row[0]).path), row[1]);
    }

    void readsSmallRegularFilesOnly()
    {
        const QByteArray text = "version=1\nsn=1\n";
        const QByteArray filled = text + QByteArray(65536 - text.size(), 'x');
        QTemporaryDir folder;
        const QByteArray pipe = folder.filePath("pipe").toLocal8Bit();
        QCOMPARE(mkfifo(pipe, 0600), 0);
        const int writer = open(pipe, O_RDWR); // whoever reads is not kept waiting
        QCOMPARE(write(writer, text.constData(), std::size_t(text.size())), ssize_t(text.size()));
        const WrittenFile largest(filled);
        const WrittenFile larger(filled + 'x');
        QCOMPARE(versionIn(largest.path) + identityIn(largest.path).right(5),
            QByteArray("0 1|###### 0 1|"));
        for (const QByteArray& path : {larger.path, pipe})
            QCOMPARE(
                versionIn(path) + identityIn(path), QByteArray("-1 |#######-1 23232323232323 -1 "));
        close(writer);
    }
};

QTEST_GUILESS_MAIN(PlatformTest)
#include "tst_platform.moc"

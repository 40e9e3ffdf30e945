#include "core/lineparser.h"
#include "writer.h"

#include <QtTest>

#include <random>

using namespace wifiscan;

namespace {

constexpr const char* LineBegin = "wifiscan: stat> ";

std::mt19937 engine{20231};

// The engine's numbers are fixed by the language, those of the library's distributions are not.
int below(unsigned count)
{
    return static_cast<int>(engine() % count);
}

// Letters, what is replaced, and the bytes of characters of one to four bytes.
std::string randomName()
{
    static constexpr char Bytes[] = "ab  ,,\\\\x2c\r\n%n\xc3\xa9\xe2\x98\x95\xf0\x9f\x93\xb6\xff";
    std::string name;
    for (int size = below(33); size > 0; --size)
        name += Bytes[below(sizeof Bytes)]; // the closing zero too
    return name;
}

AccessPoint randomAccessPoint()
{
    static constexpr int Frequencies[] = {2412, 2472, 2484, 5150, 5180, 5500, 5825, 5920};
    AccessPoint accessPoint;
    for (std::uint8_t& byte : accessPoint.address)
        byte = static_cast<std::uint8_t>(below(256));
    accessPoint.name = randomName();
    accessPoint.adHoc = below(4) == 0;
    accessPoint.frequencyMhz = Frequencies[below(8)];
    const int level = static_cast<int>(engine());
    const Signal levels[] = {{}, {Signal::Unit::Mbm, level}, {Signal::Unit::Percent, below(101)}};
    accessPoint.signal = levels[below(3)];
    accessPoint.security = static_cast<Security>(below(4));
    if (below(2) == 0)
        accessPoint.noiseDbm = -1 - below(128);
    return accessPoint;
}

} // namespace

/// What the tool writes, the plug-in reads: for every access point that there can be.
class RoundTripTest : public QObject {
    Q_OBJECT

private slots:
    void randomAccessPoints();
};

void RoundTripTest::randomAccessPoints()
{
    static constexpr const char* Methods[] = {"NONE", "WEP", "WPA1", "WPA2"};
    for (int i = 0; i < 20000; ++i) {
        const AccessPoint accessPoint = randomAccessPoint();
        const int cellNumber = i % MostCells + 1;
        const QByteArray line = QByteArray::fromStdString(accessPointLine(cellNumber, accessPoint));
        QVERIFY2(line.size() < 256 && !line.contains('\n') && !line.contains('\r')
                && !line.contains('\0') && line.startsWith(LineBegin),
            line);

        wifiondivo::stIPC_WIFISCAN_result record = {};
        const char* const fields = line.constData() + std::strlen(LineBegin);
        QCOMPARE(wifiondivo::__read_result_from_scan_ondivo(fields, &record), 0);
        QCOMPARE(record.ap_number, cellNumber);
        const wifiondivo::stK510_WIFISCAN_APDATA& read = record.ap_data;
        QCOMPARE(read.channel, channelOf(accessPoint.frequencyMhz));
        QCOMPARE(read.with_enc != 0, accessPoint.security != Security::Open);
        const QByteArray address(reinterpret_cast<const char*>(accessPoint.address.data()), 6);
        const QByteArray noise = QByteArray::number(accessPoint.noiseDbm.value_or(0)) + " dBm";
        const QByteArrayList expected = {address.toHex(':'),
            accessPoint.adHoc ? "Ad-Hoc" : "Master", Methods[int(accessPoint.security)],
            accessPoint.noiseDbm ? noise : "unknown",
            QByteArray::fromStdString(shownName(accessPoint.name)).left(31)};
        QCOMPARE((QByteArrayList{read.bssid, read.mode, read.enctype, read.str_noise, read.essid}),
            expected);
        QCOMPARE(QString(read.essid).toUtf8(), expected.last()); // valid UTF-8

        // A level has its sign and its unit, a ratio is of 100.
        const QByteArray ratio = QByteArray::number(accessPoint.signal.value) + "/100";
        const bool level = accessPoint.signal.unit == Signal::Unit::Mbm;
        const QByteArray signal(read.str_signal);
        QVERIFY2(level ? signal[0] == '-' && signal.endsWith(" dBm") : signal == ratio, line);
    }
}

QTEST_APPLESS_MAIN(RoundTripTest)
#include "tst_roundtrip.moc"

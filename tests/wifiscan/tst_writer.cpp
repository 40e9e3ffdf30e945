#include "anonymous.h"
#include "core/lineparser.h"
#include "json.h"
#include "tables.h"

#include <random>

using namespace wifiscan;

namespace {

constexpr Signal::Unit Mbm = Signal::Unit::Mbm;
constexpr Signal::Unit Percent = Signal::Unit::Percent;

AccessPoint heardOn(int frequency, const Signal& signal, const std::string& name, int number)
{
    const Address address = {0x02, 0, 0, 0, 0, static_cast<std::uint8_t>(number)};
    return {address, name, false, frequency, signal, Security::Open, {}, {}};
}

// What the plug-in's parser reads in the line of an access point, in its fields' order.
QByteArray readBack(const AccessPoint& accessPoint)
{
    const QByteArray line = QByteArray::fromStdString(accessPointLine(12, accessPoint));
    wifiondivo::stIPC_WIFISCAN_result record = {};
    const char* const fields = line.constData() + std::strlen("wifiscan: stat> ");
    if (line.size() > 255 || wifiondivo::__read_result_from_scan_ondivo(fields, &record) != 0)
        return "(not read) " + line;
    const wifiondivo::stK510_WIFISCAN_APDATA& read = record.ap_data;
    const auto number = [](int value) { return QByteArray::number(value); };
    return QByteArrayList{number(record.ap_number), read.bssid, read.essid, read.mode,
        read.frequency, number(read.channel), read.str_quality, read.str_signal, read.str_noise,
        number(read.with_enc), read.enctype}
        .join('|');
}

} // namespace

class WriterTest : public QObject {
    Q_OBJECT

private slots:
    void names_data();
    void names();
    void randomNames();
    void lines();
    void channels();
    void levels();
    void reports();
    void json();
    void anonymous();
};

void WriterTest::names_data()
{
    addColumns();
    addRowsOf(QFINDTESTDATA("names.txt"));
}

void WriterTest::names()
{
    QFETCH(QByteArray, input);
    QFETCH(QByteArray, expected);
    const QByteArray name = QByteArray::fromPercentEncoding(input.trimmed());
    QCOMPARE(QByteArray::fromStdString(shownName(name.toStdString())),
        QByteArray::fromPercentEncoding(expected));
}

// Names of the bytes of characters of one to four bytes, and of what is replaced: read back they
// are what was written, up to the 31 bytes that there is room for, and a text.
void WriterTest::randomNames()
{
    static constexpr char Bytes[] = "ab  ,,\\\\x2c\r\n%n\xc3\xa9\xe2\x98\x95\xf0\x9f\x93\xb6\xff";
    std::mt19937 engine{20231};
    for (int i = 0; i < 5000; ++i) {
        std::string name(engine() % (LongestName + 1), 'a');
        for (char& byte : name)
            byte = Bytes[engine() % sizeof Bytes]; // the closing zero too
        const QByteArray read = readBack(heardOn(2412, {}, name, 1)).split('|').value(2);
        QCOMPARE(read, QByteArray::fromStdString(shownName(name)).left(31));
        QCOMPARE(QString::fromUtf8(read).toUtf8(), read);
    }
}

void WriterTest::lines()
{
    AccessPoint full = heardOn(5180, {Percent, 60}, "", 0xa1); // 60 % of 70 is 42
    full.adHoc = true;
    full.noiseDbm = -95;
    full.security = Security::Wpa2;
    QCOMPARE(readBack(full),
        QByteArray(
            "12|02:00:00:00:00:a1|(hidden)|Ad-Hoc|5.180 GHz|36|42/70|60/100|-95 dBm|1|WPA2"));
    AccessPoint plain = heardOn(2412, {Mbm, -6700}, "Cafe", 0xa1);
    QCOMPARE(readBack(plain),
        QByteArray("12|02:00:00:00:00:a1|Cafe|Master|2.412 GHz|1|43/70|-67 dBm|unknown|0|NONE"));
    plain.security = Security::Wep;
    QVERIFY(readBack(plain).endsWith("|1|WEP"));
    plain.security = Security::Wpa1;
    QVERIFY(readBack(plain).endsWith("|1|WPA1"));
}

void WriterTest::channels()
{
    // 4910 is 182 in Japan, below 5 GHz; 5955 is channel 1 of 6 GHz.
    const std::pair<int, int> channels[] = {{0, 0}, {-5, 0}, {2407, 0}, {2412, 1}, {2413, 0},
        {2472, 13}, {2477, 0}, {2484, 14}, {4910, 0}, {5145, 0}, {5150, 30}, {5180, 36}, {5181, 0},
        {5825, 165}, {5920, 184}, {5925, 0}, {5955, 0}};
    for (const auto& expected : channels)
        QCOMPARE(std::make_pair(expected.first, channelOf(expected.first)), expected);
    // Of 6 GHz, channel 2 is off the grid.
    const std::pair<int, int> others[] = {{5180, 0}, {5935, 2}, {5945, 0}, {5950, 0}, {5955, 1},
        {5956, 0}, {6115, 33}, {7115, 233}, {7120, 0}};
    for (const auto& expected : others)
        QCOMPARE(std::make_pair(expected.first, channelOf6Ghz(expected.first)), expected);
}

void WriterTest::levels()
{
    const std::pair<Signal, const char*> levels[] = {{{Mbm, -6749}, "|43/70|-67 dBm|"},
        {{Mbm, -6750}, "|42/70|-68 dBm|"}, {{Mbm, -11100}, "|0/70|-111 dBm|"},
        {{Mbm, 0}, "|70/70|-1 dBm|"}, {{Mbm, INT_MIN}, "|0/70|-127 dBm|"}, {{}, "|0/70|0/100|"}};
    for (const auto& [signal, expected] : levels) {
        const QByteArray read = readBack(heardOn(2412, signal, "a", 1));
        QVERIFY2(read.contains(expected), read);
    }
}

void WriterTest::reports()
{
    const auto reported = [](const Heard& heard) { return described(reportOf(heard)); };
    QCOMPARE(reported({}), QByteArray("0: NoResults"));

    // The strongest first, equal ones by address. 50 of 100 is -110 + 50 * 0.7 = -75 dBm.
    const Heard various = {{heardOn(2412, {Mbm, -7600}, "-76", 5), heardOn(2412, {}, "unknown", 4),
        heardOn(2412, {Percent, 50}, "50 %", 3), heardOn(2412, {Mbm, -7000}, "-70 b", 2),
        heardOn(2437, {Mbm, -7000}, "-70 a", 1), heardOn(2412, {Mbm, -6999}, "-69.99", 9),
        heardOn(2412, {Mbm, -7400}, "-74", 6)}};
    QCOMPARE(reported(various),
        QByteArray("0: 1 -69.99; 2 -70 a; 3 -70 b; 4 -74; 5 50 %; 6 -76; 7 unknown; over"));

    // Heard twice, also without its name: written once, as its strongest.
    const Heard doubles = {{heardOn(2437, {Mbm, -5000}, "", 1),
        heardOn(2437, {Mbm, -5400}, "Pilot", 1), heardOn(2437, {Mbm, -5200}, "Pilot", 1),
        heardOn(2437, {Mbm, -5300}, "other", 1),
        heardOn(5180, {Mbm, -5800}, std::string(3, '\0'), 1), heardOn(5180, {Mbm, -6000}, "", 1)}};
    QCOMPARE(reported(doubles), QByteArray("0: 1 Pilot; 2 other; 3 (hidden); over"));

    const Heard unusable = {
        {heardOn(5955, {Mbm, -3000}, "6 GHz", 1), heardOn(60480, {Mbm, -3000}, "60 GHz", 2)}, 3, 4};
    QCOMPARE(reported(unusable),
        QByteArray("0: NoResults\n4 access point(s) left out: malformed\n3 information element(s) "
                   "passed over: malformed\n2 access point(s) left out: on 6 GHz or another band "
                   "whose channel numbers are not unique"));

    Heard crowd;
    for (int number = 0; number < 130; ++number) // weakest first
        crowd.accessPoints.push_back(
            heardOn(2412, {Mbm, -10000 + number * 10}, std::to_string(number), number));
    const QByteArray list = reported(crowd);
    QVERIFY2(list.startsWith("0: 1 129; 2 128; "), list);
    // 0, 1 and 2 are the three weakest.
    QVERIFY2(list.endsWith("; 127 3; over\n3 access point(s) left out: weaker than the 127 that "
                           "the list has room for"),
        list);
}

void WriterTest::json()
{
    AccessPoint full = heardOn(2412, {Mbm, -6725}, "Caf\xc3\xa9,", 0xc);
    full.adHoc = true;
    full.security = Security::Wpa2;
    full.noiseDbm = -95;
    full.ageMs = 4000000000;
    // 6 GHz, and weaker: 40 % are 28 dB above -110 dBm; and a channel without a number.
    const Heard heard = {{heardOn(5955, {Percent, 40}, "", 0xd), full, heardOn(4910, {}, "a", 0xe)},
        3, 4, {"said \xff"}};
    QFile expected(QFINDTESTDATA("report.json"));
    QVERIFY(expected.open(QIODevice::ReadOnly));
    QCOMPARE(QByteArray::fromStdString(jsonOf(reportOf(heard))), expected.readAll());
}

void WriterTest::anonymous()
{
    Heard heard = {{heardOn(1, {}, "Ours", 7), heardOn(2, {}, "", 9), heardOn(3, {}, "B", 8),
        heardOn(4, {}, "Ours", 9), heardOn(5, {}, std::string(9, '\0'), 7)}};
    heard.accessPoints.back().address = {0xd2, 0xaa, 0xbb, 0xcc, 0xdd, 0xee};
    anonymise(heard);
    QCOMPARE(described(heard),
        QByteArray("02:00:00:00:00:01 1 MHz named Network 1\n02:00:00:00:00:02 2 MHz\n"
                   "02:00:00:00:00:03 3 MHz named Network 2\n"
                   "02:00:00:00:00:02 4 MHz named Network 1\nd2:aa:bb:00:00:04 5 MHz"));
}

QTEST_APPLESS_MAIN(WriterTest)
#include "tst_writer.moc"

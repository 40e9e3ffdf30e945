#include "anonymous.h"
#include "json.h"
#include "tables.h"

using namespace wifiscan;

namespace {

constexpr Signal::Unit Mbm = Signal::Unit::Mbm;
constexpr Signal::Unit Percent = Signal::Unit::Percent;

AccessPoint heardOn(int frequency, const Signal& signal, const std::string& name, int number)
{
    const Address address = {0x02, 0, 0, 0, 0, static_cast<std::uint8_t>(number)};
    return {address, name, false, frequency, signal, Security::Open, {}, {}};
}

} // namespace

class WriterTest : public QObject {
    Q_OBJECT

private slots:
    void names_data();
    void names();
    void wholeLine();
    void channels();
    void levels();
    void reports();
    void json();
    void jsonOfAnyBytes();
    void anonymous();
};

void WriterTest::names_data()
{
    addColumns();
    const QByteArray a30(30, 'a');
    const QByteArray e = "\xc3\xa9"; // e acute, two bytes
    const QByteArray cups = "\xe2\x98\x95 caf\xc3\xa9 \xf0\x9f\x93\xb6";

    addRow("UTF-8", cups, cups);
    addRow("comma", "Home, sweet", "Home\\x2c sweet");
    addRow("markup", "a<b>&", "a\\x3cb>&");
    addRow("outer blanks", "  a b ", "\\x20\\x20a b\\x20");
    addRow("outer blank of two bytes", "\302\240a", "\\xc2\\xa0a");
    addRow("controls", QByteArray("a\r\n\x1b\x7f\0b", 7), "a\\x0d\\x0a\\x1b\\x7f\\x00b");
    addRow("turns the text around", "a\342\200\256b", "a\\xe2\\x80\\xaeb");
    addRow(
        "tag, no character", "\363\240\200\201\357\277\276", "\\xf3\\xa0\\x80\\x81\\xef\\xbf\\xbe");
    addRow("joiner of a script that needs it", "\342\200\214b", "\342\200\214b");

    addRow("stray byte", "a\x80", "a\\x80");
    addRow("cut character", "a\xe2\x98", "a\\xe2\\x98");
    addRow("character cut by another", "\xe2\x98\xc3\xa9", "\\xe2\\x98\xc3\xa9");
    addRow("longer than necessary", "\xc0\xaf", "\\xc0\\xaf");
    addRow("half a surrogate pair", "\xed\xa0\x80", "\\xed\\xa0\\x80");
    addRow("beyond the last character", "\xf4\x90\x80\x80", "\\xf4\\x90\\x80\\x80");
    addRow("beyond the last lead", "\xf8\x90\x80\x80", "\\xf8\\x90\\x80\\x80");

    addRow("reads like no escape", "0x2c\\x4g\\x2", "0x2c\\x4g\\x2");
    addRow("reads like a replaced comma", "a\\x2c", "a\\x5cx2c");

    addRow("hidden: zero bytes", QByteArray(32, '\0'), "(hidden)");
    addRow("calls itself hidden", "(hidden)", "\\x28hidden)");

    // The reader keeps 31 bytes.
    addRow("character up to byte 31", a30.left(29) + e + "b", a30.left(29) + e + "b");
    addRow("character across byte 31", a30 + e, a30);
    addRow("replacement across byte 31", a30.left(28) + ",", a30.left(28));
    // 31 / 4 = 7 replacements of four bytes
    addRow("32 bytes of noise", QByteArray(32, '\xff'), QByteArray("\\xff").repeated(7));
}

void WriterTest::names()
{
    QFETCH(QByteArray, input);
    QTEST(QByteArray::fromStdString(shownName(input.toStdString())), "expected");
}

void WriterTest::wholeLine()
{
    AccessPoint accessPoint = heardOn(5005 + 175, {Percent, 60}, "", 0xa1); // 60 % of 70 is 42
    accessPoint.adHoc = true;
    accessPoint.noiseDbm = -95;
    accessPoint.security = Security::Wpa2;
    QCOMPARE(accessPointLine(12, accessPoint),
        std::string("wifiscan: stat> CellNo=12, Address=02:00:00:00:00:a1, ESSID=(hidden), "
                    "Mode=Ad-Hoc, Frequency=5.180 GHz, Channel=36, Quality=42/70, Signal=60/100, "
                    "Noise=-95 dBm, EncKey=1, EncType=WPA2"));
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
    const std::pair<Signal, const char*> levels[] = {
        {{Mbm, -6749}, ", Quality=43/70, Signal=-67 dBm,"},
        {{Mbm, -6750}, ", Quality=42/70, Signal=-68 dBm,"},
        {{Mbm, -11100}, ", Quality=0/70, Signal=-111 dBm,"},
        {{Mbm, 0}, ", Quality=70/70, Signal=-1 dBm,"},
        {{Mbm, INT_MIN}, ", Quality=0/70, Signal=-127 dBm,"},
        {{}, ", Quality=0/70, Signal=0/100,"}};
    for (const auto& [signal, expected] : levels) {
        const std::string line = accessPointLine(1, heardOn(2412, signal, "a", 1));
        QVERIFY2(line.find(expected) != std::string::npos, line.c_str());
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
        QByteArray("0: NoResults; 4 access point(s) left out: malformed; 3 information element(s) "
                   "passed over: malformed; 2 access point(s) left out: on 6 GHz or another band "
                   "whose channel numbers are not unique"));

    Heard crowd;
    for (int number = 0; number < 130; ++number) // weakest first
        crowd.accessPoints.push_back(
            heardOn(2412, {Mbm, -10000 + number * 10}, std::to_string(number), number));
    const QByteArray list = reported(crowd);
    QVERIFY2(list.startsWith("0: 1 129; 2 128; "), list);
    // 0, 1 and 2 are the three weakest.
    QVERIFY2(list.endsWith("; 127 3; over; 3 access point(s) left out: weaker than the 127 that "
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
    // 6 GHz, and weaker: 40 % are 28 dB above -110 dBm.
    const Heard heard = {{heardOn(5955, {Percent, 40}, "", 0xd), full}, 3, 4, {"said \xff"}};
    QCOMPARE(QByteArray::fromStdString(jsonOf(reportOf(heard))).replace('"', '\''),
        QByteArray("{'outcome':'done','status':0,'remarks':['said \xef\xbf\xbd',"
                   "'4 access point(s) left out: malformed',"
                   "'3 information element(s) passed over: malformed'],"
                   "'malformedAccessPoints':4,'malformedElements':3,'accessPoints':[\n"
                   "{'name':'Caf\xc3\xa9\\\\x2c','nameHex':'436166c3a92c','hidden':false,"
                   "'address':'02:00:00:00:00:0c','frequencyMhz':2412,'channel':1,"
                   "'signalDbm':-67.25,'signalPercent':null,'noiseDbm':-95,'security':'WPA2',"
                   "'adHoc':true,'ageMs':4000000000},\n"
                   "{'name':'(hidden)','nameHex':'','hidden':true,'address':'02:00:00:00:00:0d',"
                   "'frequencyMhz':5955,'channel':1,'signalDbm':null,'signalPercent':40,"
                   "'noiseDbm':null,'security':'NONE','adHoc':false,'ageMs':null}\n]}\n"));
}

// Every seventh pair of bytes as a name: the document is valid, and no name is lost.
void WriterTest::jsonOfAnyBytes()
{
    Heard heard;
    QSet<QString> expected;
    for (int pair = 1; pair < 0x10000; pair += 7) {
        const std::string name = {static_cast<char>(pair >> 8), static_cast<char>(pair)};
        heard.accessPoints.push_back(heardOn(2412, {}, name, 1));
        expected += QByteArray::fromStdString(name).toHex();
    }
    const QByteArray text = QByteArray::fromStdString(jsonOf(reportOf(heard)));
    QSet<QString> names;
    for (const QJsonValue value : QJsonDocument::fromJson(text)["accessPoints"].toArray())
        names += value["nameHex"].toString();
    QCOMPARE(names, expected);
}

void WriterTest::anonymous()
{
    Heard heard = {{heardOn(1, {}, "Ours", 7), heardOn(2, {}, "", 9), heardOn(3, {}, "B", 8),
        heardOn(4, {}, "Ours", 9), heardOn(5, {}, std::string(9, '\0'), 7)}};
    heard.accessPoints.back().address = {0xd2, 0xaa, 0xbb, 0xcc, 0xdd, 0xee};
    anonymise(heard);
    QCOMPARE(described(heard),
        QByteArray("02:00:00:00:00:01 1 MHz named Network 1; 02:00:00:00:00:02 2 MHz; "
                   "02:00:00:00:00:03 3 MHz named Network 2; "
                   "02:00:00:00:00:02 4 MHz named Network 1; d2:aa:bb:00:00:04 5 MHz; "));

    Heard many; // two addresses of each last byte
    for (int number = 0; number < 0x200; ++number) {
        many.accessPoints.push_back(heardOn(2412, {}, "", number));
        many.accessPoints.back().address[4] = number < 0x100;
    }
    anonymise(many);
    QCOMPARE(many.accessPoints.back().address, (Address{0x02, 0, 0, 0, 0x02, 0x00}));
}

QTEST_APPLESS_MAIN(WriterTest)
#include "tst_writer.moc"

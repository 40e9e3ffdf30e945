#include "../files.h"
#include "anonymous.h"
#include "core/lineparser.h"
#include "json.h"
#include "replay.h"
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

// The values that the plug-in's parser reads from an access point's line, in order.
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
    void names()
    {
        // The bytes are percent-encoded where they show nothing here. The reader keeps 31 bytes of
        // a name; the tool leaves out the rest.
        const QByteArrayList rows[] = {
            {"UTF-8", "☕ café 📶", "☕ café 📶"},
            {"comma", "Home, sweet", "Home\\x2c sweet"},
            {"markup", "a<b>&", "a\\x3cb>&"},
            {"outer blanks", "%20%20a b%20", "\\x20\\x20a b\\x20"},
            {"outer blank of two bytes", "%C2%A0a", "\\xc2\\xa0a"},
            {"controls", "a%0D%0A%1B%7F%00b", "a\\x0d\\x0a\\x1b\\x7f\\x00b"},
            {"turns the text around", "a%E2%80%AEb", "a\\xe2\\x80\\xaeb"},
            {"tag, no character", "%F3%A0%80%81%EF%BF%BE", "\\xf3\\xa0\\x80\\x81\\xef\\xbf\\xbe"},
            {"soft hyphen", "a%C2%ADb", "a\\xc2\\xadb"},
            {"joiner of a script that needs it", "%E2%80%8Cb", "%E2%80%8Cb"},
            {"stray byte", "a%80", "a\\x80"},
            {"cut character", "a%E2%98", "a\\xe2\\x98"},
            {"character cut by another", "%E2%98é", "\\xe2\\x98é"},
            {"longer than necessary", "%C0%AF", "\\xc0\\xaf"},
            {"half a surrogate pair", "%ED%A0%80", "\\xed\\xa0\\x80"},
            {"beyond the last character", "%F4%90%80%80", "\\xf4\\x90\\x80\\x80"},
            {"beyond the last lead", "%F8%90%80%80", "\\xf8\\x90\\x80\\x80"},
            {"reads like no escape", "0x2c\\x4g\\x2", "0x2c\\x4g\\x2"},
            {"reads like a replaced comma", "a\\x2c", "a\\x5cx2c"},
            {"hidden: zero bytes", "%00%00%00", "(hidden)"},
            {"calls itself hidden", "(hidden)", "\\x28hidden)"},
            {"character up to byte 31", "abcdefghijklmnopqrstuvwxyzabcéb",
                "abcdefghijklmnopqrstuvwxyzabcéb"},
            {"character across byte 31", "abcdefghijklmnopqrstuvwxyzabcdé",
                "abcdefghijklmnopqrstuvwxyzabcd"},
            {"replacement across byte 31", "abcdefghijklmnopqrstuvwxyzab,",
                "abcdefghijklmnopqrstuvwxyzab"},
            {"32 bytes of noise", QByteArray("%FF").repeated(32),
                "\\xff\\xff\\xff\\xff\\xff\\xff\\xff"},
        };
        for (const QByteArrayList& row : rows) {
            const QByteArray name = QByteArray::fromPercentEncoding(row.at(1));
            QVERIFY2(shownName(name.toStdString())
                    == QByteArray::fromPercentEncoding(row.at(2)).toStdString(),
                row.at(0));
        }
    }

    void lines()
    {
        AccessPoint full = heardOn(5180, {Percent, 60}, "", 0xa1); // 60 % of 70 is 42
        full.adHoc = true;
        full.noiseDbm = -95;
        full.security = Security::Wpa2;
        AccessPoint plain = heardOn(2412, {Mbm, -6650}, "Cafe", 0xa1);
        AccessPoint weakest = heardOn(2484, {Mbm, INT_MIN}, ",", 0xff);
        weakest.security = Security::Wep;
        AccessPoint another = heardOn(4910, {Mbm, 0}, "a", 0);
        another.security = Security::Wpa1;
        const std::pair<AccessPoint, const char*> rows[] = {
            {full, "02:00:00:00:00:a1|(hidden)|Ad-Hoc|5.180 GHz|36|42/70|60/100|-95 dBm|1|WPA2"},
            {plain, "02:00:00:00:00:a1|Cafe|Master|2.412 GHz|1|43/70|-67 dBm|unknown|0|NONE"},
            {weakest, "02:00:00:00:00:ff|\\x2c|Master|2.484 GHz|14|0/70|-127 dBm|unknown|1|WEP"},
            {another, "02:00:00:00:00:00|a|Master|4.910 GHz|0|0/70|-127 dBm|unknown|1|WPA1"},
        };
        for (const auto& [accessPoint, expected] : rows)
            QCOMPARE(readBack(accessPoint), "12|" + QByteArray(expected));
    }

    void channels()
    {
        // 4910 is 182 in Japan, below 5 GHz. 5955 is channel 1 of 6 GHz, where 2 is off the grid.
        const struct {
            int frequency;
            int channel;
            int channelOf6Ghz;
        } rows[] = {{0, 0, 0}, {-5, 0, 0}, {2407, 0, 0}, {2412, 1, 0}, {2413, 0, 0}, {2472, 13, 0},
            {2477, 0, 0}, {2484, 14, 0}, {4910, 0, 0}, {5145, 0, 0}, {5150, 30, 0}, {5180, 36, 0},
            {5181, 0, 0}, {5825, 165, 0}, {5920, 184, 0}, {5925, 0, 0}, {5935, 0, 2}, {5945, 0, 0},
            {5950, 0, 0}, {5955, 0, 1}, {5956, 0, 0}, {6115, 0, 33}, {7115, 0, 233}, {7120, 0, 0}};
        for (const auto& row : rows) {
            QCOMPARE(channelOf(row.frequency), row.channel);
            QCOMPARE(channelOf6Ghz(row.frequency), row.channelOf6Ghz);
        }
    }

    void results_data() { addTableOf(QFINDTESTDATA("results.txt")); }
    void results()
    {
        QFETCH(QByteArray, input);
        QTEST(described(scanResultOf(readContents(iwText(input), "f").heard)), "expected");
    }

    void json()
    {
        AccessPoint full = heardOn(2412, {Mbm, -6725}, "Caf\xc3\xa9,", 0xc);
        full.adHoc = true;
        full.security = Security::Wpa2;
        full.noiseDbm = -95;
        full.ageMs = 4000000000;
        const Address device = {0x02, 0, 0, 0, 0, 0x99};
        full.details = {160, {5210, 5775}, std::vector<std::string>{"PSK", "SAE"},
            Load{3, 64 / 255.0}, 0.25, "ac", true, device};
        // 6 GHz, and weaker: 40 % are 28 dB above -110 dBm; and a channel without a number.
        Heard heard = {{heardOn(5955, {Percent, 40}, "", 0xd), full, heardOn(4910, {}, "a", 0xe)},
            3, 4, {"said \xff"}};
        QCOMPARE(QByteArray::fromStdString(jsonOf(scanResultOf(heard))),
            readFile(QFINDTESTDATA("result.json")));
        anonymise(heard); // the second one's own address is the second, its device's the third
        QCOMPARE(heard.accessPoints[1].details.mldAddress->back(), std::uint8_t(3));
    }
};

QTEST_APPLESS_MAIN(WriterTest)
#include "tst_writer.moc"

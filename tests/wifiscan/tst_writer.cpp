#include "writer.h"

#include <QtTest>

using namespace wifiscan;

namespace {

AccessPoint accessPointOn(int frequency, int dbm, const std::string& name, int number = 1)
{
    AccessPoint accessPoint;
    accessPoint.address = {0x02, 0, 0, 0, 0, static_cast<std::uint8_t>(number)};
    accessPoint.name = name;
    accessPoint.frequencyMhz = frequency;
    accessPoint.signal = {Signal::Unit::Mbm, dbm * 100};
    return accessPoint;
}

// The value of one field of a line.
QByteArray field(const std::string& line, const QByteArray& key)
{
    const QByteArray text = QByteArray::fromStdString(line);
    const int begin = text.indexOf(key + '=');
    const int end = text.indexOf(',', begin);
    return begin < 0 ? QByteArray()
                     : text.mid(begin, end < 0 ? -1 : end - begin).mid(key.size() + 1);
}

QList<QByteArray> namesOf(const Report& report)
{
    QList<QByteArray> names;
    for (const QByteArray& line : QByteArray::fromStdString(report.text).split('\n')) {
        if (line.startsWith("wifiscan: stat> "))
            names << field(line.toStdString(), "ESSID");
    }
    return names;
}

} // namespace

class WriterTest : public QObject {
    Q_OBJECT

private slots:
    void names_data();
    void names();
    void wholeLine();
    void channels_data();
    void channels();
    void signalsAndQuality_data();
    void signalsAndQuality();
    void order();
    void doubles();
    void leavesOut();
    void mostCells();
    void closingLines();
};

void WriterTest::names_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("shown");
    const auto row = [](const char* title, const QByteArray& name, const QByteArray& shown) {
        QTest::newRow(title) << name << shown;
    };
    const QByteArray a30(30, 'a');
    const QByteArray e = "\xc3\xa9"; // e acute, two bytes

    row("plain", "Open Cafe", "Open Cafe");
    row("UTF-8", "\xe2\x98\x95 caf\xc3\xa9 \xf0\x9f\x93\xb6",
        "\xe2\x98\x95 caf\xc3\xa9 \xf0\x9f\x93\xb6");
    row("markup and formats", "<b>%n%s</b>", "<b>%n%s</b>");
    row("comma", "Home, sweet", "Home\\x2c sweet");
    row("outer blanks", "  a b ", "\\x20\\x20a b\\x20");
    row("blanks only", "  ", "\\x20\\x20");
    row("outer blank of two bytes", "\302\240a", "\\xc2\\xa0a");
    row("controls", "a\r\n\t\x1b\x7f", "a\\x0d\\x0a\\x09\\x1b\\x7f");
    row("control of two bytes", "a\xc2\x85", "a\\xc2\\x85");
    row("turns the text around", "a\342\200\256b", "a\\xe2\\x80\\xaeb");
    row("joiner of a script that needs it", "\342\200\214b", "\342\200\214b");
    row("some zero bytes", QByteArray("a\0b", 3), "a\\x00b");

    // Broken UTF-8: a stray byte, a cut character, one longer than necessary, half a surrogate
    // pair, beyond the last character, a byte that begins nothing.
    row("stray", "a\x80", "a\\x80");
    row("cut", "a\xe2\x98", "a\\xe2\\x98");
    row("cut by another", "\xe2\x98\xc3\xa9", "\\xe2\\x98\xc3\xa9");
    row("overlong", "\xc0\xac", "\\xc0\\xac");
    row("surrogate", "\xed\xa0\x80", "\\xed\\xa0\\x80");
    row("beyond", "\xf4\x90\x80\x80", "\\xf4\\x90\\x80\\x80");
    row("never a byte of it", "\xff", "\\xff");

    row("backslash", "C:\\x", "C:\\x");
    row("reads like a replaced comma", "a\\x2cb", "a\\x5cx2cb");

    row("hidden: none", {}, "(hidden)");
    row("hidden: zero bytes", QByteArray(32, '\0'), "(hidden)");
    row("calls itself hidden", "(hidden)", "\\x28hidden)");
    row("begins like hidden", "(hidden) x", "(hidden) x");

    // The reader keeps 31 bytes.
    row("32 bytes, the last cut off whole", a30 + "bc", a30 + "bc");
    row("character up to byte 31", a30.left(29) + e + "b", a30.left(29) + e + "b");
    row("character across byte 31", a30 + e, a30);
    row("replacement across byte 31", a30.left(28) + ",", a30.left(28));
    // 31 / 4 = 7 replacements of four bytes
    row("32 bytes of noise", QByteArray(32, '\xff'), QByteArray("\\xff").repeated(7));
}

void WriterTest::names()
{
    QFETCH(QByteArray, name);
    QTEST(QByteArray::fromStdString(shownName(name.toStdString())), "shown");
}

void WriterTest::wholeLine()
{
    AccessPoint accessPoint = accessPointOn(2437, -67, "Cafe", 0xa1);
    accessPoint.security = Security::Wpa2;
    QCOMPARE(accessPointLine(12, accessPoint),
        std::string(
            "wifiscan: stat> CellNo=12, Address=02:00:00:00:00:a1, ESSID=Cafe, Mode=Master, "
            "Frequency=2.437 GHz, Channel=6, Quality=43/70, Signal=-67 dBm, Noise=unknown, "
            "EncKey=1, EncType=WPA2"));
    accessPoint = accessPointOn(5005 + 175, -67, "", 0);
    accessPoint.adHoc = true;
    accessPoint.signal = {Signal::Unit::Percent, 60}; // 60 of 100 is 42 of 70
    accessPoint.noiseDbm = -95;
    QCOMPARE(accessPointLine(1, accessPoint),
        std::string("wifiscan: stat> CellNo=1, Address=02:00:00:00:00:00, ESSID=(hidden), "
                    "Mode=Ad-Hoc, Frequency=5.180 GHz, Channel=36, Quality=42/70, Signal=60/100, "
                    "Noise=-95 dBm, EncKey=0, EncType=NONE"));
}

void WriterTest::channels_data()
{
    QTest::addColumn<int>("frequency");
    QTest::addColumn<int>("channel");
    const QMap<int, int> channels = {{0, 0}, {-5, 0}, {2407, 0}, {2411, 0}, {2412, 1}, {2413, 0},
        {2472, 13}, {2477, 0}, {2484, 14}, {4910, 0}, // 182 in Japan, below 5 GHz
        {5145, 0}, {5150, 30}, {5180, 36}, {5181, 0}, {5825, 165}, {5920, 184}, {5925, 0},
        {5955, 0}, // channel 1 of 6 GHz
        {2147483647, 0}};
    for (auto row = channels.begin(); row != channels.end(); ++row)
        QTest::addRow("%d MHz", row.key()) << row.key() << row.value();
}

void WriterTest::channels()
{
    QFETCH(int, frequency);
    QTEST(channelOf(frequency), "channel");
}

void WriterTest::signalsAndQuality_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("figure");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QByteArray>("quality");
    const auto row = [](const char* title, Signal::Unit unit, int figure, const QByteArray& signal,
                         const QByteArray& quality) {
        QTest::newRow(title) << int(unit) << figure << signal << quality;
    };
    const Signal::Unit mbm = Signal::Unit::Mbm;
    const Signal::Unit percent = Signal::Unit::Percent;
    row("rounds up", mbm, -6749, "-67 dBm", "43/70");
    row("rounds down", mbm, -6750, "-68 dBm", "42/70");
    row("no quality left", mbm, -11000, "-110 dBm", "0/70");
    row("below", mbm, -11100, "-111 dBm", "0/70");
    row("best quality", mbm, -4000, "-40 dBm", "70/70");
    row("above", mbm, -3000, "-30 dBm", "70/70");
    row("zero keeps its sign", mbm, 0, "-1 dBm", "70/70");
    row("least number", mbm, std::numeric_limits<int>::min(), "-127 dBm", "0/70");
    row("most", mbm, std::numeric_limits<int>::max(), "-1 dBm", "70/70");
    row("all of a strength", percent, 100, "100/100", "70/70");
    row("nothing of it", percent, 0, "0/100", "0/70");
    row("unknown", Signal::Unit::None, 0, "0/100", "0/70");
}

void WriterTest::signalsAndQuality()
{
    QFETCH(int, unit);
    QFETCH(int, figure);
    AccessPoint accessPoint = accessPointOn(2412, 0, "a");
    accessPoint.signal = {Signal::Unit(unit), figure};
    const std::string line = accessPointLine(1, accessPoint);
    QTEST(field(line, "Signal"), "signal");
    QTEST(field(line, "Quality"), "quality");
}

void WriterTest::order()
{
    AccessPoint ratio = accessPointOn(2412, 0, "ratio 50", 3);
    ratio.signal = {Signal::Unit::Percent, 50}; // -110 + 50 * 0.7 = -75 dBm
    AccessPoint unknown = accessPointOn(2412, 0, "unknown", 4);
    unknown.signal = {};
    AccessPoint finer = accessPointOn(2412, 0, "-70.49", 9);
    finer.signal.value = -7049;
    const Report report = reportOf(
        {{accessPointOn(2412, -76, "-76", 5), unknown, ratio, accessPointOn(5180, -70, "-70 b", 2),
             accessPointOn(2437, -70, "-70 a", 1), finer, accessPointOn(2412, -74, "-74", 6)},
            0, 0});
    const QList<QByteArray> expected = {
        "-70 a", "-70 b", "-70.49", "-74", "ratio 50", "-76", "unknown"};
    QCOMPARE(namesOf(report), expected);
    const QByteArray text = QByteArray::fromStdString(report.text);
    QVERIFY(text.startsWith("wifiscan: stat> CellNo=1, "));
    QVERIFY(text.contains("CellNo=7, "));
    QVERIFY(text.endsWith("\nwifiscan: over\n"));
    QVERIFY(report.remarks.empty());
}

void WriterTest::doubles()
{
    const Report report = reportOf({{
                                        accessPointOn(2437, -50, ""), // known by name below
                                        accessPointOn(2437, -52, "Pilot"),
                                        accessPointOn(2437, -54, "Pilot"),  // heard twice
                                        accessPointOn(2437, -56, "Second"), // shares the address
                                        accessPointOn(5180, -58, std::string(3, '\0')), // elsewhere
                                        accessPointOn(5180, -60, ""),
                                    },
        0, 0});
    const QList<QByteArray> expected = {"Pilot", "Second", "(hidden)"};
    QCOMPARE(namesOf(report), expected);
}

void WriterTest::leavesOut()
{
    const Report report =
        reportOf({{accessPointOn(5955, -30, "6 GHz"), accessPointOn(60480, -30, "60 GHz"),
                      accessPointOn(5180, -60, "5 GHz")},
            3, 4});
    QCOMPARE(namesOf(report), QList<QByteArray>{"5 GHz"});
    QCOMPARE(report.remarks.size(), std::size_t(3));
    QVERIFY(
        QByteArray::fromStdString(report.remarks[0]).startsWith("2 access point(s) left out: on"));
    QVERIFY(
        QByteArray::fromStdString(report.remarks[1]).startsWith("4 access point(s) left out: mal"));
    QVERIFY(QByteArray::fromStdString(report.remarks[2]).startsWith("3 information element(s)"));
}

void WriterTest::mostCells()
{
    Heard heard;
    for (int number = 0; number < 130; ++number) // weakest first
        heard.accessPoints.push_back(accessPointOn(2412, -100, std::to_string(number), number));
    for (int number = 0; number < 130; ++number)
        heard.accessPoints[std::size_t(number)].signal.value += number * 10;
    const Report report = reportOf(heard);
    const QList<QByteArray> names = namesOf(report);
    QCOMPARE(names.size(), 127);
    QCOMPARE(names.first(), QByteArray("129"));
    QCOMPARE(names.last(), QByteArray("3")); // 0, 1 and 2 are the three weakest
    QVERIFY(QByteArray::fromStdString(report.text).contains("CellNo=127, "));
    QCOMPARE(report.remarks.size(), std::size_t(1));
    QVERIFY(QByteArray::fromStdString(report.remarks[0]).startsWith("3 access point(s) left out"));
}

void WriterTest::closingLines()
{
    QCOMPARE(reportOf({}).text, std::string("wifiscan: NoResults\n"));
    QCOMPARE(failure(ExitStatus::TimedOut, "").text, std::string("wifiscan: timeout\n"));
    QCOMPARE(failure(ExitStatus::InterfaceDown, "why").text, std::string("wifiscan: fail\n"));
}

QTEST_APPLESS_MAIN(WriterTest)
#include "tst_writer.moc"

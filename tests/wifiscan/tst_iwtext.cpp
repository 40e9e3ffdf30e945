#include "exactcopy.h"
#include "iwtext.h"

#include <QtTest>

using namespace wifiscan;

namespace {

// Two access points as the tool prints them, with the traps of its format: keys of the same name in
// sections, a line of its own for each name, escapes.
const char* const TwoNetworks = "BSS 02:00:00:00:00:0a(on wlan0) -- associated\n"
                                "\tlast seen: 712.345s [boottime]\n"
                                "\tTSF: 1234 usec (0d, 00:00:00)\n"
                                "\tfreq: 2412.0\n"
                                "\tbeacon interval: 100 TUs\n"
                                "\tcapability: ESS Privacy ShortSlotTime (0x0411)\n"
                                "\tsignal: -57.50 dBm\n"
                                "\tlast seen: 3520 ms ago\n"
                                "\tSSID: caf\\xc3\\xa9\\x20\n"
                                "\tDS Parameter set: channel 11\n"
                                "\tHT capabilities:\n"
                                "\t\tCapabilities: 0x1ac\n"
                                "\t\tfreq: 5180\n"
                                "\tRSN:\t * Version: 1\n"
                                "\t\t * Group cipher: CCMP\n"
                                "\t\t * Capabilities: 16-PTKSA-RC 1-GTKSA-RC (0x000c)\n"
                                "BSS 02:00:00:00:00:0b (on wlan0)\n"
                                "\tfreq: 5180\n"
                                "\tcapability: IBSS (0x0002)\n"
                                "\tsignal: 60/100\n"
                                "\tOWE Transition Mode:\n"
                                "\t\tSSID: other\n"
                                "\t\tRSN: other\n"
                                "\tSSID: a b\\\\x\n";

Heard heardOf(const QByteArray& text)
{
    const ExactCopy copy(text);
    return readIwText(std::string_view(copy.data(), copy.size()));
}

QByteArray block(const QByteArray& lines)
{
    return "BSS 02:00:00:00:00:0a(on wlan0)\n\tfreq: 2437\n" + lines;
}

} // namespace

class IwTextTest : public QObject {
    Q_OBJECT

private slots:
    void twoNetworks_data();
    void twoNetworks();
    void names_data();
    void names();
    void keys_data();
    void keys();
    void heads_data();
    void heads();
    void everyPrefix();
};

void IwTextTest::twoNetworks_data()
{
    QTest::addColumn<QByteArray>("text");
    const QByteArray original = TwoNetworks;
    QTest::newRow("tabs") << original;
    QTest::newRow("a copy with blanks") << QByteArray(original).replace('\t', "    ");
    QTest::newRow("lines ended by CR LF") << QByteArray(original).replace('\n', "\r\n");
    QTest::newRow("last line not ended") << original.chopped(1);
    QTest::newRow("words around") << "# iw dev wlan0 scan\n\tfreq: 1\n" + original + "\n$\n";
}

void IwTextTest::twoNetworks()
{
    QFETCH(QByteArray, text);
    QVERIFY(isIwText(std::string_view(text.constData(), std::size_t(text.size()))));
    const Heard heard = heardOf(text);
    QCOMPARE(heard.malformedAccessPoints, 0);
    QCOMPARE(heard.malformedElements, 0);
    QCOMPARE(heard.accessPoints.size(), std::size_t(2));

    const AccessPoint& first = heard.accessPoints[0];
    QCOMPARE(first.address, (Address{0x02, 0, 0, 0, 0, 0x0a}));
    QCOMPARE(first.name, std::string("caf\xc3\xa9 "));
    QCOMPARE(first.frequencyMhz, 2412);
    QCOMPARE(first.signal.unit, Signal::Unit::Mbm);
    QCOMPARE(first.signal.value, -5750);
    QCOMPARE(first.security, Security::Wpa2);
    QCOMPARE(first.ageMs, std::optional<std::uint32_t>(3520));
    QVERIFY(!first.adHoc);

    const AccessPoint& second = heard.accessPoints[1];
    QCOMPARE(second.name, std::string("a b\\\\x"));
    QCOMPARE(second.frequencyMhz, 5180);
    QCOMPARE(second.signal.unit, Signal::Unit::Percent);
    QCOMPARE(second.signal.value, 60);
    QCOMPARE(second.security, Security::Open);
    QVERIFY(second.adHoc);
}

void IwTextTest::names_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("malformed");
    const auto row = [](const char* title, const QByteArray& lines, const QByteArray& name,
                         int malformed) { QTest::newRow(title) << lines << name << malformed; };
    const QByteArray name32(32, 'n');
    row("no line", {}, {}, 0);
    row("empty", "\tSSID: \n", {}, 0);
    row("empty, outer blank lost", "\tSSID:\n", {}, 0);
    row("zero bytes", "\tSSID: \\x00\\x00\n", QByteArray(2, '\0'), 0);
    row("backslash", "\tSSID: a\\x5cx2c\n", "a\\x2c", 0);
    row("no escape", "\tSSID: \\x4g\\x4\n", "\\x4g\\x4", 0);
    row("looks like a key", "\tSSID: SSID: x\n", "SSID: x", 0);
    row("32 bytes", "\tSSID: " + name32 + "\n", name32, 0);
    row("33 bytes", "\tSSID: " + name32 + "n\n", {}, 1);
    row("32 escapes", "\tSSID: " + QByteArray("\\xff").repeated(32) + "\n", QByteArray(32, '\xff'),
        0);
    row("probe response, then the beacon of a hidden one", "\tSSID: Pilot\n\tSSID: \\x00\n",
        "Pilot", 0);
    row("beacon of a hidden one, then the probe response", "\tSSID: \\x00\n\tSSID: Pilot\n",
        "Pilot", 0);
}

void IwTextTest::names()
{
    QFETCH(QByteArray, lines);
    const Heard heard = heardOf(block(lines));
    QCOMPARE(heard.accessPoints.size(), std::size_t(1));
    QTEST(QByteArray::fromStdString(heard.accessPoints[0].name), "name");
    QTEST(heard.malformedElements, "malformed");
}

void IwTextTest::keys_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<int>("security");
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("figure");
    const auto row = [](const char* title, const QByteArray& lines, Security security,
                         Signal::Unit unit, int figure) {
        QTest::newRow(title) << lines << int(security) << int(unit) << figure;
    };
    const Security open = Security::Open;
    const Signal::Unit none = Signal::Unit::None;
    const Signal::Unit mbm = Signal::Unit::Mbm;
    const Signal::Unit percent = Signal::Unit::Percent;
    row("nothing", {}, open, none, 0);
    row("WPA", "\tWPA:\t * Version: 1\n", Security::Wpa1, none, 0);
    row("WPA and RSN", "\tWPA:\n\tRSN:\n", Security::Wpa2, none, 0);
    row("privacy", "\tcapability: ESS (0x0011)\n", Security::Wep, none, 0);
    row("privacy in words", "\tcapability: ESS Privacy\n", Security::Wep, none, 0);
    row("figure before words", "\tcapability: Privacy (0x0001)\n", open, none, 0);
    row("whole level", "\tsignal: -70 dBm\n", open, mbm, -7000);
    row("one decimal", "\tsignal: -70.5 dBm\n", open, mbm, -7050);
    row("two decimals", "\tsignal: -70.05 dBm\n", open, mbm, -7005);
    row("sign before a zero", "\tsignal: -0.25 dBm\n", open, mbm, -25);
    row("above zero", "\tsignal: 3.50 dBm\n", open, mbm, 350);
    row("level beyond reason", "\tsignal: -2147483648.00 dBm\n", open, none, 0);
    row("level beyond 32 bits", "\tsignal: -99999999999 dBm\n", open, none, 0);
    row("no level", "\tsignal: strong\n", open, none, 0);
    row("strength beyond its range", "\tsignal: 101/100\n", open, percent, 100);
}

void IwTextTest::keys()
{
    QFETCH(QByteArray, lines);
    const Heard heard = heardOf(block(lines));
    QCOMPARE(heard.accessPoints.size(), std::size_t(1));
    QTEST(int(heard.accessPoints[0].security), "security");
    QTEST(int(heard.accessPoints[0].signal.unit), "unit");
    QTEST(heard.accessPoints[0].signal.value, "figure");
}

void IwTextTest::heads_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("known");
    QTest::addColumn<int>("accessPoints");
    QTest::addColumn<int>("malformed");
    const auto row = [](const char* title, const QByteArray& text, bool known, int accessPoints,
                         int malformed) {
        QTest::newRow(title) << text << known << accessPoints << malformed;
    };
    const QByteArray frequency = "\n\tfreq: 2437\n";
    row("nothing", {}, false, 0, 0);
    row("address alone", "BSS 02:00:00:00:00:0a" + frequency, true, 1, 0);
    row("upper case", "BSS 02:00:00:00:00:0A(on w)" + frequency, true, 1, 0);
    row("short address", "BSS 02:00:00:00:00(on w)" + frequency, false, 0, 1);
    row("long address", "BSS 02:00:00:00:00:0a:0b" + frequency, false, 0, 1);
    row("no hex", "BSS 02:00:00:00:00:0g" + frequency, false, 0, 1);
    row("one digit", "BSS 2:0:0:0:0:a(on w)" + frequency, false, 0, 1);
    row("sign", "BSS 02:00:00:00:00:-a" + frequency, false, 0, 1);
    row("indented", " BSS 02:00:00:00:00:0a" + frequency, false, 0, 0);
    row("no frequency", "BSS 02:00:00:00:00:0a\n", true, 0, 1);
    row("channel for frequency", "BSS 02:00:00:00:00:0a\n\tDS Parameter set: channel 6\n", true, 1,
        0);
    row("broken one between", block("BSS broken\n\tfreq: 2412\n" + block(QByteArray())), true, 2,
        1);
}

void IwTextTest::heads()
{
    QFETCH(QByteArray, text);
    QTEST(isIwText(std::string_view(text.constData(), std::size_t(text.size()))), "known");
    const Heard heard = heardOf(text);
    QTEST(int(heard.accessPoints.size()), "accessPoints");
    QTEST(heard.malformedAccessPoints, "malformed");
}

void IwTextTest::everyPrefix()
{
    const QByteArray text = TwoNetworks;
    const int secondHead = text.indexOf("BSS 02:00:00:00:00:0b");
    const int secondFrequency = text.indexOf("freq: 5180\n\tcap");
    for (int size = 0; size <= text.size(); ++size) {
        const Heard heard = heardOf(text.left(size));
        const int found = int(heard.accessPoints.size()) + heard.malformedAccessPoints;
        // A block counts from its "BSS " on, and is an access point once a digit of its frequency
        // is there.
        QCOMPARE(found, (size >= 4 ? 1 : 0) + (size >= secondHead + 4 ? 1 : 0));
        QCOMPARE(heard.accessPoints.size() == 2, size > secondFrequency + 6);
    }
}

QTEST_APPLESS_MAIN(IwTextTest)
#include "tst_iwtext.moc"

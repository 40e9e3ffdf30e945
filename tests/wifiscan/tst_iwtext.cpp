#include "iwtext.h"
#include "tables.h"

using namespace wifiscan;

namespace {

// Two access points much as the tool prints them, but for its tabs, with the traps of its format:
// keys of the same name in sections, two kinds of age, escapes.
const QByteArray Blanks = R"(BSS 02:00:00:00:00:0a(on wlan0) -- associated
    freq: 2412.0
    capability: ESS Privacy ShortSlotTime (0x0411)
    signal: -57.25 dBm
    last seen: 3520 ms ago
    last seen: 712.345s [boottime]
    SSID: caf\xc3\xa9\x20
    DS Parameter set: channel 11
    HT capabilities:
        freq: 5180
    RSN:     * Version: 1
         * Capabilities: 16-PTKSA-RC 1-GTKSA-RC (0x000c)
BSS 02:00:00:00:00:0b (on wlan0)
    freq: 5180
    capability: IBSS (0x0002)
    signal: 60/100
    OWE Transition Mode:
        SSID: other
        RSN: other
    SSID: a b\\x
)";
const QByteArray Tabs = QByteArray(Blanks).replace("    ", "\t");

QByteArray heardIn(const QByteArray& text)
{
    const std::vector<char> copy = exactCopy(text);
    return described(readIwText(std::string_view(copy.data(), copy.size())));
}

} // namespace

class IwTextTest : public QObject {
    Q_OBJECT

private slots:
    void texts_data();
    void texts();
    void everyPrefix();
};

void IwTextTest::texts_data()
{
    addColumns();
    const QByteArray two = "02:00:00:00:00:0a 2412 MHz -5725 mBm WPA2 3520 ms named caf\xc3\xa9 ; "
                           "02:00:00:00:00:0b 5180 MHz 60% ad-hoc named a b\\\\x; ";
    addRow("tabs", Tabs, two);
    addRow("a copy with blanks", Blanks, two);
    addRow("lines ended by CR LF", QByteArray(Tabs).replace('\n', "\r\n"), two);
    addRow("words around", "# iw dev wlan0 scan\n\tfreq: 1\n" + Tabs + "\n$\n", two);

    const QByteArray head = "BSS 02:00:00:00:00:0a";
    const QByteArray frequency = "\n\tfreq: 2437\n";
    const QByteArray found = "02:00:00:00:00:0a 2437 MHz";
    addRow("short address", "BSS 02:00:00:00:00(on w)" + frequency, "malformed 1");
    addRow("long address", head + ":0b" + frequency, "malformed 1");
    addRow("one digit", "BSS 2:0:0:0:0:a(on w)" + frequency, "malformed 1");
    addRow("no frequency", head + "\n", "malformed 1");
    addRow("channel for a frequency", head + "\n\tDS Parameter set: channel 14\n",
        "02:00:00:00:00:0a 2484 MHz; ");
    addRow("broken one between", head + frequency + "BSS broken\n\tfreq: 2412\n" + head + frequency,
        found + "; " + found + "; malformed 1");

    const auto lines = [&](const char* title, const QByteArray& text, const QByteArray& expected) {
        addRow(title, head + frequency + text, found + expected);
    };
    lines("escaped backslash", "\tSSID: a\\x5cx2c\n", " named a\\x2c; ");
    lines("no escape", "\tSSID: \\x4g\\x4\n", " named \\x4g\\x4; ");
    lines("name of 33 bytes", "\tSSID: " + QByteArray(33, 'n') + "\n", "; malformed elements 1");
    lines("name of 32 escapes", "\tSSID: " + QByteArray("\\xff").repeated(32) + "\n",
        " named " + QByteArray(32, '\xff') + "; ");
    lines("named, then hidden", "\tSSID: Pilot\n\tSSID: \\x00\n", " named Pilot; ");
    lines("hidden, then named", "\tSSID: \\x00\n\tSSID: Pilot\n", " named Pilot; ");
    lines("WPA", "\tWPA:\t * Version: 1\n", " WPA1; ");
    lines("privacy", "\tcapability: ESS (0x0011)\n", " WEP; ");
    lines("capability in words", "\tcapability: IBSS Privacy\n", " WEP ad-hoc; ");
    lines("one decimal", "\tsignal: -70.5 dBm\n", " -7050 mBm; ");
    lines("level above zero", "\tsignal: 0.50 dBm\n", " 50 mBm; ");
    lines("level beyond reason", "\tsignal: -2147483647.00 dBm\n", "; ");
    lines("strength beyond its range", "\tsignal: 101/100\n", " 100%; ");
}

void IwTextTest::texts()
{
    QFETCH(QByteArray, input);
    QTEST(heardIn(input), "expected");
}

void IwTextTest::everyPrefix()
{
    const int secondHead = Tabs.indexOf("BSS 02:00:00:00:00:0b");
    const int secondFrequency = Tabs.indexOf("freq: 5180\n\tcap");
    for (int size = 0; size <= Tabs.size(); ++size) {
        // A block counts from its "BSS " on, and is an access point once a digit of its frequency
        // is there.
        const QByteArray heard = heardIn(Tabs.left(size));
        QCOMPARE(heard.count(" MHz") + heard.count("malformed 1"),
            (size >= 4 ? 1 : 0) + (size >= secondHead + 4 ? 1 : 0));
        QCOMPARE(heard.count(" MHz") == 2, size > secondFrequency + 6);
    }
}

QTEST_APPLESS_MAIN(IwTextTest)
#include "tst_iwtext.moc"

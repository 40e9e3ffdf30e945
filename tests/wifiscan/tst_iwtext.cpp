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
BSS 02:00:00:00:00:0c(on wlan0)
    freq: 2412
    capability: ESS Privacy (0x0011)
    signal: -70.00 dBm
    Information elements from Probe Response frame:
    SSID: \x00\x00
    Supported rates: 1.0*
    WPA:     * Version: 1
    RSN:     * Version: 1
    Information elements from Beacon frame:
    SSID: late
BSS 02:00:00:00:00:0d(on wlan0)
    capability: ESS (0x0001)
    signal: -71.00 dBm
    Supported rates: 1.0*
    DS Parameter set: channel 13
    ERP: <no flags>
)";
const QByteArray Tabs = QByteArray(Blanks).replace("    ", "\t");

const QByteArray Heard4 = "02:00:00:00:00:0a 2412 MHz -5725 mBm WPA2 3520 ms named caf\xc3\xa9 ; "
                          "02:00:00:00:00:0b 5180 MHz 60% ad-hoc named a b\\\\x; "
                          "02:00:00:00:00:0c 2412 MHz -7000 mBm WPA2 named late; "
                          "02:00:00:00:00:0d 2472 MHz -7100 mBm; ";
const QByteArray Cut =
    "(the last access point left out: the text ends in its middle, or as if it did)";

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
    addRow("tabs", Tabs, Heard4);
    addRow("a copy with blanks", Blanks, Heard4);
    addRow("lines ended by CR LF", QByteArray(Tabs).replace('\n', "\r\n"), Heard4);
    addRow("words around", "# iw dev wlan0 scan\n\tfreq: 1\n" + Tabs + "\n$\n", Heard4);
    const QByteArray indented = "  " + QByteArray(Tabs).replace('\n', "\n  ");
    addRow("indented as a whole, ends within an indent", "As text:\n\n" + indented, Heard4);
    addRow("byte order mark", "\xef\xbb\xbf" + Tabs, Heard4);

    const QByteArray head = "BSS 02:00:00:00:00:0a";
    const QByteArray frequency = "\n\tfreq: 2437\n";
    const QByteArray found = "02:00:00:00:00:0a 2437 MHz";
    addRow("short address", "BSS 02:00:00:00:00(on w)" + frequency, "malformed 1");
    addRow("long address", head + ":0b" + frequency, "malformed 1");
    addRow("one digit", "BSS 2:0:0:0:0:a(on w)" + frequency, "malformed 1");
    addRow("no frequency", head + "\n\tWPS:\n$", "malformed 1");
    addRow("broken one between",
        head + frequency + "BSS broken\n\tfreq: 2412\n" + head + frequency + "$",
        found + "; " + found + "; malformed 1");
    addRow("masked addresses",
        "BSS xx:xx:xx:xx:xx:xx\n" + head + frequency + "BSS 02:00:00:**:**:**(on w)\n"
            + "BSS [hidden] (on w)" + frequency,
        found + "; (3 access point(s) left out: their addresses are masked)");

    // What may not be all of the last one.
    addRow("WEP, or more behind it",
        head + "\n\tfreq: 2412\n\tcapability: ESS Privacy (0x0011)\n\tSSID: a\n", Cut);
    addRow("no line feed behind an open one",
        head + frequency + "\tcapability: ESS (0x0001)\n\tSSID: a\n\tERP: <no fl",
        found + " named a; ");
    addRow(
        "no line feed in a name", head + frequency + "\tcapability: ESS (0x0001)\n\tSSID: a", Cut);
    addRow("no line feed in an address", Tabs + "BSS 02:00:0", Heard4 + Cut);

    const auto lines = [&](const char* title, const QByteArray& text, const QByteArray& expected) {
        addRow(title, head + frequency + text + "$", found + expected);
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

// Of a text that was cut off anywhere, what is given is as in the whole text; all but the last
// access point are, and it is said when that one is not.
void IwTextTest::everyPrefix()
{
    const QByteArrayList whole = Heard4.trimmed().split(';');
    for (const QByteArray& text : {Tabs, QByteArray(Blanks).replace('\n', "\r\n")}) {
        for (int size = 0; size <= text.size(); ++size) {
            const QByteArray cut = text.left(size);
            QByteArray heard = heardIn(cut);
            const bool saidSo = heard.endsWith(Cut);
            heard.chop(saidSo ? Cut.size() : 0);
            const QByteArrayList given = heard.trimmed().split(';');
            QCOMPARE(given.last(), QByteArray());
            QCOMPARE(given.mid(0, given.size() - 1), whole.mid(0, given.size() - 1));
            const int heads = QString(cut).count(QRegularExpression("BSS(.[0-9a-f]{2}){6}"));
            const int count = given.size() - 1;
            QVERIFY2(count == heads || (count == heads - 1 && saidSo), cut);
        }
    }
}

QTEST_APPLESS_MAIN(IwTextTest)
#include "tst_iwtext.moc"

#include "../files.h"
#include "capture.h"
#include "frame.h"
#include "iwtext.h"
#include "replay.h"
#include "tables.h"

#include <pcap/dlt.h>

using namespace wifiscan;

namespace {

// Beacon to all from 02:00:00:00:00:0a: timestamp, interval 100, capability ESS.
QByteArray beacon(const QByteArray& elements, const char* control = "8000",
    const char* sequence = "1000", const char* address = "02000000000a")
{
    return hex(control) + hex("0000 ffffffffffff 020000000001") + hex(address) + hex(sequence)
        + QByteArray(8, 't') + hex("6400 0100") + elements;
}

// A radiotap head of 14 bytes: 2412 MHz, a level, and a noise of -95 dBm.
QByteArray radiotap(int dbm)
{
    return hex("0000 0e00 68000000 6c09 a000") + static_cast<char>(dbm) + hex("a1");
}

const QByteArray Cafe = hex("0004") + "Cafe";
const QByteArray Ds13 = hex("0301 0d");

// Little end first, version 2.4.
QByteArray pcapFile(quint32 linkType, const QByteArrayList& packets)
{
    return hex("d4c3b2a1 0200 0400 0000000000000000 ffff0000") + host(linkType) + packets.join();
}

// A frame, of whose end the capture lacks some bytes.
QByteArray packet(const QByteArray& bytes, int missing = 0)
{
    return QByteArray(8, '\0') + host(bytes.size()) + host(bytes.size() + missing) + bytes;
}

// Blocks of the section, the interface and a frame of 56 bytes.
QByteArray pcapngFile(const QByteArray& frame)
{
    return hex("0a0d0d0a 1c000000 4d3c2b1a 01000000 ffffffffffffffff 1c000000"
               "01000000 14000000 7f000000 ffff0000 14000000"
               "06000000 58000000 000000000000000000000000 38000000 38000000")
        + frame + hex("58000000");
}

const std::string CutShort =
    "the last access point left out: the text ends in its middle, or as if it did";

} // namespace

/// What is replayed but for the tool's own output: texts of iw, and captured frames.
class ReplayTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_text = readFile(QFINDTESTDATA("sample.iw"));
        QVERIFY(!m_text.isEmpty());
    }

    void contents_data()
    {
        addColumns();
        addRowsOf(QFINDTESTDATA("texts.txt"));
        QByteArray blanks = m_text;
        blanks.replace('\t', "    ");
        addRow("as iw prints it", m_text, m_heard);
        addRow("a copy with blanks", blanks, m_heard);
        addRow("lines ended by CR LF", QByteArray(m_text).replace('\n', "\r\n"), m_heard);
        addRow("words around", "# iw dev wlan0 scan\n\tfreq: 1\n" + m_text + "\n$\n", m_heard);
        addRow("indented as a whole, ends within an indent",
            "As text:\n\n  " + QByteArray(m_text).replace('\n', "\n  "), m_heard);
        addRow("byte order mark", "\xef\xbb\xbf" + m_text, m_heard);
        addRow("no line feed behind an open one", m_text.chopped(1), m_heard);
        addRow("a prompt behind WEP, without a line feed",
            "BSS 02:00:00:00:00:0a\n freq: 2412\n capability: ESS Privacy (0x0011)\n$",
            "02:00:00:00:00:0a 2412 MHz WEP");
        addRow("UTF-16", hex("fffe4200"), "f: a text in UTF-16, of which only UTF-8 can be read");

        const QByteArray hidden = hex("0003 000000");
        const auto heardAt = [](int dbm, const QByteArray& beacon) {
            return packet(radiotap(dbm) + beacon);
        };
        const auto capture = [](const char* title, const QByteArrayList& packets,
                                 const QByteArray& expected) {
            addRow(title, pcapFile(DLT_IEEE802_11_RADIO, packets), expected);
        };
        const QByteArray cafe = beacon(Cafe);
        const QByteArray found = "02:00:00:00:00:0a 2412 MHz -5000 mBm noise -95 named Cafe";
        capture("the strongest, and another's broken element",
            {heardAt(-70, cafe + hex("01")), heardAt(-50, cafe), heardAt(-60, cafe)},
            found + "\nmalformed elements 1");
        capture("two names of one address, a hidden network",
            {heardAt(-40, beacon(hidden)), heardAt(-50, cafe), heardAt(-60, beacon(hex("000142"))),
                heardAt(-60, beacon(hidden, "8000", "1000", "020000000009"))},
            "02:00:00:00:00:09 2412 MHz -6000 mBm noise -95\n"
            "02:00:00:00:00:0a 2412 MHz -6000 mBm noise -95 named B\n"
                + found);
        capture("frames of no use",
            {heardAt(-50, cafe), packet(radiotap(-10) + cafe, 1),
                packet(radiotap(-10) + beacon("", "4000"), 1), packet(""),
                packet(hex("0000 0900 02000000 40") + cafe)},
            found
                + "\n1 frame(s) passed over: neither beacon nor probe response"
                  "\n1 frame(s) left out: damaged on the air (bad checksum)"
                  "\n2 frame(s) left out: malformed or cut short");
        addRow("bare frames", pcapFile(DLT_IEEE802_11, {packet(beacon(Cafe + Ds13))}),
            "02:00:00:00:00:0a 2472 MHz named Cafe");
        addRow("pcapng", pcapngFile(radiotap(-50) + cafe), found);
        addRow("big end first, no frames",
            hex("a1b2c3d4 00020004 00000000 00000000 0000ffff 0000007f"), "");
        addRow("Ethernet", pcapFile(DLT_EN10MB, {}),
            "f: a capture of frames of type EN10MB; frames with radiotap heads, or bare IEEE "
            "802.11 "
            "ones, are what can be read");
    }

    void contents()
    {
        QFETCH(QByteArray, input);
        const Replay replay = readContents(input.toStdString(), "f");
        const QByteArray scenario = replay.kind == ReplayKind::Scenario ? "scenario" : "";
        const QByteArray problem = QByteArray::fromStdString(replay.problem);
        QTEST(scenario + described(replay.heard) + problem, "expected");
        QCOMPARE(replay.kind == ReplayKind::None, !problem.isEmpty());
    }

    // Of a text that was cut off anywhere, what is given is as in the whole text; all but the last
    // access point are, and it is said when that one is not.
    void everyPrefixOfText()
    {
        const QByteArrayList whole = m_heard.split('\n');
        for (const QByteArray& text : {m_text, QByteArray(m_text).replace('\n', "\r\n")}) {
            for (int size = 0; size <= text.size(); ++size) {
                const QByteArray cut = text.left(size);
                Heard heard = readIwText(ExactCopy(cut));
                const bool saidSo = heard.remarks == std::vector<std::string>{CutShort};
                heard.remarks.clear();
                const int count = int(heard.accessPoints.size());
                QCOMPARE(described(heard), whole.mid(0, count).join('\n'));
                const int heads = QString(cut).count(QRegularExpression("BSS(.[0-9a-f]{2}){6}"));
                QVERIFY2(count == heads || (count == heads - 1 && saidSo), cut);
            }
        }
    }

    void frames_data()
    {
        addColumns();
        addRowsOf(QFINDTESTDATA("frames.txt"));
        // The head ends at 14, the fixed part of the beacon 24 + 12 bytes behind it, the name
        // at 56.
        const QByteArray whole = radiotap(-60) + beacon(Cafe);
        const QByteArray found = "02:00:00:00:00:0a 2412 MHz -6000 mBm noise -95";
        for (int size = 0; size <= 56; ++size) {
            const QByteArray name = size == 50 ? ""
                : size < 56                    ? "\nmalformed elements 1"
                                               : " named Cafe";
            addRow("frame cut to " + QByteArray::number(size), whole.left(size).toHex(),
                size < 50 ? "malformed" : found + name);
        }
    }

    void frames()
    {
        QFETCH(QByteArray, input);
        const Frame frame = readFrame(ExactCopy(QByteArray::fromHex(input)), FrameHead::Radiotap);
        const QByteArray texts[] = {described({{frame.accessPoint}, frame.malformedElements}),
            "other", "bad checksum", "malformed"};
        QTEST(texts[int(frame.kind)], "expected");
    }

    // A capture that was cut off gives the frames before the cut, and says that there were more.
    void everyPrefixOfCapture()
    {
        const QByteArray first = packet(radiotap(-50) + beacon(Cafe));
        const QByteArray second =
            packet(radiotap(-60) + beacon(Cafe, "8000", "1000", "02000000000b"));
        const QByteArray file = pcapFile(DLT_IEEE802_11_RADIO, {first, second});
        for (int size = 4; size <= file.size(); ++size) {
            const Capture capture = readCapture(ExactCopy(file.left(size)));
            QCOMPARE(capture.problem.empty(), size >= 24); // which the head of the file takes
            QCOMPARE(int(capture.heard.accessPoints.size()), qMax(0, size - 24) / first.size());
            const bool saidSo = described(capture.heard).contains("read up to a fault in it: ");
            QCOMPARE(saidSo, size > 24 && (size - 24) % first.size() != 0);
        }
    }

private:
    QByteArray m_text; ///< iw's, with its tabs and the traps of its format
    const QByteArray m_heard =
        "02:00:00:00:00:0a 2412 MHz -5725 mBm WPA2 3520 ms named caf\xc3\xa9 \n"
        "02:00:00:00:00:0b 5180 MHz 60% ad-hoc named a b\\\\x\n"
        "02:00:00:00:00:0c 2412 MHz -7000 mBm WPA2 named late\n"
        "02:00:00:00:00:0d 2472 MHz -7100 mBm";
};

QTEST_APPLESS_MAIN(ReplayTest)
#include "tst_replay.moc"

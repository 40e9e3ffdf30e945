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
    const char* sequence = "1000", const char* address = "02000000000a",
    const char* capability = "0100")
{
    return hex(control) + hex("0000 ffffffffffff 020000000001") + hex(address) + hex(sequence)
        + QByteArray(8, 't') + hex("6400") + hex(capability) + elements;
}

// A radiotap head of 14 bytes: 2412 MHz, a level, and a noise of -95 dBm.
QByteArray radiotap(int dbm, const char* mhz = "6c09")
{
    return hex("0000 0e00 68000000") + hex(mhz) + hex("a000") + static_cast<char>(dbm) + hex("a1");
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

// The frame that a line of frames.txt stands for.
QByteArray frameOf(const QByteArray& line)
{
    QMap<QByteArray, QByteArray> parts = {{"head", "0000080000000000"}, {"control", "8000"},
        {"sequence", "1000"}, {"capability", "0100"}};
    QByteArray elements;
    for (const QByteArray& word : line.simplified().split(' ')) {
        const QByteArrayList part = word.split('=');
        if (part.size() == 2)
            parts[part[0]] = part[1];
        else
            elements += word == "cafe" ? (Cafe + Ds13).toHex() : word;
    }
    return QByteArray::fromHex(parts["head"])
        + beacon(QByteArray::fromHex(elements), parts["control"], parts["sequence"], "02000000000a",
            parts["capability"]);
}

QByteArray outcomeOf(const Frame& frame)
{
    const QByteArray texts[] = {described(Heard{frame.accessPoints, frame.malformedElements}),
        "other", "bad checksum", "malformed"};
    return texts[int(frame.kind)];
}

const std::string CutShort =
    "the last access point left out: the text ends in its middle, or as if it did";

} // namespace

/// Replays of texts of iw and of captured frames.
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
        addRow("words around", "# iw dev wlan0 scan\n\tfreq: 1\n" + m_text + "\n$\n",
            m_heard + " 20 MHz at 2472 b");
        addRow("indented as a whole, ends within an indent",
            "As text:\n\n  " + QByteArray(m_text).replace('\n', "\n  "), m_heard);
        addRow("byte order mark", "\xef\xbb\xbf" + m_text, m_heard);
        addRow("no line feed behind an open one", m_text.chopped(1), m_heard);
        addRow("a prompt behind WEP, without a line feed",
            "BSS 02:00:00:00:00:0a\n freq: 2412\n capability: ESS Privacy (0x0011)\n$",
            "02:00:00:00:00:0a 2412 MHz WEP");
        addRow("UTF-16", hex("fffe4200"), "f: a text in UTF-16, of which only UTF-8 can be read");

        const QByteArray hidden = hex("0000");
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
        const QByteArray other = "02:00:00:00:00:09 2412 MHz -5000 mBm noise -95";
        capture("two names of one address, a hidden network",
            {heardAt(-50, cafe), heardAt(-60, beacon(hex("000142"))),
                heardAt(-50, beacon(hidden, "8000", "1000", "020000000009"))},
            other + '\n' + found + "\n02:00:00:00:00:0a 2412 MHz -6000 mBm noise -95 named B");
        // Heard with its name weakly, and on two bands.
        capture("the level of the strongest frame, the name of another",
            {heardAt(-70, cafe), heardAt(-50, beacon(hex("0003 000000"))), heardAt(-80, cafe)},
            found);
        capture("one address on two bands",
            {heardAt(-60, cafe), packet(radiotap(-50, "3c14") + cafe)},
            "02:00:00:00:00:0a 5180 MHz -5000 mBm noise -95 named Cafe\n"
            "02:00:00:00:00:0a 2412 MHz -6000 mBm noise -95 named Cafe");
        capture("heard without a channel from two of them",
            {heardAt(-60, cafe), packet(radiotap(-50, "7609") + cafe)},
            "02:00:00:00:00:0a 2422 MHz -5000 mBm noise -95 named Cafe");
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
        const QByteArray ppi = hex("00002000 69000000 0200 1400") + QByteArray(8, 't')
            + hex("0100 0000 8509 a000 0000 c4 a1") + cafe + "sum!";
        addRow("PPI heads", pcapFile(DLT_PPI, {packet(ppi), packet(ppi.left(31)), packet("")}),
            "02:00:00:00:00:0a 2437 MHz -6000 mBm noise -95 named Cafe"
            "\n2 frame(s) left out: malformed or cut short");
        addRow("packed", hex("1f8b0800"), "f: packed by gzip; unpack it first, with gunzip");
        // The second interface's frames are bare ones, which libpcap does not read with others.
        const QByteArray another = hex("01000000 14000000 69000000 ffff0000 14000000");
        const QByteArray fault = "an interface has a type 105 different from the type of the first "
                                 "interface";
        const QByteArray mixed = pcapngFile(radiotap(-50) + cafe) + another;
        addRow("pcapng of two kinds", mixed,
            found + "\nthe capture was read up to a fault in it: " + fault);
        addRow("pcapng of two kinds at once", mixed.left(48) + another,
            "f: no access point before a fault in the capture: " + fault);
        addRow("pcapng", pcapngFile(radiotap(-50) + cafe), found);
        addRow("big end first, no frames",
            hex("a1b2c3d4 00020004 00000000 00000000 0000ffff 0000007f"), "");
        addRow("Ethernet", pcapFile(DLT_EN10MB, {}),
            "f: a capture of frames of type EN10MB; frames with radiotap or PPI heads, or bare "
            "IEEE 802.11 ones, are what can be read");
    }

    void contents()
    {
        QFETCH(QByteArray, input);
        const Replay replay = readContents(iwText(input), "f");
        const QByteArray scenario = replay.kind == ReplayKind::Scenario ? "scenario" : "";
        const QByteArray problem = QByteArray::fromStdString(replay.problem);
        const Heard heard = scanResultOf(replay.heard).heard;
        QTEST(scenario + described(heard) + problem, "expected");
        QCOMPARE(replay.kind == ReplayKind::None, !problem.isEmpty());
    }

    // A text that was cut off anywhere gives the same results as the whole text; all but the last
    // access point are, and it is said when that one is not.
    void everyPrefixOfText()
    {
        const auto withoutDetails = [](Heard heard) {
            for (AccessPoint& accessPoint : heard.accessPoints)
                accessPoint.details = {};
            heard.remarks.clear();
            return described(heard);
        };
        const QByteArrayList whole = withoutDetails(readIwText(m_text.toStdString())).split('\n');
        for (const QByteArray& text : {m_text, QByteArray(m_text).replace('\n', "\r\n")}) {
            for (int size = 0; size <= text.size(); ++size) {
                const QByteArray cut = text.left(size);
                const Heard heard = readIwText(ExactCopy(cut));
                const bool saidSo = heard.remarks == std::vector<std::string>{CutShort};
                const int count = int(heard.accessPoints.size());
                QCOMPARE(withoutDetails(heard), whole.mid(0, count).join('\n'));
                const int heads = QString(cut).count(QRegularExpression("BSS(.[0-9a-f]{2}){6}"));
                QVERIFY2(count == heads || (count == heads - 1 && saidSo), cut);
            }
        }
    }

    void frames_data() { addTableOf(QFINDTESTDATA("frames.txt")); }

    void frames()
    {
        QFETCH(QByteArray, input);
        QByteArrayList found;
        for (const QByteArray& line : input.trimmed().split('\n'))
            found += outcomeOf(readFrame(ExactCopy(frameOf(line)), FrameHead::Radiotap));
        QTEST(found.join('\n'), "expected");
    }

    // An element that was cut off costs that element alone, and the elements before it stay.
    void everyPrefixOfFrame()
    {
        const QByteArray head = radiotap(-60) + beacon("");
        const QByteArrayList elements = {Cafe, hex("0104 82848b96"), hex("0b05 0300 40 0000"),
            hex("3014 0100 000fac04 0100 000fac04 0100 000fac08 0000"),
            hex("3d16 0105") + QByteArray(20, '\0'), hex("7204 4d657368"), hex("c005 012a320000"),
            hex("dd14 506f9a12 000fac04 0100 000fac04 0100 506f9a01"),
            hex("470f 02 000c 5302 2104 0001 42 5503 01 02 03"), hex("4709 02 0006 3204 82848b96"),
            hex("ff0f 24 004002 00 fcff 012a00 05 02 07 00 06"), hex("ff09 6a 01 00000000 04 0f1f"),
            hex("ff0a 6b 0000 07 020000000099"), hex("ff06 38 02 3001 01 24")};
        QByteArray whole = head;
        QList<int> ends = {whole.size()};
        for (const QByteArray& element : elements) {
            QCOMPARE(element.size(), 2 + quint8(element[1]));
            whole += element;
            ends += whole.size();
        }
        for (int size = 0; size <= whole.size(); ++size) {
            const Frame frame = readFrame(ExactCopy(whole.left(size)), FrameHead::Radiotap);
            QCOMPARE(frame.accessPoints.empty(), size < head.size());
            QVERIFY2(size < head.size() || (frame.malformedElements > 0) != ends.contains(size),
                whole.left(size).toHex());
        }
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
            const int count = qMax(0, size - 24) / first.size(); // after the head of the file
            QCOMPARE(int(capture.heard.accessPoints.size()), count);
            const bool isCut = size < 24 || (size - 24) % first.size() != 0;
            QCOMPARE(!capture.problem.empty(), isCut && count == 0);
            const bool saidSo = described(capture.heard).contains("read up to a fault in it: ");
            QCOMPARE(saidSo, isCut && count > 0);
        }
    }

private:
    QByteArray m_text; ///< iw's, with its tabs and the traps of its format
    const QByteArray m_heard =
        "02:00:00:00:00:0a 2412 MHz -5725 mBm WPA2 n 3520 ms named caf\xc3\xa9 \n"
        "02:00:00:00:00:0b 5180 MHz 60% ad-hoc named a b\\\\x\n"
        "02:00:00:00:00:0c 2412 MHz -7000 mBm WPA2 20 MHz at 2412 b named late\n"
        "02:00:00:00:00:0d 2472 MHz -7100 mBm";
};

QTEST_APPLESS_MAIN(ReplayTest)
#include "tst_replay.moc"

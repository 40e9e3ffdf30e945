#include "capture.h"
#include "frame.h"
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

using Packet = std::pair<QByteArray, int>; // bytes, and how many were cut off

// Little end first, version 2.4.
QByteArray pcapFile(quint32 linkType, const QList<Packet>& packets)
{
    QByteArray file = hex("d4c3b2a1 0200 0400 0000000000000000 ffff0000") + host(linkType);
    for (const auto& [bytes, missing] : packets)
        file += QByteArray(8, '\0') + host(bytes.size()) + host(bytes.size() + missing) + bytes;
    return file;
}

QByteArray block(quint32 type, QByteArray body)
{
    body += QByteArray(-body.size() & 3, '\0');
    const QByteArray size = host(quint32(body.size() + 12));
    return host(type) + size + body + size;
}

QByteArray pcapngFile(quint16 linkType, const QByteArray& packet)
{
    const QByteArray size = host(quint32(packet.size()));
    return block(0x0a0d0d0a,
               host(0x1a2b3c4du) + host(quint16(1)) + host(quint16(0)) + host(qint64(-1)))
        + block(1, host(linkType) + host(quint16(0)) + host(65535u))
        + block(6, QByteArray(12, '\0') + size + size + packet);
}

} // namespace

class CaptureTest : public QObject {
    Q_OBJECT

private slots:
    void frames_data();
    void frames();
    void captures_data();
    void captures();
    void everyPrefix();
};

void CaptureTest::frames_data()
{
    addColumns();
    const auto headed = [](const QByteArray& title, const char* head, const QByteArray& read,
                            const QByteArray& frame = beacon(Cafe + Ds13)) {
        addRow(title, hex(head) + frame, read);
    };
    const auto bare = [&headed](
                          const char* title, const QByteArray& frame, const QByteArray& read) {
        headed(title, "0000 0800 00000000", read, frame);
    };
    const QByteArray ofDs = "02:00:00:00:00:0a 2472 MHz";
    const QByteArray cafe = ofDs + " named Cafe; ";
    const QByteArray ht = hex("3d16 24") + QByteArray(21, '\0');

    bare("probe response", beacon(Cafe + Ds13, "5000"), cafe);
    for (const char* const control : {"4000", "8800", "8100"}) // request, data, later version
        bare(control, beacon(Cafe, control), "other");
    // What the builder puts 4 bytes early is interval and capability (with privacy) here.
    bare("HT control", beacon(hex("64001100") + Cafe + Ds13, "8080"), ofDs + " WEP named Cafe; ");
    bare("first fragment", beacon(Cafe + Ds13, "8004"), "malformed");
    bare("second fragment", beacon(Cafe + Ds13, "8000", "1100"), "malformed");
    bare("no channel", beacon(Cafe), "malformed");
    bare("channel by HT operation", beacon(ht), "02:00:00:00:00:0a 5180 MHz; ");
    bare("DS parameter set first", beacon(ht + Ds13), ofDs + "; ");
    bare("short HT operation", beacon(hex("3d01 24") + Ds13), ofDs + "; malformed elements 1");

    // 2437 is 0985, -60 is c4, -95 is a1. The beacon names channel 13.
    const QByteArray near = "02:00:00:00:00:0a 2437 MHz -6000 mBm named Cafe; ";
    headed("all fields", "0000 1a00 7f000000 0000000000000000 00 02 8509 a000 0000 c4 a1",
        "02:00:00:00:00:0a 2437 MHz -6000 mBm noise -95 named Cafe; ");
    headed("filled up before the channel", "0000 0f00 2a000000 00 ff 8509 a000 c4", near);
    headed("filled up before the time", "0000 1900 21000080 00000000 ffffffff 0000000000000000 c4",
        ofDs + " -6000 mBm named Cafe; ");
    headed(
        "two antennas", "0000 0f00 22000080 20000000 00 c4 b0", ofDs + " -6000 mBm named Cafe; ");
    headed("fields behind the known ones", "0000 1000 28400000 8509 a000 c4 00 0000", near);
    headed("noise above 0", "0000 0e00 68000000 8509 a000 c4 05", near);
    headed("later version of the head", "0100 0800 00000000", "malformed");
    headed("head shorter than itself", "0000 0700 00000000", "malformed");
    headed("fields beyond the head", "0000 0a00 28000000 8509 a000 c4", "malformed");
    headed("row of words beyond the head", "0000 0c00 00000080 00000080", "malformed");
    headed("bad checksum", "0000 0900 02000000 50", "bad checksum");
    headed("checksum, reads as an element", "0000 0900 02000000 10", cafe,
        beacon(Cafe + Ds13) + hex("00020000"));

    // The head ends at 14, the fixed part of the beacon 24 + 12 bytes behind it, the name at 56.
    const QByteArray whole = radiotap(-60) + beacon(Cafe);
    const QByteArray found = "02:00:00:00:00:0a 2412 MHz -6000 mBm noise -95";
    for (int size = 0; size <= 56; ++size) {
        const QByteArray name = size == 50 ? "; "
            : size < 56                    ? "; malformed elements 1"
                                           : " named Cafe; ";
        addRow("frame cut to " + QByteArray::number(size), whole.left(size),
            size < 50 ? "malformed" : found + name);
    }
}

void CaptureTest::frames()
{
    QFETCH(QByteArray, input);
    const std::vector<char> copy = exactCopy(input);
    const Frame frame = readFrame(ByteCursor(copy.data(), copy.size()), FrameHead::Radiotap);
    const QByteArray texts[] = {described({{frame.accessPoint}, frame.malformedElements}), "other",
        "bad checksum", "malformed"};
    QTEST(texts[int(frame.kind)], "expected");
}

void CaptureTest::captures_data()
{
    addColumns();
    const QByteArray hidden = hex("0003 000000");
    const auto cafe = [](int dbm) { return Packet(radiotap(dbm) + beacon(Cafe), 0); };
    const QByteArray found = "02:00:00:00:00:0a 2412 MHz -5000 mBm noise -95 named Cafe; ";

    addRow(
        "the strongest", pcapFile(DLT_IEEE802_11_RADIO, {cafe(-70), cafe(-50), cafe(-60)}), found);
    addRow("two names of one address, a hidden network",
        pcapFile(DLT_IEEE802_11_RADIO,
            {{radiotap(-40) + beacon(hidden), 0}, cafe(-50),
                {radiotap(-60) + beacon(hex("000142"), "5000"), 0},
                {radiotap(-60) + beacon(hidden, "8000", "1000", "02000000000b"), 0}}),
        "02:00:00:00:00:0a 2412 MHz -6000 mBm noise -95 named B; " + found
            + "02:00:00:00:00:0b 2412 MHz -6000 mBm noise -95; ");
    addRow("frames of no use",
        pcapFile(DLT_IEEE802_11_RADIO,
            {cafe(-50), {radiotap(-10) + beacon(Cafe), 1}, {radiotap(-10) + beacon("", "4000"), 1},
                {"", 0}, {hex("0000 0900 02000000 40") + beacon(Cafe), 0}}),
        found
            + "(1 frame(s) passed over: neither beacon nor probe response)"
              "(1 frame(s) left out: damaged on the air (bad checksum))"
              "(2 frame(s) left out: malformed or cut short)");
    addRow("bare frames", pcapFile(DLT_IEEE802_11, {{beacon(Cafe + Ds13), 0}}),
        "02:00:00:00:00:0a 2472 MHz named Cafe; ");
    addRow("pcapng", pcapngFile(DLT_IEEE802_11_RADIO, radiotap(-50) + beacon(Cafe)), found);
    addRow("big end first, no frames", hex("a1b2c3d4 00020004 00000000 00000000 0000ffff 0000007f"),
        "");

    addRow("Ethernet", pcapFile(DLT_EN10MB, {}),
        "f: a capture of frames of type EN10MB; frames with radiotap heads, or bare IEEE 802.11 "
        "ones, are what can be read");
}

void CaptureTest::captures()
{
    QFETCH(QByteArray, input);
    const Replay replay = readContents(input.toStdString(), "f");
    QCOMPARE(replay.kind == ReplayKind::Capture, replay.problem.empty());
    QTEST(described(replay.heard) + QByteArray::fromStdString(replay.problem), "expected");
}

// A capture that was cut off gives the frames before the cut, and says that there were more.
void CaptureTest::everyPrefix()
{
    const QByteArray second = radiotap(-60) + beacon(Cafe, "8000", "1000", "02000000000b");
    const QByteArray file =
        pcapFile(DLT_IEEE802_11_RADIO, {{radiotap(-50) + beacon(Cafe), 0}, {second, 0}});
    const int frame = 16 + second.size(); // in the file, with its head, behind one of 24 bytes
    for (int size = 4; size <= 24 + 2 * frame; ++size) {
        const Replay replay = readContents(file.left(size).toStdString(), "f");
        QCOMPARE(replay.problem.empty(), size >= 24);
        QCOMPARE(int(replay.heard.accessPoints.size()), size < 24 ? 0 : (size - 24) / frame);
        const bool saidSo = described(replay.heard).contains("read up to a fault in it: ");
        QCOMPARE(saidSo, size > 24 && (size - 24) % frame != 0);
    }
}

QTEST_APPLESS_MAIN(CaptureTest)
#include "tst_capture.moc"

#include "bss.h"
#include "scannedchannels.h"
#include "tables.h"

#include <linux/nl80211.h>

using namespace wifiscan;

namespace {

QByteArray element(int id, const QByteArray& body)
{
    return QByteArray(1, static_cast<char>(id)) + static_cast<char>(body.size()) + body;
}

// "5180 -91 0.25": frequency, noise and share of busy time
QByteArray useIn(const QByteArray& bytes)
{
    const ChannelUse use = readSurvey(ExactCopy(bytes)).value_or(ChannelUse());
    return QByteArray::number(use.frequencyMhz) + ' ' + QByteArray::number(use.noiseDbm.value_or(0))
        + ' ' + QByteArray::number(use.busy.value_or(-1));
}

// Those with radar are negative.
std::vector<int> frequenciesOf(const QByteArray& bands)
{
    std::vector<RadioFrequency> all = {{1, false}}; // another band's, to which these are added
    addFrequencies(ExactCopy(bands), all);
    std::vector<int> numbers;
    numbers.reserve(all.size());
    for (const RadioFrequency& frequency : all)
        numbers.push_back(frequency.radar ? -frequency.mhz : frequency.mhz);
    return numbers;
}

} // namespace

class BssTest : public QObject {
    Q_OBJECT
private slots:
    void accessPoints_data()
    {
        addColumns();
        const QByteArray address = attribute(NL80211_BSS_BSSID, hex("02000000be01"));
        const QByteArray frequency = attribute(NL80211_BSS_FREQUENCY, host(quint32(2437)));
        const QByteArray head = address + frequency;
        const QByteArray found = "02:00:00:00:be:01 2437 MHz";
        // CCMP with SAE: a newer method that still must not be taken for none.
        const QByteArray suites = hex("0100 000fac04 0100 000fac04 0100 000fac08 c000");
        const QByteArray rsn = element(48, suites);
        const QByteArray wpa = hex("0050f201 0100 0050f202 0100 0050f202 0100 0050f202");

        const QByteArray all = head + attribute(NL80211_BSS_CAPABILITY, host(quint16(0x0412)))
            + attribute(NL80211_BSS_SIGNAL_MBM, host(qint32(-6650)))
            + attribute(NL80211_BSS_SEEN_MS_AGO, host(quint32(1200)))
            + attribute(NL80211_BSS_INFORMATION_ELEMENTS, element(0, "Cafe") + rsn)
            + attribute(NL80211_BSS_BEACON_IES, element(0, ""));
        addRow("all, the name of the probe response", all,
            found + " -6650 mBm WPA2 SAE ad-hoc 1200 ms named Cafe");
        addRow("beacon only", head + attribute(NL80211_BSS_BEACON_IES, rsn), found + " WPA2 SAE");
        addRow("no address", frequency, "malformed 1");
        addRow("no frequency", address, "malformed 1");
        addRow("frequency by the DS parameter set",
            address + attribute(NL80211_BSS_INFORMATION_ELEMENTS, hex("03010d 030101")),
            "02:00:00:00:be:01 2472 MHz");
        addRow("frequency beyond 31 bits",
            address + attribute(NL80211_BSS_FREQUENCY, host(quint32(0x80000000))), "malformed 1");
        addRow("strength beyond its range", head + attribute(NL80211_BSS_SIGNAL_UNSPEC, hex("ff")),
            found + " 100%");
        addRow("privacy alone", head + attribute(NL80211_BSS_CAPABILITY, host(quint16(0x10))),
            found + " WEP");
        addRow("unknown attribute, flag of nesting",
            attribute(99, "?") + attribute(NL80211_BSS_BSSID | 0x8000, hex("02000000be01"))
                + frequency,
            found);
        addRow("length below that of a head", head + host(quint16(3)) + host(quint16(1)),
            "malformed 1");
        for (const int type : {NL80211_BSS_BSSID, NL80211_BSS_FREQUENCY, NL80211_BSS_CAPABILITY,
                 NL80211_BSS_SIGNAL_MBM, NL80211_BSS_SIGNAL_UNSPEC, NL80211_BSS_SEEN_MS_AGO})
            for (const QByteArray payload : {"", "7 bytes"})
                addRow("type " + QByteArray::number(type) + " of wrong size, '" + payload + "'",
                    head + attribute(type, payload), "malformed 1");

        // 4 + 6 and two to fill up, 4 + 4, 4 + 6 and two, 4 + 1 and three.
        const QByteArray bytes = head
            + attribute(NL80211_BSS_INFORMATION_ELEMENTS, element(0, "Cafe"))
            + attribute(NL80211_BSS_SIGNAL_UNSPEC, hex("32"));
        for (int size = 0; size <= 12 + 8 + 12 + 8; ++size) {
            const bool whole = size == 20 || (size >= 30 && size <= 32) || size >= 37;
            addRow("attributes cut to " + QByteArray::number(size), bytes.left(size),
                !whole ? "malformed 1"
                       : found + (size >= 37 ? " 50%" : "") + (size >= 30 ? " named Cafe" : ""));
        }

        const auto elements = [&](const char* title, const QByteArray& body,
                                  const QByteArray& read) {
            addRow(title, head + attribute(NL80211_BSS_INFORMATION_ELEMENTS, body, false),
                found + read);
        };

        // RSN ends after each of its parts: version 2, group 4, pairwise 2 + 4, keys 2 + 4,
        // capabilities 2, PMKIDs 2 + 16, group management 4. Later editions have further fields.
        const QByteArray longest =
            suites + hex("0100") + QByteArray(16, 'k') + hex("000fac06") + "new";
        for (int size = 0; size <= longest.size(); ++size) {
            const bool whole = QList<int>{2, 6, 12, 18, 20, 38}.contains(size) || size >= 42;
            const QByteArray keys = size >= 18 ? " SAE" : whole ? " 802.1X" : "";
            elements("RSN cut to " + QByteArray::number(size), element(48, longest.left(size)),
                " WPA2" + keys + (whole ? "" : "\nmalformed elements 1"));
        }

        // The elements end at 2 + 4, + 2 + 22, + 2 + 20: no other cut is free of fault.
        const QByteArray row = element(0, "Cafe") + element(221, wpa) + rsn;
        for (int size = 0; size <= 52; ++size) {
            const QByteArray method = size >= 52 ? " WPA2 PSK+SAE" : size >= 30 ? " WPA1 PSK" : "";
            const bool whole = QList<int>{0, 6, 30, 52}.contains(size);
            elements("elements cut to " + QByteArray::number(size), row.left(size),
                method + (size >= 6 ? " named Cafe" : "")
                    + (whole ? "" : "\nmalformed elements 1"));
        }
    }

    void accessPoints()
    {
        QFETCH(QByteArray, input);
        Heard heard;
        heard.malformedElements = 10; // others', to which these are added
        if (const auto read = readBss(ExactCopy(input), heard.malformedElements))
            heard.accessPoints.push_back(*read);
        else
            heard.malformedAccessPoints = 1;
        heard.malformedElements -= 10;
        QTEST(described(heard), "expected");
    }

    void surveys()
    {
        const QByteArray frequency = attribute(NL80211_SURVEY_INFO_FREQUENCY, host(quint32(5180)));
        const auto noise = [](const char* level) {
            return attribute(NL80211_SURVEY_INFO_NOISE, hex(level));
        };
        const auto times = [](quint64 all, quint64 busy) {
            return attribute(NL80211_SURVEY_INFO_TIME, host(all))
                + attribute(NL80211_SURVEY_INFO_TIME_BUSY, host(busy));
        };
        QCOMPARE(useIn(frequency + noise("a5")), QByteArray("5180 -91 -1")); // 0xa5 - 256
        QCOMPARE(useIn(noise("80") + frequency + times(80, 20)), QByteArray("5180 -128 0.25"));
        for (const QByteArray& bytes :
            {times(0, 0), times(4, 5), noise("00"), times(4, 0).left(12)})
            QCOMPARE(useIn(frequency + bytes), QByteArray("5180 0 -1"));
        for (const QByteArray& bytes : {noise("a5"), frequency + noise("a5a5"), frequency + "?"})
            QCOMPARE(useIn(bytes), QByteArray("0 0 -1"));
    }

    void bands()
    {
        const auto frequency = [](const QByteArray& mhz, int flag = NL80211_FREQUENCY_ATTR_NO_IR) {
            return attribute(1, attribute(NL80211_FREQUENCY_ATTR_FREQ, mhz) + attribute(flag, ""));
        };
        const auto band = [&frequency](const QByteArray& list) {
            return attribute(0,
                attribute(NL80211_BAND_ATTR_RATES, frequency(host(10)))
                    + attribute(NL80211_BAND_ATTR_FREQS, list));
        };
        const QByteArray disabled = frequency(host(2467), NL80211_FREQUENCY_ATTR_DISABLED);
        const QByteArray broken =
            frequency("ab") + frequency(host(0)) + frequency(host(0x80000000));
        const QByteArray bands = band(frequency(host(2412)) + disabled + broken)
            + band(frequency(host(5260), NL80211_FREQUENCY_ATTR_RADAR));
        QCOMPARE(frequenciesOf(bands), std::vector<int>({1, 2412, -5260}));
        for (int size = 0; size < bands.size(); ++size) // none is read beyond its end
            QVERIFY(frequenciesOf(bands.left(size)).size() <= 3);
    }

    void coverage()
    {
        const QByteArray scanned = attribute(0, host(2412)) + attribute(1, host(5180));
        QCOMPARE(readScanFrequencies(ExactCopy(scanned)), std::vector<int>({2412, 5180}));
        for (const QByteArray& broken : {scanned.chopped(1), scanned + attribute(2, "ab"),
                 scanned + attribute(2, host(0)), QByteArray()})
            QCOMPARE(readScanFrequencies(ExactCopy(broken)), std::vector<int>());
        const QByteArray names = attribute(0, "Pilot") + attribute(1, {});
        QVERIFY(hasAnyName(ExactCopy(names)));
        QVERIFY(!hasAnyName(ExactCopy(names.left(12))) && !hasAnyName(ByteCursor()));
    }
};

QTEST_APPLESS_MAIN(BssTest)
#include "tst_bss.moc"

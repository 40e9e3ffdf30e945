#include "bss.h"
#include "elements.h"
#include "exactcopy.h"

#include <QtTest>

#include <linux/nl80211.h>

using namespace wifiscan;

namespace {

QByteArray hex(const char* text)
{
    return QByteArray::fromHex(text);
}

QByteArray element(int id, const QByteArray& body)
{
    return QByteArray(1, static_cast<char>(id)) + static_cast<char>(body.size()) + body;
}

Elements elementsOf(const QByteArray& bytes)
{
    const ExactCopy copy(bytes);
    return readElements(ByteCursor(copy.data(), copy.size()));
}

template <typename Number> QByteArray host(Number number)
{
    return QByteArray(reinterpret_cast<const char*>(&number), sizeof number);
}

QByteArray attribute(int type, const QByteArray& payload)
{
    QByteArray bytes = host(quint16(4 + payload.size())) + host(quint16(type)) + payload;
    while (bytes.size() % 4 != 0)
        bytes += '\0';
    return bytes;
}

std::optional<AccessPoint> bssOf(const QByteArray& bytes, int* malformed = nullptr)
{
    const ExactCopy copy(bytes);
    int ignored = 0;
    return readBss(ByteCursor(copy.data(), copy.size()), malformed ? *malformed : ignored);
}

const QByteArray Suites = hex("0100 000fac04 0100 000fac04 0100 000fac02 0000");
const QByteArray Wpa = hex("0050f201 0100 0050f202 0100 0050f202 0100 0050f202");

QByteArray addressAttribute()
{
    return attribute(NL80211_BSS_BSSID, hex("02000000be01"));
}

QByteArray frequencyAttribute()
{
    return attribute(NL80211_BSS_FREQUENCY, host(quint32(2437)));
}

} // namespace

class BssTest : public QObject {
    Q_OBJECT

private slots:
    void elements_data();
    void elements();
    void everyPrefixOfElements();
    void accessPoint();
    void accessPointVariants_data();
    void accessPointVariants();
    void strengthAndMode();
    void wrongLength_data();
    void wrongLength();
    void everyPrefixOfAccessPoint();
    void survey_data();
    void survey();
};

void BssTest::elements_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("malformed");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("rsn");
    QTest::addColumn<bool>("wpa");
    const auto row = [](const char* title, const QByteArray& bytes, int malformed,
                         const QByteArray& name = {}, bool rsn = false, bool wpa = false) {
        QTest::newRow(title) << bytes << malformed << name << rsn << wpa;
    };
    const QByteArray name32(32, 'n');

    row("nothing", {}, 0);
    row("empty name", hex("0000"), 0);
    row("name of 32 bytes", element(0, name32), 0, name32);
    row("name of 33 bytes costs the name alone", element(0, name32 + "n") + element(48, Suites), 1,
        {}, true);
    row("a later name is another one's", hex("000141 000142"), 0, "A");
    row("a later name does not unveil a hidden one", hex("0000 000142"), 0);
    row("channel of two bytes", hex("03020b0b 000141"), 1, "A");
    row("unknown elements", hex("0101 82 000141 ff03010203"), 0, "A");

    // RSN ends after each of its parts: version 2, group 4, pairwise 2 + 4, keys 2 + 4,
    // capabilities 2, PMKIDs 2 + 16, group management 4. Anything between is malformed.
    const QByteArray rsn = Suites + hex("0100") + QByteArray(16, 'k') + hex("000fac06");
    for (int size = 0; size <= rsn.size(); ++size) {
        const bool whole = QList<int>{2, 6, 12, 18, 20, 38, 42}.contains(size);
        const QByteArray title = "RSN cut to " + QByteArray::number(size);
        row(title, element(48, rsn.left(size)), whole ? 0 : 1, {}, true);
    }
    row("RSN of a later edition", element(48, rsn + "later"), 0, {}, true);
    row("RSN, more suites than bytes", element(48, hex("0100 000fac04 ffff 000fac04")), 1, {},
        true);
    row("RSN, empty lists", element(48, hex("0100 000fac04 0000 0000")), 0, {}, true);

    row("WPA", element(221, Wpa), 0, {}, false, true);
    row("WPA, version alone", element(221, Wpa.left(6)), 0, {}, false, true);
    row("WPA without a version", element(221, Wpa.left(4)), 1, {}, false, true);
    row("WPA and RSN", element(221, Wpa) + element(48, Suites), 0, {}, true, true);
    row("WPS is not WPA", element(221, hex("0050f204 104a000110")), 0);
    row("vendor of two bytes", element(221, hex("0050")), 0);

    row("claims more than there is", hex("000141 3005 0100"), 1, "A");
    row("no length", hex("000141 30"), 1, "A");
}

void BssTest::elements()
{
    QFETCH(QByteArray, bytes);
    const Elements elements = elementsOf(bytes);
    QTEST(QByteArray::fromStdString(elements.name), "name");
    QTEST(elements.rsn, "rsn");
    QTEST(elements.wpa, "wpa");
    QTEST(elements.malformed, "malformed");
}

void BssTest::everyPrefixOfElements()
{
    const QByteArray bytes =
        element(0, "Cafe") + element(3, hex("06")) + element(48, Suites) + element(221, Wpa);
    // The elements end at 2 + 4, + 2 + 1, + 2 + 20, + 2 + 22: no other cut is free of fault.
    const QList<int> ends = {0, 6, 9, 31, 55};
    QCOMPARE(bytes.size(), 55);
    for (int size = 0; size <= bytes.size(); ++size) {
        const Elements elements = elementsOf(bytes.left(size));
        QCOMPARE(elements.malformed, ends.contains(size) ? 0 : 1);
        QCOMPARE(elements.name, std::string(size >= 6 ? "Cafe" : ""));
        QCOMPARE(elements.channel, size >= 9 ? 6 : 0);
        QCOMPARE(elements.rsn, size >= 31);
        QCOMPARE(elements.wpa, size >= 55);
    }
}

void BssTest::accessPoint()
{
    const QByteArray named = element(0, "Cafe") + element(48, Suites);
    int malformed = 0;
    const auto result = bssOf(addressAttribute() + frequencyAttribute()
            + attribute(NL80211_BSS_CAPABILITY, host(quint16(0x0411)))
            + attribute(NL80211_BSS_SIGNAL_MBM, host(qint32(-6650)))
            + attribute(NL80211_BSS_SEEN_MS_AGO, host(quint32(1200)))
            + attribute(NL80211_BSS_INFORMATION_ELEMENTS, named)
            + attribute(NL80211_BSS_BEACON_IES, element(0, "")),
        &malformed);
    QVERIFY(result.has_value());
    QCOMPARE(malformed, 0);
    QCOMPARE(result->address, (Address{0x02, 0, 0, 0, 0xbe, 0x01}));
    QCOMPARE(result->frequencyMhz, 2437);
    QCOMPARE(result->name, std::string("Cafe")); // of the probe response, not of the beacon
    QCOMPARE(result->signal.unit, Signal::Unit::Mbm);
    QCOMPARE(result->signal.value, -6650);
    QCOMPARE(result->security, Security::Wpa2);
    QCOMPARE(result->ageMs, std::optional<std::uint32_t>(1200));
    QVERIFY(!result->adHoc);
}

void BssTest::accessPointVariants_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<int>("frequency"); // 0: malformed
    QTest::addColumn<int>("security");
    const auto row = [](const char* title, const QByteArray& attributes, int frequency = 0,
                         Security security = Security::Open) {
        QTest::newRow(title) << attributes << frequency << int(security);
    };
    const auto elements = [](const QByteArray& bytes) {
        return attribute(NL80211_BSS_INFORMATION_ELEMENTS, bytes);
    };
    const QByteArray address = addressAttribute();
    const QByteArray head = address + frequencyAttribute();
    const QByteArray privacy = attribute(NL80211_BSS_CAPABILITY, host(quint16(0x10)));
    const QByteArray newest = hex("0100 000fac04 0100 000fac04 0200 000fac08 000fac12 c000");

    row("no more than it must have", head, 2437);
    row("no address", frequencyAttribute());
    row("no frequency", address);
    row("frequency by the DS parameter set", address + elements(hex("03010d")), 2472);
    row("frequency beyond 31 bits",
        address + attribute(NL80211_BSS_FREQUENCY, host(quint32(0x80000000))));
    row("privacy alone", head + privacy, 2437, Security::Wep);
    row("WPA", head + privacy + elements(element(221, Wpa)), 2437, Security::Wpa1);
    row("SAE and OWE only", head + elements(element(48, newest)), 2437, Security::Wpa2);
    row("beacon only", head + attribute(NL80211_BSS_BEACON_IES, element(48, Suites)), 2437,
        Security::Wpa2);
    row("broken RSN is not open", head + elements(hex("300101")), 2437, Security::Wpa2);
    row("unknown attribute", attribute(99, "?") + head, 2437);
    row("type with the flag of nesting",
        attribute(NL80211_BSS_BSSID | 0x8000, hex("02000000be01")) + frequencyAttribute(), 2437);
    row("attribute shorter than its head", head + host(quint16(3)) + host(quint16(1)));
    row("attribute longer than the bytes", head + host(quint16(9)) + host(quint16(99)) + "?");
    row("half a head", head + host(quint16(4)));
}

void BssTest::accessPointVariants()
{
    QFETCH(QByteArray, attributes);
    const AccessPoint result = bssOf(attributes).value_or(AccessPoint());
    QTEST(result.frequencyMhz, "frequency");
    QTEST(int(result.security), "security");
}

void BssTest::strengthAndMode()
{
    const QByteArray head = addressAttribute() + frequencyAttribute()
        + attribute(NL80211_BSS_CAPABILITY, host(quint16(0x02)));
    const auto result = bssOf(head + attribute(NL80211_BSS_SIGNAL_UNSPEC, host(quint8(60))));
    QVERIFY(result && result->adHoc);
    QCOMPARE(result->signal.unit, Signal::Unit::Percent);
    QCOMPARE(result->signal.value, 60);
    const auto most = bssOf(head + attribute(NL80211_BSS_SIGNAL_UNSPEC, host(quint8(255))));
    QVERIFY(most && most->signal.value == 100);
}

void BssTest::wrongLength_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("length");
    QTest::newRow("BSSID") << int(NL80211_BSS_BSSID) << 6;
    QTest::newRow("frequency") << int(NL80211_BSS_FREQUENCY) << 4;
    QTest::newRow("capability") << int(NL80211_BSS_CAPABILITY) << 2;
    QTest::newRow("level") << int(NL80211_BSS_SIGNAL_MBM) << 4;
    QTest::newRow("strength") << int(NL80211_BSS_SIGNAL_UNSPEC) << 1;
    QTest::newRow("age") << int(NL80211_BSS_SEEN_MS_AGO) << 4;
}

void BssTest::wrongLength()
{
    QFETCH(int, type);
    QFETCH(int, length);
    const QByteArray head = addressAttribute() + frequencyAttribute();
    QVERIFY(!bssOf(head + attribute(type, QByteArray(length - 1, '\1'))));
    QVERIFY(bssOf(head + attribute(type, QByteArray(length, '\1'))));
    QVERIFY(!bssOf(head + attribute(type, QByteArray(length + 1, '\1'))));
}

void BssTest::everyPrefixOfAccessPoint()
{
    const QByteArray bytes = addressAttribute() + frequencyAttribute()
        + attribute(NL80211_BSS_INFORMATION_ELEMENTS, element(0, "Cafe"))
        + attribute(NL80211_BSS_SIGNAL_UNSPEC, hex("32"));
    // 4 + 6 and two to fill up, 4 + 4, 4 + 6 and two, 4 + 1 and three. What fills up may be
    // missing.
    QCOMPARE(bytes.size(), 12 + 8 + 12 + 8);
    const QList<int> whole = {20, 30, 31, 32, 37, 38, 39, 40};
    for (int size = 0; size <= bytes.size(); ++size)
        QCOMPARE(bssOf(bytes.left(size)).has_value(), whole.contains(size));
}

void BssTest::survey_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<int>("frequency"); // 0: none is read
    QTest::addColumn<int>("dbm");
    const QByteArray frequency = attribute(NL80211_SURVEY_INFO_FREQUENCY, host(quint32(5180)));
    const auto noise = [](int byte) {
        return attribute(NL80211_SURVEY_INFO_NOISE, QByteArray(1, char(byte)));
    };
    QTest::newRow("noise") << frequency + noise(0xa5) << 5180 << -91; // 0xa5 - 256
    QTest::newRow("none measured") << frequency << 0 << 0;
    QTest::newRow("not below 0") << frequency + noise(5) << 0 << 0;
    QTest::newRow("no frequency") << noise(0xa5) << 0 << 0;
    QTest::newRow("noise of two bytes")
        << frequency + attribute(NL80211_SURVEY_INFO_NOISE, "aa") << 0 << 0;
    QTest::newRow("cut") << (frequency + noise(0xa5)).left(10) << 0 << 0;
}

void BssTest::survey()
{
    QFETCH(QByteArray, attributes);
    const ExactCopy copy(attributes);
    const Noise noise = readSurvey(ByteCursor(copy.data(), copy.size())).value_or(Noise());
    QTEST(noise.frequencyMhz, "frequency");
    QTEST(noise.dbm, "dbm");
}

QTEST_APPLESS_MAIN(BssTest)
#include "tst_bss.moc"

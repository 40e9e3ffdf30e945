#include "anonymous.h"
#include "json.h"
#include "tables.h"

using namespace wifiscan;

namespace {

AccessPoint accessPoint(const std::string& name, int frequency, int address)
{
    AccessPoint result;
    result.address = {0x02, 0xaa, 0xbb, 0x01, 0x02, static_cast<std::uint8_t>(address)};
    result.name = name;
    result.frequencyMhz = frequency;
    return result;
}

// By another reader of JSON than the writer's library. No object when it is not valid.
QJsonObject read(const Report& report)
{
    return QJsonDocument::fromJson(QByteArray::fromStdString(jsonOf(report))).object();
}

// With single quotes, for the eye.
QByteArray compact(const QJsonValue& value)
{
    return QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact).replace('"', '\'');
}

} // namespace

/// What the tool hands to scripts, and to others.
class JsonTest : public QObject {
    Q_OBJECT

private slots:
    void members();
    void anyBytes();
    void channels();
    void anonymous();
};

void JsonTest::members()
{
    AccessPoint full = accessPoint("Caf\xc3\xa9,", 2412, 0xc);
    full.adHoc = true;
    full.signal = {Signal::Unit::Mbm, -6725};
    full.security = Security::Wpa2;
    full.noiseDbm = -95;
    full.ageMs = 4000000000;
    AccessPoint bare = accessPoint("", 0, 0xd);
    bare.signal = {Signal::Unit::Percent, 40}; // weaker: 28 dB above -110 dBm
    Report report = reportOf({{bare, full}, 3, 4, {"said \xff"}});

    // Qt's reader sorts members by name.
    const QJsonArray accessPoints = read(report).value("accessPoints").toArray();
    QCOMPARE(accessPoints.size(), 2);
    QCOMPARE(compact(accessPoints[0]),
        QByteArray("{'adHoc':true,'address':'02:aa:bb:01:02:0c','ageMs':4000000000,'channel':1,"
                   "'frequencyMhz':2412,'hidden':false,'name':'Caf\xc3\xa9\\\\x2c',"
                   "'nameHex':'436166c3a92c','noiseDbm':-95,'security':'WPA2',"
                   "'signalDbm':-67.25,'signalPercent':null}"));
    QCOMPARE(compact(accessPoints[1]),
        QByteArray("{'adHoc':false,'address':'02:aa:bb:01:02:0d','ageMs':null,'channel':null,"
                   "'frequencyMhz':0,'hidden':true,'name':'(hidden)','nameHex':'',"
                   "'noiseDbm':null,'security':'NONE','signalDbm':null,'signalPercent':40}"));
    report.heard.accessPoints.clear();
    QCOMPARE(compact(read(report)),
        QByteArray("{'accessPoints':[],'malformedAccessPoints':4,'malformedElements':3,"
                   "'outcome':'done','remarks':['said \xef\xbf\xbd',"
                   "'4 access point(s) left out: malformed',"
                   "'3 information element(s) passed over: malformed'],'status':0}"));
    QCOMPARE(compact(read(failure(ExitStatus::NoSuchInterface, "none"))),
        QByteArray("{'accessPoints':[],'malformedAccessPoints':0,'malformedElements':0,"
                   "'outcome':'no-such-interface','remarks':['none'],'status':3}"));
}

// Every seventh pair of bytes as a name: the document is valid, and no name is lost.
void JsonTest::anyBytes()
{
    Heard heard;
    QSet<QString> expected;
    for (int pair = 1; pair < 0x10000; pair += 7) {
        const std::string name = {static_cast<char>(pair >> 8), static_cast<char>(pair)};
        heard.accessPoints.push_back(accessPoint(name, 2412, 1));
        expected += QString::fromLatin1(QByteArray::fromStdString(name).toHex());
    }
    QSet<QString> names;
    for (const QJsonValue& value : read(reportOf(heard)).value("accessPoints").toArray())
        names += value["nameHex"].toString();
    QCOMPARE(names, expected);
}

void JsonTest::channels()
{
    // 6 GHz begins with channel 1 at 5955, 2 being off the grid, and ends with 233.
    const std::pair<int, int> channels[] = {{2484, 14}, {5180, 36}, {5935, 2}, {5945, 0}, {5950, 0},
        {5955, 1}, {5956, 0}, {6115, 33}, {7115, 233}, {7120, 0}, {60480, 0}};
    for (const auto& [frequency, channel] : channels) {
        const Report report = reportOf({{accessPoint("a", frequency, 1)}});
        const QJsonArray accessPoints = read(report).value("accessPoints").toArray();
        QCOMPARE(accessPoints[0].toObject()["channel"],
            channel != 0 ? QJsonValue(channel) : QJsonValue());
    }
}

void JsonTest::anonymous()
{
    Heard heard = {
        {accessPoint("Ours", 2412, 7), accessPoint("", 2412, 9), accessPoint("Theirs", 5180, 8),
            accessPoint("Ours", 5180, 9), accessPoint(std::string(9, '\0'), 5955, 7)}};
    heard.accessPoints.back().address[0] = 0x06;
    anonymise(heard);
    QCOMPARE(described(heard),
        QByteArray("02:aa:bb:00:00:01 2412 MHz named Network 1; 02:aa:bb:00:00:02 2412 MHz; "
                   "02:aa:bb:00:00:03 5180 MHz named Network 2; "
                   "02:aa:bb:00:00:02 5180 MHz named Network 1; 06:aa:bb:00:00:04 5955 MHz; "));

    Heard many;
    for (int number = 0; number <= 0x1ff; ++number) {
        many.accessPoints.push_back(accessPoint("", 2412, number));
        many.accessPoints.back().address[4] = static_cast<std::uint8_t>(number >> 8);
    }
    anonymise(many);
    QVERIFY2(described(many).endsWith("02:aa:bb:00:02:00 2412 MHz; "), described(many));
}

QTEST_APPLESS_MAIN(JsonTest)
#include "tst_json.moc"

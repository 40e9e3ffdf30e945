#include "arguments.h"
#include "installation.h"
#include "pluginrecord.h"
#include "scenarios.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using namespace testset;

/// The host's parts that need no window.
class HostPartsTest : public QObject {
    Q_OBJECT
private slots:
    void recordFault_data();
    void recordFault();
    void recordWithoutEnd();
    void arguments_data();
    void arguments();
    void argumentValues();
    void scenarioLookUp();
    void installedPlugin();
};

void HostPartsTest::recordFault_data()
{
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<QString>("fault"); // a part of it; empty when accepted

    const auto record = [](const char* version, const char* debug, const char* key) {
        return QByteArray("pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=") + version
            + "\ndebug=" + debug + "\nbuildkey=" + key;
    };
    const char* const key = "i386 linux g++-4 full-config";
    const QByteArray good = record("4.8.4", "true", key);

    QTest::newRow("the test set's own") << good << "";
    QTest::newRow("closing line feed") << good + '\n' << "";
    QTest::newRow("release build") << record("4.8.4", "false", key) << "";
    QTest::newRow("newer patch") << record("4.8.7", "true", key) << "";
    QTest::newRow("older minor") << record("4.7.0", "true", key) << "";
    QTest::newRow("newer minor") << record("4.9.0", "true", key) << "4.9.0";
    QTest::newRow("older major") << record("3.8.4", "true", key) << "3.8.4";
    QTest::newRow("newer major") << record("5.0.0", "true", key) << "5.0.0";
    QTest::newRow("version of two numbers") << record("4.8", "true", key) << "no Qt version";
    QTest::newRow("version of words") << record("four.8.4", "true", key) << "no Qt version";
    QTest::newRow("no version") << record("", "true", key) << "no Qt version";
    QTest::newRow("another machine")
        << record("4.8.4", "true", "arm linux g++-4 full-config") << "arm linux";
    QTest::newRow("longer build key")
        << record("4.8.4", "true", "i386 linux g++-4 full-config x") << "full-config x";
    QTest::newRow("another pattern")
        << QByteArray(good).replace("VERIFICATION", "OTHER") << "another form";
    QTest::newRow("no debug line")
        << QByteArray(good).replace("debug=true\n", "") << "another form";
    QTest::newRow("lines in another order")
        << QByteArray("version=4.8.4\npattern=QT_PLUGIN_VERIFICATION_DATA\ndebug=true\nbuildkey=")
            + key
        << "another form";
    QTest::newRow("cut behind the debug line")
        << good.left(good.indexOf("\nbuildkey")) << "another form";
    QTest::newRow("empty") << QByteArray("") << "another form";
}

void HostPartsTest::recordFault()
{
    QFETCH(QByteArray, record);
    QFETCH(QString, fault);
    const QString found = testset::recordFault(record.constData());
    QCOMPARE(found.isEmpty(), fault.isEmpty());
    QVERIFY2(found.contains(fault), qPrintable(found));
}

void HostPartsTest::recordWithoutEnd()
{
    // Three bytes of heap without a NUL: reading a fourth one is a fault that a sanitizer sees.
    const std::unique_ptr<char[]> bytes(new char[3]{'p', 'a', 't'});
    QVERIFY(testset::recordFault(bytes.get(), 3).contains("no readable"));
    QVERIFY(testset::recordFault(nullptr).contains("no readable"));
}

void HostPartsTest::arguments_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("fault"); // a part of it; empty when right

    QTest::newRow("none") << QStringList() << "";
    QTest::newRow("survey") << QStringList{"--survey", "d", "--wait", "1", "--report-name", "n"}
                            << "";
    QTest::newRow("longest wait") << QStringList{"--survey", "d", "--wait", "3600"} << "";
    QTest::newRow("no wait") << QStringList{"--survey", "d", "--wait", "0"} << "1 to 3600";
    QTest::newRow("too long a wait")
        << QStringList{"--survey", "d", "--wait", "3601"} << "1 to 3600";
    QTest::newRow("wait in words") << QStringList{"--survey", "d", "--wait", "1m"} << "'1m'";
    QTest::newRow("unknown option") << QStringList{"--frobnicate"} << "frobnicate";
    QTest::newRow("stray word") << QStringList{"office"} << "'office'";
    QTest::newRow("value missing") << QStringList{"--scenario"} << "scenario";
    QTest::newRow("value empty") << QStringList{"--scenario", ""} << "scenario";
    QTest::newRow("wait without survey") << QStringList{"--wait", "5"} << "belongs to --survey";
    QTest::newRow("unknown language") << QStringList{"--language", "fr"} << "'fr'";
}

void HostPartsTest::arguments()
{
    QFETCH(QStringList, words);
    QFETCH(QString, fault);
    const QString found = parseArguments(QStringList("testset") + words).fault;
    QCOMPARE(found.isEmpty(), fault.isEmpty());
    QVERIFY2(found.contains(fault), qPrintable(found));
}

void HostPartsTest::argumentValues()
{
    const Arguments none = parseArguments({"testset"});
    QVERIFY(!none.reportName);
    QCOMPARE(none.waitSeconds, 90);
    QVERIFY(none.language == Language::English);

    const Arguments all = parseArguments({"testset", "--survey=d", "--wait=7",
        "--report-name=", "--language=de", "--scenario=office", "--plugin=p.so"});
    QCOMPARE(all.fault, QString());
    QCOMPARE(all.surveyFolder, QString("d"));
    QCOMPARE(all.waitSeconds, 7);
    QVERIFY(all.reportName && all.reportName->isEmpty()); // an empty name is a name
    QVERIFY(all.language == Language::German);
    QCOMPARE(all.scenario, QString("office"));
    QCOMPARE(all.plugin, QString("p.so"));
}

void HostPartsTest::scenarioLookUp()
{
    QTemporaryDir root;
    const QDir folder(root.path());
    QVERIFY(folder.mkdir("scenarios"));
    const QStringList files = {
        "scenarios/b.scan", "scenarios/a.scan", "scenarios/notes.txt", "outside.scan"};
    for (const QString& name : files) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const QString scenarios = folder.filePath("scenarios");

    QCOMPARE(scenarioNames(scenarios), QStringList({"a", "b"}));
    QCOMPARE(findScenario(scenarios, "a"), folder.filePath("scenarios/a.scan"));
    QCOMPARE(
        findScenario(scenarios, folder.filePath("outside.scan")), folder.filePath("outside.scan"));
    QVERIFY(findScenario(scenarios, "../outside").isNull());
    QVERIFY(findScenario(scenarios, "notes").isNull());
    QVERIFY(findScenario(scenarios, scenarios).isNull());
    QCOMPARE(scenarioNames(folder.filePath("missing")), QStringList());
}

void HostPartsTest::installedPlugin()
{
    QTemporaryDir root;
    const QString prefix = root.path();
    const Installation installation(prefix + "/bin");
    const QString file = prefix + "/lib/wifiondivo/libwifiondivo.so";
    QCOMPARE(installation.pluginFile(), file);
    QCOMPARE(installation.scenarioFolder(), prefix + "/share/wifiondivo/scenarios");
}

QTEST_GUILESS_MAIN(HostPartsTest)
#include "tst_hostparts.moc"

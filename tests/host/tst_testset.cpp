#include "programrun.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

/// Runs of the real program with plug-ins of the tests' own.
class TestSetTest : public QObject {
    Q_OBJECT
private slots:
    void refusal_data();
    void refusal();
    void listScenarios();
    void survey_data();
    void survey();
    void unwritableFolder();
};

void TestSetTest::refusal_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("sentence"); // a part of it

    const QString folder = QDir::tempPath();
    const auto survey = [&](const QString& plugin) {
        return QStringList{"--survey", folder, "--plugin", plugin};
    };
    QTest::newRow("unknown option") << QStringList{"--frobnicate"} << 2 << "Usage: testset";
    QTest::newRow("missing plug-in") << survey("/nowhere/lib.so") << 3 << "no such file";
    QTest::newRow("a folder for a plug-in") << survey(folder) << 3 << "no such file";
    QTest::newRow("text for a plug-in") << survey(__FILE__) << 4 << "cannot be loaded";
    QTest::newRow("library without entry points")
        << survey(ENTRYLESS_PLUGIN) << 4 << "entry points";
    QTest::newRow("plug-in for Qt 5") << survey(NEWER_QT_PLUGIN) << 5 << "5.0.0";
    QTest::newRow("plug-in that is no utility") << survey(PLAIN_PLUGIN) << 6 << "not a utility";
    QTest::newRow("unknown scenario")
        << survey(FAKE_UTILITY) + QStringList{"--scenario", "no-such"} << 7 << "'no-such'";
    QTest::newRow("window without a display") << QStringList() << 8 << "no display";
}

void TestSetTest::refusal()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, sentence);
    const ProgramRun result = runTestSet(arguments);
    QCOMPARE(result.status, status);
    QVERIFY2(result.errors.contains(sentence), qPrintable(result.errors));
    QCOMPARE(result.errors.count("testset: "), 1);
    // The record is judged before the plug-in's own code runs.
    QCOMPARE(result.errors.contains("instance fetched"), status == 6);
}

void TestSetTest::listScenarios()
{
    const QString folder =
        QFileInfo(TESTSET_PROGRAM).absolutePath() + "/../share/wifiondivo/scenarios";
    if (!QFileInfo::exists(folder))
        QSKIP("This build has no scenarios.");
    const ProgramRun result = runTestSet({"--list-scenarios"});
    QCOMPARE(result.status, 0);
    QVERIFY(result.output.split('\n').contains("office"));
    QVERIFY(result.output.split('\n').contains("empty-air"));
}

void TestSetTest::survey_data()
{
    QTest::addColumn<QStringList>("environment");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("status");
    QTest::addColumn<QStringList>("pictures");
    QTest::addColumn<QString>("report"); // what was entered; null for no report

    const QStringList both = {"0-Scan.png", "1-Graph_1_2.png"};
    const QStringList all = {"0-Scan.png", "1-Graph_1_2-selection.png", "1-Graph_1_2.png"};
    QTest::newRow("finished") << QStringList{"FAKE_SCAN=finished"} << QStringList() << 0 << all
                              << "preset";
    QTest::newRow("report with a name")
        << QStringList{"FAKE_SCAN=finished"} << QStringList{"--report-name", "Käsekiste 'A'"} << 0
        << all << "Käsekiste 'A'";
    QTest::newRow("report with an empty name")
        << QStringList{"FAKE_SCAN=finished"} << QStringList{"--report-name", ""} << 0 << all << "";
    QTest::newRow("no key pad") << QStringList{"FAKE_SCAN=finished", "FAKE_REPORT="}
                                << QStringList() << 15 << all << QString();
    QTest::newRow("start refused")
        << QStringList{"FAKE_START=refused"} << QStringList() << 9 << QStringList() << QString();
    QTest::newRow("no adapter") << QStringList{"FAKE_SCAN=no-adapter"} << QStringList() << 11
                                << QStringList() << QString();
    QTest::newRow("no results") << QStringList{"FAKE_SCAN=no-results"} << QStringList() << 12
                                << both << "preset";
    QTest::newRow("failed") << QStringList{"FAKE_SCAN=failed"} << QStringList() << 13 << both
                            << "preset";
    QTest::newRow("no end") << QStringList{"FAKE_SCAN=endless"} << QStringList{"--wait", "1"} << 14
                            << both << "preset";
}

void TestSetTest::survey()
{
    QFETCH(QStringList, environment);
    QFETCH(QStringList, options);
    QFETCH(int, status);
    QFETCH(QStringList, pictures);
    QFETCH(QString, report);

    QTemporaryDir root;
    const QDir folder(root.filePath("new/pictures"));
    QFile saved(root.filePath("report"));
    environment.prepend("FAKE_REPORT=" + saved.fileName());
    const ProgramRun result = runTestSet(
        QStringList{"--plugin", FAKE_UTILITY, "--survey", folder.path()} + options, environment);
    QVERIFY2(result.status == status, qPrintable(result.output + result.errors));
    QCOMPARE(result.errors.contains("testset: "), status != 0);

    QCOMPARE(folder.entryList(QDir::Files, QDir::Name), pictures);
    for (const QString& name : pictures) {
        const QImage picture(folder.filePath(name));
        QCOMPARE(picture.size(), QSize(720, 480));
    }
    QCOMPARE(saved.exists(), !report.isNull());
    if (saved.open(QIODevice::ReadOnly))
        QCOMPARE(QString::fromUtf8(saved.readAll()), report);
    if (status != 0)
        return;
    QVERIFY(result.output.contains("survey: 1 access points\n"));
    // Placeholders stay as they are; what would steer a terminal does not.
    QVERIFY(result.output.contains(
        QString::fromUtf8("02:00:00:00:00:%3  channel  11  WPA2  café %1\uFFFD[2J")));
    QVERIFY(result.output.contains("The pictures are in " + folder.path()));
    QVERIFY(result.output.contains('"' + report + '"'));
}

void TestSetTest::unwritableFolder()
{
    QTemporaryDir root;
    QFile file(root.filePath("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QString folder = file.fileName() + "/pictures"; // below a file, so not even root can
    const ProgramRun result = runTestSet({"--plugin", FAKE_UTILITY, "--survey", folder});
    QCOMPARE(result.status, 10);
    QVERIFY2(result.errors.contains(folder), qPrintable(result.errors));
}

QTEST_GUILESS_MAIN(TestSetTest)
#include "tst_testset.moc"

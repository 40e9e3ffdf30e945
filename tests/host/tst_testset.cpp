#include "programrun.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

/// How the real program ends, with plug-ins of the tests' own.
class TestSetTest : public QObject {
    Q_OBJECT
private slots:
    void ending_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("text"); // a part of what is printed

        const QString folder = QDir::tempPath();
        const auto plugin = [&](const QString& file) {
            return QStringList{"--survey", folder, "--plugin", file};
        };
        QTest::newRow("help") << QStringList{"--help"} << 0 << "Usage: testset";
        QTest::newRow("version") << QStringList{"--version"} << 0 << "testset 1.0\n";
        QTest::newRow("interface value empty") << QStringList{"--interface="} << 2 << "interface";
        QTest::newRow("text of another tool")
            << QStringList{"--survey", folder, "--scenario", __FILE__} << 7 << "neither";
        QTest::newRow("scenarios") << QStringList{"--list-scenarios"} << 0 << "office\n";
        QTest::newRow("unknown option") << QStringList{"--frobnicate"} << 2 << "Usage: testset";
        QTest::newRow("missing plug-in") << plugin("/nowhere/lib.so") << 3 << "no such file";
        QTest::newRow("a folder for a plug-in") << plugin(folder) << 3 << "no such file";
        QTest::newRow("text for a plug-in") << plugin(__FILE__) << 4 << "cannot be loaded";
        QTest::newRow("no entry points") << plugin(ENTRYLESS_PLUGIN) << 4 << "entry points";
        QTest::newRow("plug-in for Qt 5") << plugin(NEWER_QT_PLUGIN) << 5 << "5.0.0";
        QTest::newRow("no utility") << plugin(PLAIN_PLUGIN) << 6 << "not a utility";
        QTest::newRow("unknown scenario")
            << QStringList{"--survey", folder, "--scenario", "none"} << 7 << "'none'";
        QTest::newRow("window without a display") << QStringList() << 8 << "no display";
        QTest::newRow("start refused") << plugin(FAKE_UTILITY) << 9 << "did not start";
        const QString belowFile = __FILE__ "/pictures"; // so not even root can write there
        QTest::newRow("folder that cannot be")
            << QStringList{"--survey", belowFile, "--plugin", FAKE_UTILITY} << 10 << belowFile;
    }

    void ending()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QString, text);
        const ProgramRun run = runTestSet(arguments, {"FAKE_START=refused"});
        QCOMPARE(run.status, status);
        QVERIFY2(run.output.contains(text), qPrintable(run.output));
        QCOMPARE(run.output.count("testset: "), status == 0 ? 0 : 1);
        // The record is judged before the plug-in's own code runs.
        QCOMPARE(
            run.output.contains("instance fetched"), status >= 6 && arguments.contains("--plugin"));
    }

    void report_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("report"); // the name entered; null when there is no key pad
        QTest::newRow("key pad's own name") << QStringList() << "preset";
        QTest::newRow("another name") << QStringList{"--report-name", "Käse 'A'"} << "Käse 'A'";
        QTest::newRow("empty name") << QStringList{"--report-name", ""} << "";
        QTest::newRow("no key pad") << QStringList() << QString();
    }

    void report()
    {
        QFETCH(QStringList, options);
        QFETCH(QString, report);
        QTemporaryDir root;
        const QString folder = root.filePath("new/pictures");
        options << "--plugin" << FAKE_UTILITY << "--survey" << folder;
        const ProgramRun run =
            runTestSet(options, {report.isNull() ? "FAKE_KEYPAD=" : "FAKE_KEYPAD=shown"});
        QCOMPARE(run.status, report.isNull() ? 15 : 0);
        for (const char* const line : {"entered \"%1\"\n", "under the name \"%1\"\n"})
            QCOMPARE(run.output.contains(QString(line).arg(report)), !report.isNull());
        // Placeholders stay as they are; what would steer a terminal does not.
        QVERIFY(run.output.contains(
            QString::fromUtf8("02:00:00:00:00:%3  channel  11  WPA2  café %1\uFFFD[2J")));
        QVERIFY(run.output.contains("The pictures are in " + folder));
        QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList{"0-Graph_1_2.png"});
    }
};

QTEST_GUILESS_MAIN(TestSetTest)
#include "tst_testset.moc"

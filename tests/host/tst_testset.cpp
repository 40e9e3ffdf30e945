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
        QTest::newRow("text of another kind")
            << QStringList{"--survey", folder, "--scenario", "/etc/passwd"} << 7 << "neither";
        QTest::newRow("scenarios") << QStringList{"--list-scenarios"} << 0 << "office\n";
        QTest::newRow("unknown option") << QStringList{"--frobnicate"} << 2 << "Usage: testset";
        QTest::newRow("unknown language")
            << QStringList{"--survey", folder, "--language", "tlh"} << 2 << "are: en, de, ";
        QTest::newRow("missing plug-in") << plugin("/nowhere/lib.so") << 3 << "no such file";
        QTest::newRow("no entry points") << plugin(ENTRYLESS_PLUGIN) << 4 << "entry points";
        QTest::newRow("plug-in for Qt 5") << plugin(NEWER_QT_PLUGIN) << 5 << "5.0.0";
        QTest::newRow("no utility") << plugin(PLAIN_PLUGIN) << 6 << "not a utility";
        QTest::newRow("unknown scenario")
            << QStringList{"--survey", folder, "--scenario", "none"} << 7 << "'none'";
        QTest::newRow("window without a display") << QStringList() << 8 << "no display";
        QTest::newRow("a display that cannot be opened")
            << QStringList{"DISPLAY=:nowhere"} << 8 << "cannot be opened (DISPLAY=:nowhere)";
        QTest::newRow("start refused") << plugin(FAKE_UTILITY) << 9 << "did not start";
        const QString belowFile = TESTSET_PROGRAM "/pictures"; // so not even root can write there
        QTest::newRow("folder that cannot be")
            << QStringList{"--survey", belowFile, "--plugin", FAKE_UTILITY} << 10 << belowFile;
    }

    void ending()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QString, text);
        QStringList environment{"FAKE_START=refused"};
        if (arguments.value(0).startsWith("DISPLAY="))
            environment << arguments.takeFirst();
        ProgramRun run(arguments + QStringList{"--verbose"}, environment);
        run.finish();
        QCOMPARE(run.status, status);
        QVERIFY2(run.output.contains(text), qPrintable(run.output));
        QCOMPARE(('\n' + run.output).count("\ntestset: "), status == 0 ? 0 : 1);
        // File and record are judged before anything of the plug-in runs.
        QCOMPARE(run.output.contains("code of the plug-in runs"),
            status >= 6 && arguments.contains("--plugin"));
    }

    void endedByASignal()
    {
        QTemporaryDir root;
        ProgramRun run({"--plugin", FAKE_UTILITY, "--device-root", root.path()},
            {"QT_QPA_PLATFORM=offscreen"});
        QTRY_VERIFY_WITH_TIMEOUT(
            QFileInfo(root.filePath("tmp/testset.log")).size() > 0, LongestRunMilliseconds);
        run.process.terminate(); // the plug-in's code has run, and the window comes up
        run.finish();
        QCOMPARE(run.status, 128 + 15);
    }

    void survey_data()
    {
        QTest::addColumn<QString>("keyPad");
        QTest::addColumn<QString>("text"); // how it ends
        QTest::newRow("nothing saved") << "shown"
                                       << "The report \"preset\" was not saved in /";
        QTest::newRow("no key pad") << ""
                                    << "brought up no key pad";
    }

    void survey()
    {
        QFETCH(QString, keyPad);
        QFETCH(QString, text);
        QTemporaryDir root;
        const QString folder = root.filePath("new/pictures");
        ProgramRun run({"--plugin", FAKE_UTILITY, "--survey", folder}, {"FAKE_KEYPAD=" + keyPad});
        run.finish();
        QCOMPARE(run.status, 15);
        QVERIFY2(run.output.contains(text), qPrintable(run.output));
        // Placeholders stay as they are; what would steer a terminal does not.
        QVERIFY(run.output.contains(QString::fromUtf8(
            "02:00:00:00:00:%3  channel  11  signal  -5  WPA2  café 📶 %1\uFFFD[2J\uFFFD\n")));
        QVERIFY(run.output.contains("The pictures are in " + folder));
        QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList{"page1.png"});
        // Nothing of the utility's own on the terminal.
        for (const QString& line : run.output.split('\n', Qt::SkipEmptyParts))
            QVERIFY2(line.startsWith("survey: ") || line.startsWith("testset: "), qPrintable(line));
    }
};

QTEST_GUILESS_MAIN(TestSetTest)
#include "tst_testset.moc"

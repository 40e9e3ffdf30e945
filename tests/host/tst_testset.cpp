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
        QTest::addColumn<QString>("text"); // a part of the output

        const auto row = [](const char* name, const QStringList& arguments, int status,
                             const QString& text) {
            QTest::newRow(name) << arguments << status << text;
        };
        const auto survey = [](const char* option, const char* value) {
            return QStringList{"--survey", QDir::tempPath(), option, value};
        };
        const QString cannotUse = "testset: Cannot use the plug-in ";
        row("help", {"--help"}, 0, "720 x 480");
        row("version", {"--version"}, 0, "testset 1.0\n");
        row("scenarios", {"--list-scenarios"}, 0, "office\n");
        row("unknown option", {"--frobnicate"}, 2,
            "'frobnicate'. testset --help lists the options.");
        row("unknown language", survey("--language", "tlh"), 2,
            "testset: There is no language 'tlh'; the languages are: en, de, ");
        row("missing plug-in", survey("--plugin", "/nowhere/lib.so"), 3,
            cannotUse + "/nowhere/lib.so: there is no such file.\n");
        row("no entry points", survey("--plugin", ENTRYLESS_PLUGIN), 4,
            cannotUse + ENTRYLESS_PLUGIN ": it is a library without a plug-in's entry points.\n");
        row("plug-in for Qt 5", survey("--plugin", NEWER_QT_PLUGIN), 5,
            ": it was made for Qt 5.0.0, the test set has 4.8.\n");
        row("no utility", survey("--plugin", PLAIN_PLUGIN), 6,
            ": it is a plug-in, but not a utility.\n");
        row("unknown scenario", survey("--scenario", "none"), 7,
            "testset: There is no scenario and no readable file 'none'; the scenarios are: "
            "crowded, ");
        row("text of another kind", survey("--scenario", "/etc/passwd"), 7, "/etc/passwd: neither");
        row("no display", {}, 8,
            "testset: There is no display to show a window on; --survey DIR needs none.\n");
        row("a display that cannot be opened", {"DISPLAY=:nowhere"}, 8,
            "testset: The display cannot be opened (DISPLAY=:nowhere); --survey DIR needs none.\n");
        row("a utility that calls exit",
            QStringList{"FAKE_START=exit"} + survey("--plugin", FAKE_UTILITY), 9,
            "testset: The utility ended the program.\n");
        row("start refused", survey("--plugin", FAKE_UTILITY), 9,
            "testset: The utility did not start.\n");
        const QString belowFile = TESTSET_PROGRAM "/pictures"; // so not even root can write there
        row("folder that cannot be", {"--survey", belowFile, "--plugin", FAKE_UTILITY}, 10,
            "testset: The folder " + belowFile + " cannot be created.\n");
    }

    void ending()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QString, text);
        QStringList environment{"FAKE_START=refused"};
        if (!arguments.isEmpty() && !arguments.first().startsWith("--"))
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
            QFileInfo(root.filePath("tmp/testset.log")).size() > 0, MaxRunMilliseconds);
        run.process.terminate(); // the plug-in's code has run, and the window comes up
        run.finish();
        QCOMPARE(run.status, 128 + 15);
    }

    void survey()
    {
        const QPair<QString, const char*> rows[] = {{"shown", "\"preset\" was not saved in /"},
            {"", "testset: F1 brought up no key pad: there is no report."}};
        for (const auto& [keyPad, text] : rows)
            survey(keyPad, text);
    }

private:
    static void survey(const QString& keyPad, const QString& text)
    {
        QTemporaryDir root;
        const QString folder = root.filePath("new/pictures");
        ProgramRun run({"--plugin", FAKE_UTILITY, "--survey", folder}, {"FAKE_KEYPAD=" + keyPad});
        run.finish();
        QCOMPARE(run.status, 15);
        QVERIFY2(run.output.contains(text), qPrintable(run.output));
        // Placeholders stay as they are; control characters do not.
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

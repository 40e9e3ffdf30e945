#include "../files.h"
#include "programrun.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/stat.h>

/// Surveys of the real analyser, without its pauses, when something around it fails.
class TroubleTest : public QObject {
    Q_OBJECT
private slots:
    /// The program as it is installed beside a tool of one's own, in a device tree with an
    /// obstacle.
    void trouble_data()
    {
        QTest::addColumn<QString>("tool");     // a shell script; it tells its process number
        QTest::addColumn<QString>("obstacle"); // an obstacle and its place
        QTest::addColumn<int>("signal");       // sent when the tool runs; 0 for none
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const char* tool, const QString& obstacle, int signal,
                             int status, const char* text) {
            QTest::newRow(name) << tool << obstacle << signal << status << text;
        };
        const char* const good = "sed '' $WIFI_SCAN_REPLAY";
        const QString output = "/tmp/ondivo_wifi_scanres";
        row("results folder is a file", good, "file " + ResultsFolder, 0, 15, "was not saved");
        row("picture folder is a file", good, "file " + ResultsFolder + "/r_files", 0, 15,
            "lacks r_files/r2-4g.png, r_files/r5g.png");
        row("an earlier scan's output", "exit", "copy " + output, 0, 14, "ended without a closing");
        row("a tool that crashes", "echo half a line; kill -SEGV $$", "", 0, 14,
            "without a closing");
        row("a remark", "echo no radio > $WIFI_SCAN_REMARKS", "", 0, 14, "result: no radio.");
        row("output is a pipe", good, "pipe " + output, 0, 0, "26 access points");
        row("output is a folder", good, "folder " + output, 0, 18, "Is a directory");
        row("tool that is no program", "", "", 0, 18, "the scan tool");
        row("picture is a folder", good, "folder /../pictures/page1.png", 0, 10,
            "page1.png cannot");
        row("log is a folder", good, "folder /tmp/testset.log", 0, 16, "testset.log");

        const char* const hangs = "echo $$ >> $0.run; sleep 1000";
        const char* const stubborn = "trap '' INT TERM; echo $$ >> $0.run; sleep 1000; sleep 1000";
        row("given up", hangs, "", 0, 14, "did not end");
        const char* const follows =
            "trap ': >$0.asked; sleep 1000 & echo $! >> $0.run; exit' TERM; "
            "echo $$ >> $0.run; sleep 1000 & wait";
        row("begins another", follows, "", SIGTERM, 128 + SIGTERM, "");
        row("terminated", stubborn, "", SIGTERM, 128 + SIGTERM, "");
        row("interrupted", hangs, "", SIGINT, 128 + SIGINT, "");
    }

    void trouble()
    {
        QFETCH(QString, tool);
        QFETCH(QString, obstacle);
        QFETCH(int, signal);
        QFETCH(int, status);
        QFETCH(QString, text);
        QTemporaryDir place;
        const QString program = place.filePath("bin/testset");
        const QString script = place.filePath("bin/wifi-scan");
        QVERIFY(QDir().mkpath(place.filePath("bin")) && QFile::copy(TESTSET_PROGRAM, program));
        QVERIFY(writeFile(
            script, "#!/bin/sh\n[ ${0##*/} = ifconfig ] || { " + tool.toUtf8() + "; }\n"));
        if (!tool.isEmpty())
            QVERIFY(QFile(script).setPermissions(QFile::ReadOwner | QFile::ExeOwner));

        const QStringList words = obstacle.split(' ');
        const QString where = place.filePath("device") + words.last();
        QVERIFY(QDir().mkpath(QFileInfo(where).path()));
        if (words.first() == "file")
            QVERIFY(writeFile(where, "in the way"));
        else if (words.first() == "copy")
            QVERIFY(QFile::copy(SCENARIO, where));
        else if (words.first() == "folder")
            QVERIFY(QDir().mkdir(where));
        else if (words.first() == "pipe")
            QCOMPARE(::mkfifo(where.toLocal8Bit().constData(), 0600), 0);

        ProgramRun run({"--device-root", place.filePath("device"), "--survey",
                           place.filePath("pictures"), "--report-name", "r", "--wait",
                           text == "did not end" ? "1" : "50", "--plugin", QUICK_ANALYSER},
            {QString("WIFI_SCAN_REPLAY=") + SCENARIO}, program);
        const QString tools = place.filePath("device/usr/local/k510/sbin/wifi-scan.run");
        if (signal != 0) {
            QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(tools).size() > 0, MaxRunMilliseconds);
            const pid_t id = pid_t(run.process.processId());
            QVERIFY(id > 0); // any other would be many processes
            ::kill(id, signal);
        }
        run.finish();
        QVERIFY2(run.status == status, qPrintable(run.output));
        QVERIFY2(run.output.contains(text), qPrintable(run.output));
        // A scan that is not possible shows no earlier results.
        QCOMPARE(
            QFileInfo::exists(place.filePath("pictures/page2.png")), status != 18 && status != 16);
        QCOMPARE(QFileInfo::exists(place.filePath("device/usr/local/k510/sbin/wifi-scan.asked")),
            tool.contains(".asked")); // before it is killed
        // No process is left; init waits for those whose shell ended first.
        for (const QByteArray& id : readFile(tools).split('\n'))
            QTRY_VERIFY2(id.isEmpty() || ::kill(id.toInt(), 0) != 0, id.constData());
    }
};

QTEST_GUILESS_MAIN(TroubleTest)
#include "tst_trouble.moc"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const int LongestRunMilliseconds = 60000;

/// What a run of the real program left.
struct ProgramRun {
    int status = -1; ///< -1 for a crash, and for no end within a minute
    QString output;  ///< what it printed, errors too
};

/// Runs the program without a display, with further "NAME=value" pairs in its environment.
ProgramRun runTestSet(const QStringList& arguments, const QStringList& environment = {})
{
    const QStringList none = {
        "DISPLAY=", "WAYLAND_DISPLAY=", "QT_QPA_PLATFORM=", "WIFI_SCAN_REPLAY="};
    QProcess process;
    process.setEnvironment(QProcess::systemEnvironment() + none + environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(TESTSET_PROGRAM, arguments);
    ProgramRun run;
    if (process.waitForFinished(LongestRunMilliseconds)
        && process.exitStatus() == QProcess::NormalExit)
        run.status = process.exitCode();
    run.output = QString::fromUtf8(process.readAll());
    return run;
}

} // namespace

/// Runs of the real program, with plug-ins of the tests' own and with the real one.
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
        // The real plug-in removes a file of the device when it starts.
        if (qstrlen(DEVICE_ROOT) > 0 && !QFileInfo::exists("/sys/class/net/wlan0"))
            QTest::newRow("no adapter") << QStringList{"--survey", folder} << 11 << "no Wi-Fi";
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

    void scan_data()
    {
        QTest::addColumn<QString>("scenario");
        QTest::addColumn<int>("status");
        QTest::addColumn<int>("accessPoints");
        QTest::addColumn<QStringList>("pictures"); // beside those of the five pages
        // A finished scan lists all 13 channels of the 2.4 GHz band, nine a page.
        const QStringList finished = {
            "1-2.4Graph-selection", "2-2.4GraphCH-page2", "4-5.0Graph-selection"};
        QTest::newRow("finished") << "office" << 0 << 26 << finished;
        QTest::newRow("no access point") << "empty-air" << 12 << 0 << QStringList();
        QTest::newRow("failure") << "failed" << 13 << 0 << QStringList();
        QTest::newRow("no closing line") << "truncated" << 14 << 7 << QStringList();
    }

    /// With the real plug-in and the scan tool.
    void scan()
    {
        QFETCH(QString, scenario);
        QFETCH(int, status);
        QFETCH(int, accessPoints);
        QFETCH(QStringList, pictures);
        if (qstrlen(DEVICE_ROOT) == 0)
            QSKIP("The plug-in would remove a file of this machine.");
        const QDir results(DEVICE_ROOT "/home/fileman/k510/k510-rslt/wifiport/SSID-result");
        QFile::remove(results.filePath(scenario + ".html"));
        QTemporaryDir folder;
        const ProgramRun run = runTestSet({"--scenario", scenario, "--survey", folder.path(),
            "--report-name", scenario, "--wait", status == 14 ? "5" : "30"});
        QVERIFY2(run.status == status, qPrintable(run.output));
        QVERIFY(run.output.contains(QString("survey: %1 access points\n").arg(accessPoints)));
        QVERIFY(results.exists(scenario + ".html"));

        pictures += {"0-Scan", "1-2.4Graph", "2-2.4GraphCH", "3-5.0GraphCH", "4-5.0Graph"};
        for (const QString& picture : pictures)
            QCOMPARE(QImage(folder.filePath(picture + ".png")).size(), QSize(720, 480));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), pictures.size());
    }
};

QTEST_GUILESS_MAIN(TestSetTest)
#include "tst_testset.moc"

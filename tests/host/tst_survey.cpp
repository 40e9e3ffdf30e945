#include "programrun.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

/// Surveys of the real analyser with the real scan tool, which replays stored scans.
class SurveyTest : public QObject {
    Q_OBJECT
private slots:
    void withoutAdapter()
    {
        if (QFileInfo::exists("/sys/class/net/wlan0"))
            QSKIP("This machine has an adapter.");
        QTemporaryDir folder;
        const ProgramRun run = runTestSet({"--survey", folder.path(), "--plugin", QUICK_ANALYSER});
        QCOMPARE(run.status, 11);
        QVERIFY2(run.output.contains("no Wi-Fi adapter"), qPrintable(run.output));
    }

    void scan_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("status");
        QTest::addColumn<int>("accessPoints");
        QTest::addColumn<QStringList>("pictures"); // beside those of the five pages
        // A finished scan lists all 13 channels of the 2.4 GHz band, nine a page.
        const QStringList finished = {
            "1-2.4Graph-selection", "2-2.4GraphCH-page2", "4-5.0Graph-selection"};
        QTest::newRow("office") << QStringList() << 0 << 26 << finished;
        // The others with an analyser that does not pause.
        const QStringList quick{"--plugin", QUICK_ANALYSER};
        QTest::newRow("empty-air") << quick << 12 << 0 << QStringList();
        QTest::newRow("failed") << quick << 13 << 0 << QStringList();
        // It lacks a closing line. The tool needs a fraction of the time that it is given.
        QTest::newRow("truncated")
            << quick + QStringList{"--wait", "3"} << 14 << 7 << QStringList();
    }

    void scan()
    {
        QFETCH(QStringList, options);
        QFETCH(int, status);
        QFETCH(int, accessPoints);
        QFETCH(QStringList, pictures);
        QTemporaryDir device;
        const QDir results(device.filePath("home/fileman/k510/k510-rslt/wifiport/SSID-result"));
        const QString scenario = QTest::currentDataTag();
        QTemporaryDir folder;
        options << "--device-root" << device.path() << "--scenario" << scenario << "--survey"
                << folder.path() << "--report-name" << scenario;
        const ProgramRun run = runTestSet(options);
        QVERIFY2(run.status == status, qPrintable(run.output));
        QVERIFY(run.output.contains(QString("survey: %1 access points\n").arg(accessPoints)));
        QVERIFY(!run.output.contains("QObject::connect"));
        QVERIFY(results.exists(scenario + ".html"));

        pictures += {"0-Scan", "1-2.4Graph", "2-2.4GraphCH", "3-5.0GraphCH", "4-5.0Graph"};
        for (const QString& picture : pictures)
            QCOMPARE(QImage(folder.filePath(picture + ".png")).size(), QSize(720, 480));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), pictures.size());
    }
};

QTEST_GUILESS_MAIN(SurveyTest)
#include "tst_survey.moc"

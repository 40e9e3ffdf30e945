#include "programrun.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

/// Surveys of the real analyser. Most rows take one that does not pause.
class SurveyTest : public QObject {
    Q_OBJECT
private slots:
    void withoutAdapter()
    {
        if (QFileInfo::exists("/sys/class/net/wlan0"))
            QSKIP("This machine has an adapter.");
        QTemporaryDir folder;
        ProgramRun run({"--survey", folder.path(), "--plugin", QUICK_ANALYSER});
        run.finish();
        QCOMPARE(run.status, 11);
        QVERIFY2(run.output.contains("no Wi-Fi adapter"), qPrintable(run.output));
    }

    void scan_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("report");
        QTest::addColumn<int>("status");
        QTest::addColumn<int>("accessPoints");
        QTest::addColumn<QStringList>("pictures"); // beside those of the five pages
        // A finished scan lists all 13 channels of the 2.4 GHz band, nine a page.
        const QStringList finished = {
            "1-2.4Graph-selection", "2-2.4GraphCH-page2", "4-5.0Graph-selection"};
        QTest::newRow("office") << QStringList() << "Käse 'A'" << 0 << 26 << finished;
        const QStringList quick{"--plugin", QUICK_ANALYSER};
        QTest::newRow("empty-air") << quick << "" << 12 << 0 << QStringList();
        QTest::newRow("failed") << quick + QStringList{"--language", "de"} << "a/b" << 13 << 0
                                << QStringList();
    }

    void scan()
    {
        QFETCH(QStringList, options);
        QFETCH(QString, report);
        QFETCH(int, status);
        QFETCH(int, accessPoints);
        QFETCH(QStringList, pictures);
        QTemporaryDir device;
        QTemporaryDir folder;
        options << "--device-root" << device.path() << "--scenario" << QTest::currentDataTag()
                << "--survey" << folder.path() << "--report-name" << report;
        ProgramRun run(options);
        run.finish();
        QVERIFY2(run.status == status, qPrintable(run.output));
        QCOMPARE(run.output.contains("testset: "), status != 0);
        QVERIFY(run.output.contains(QString("survey: %1 access points\n").arg(accessPoints)));
        const QString file =
            device.path() + ResultsFolder + '/' + report.replace('/', '_') + ".html";
        QVERIFY(run.output.contains("The report is " + file + '\n'));
        QFile saved(file);
        QVERIFY(saved.open(QIODevice::ReadOnly));
        QCOMPARE(saved.readAll().contains("Allgemeine"), options.contains("de"));

        pictures += {"0-Scan", "1-2.4Graph", "2-2.4GraphCH", "3-5.0GraphCH", "4-5.0Graph"};
        for (const QString& picture : pictures)
            QCOMPARE(QImage(folder.filePath(picture + ".png")).size(), QSize(720, 480));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), pictures.size());
    }
};

QTEST_GUILESS_MAIN(SurveyTest)
#include "tst_survey.moc"

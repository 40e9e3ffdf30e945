#include "../files.h"
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
        QTemporaryDir folder;
        ProgramRun run(
            {"--survey", folder.path(), "--plugin", QUICK_ANALYSER, "--interface", "nosuchwlan9"});
        run.finish();
        QCOMPARE(run.status, 11);
        QVERIFY2(run.output.contains("no Wi-Fi adapter nosuchwlan9:"), qPrintable(run.output));
    }

    void scan_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("report");
        QTest::addColumn<int>("status");
        QTest::addColumn<int>("accessPoints");
        QTest::addColumn<QString>("heading");      // in the language of the report
        QTest::addColumn<QStringList>("pictures"); // beside those of the five pages
        // A finished scan lists all 13 channels of the 2.4 GHz band, nine a page.
        const QStringList finished = {"page2-selection", "page3-part2", "page5-selection"};
        const QStringList french{"--language", "fr"};
        QTest::newRow("office") << french << "Käse 'A'" << 0 << 26 << "Informations générales"
                                << finished;
        const QStringList quick{"--plugin", QUICK_ANALYSER};
        QTest::newRow("empty-air") << quick << "" << 12 << 0 << "基本信息" << QStringList();
        QTest::newRow("failed") << quick + QStringList{"--language", "en"} << "a/b" << 13 << 0
                                << "General Information" << QStringList();
    }

    void scan()
    {
        QFETCH(QStringList, options);
        QFETCH(QString, report);
        QFETCH(int, status);
        QFETCH(int, accessPoints);
        QFETCH(QString, heading);
        QFETCH(QStringList, pictures);
        QTemporaryDir device;
        QTemporaryDir folder;
        options << "--device-root" << device.path() << "--scenario" << QTest::currentDataTag()
                << "--survey" << folder.path() << "--report-name" << report;
        ProgramRun run(options, {"LANGUAGE=zh_CN"});
        run.finish();
        QVERIFY2(run.status == status, qPrintable(run.output));
        QCOMPARE(run.output.contains("testset: "), status != 0);
        QVERIFY(run.output.contains(QString("survey: %1 access points\n").arg(accessPoints)));
        const QString file =
            device.path() + ResultsFolder + '/' + report.replace('/', '_') + ".html";
        const QString line = status == 0 ? "The report is " : "The report of the failed scan is ";
        QVERIFY(run.output.contains(line + file + '\n'));
        QVERIFY(readFile(file).contains(heading.toUtf8()));

        pictures += {"page1", "page2", "page3", "page4", "page5"};
        for (const QString& picture : pictures)
            QCOMPARE(QImage(folder.filePath(picture + ".png")).size(), QSize(720, 480));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), pictures.size());
    }
};

QTEST_GUILESS_MAIN(SurveyTest)
#include "tst_survey.moc"

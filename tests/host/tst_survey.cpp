#include "programrun.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

/// Surveys by the real program with the real plug-in and the scan tool.
class SurveyTest : public QObject {
    Q_OBJECT
private slots:
    void scenario_data();
    void scenario();
    void unplugged();
};

void SurveyTest::scenario_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("accessPoints");
    QTest::addColumn<QStringList>("further"); // pictures beside those of the five pages

    // A finished scan lists all 13 channels of the 2.4 GHz band, nine a page.
    const QString secondPage = "2-2.4GraphCH-page2.png";
    const QString selection2_4 = "1-2.4Graph-selection.png";
    const QString selection5 = "4-5.0Graph-selection.png";
    QTest::newRow("both bands") << "office" << 0 << 26
                                << QStringList{secondPage, selection2_4, selection5};
    QTest::newRow("one band") << "only-5ghz" << 0 << 11 << QStringList{secondPage, selection5};
    QTest::newRow("no access point") << "empty-air" << 12 << 0 << QStringList();
    QTest::newRow("failure") << "failed" << 13 << 0 << QStringList();
    QTest::newRow("no closing line") << "truncated" << 14 << 7 << QStringList();
}

void SurveyTest::scenario()
{
    QFETCH(QString, name);
    QFETCH(int, status);
    QFETCH(int, accessPoints);
    QFETCH(QStringList, further);

    QStringList expected = {
        "0-Scan.png", "1-2.4Graph.png", "2-2.4GraphCH.png", "3-5.0GraphCH.png", "4-5.0Graph.png"};
    expected += further;
    expected.sort();

    const QString reportName = "survey of " + name;
    const QDir results(DEVICE_ROOT "/home/fileman/k510/k510-rslt/wifiport/SSID-result");
    QFile::remove(results.filePath(reportName + ".html"));
    QTemporaryDir folder;
    const ProgramRun result = runTestSet({"--scenario", name, "--survey", folder.path(),
        "--report-name", reportName, "--wait", status == 14 ? "5" : "30"});
    QVERIFY2(result.status == status, qPrintable(result.output + result.errors));
    QVERIFY(result.output.contains(QString("survey: %1 access points\n").arg(accessPoints)));

    QStringList pictures = QDir(folder.path()).entryList(QDir::Files);
    pictures.sort();
    QCOMPARE(pictures, expected);
    for (const QString& picture : pictures)
        QCOMPARE(QImage(folder.filePath(picture)).size(), QSize(720, 480));
    QVERIFY(results.exists(reportName + ".html"));
}

void SurveyTest::unplugged()
{
    if (QFileInfo::exists("/sys/class/net/wlan0"))
        QSKIP("This machine has an adapter of its own.");
    QTemporaryDir folder;
    const ProgramRun result = runTestSet({"--survey", folder.path()});
    QCOMPARE(result.status, 11);
    QVERIFY2(result.errors.contains("no Wi-Fi adapter"), qPrintable(result.errors));
}

QTEST_GUILESS_MAIN(SurveyTest)
#include "tst_survey.moc"

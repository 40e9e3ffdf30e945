#include "replay.h"

#include <QtTest>

#include <sys/stat.h>

using namespace wifiscan;

namespace {

constexpr int Bound = 10000; // ms, on waits that end at once

struct Run {
    int status = -1;
    QByteArray output;
    QByteArray remarks;
};

Run runTool(
    const QStringList& arguments, const QString& replay = {}, const QString& outputFile = {})
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("WIFI_SCAN_REPLAY", replay);
    process.setProcessEnvironment(environment);
    if (!outputFile.isEmpty())
        process.setStandardOutputFile(outputFile);
    process.start(WIFI_SCAN, arguments);
    Run run;
    if (!process.waitForFinished(Bound) || process.exitStatus() != QProcess::NormalExit) {
        process.kill();
        process.waitForFinished(Bound);
        return run;
    }
    run.status = process.exitCode();
    run.output = process.readAllStandardOutput();
    run.remarks = process.readAllStandardError();
    return run;
}

const QStringList Scan = {"wlan0", "scanning"};

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

const QByteArray IwText = "BSS 02:00:00:00:00:0a(on wlan0)\n"
                          "\tfreq: 2437\n\tsignal: -60.00 dBm\n\tSSID: Cafe\n";
const QByteArray IwLine = "wifiscan: stat> CellNo=1, Address=02:00:00:00:00:0a, ESSID=Cafe, "
                          "Mode=Master, Frequency=2.437 GHz, Channel=6, Quality=50/70, "
                          "Signal=-60 dBm, Noise=unknown, EncKey=0, EncType=NONE\n";

} // namespace

/// The program as the device's caller runs it.
class ToolTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void scenarios_data();
    void scenarios();
    void iwText();
    void kinds_data();
    void kinds();
    void badReplay_data();
    void badReplay();
    void record();
    void recordFailures();
    void noInterface();
    void usage();
    void fullDevice();

private:
    QString write(const QString& name, const QByteArray& contents) const;

    QScopedPointer<QTemporaryDir> m_folder;
};

void ToolTest::init()
{
    m_folder.reset(new QTemporaryDir);
    QVERIFY(m_folder->isValid());
}

QString ToolTest::write(const QString& name, const QByteArray& contents) const
{
    QFile file(m_folder->filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size()
        ? file.fileName()
        : QString();
}

void ToolTest::scenarios_data()
{
    QTest::addColumn<QString>("path");
    const QFileInfoList files = QDir(SCENARIOS).entryInfoList({"*.scan"}, QDir::Files);
    QVERIFY(files.size() >= 7);
    for (const QFileInfo& file : files)
        QTest::newRow(qPrintable(file.fileName())) << file.absoluteFilePath();
}

// Each is copied out byte for byte, with all that is wrong in it.
void ToolTest::scenarios()
{
    QFETCH(QString, path);
    const Run run = runTool(Scan, path);
    QCOMPARE(run.status, 0);
    QCOMPARE(run.output, contentsOf(path));
    QCOMPARE(run.remarks, QByteArray());
}

void ToolTest::iwText()
{
    const Run run = runTool(Scan, write("iw.txt", IwText + "BSS broken\n"));
    QCOMPARE(run.status, 0);
    QCOMPARE(run.output, IwLine + "wifiscan: over\n");
    QCOMPARE(run.remarks, QByteArray("wifi-scan: 1 access point(s) left out: malformed\n"));
}

void ToolTest::kinds_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<int>("kind");
    const int none = int(ReplayKind::None);
    const int scenario = int(ReplayKind::Scenario);
    QTest::newRow("empty") << QByteArray() << none;
    QTest::newRow("some text") << QByteArray("hello\n") << none;
    QTest::newRow("line feeds") << QByteArray("\n\n") << none;
    QTest::newRow("one closing line") << QByteArray("wifiscan: over") << scenario;
    QTest::newRow("after other lines") << QByteArray("# kept\n\nwifiscan: x\n") << scenario;
    QTest::newRow("not at the beginning") << QByteArray("# wifiscan: over\n") << none;
    QTest::newRow("without the blank") << QByteArray("wifiscan:over\n") << none;
    QTest::newRow("text of iw") << IwText << int(ReplayKind::IwText);
    QTest::newRow("both") << IwText + "wifiscan: over\n" << scenario;
}

void ToolTest::kinds()
{
    QFETCH(QByteArray, contents);
    QTEST(int(kindOf(contents.toStdString())), "kind");
}

void ToolTest::badReplay_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("missing") << "missing" << QByteArray("No such file or directory");
    QTest::newRow("folder") << "." << QByteArray("not a regular file");
    QTest::newRow("pipe that nobody fills") << "pipe" << QByteArray("not a regular file");
    QTest::newRow("device without an end") << "/dev/zero" << QByteArray("not a regular file");
    QTest::newRow("empty") << "empty" << QByteArray("neither a scenario nor the text");
    QTest::newRow("too large") << "large" << QByteArray("larger than 1 MiB");
}

void ToolTest::badReplay()
{
    QFETCH(QString, name);
    QVERIFY(!write("empty", {}).isEmpty());
    const QByteArray line = "wifiscan: over\n";
    QVERIFY(!write("large", line + QByteArray(1024 * 1024 + 1 - line.size(), '\n')).isEmpty());
    QCOMPARE(::mkfifo(QFile::encodeName(m_folder->filePath("pipe")).constData(), 0600), 0);

    const Run run = runTool(Scan, QDir(m_folder->path()).filePath(name));
    QCOMPARE(run.status, 13);
    QCOMPARE(run.output, QByteArray("wifiscan: fail\n"));
    QFETCH(QByteArray, reason);
    QVERIFY2(run.remarks.startsWith("wifi-scan: cannot replay "), run.remarks.constData());
    QVERIFY2(run.remarks.contains(reason), run.remarks.constData());

    // As large as it may be.
    QVERIFY(!write("large", line + QByteArray(1024 * 1024 - line.size(), '\n')).isEmpty());
    QCOMPARE(runTool(Scan, m_folder->filePath("large")).status, 0);
}

void ToolTest::record()
{
    const QString kept = write("kept.scan", "something older\n");
    const QStringList arguments = QStringList{"--record", kept} + Scan;
    const Run first = runTool(arguments, write("iw.txt", IwText));
    QCOMPARE(first.status, 0);
    QCOMPARE(contentsOf(kept), IwLine + "wifiscan: over\n");
    const Run second = runTool(Scan, kept);
    QCOMPARE(second.output, first.output);

    // A failure leaves what was kept, and nothing else.
    const int files = QDir(m_folder->path()).count();
    QCOMPARE(runTool(arguments, m_folder->filePath("missing")).status, 13);
    QCOMPARE(contentsOf(kept), first.output);
    QCOMPARE(int(QDir(m_folder->path()).count()), files);
}

void ToolTest::recordFailures()
{
    const QString replay = write("iw.txt", IwText);
    const QString missing = m_folder->filePath("missing/kept.scan");
    for (const QString& path : {missing, m_folder->path(), QString("/dev/null")}) {
        const Run run = runTool(QStringList{"--record", path} + Scan, replay);
        QCOMPARE(run.status, 14);
        QCOMPARE(run.output, IwLine + "wifiscan: over\n"); // the list itself is not lost
        QVERIFY2(run.remarks.contains("cannot write " + path.toUtf8()), run.remarks.constData());
    }
}

void ToolTest::noInterface()
{
    for (const QString& name : {QString("nosuchwlan9"), QString("far-too-long-for-an-interface"),
             QString(), QString("../../etc")}) {
        const Run run = runTool({name, "scanning"});
        QCOMPARE(run.status, 3);
        QCOMPARE(run.output, QByteArray("wifiscan: fail\n"));
        QCOMPARE(run.remarks, "wifi-scan: there is no network interface " + name.toUtf8() + "\n");
    }
}

void ToolTest::usage()
{
    const QList<QStringList> wrong = {{}, {"wlan0"}, {"wlan0", "scan"},
        {"wlan0", "scanning", "now"}, {"--fast", "wlan0", "scanning"},
        {"wlan0", "scanning", "--record"}};
    for (const QStringList& arguments : wrong) {
        const Run run = runTool(arguments, QString(SCENARIOS) + "/office.scan");
        QCOMPARE(run.status, 2);
        QCOMPARE(run.output, QByteArray("wifiscan: fail\n"));
        QVERIFY2(run.remarks.contains("usage: wifi-scan "), run.remarks.constData());
    }
}

// Output that did not arrive must not look like success.
void ToolTest::fullDevice()
{
    const Run run = runTool(Scan, QString(SCENARIOS) + "/office.scan", "/dev/full");
    QCOMPARE(run.status, 14);
    QCOMPARE(run.remarks,
        QByteArray("wifi-scan: cannot write standard output: No space left on device\n"));
}

QTEST_APPLESS_MAIN(ToolTest)
#include "tst_tool.moc"

#include "output.h"
#include "replay.h"
#include "tables.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using namespace wifiscan;

namespace {

constexpr int Bound = 10000; // ms, on waits that end at once

struct Run {
    int status = -1; // a crash, or no end within the bound
    QByteArray output;
    QByteArray remarks;
};

Run runTool(const QStringList& arguments, const QString& replay, const QString& outputFile = {})
{
    QProcess process;
    qputenv("WIFI_SCAN_REPLAY", replay.toUtf8()); // which the process inherits
    process.setStandardOutputFile(outputFile);
    process.start(WIFI_SCAN, arguments);
    Run run;
    if (process.waitForFinished(Bound) && process.exitStatus() == QProcess::NormalExit)
        run.status = process.exitCode();
    run.output = process.readAllStandardOutput();
    run.remarks = process.readAllStandardError();
    return run;
}

bool write(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size();
}

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

QStringList recordingTo(const QString& path)
{
    return {"--record", path, "wlan0", "scanning"};
}

const QStringList Scan = {"wlan0", "scanning"};
const QByteArray Failed = "wifiscan: fail\n";
const QByteArray IwText = "BSS 02:00:00:00:00:0a(on wlan0)\n"
                          "\tfreq: 2437\n\tsignal: -60.00 dBm\n\tSSID: Cafe\nBSS broken\n";
const QByteArray IwOutput = "wifiscan: stat> CellNo=1, Address=02:00:00:00:00:0a, ESSID=Cafe, "
                            "Mode=Master, Frequency=2.437 GHz, Channel=6, Quality=50/70, "
                            "Signal=-60 dBm, Noise=unknown, EncKey=0, EncType=NONE\n"
                            "wifiscan: over\n";

} // namespace

/// The program as the device's caller runs it, in a folder of its own.
class ToolTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void kinds_data();
    void kinds();
    void runs_data();
    void runs();
    void record();
    void remarks();
    void interfaces();
    void fullDevice();
    void interruptedWrites();

private:
    QTemporaryDir m_folder;
};

void ToolTest::initTestCase()
{
    QVERIFY(QDir::setCurrent(m_folder.path()));
    const QByteArray largest = QByteArray("wifiscan: over\n").leftJustified(64 * 1024, 'x');
    QVERIFY(write("largest", largest) && write("larger", largest + 'x'));
    QVERIFY(write("lines", "wifiscan: over\n" + QByteArray(256, '\n')));
    const QByteArray vast = IwText.leftJustified(16 * 1024 * 1024, '\n');
    QVERIFY(write("vast", vast) && write("vaster", vast + '\n'));
    QVERIFY(write("empty", {}) && write("iw.txt", IwText));
    QCOMPARE(::mkfifo("pipe", 0600), 0);
}

void ToolTest::kinds_data()
{
    addColumns();
    const QByteArray other = "; that of \"iw dev IFACE scan\" is what can be read";
    addRow("scenario and text", IwText + "wifiscan: over", "scenario");
    addRow("an indented head below a broken one", "BSS 02\n BSS 02:00:00:00:00:0a\n", "text");
    addRow("words", "BSS 02\n# wifiscan: x\n",
        "f: neither a scenario nor a capture of frames nor the text of \"iw dev IFACE scan\"");
    addRow("masked", "BSS xx:xx:xx:xx:xx:xx(on wlan0)\n",
        "f: its addresses are masked, and without them access points cannot be told apart");
    addRow("UTF-16", hex("fffe4200"), "f: a text in UTF-16, of which only UTF-8 can be read");
    addRow(
        "iwlist", "wlan0\n   Cell 01 - Address: 02:0A\n", "f: this is the text of iwlist" + other);
    addRow("nmcli", "IN-USE  SSID  MODE   CHAN  RATE   SIGNAL\n",
        "f: this is the text of nmcli" + other);
}

void ToolTest::kinds()
{
    QFETCH(QByteArray, input);
    const Replay replay = readContents(input.toStdString(), "f");
    static constexpr const char* Kinds[] = {"", "scenario", "text"};
    QTEST(Kinds[int(replay.kind)] + QByteArray::fromStdString(replay.problem), "expected");
}

void ToolTest::runs_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("replay");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QByteArray>("lastRemark");
    const auto row = [](const QStringList& arguments, const QString& replay, int status,
                         const QByteArray& output, const QByteArray& lastRemark) {
        QTest::addRow("\"%s\" with %s", qPrintable(arguments.join(' ')), qPrintable(replay))
            << arguments << replay << status << output << lastRemark;
    };

    // Scenarios are copied out byte for byte, with all that is wrong in them.
    const QFileInfoList files = QDir(SCENARIOS).entryInfoList({"*.scan"}, QDir::Files);
    QVERIFY(files.size() >= 7);
    for (const QFileInfo& file : files)
        row(Scan, file.filePath(), 0, contentsOf(file.filePath()), "");
    row(Scan, "largest", 0, contentsOf("largest"), "");
    for (const char* const text : {"iw.txt", "vast"})
        row(Scan, text, 0, IwOutput, "wifi-scan: 1 access point(s) left out: malformed");

    const auto badReplay = [&row](const QByteArray& path, const QByteArray& reason) {
        row(Scan, path, 13, Failed, "wifi-scan: cannot replay " + path + ": " + reason);
    };
    badReplay("missing", "No such file or directory");
    badReplay(".", "not a regular file");
    badReplay("pipe", "not a regular file");
    badReplay("/dev/zero", "not a regular file");
    badReplay("empty",
        "neither a scenario nor a capture of frames nor the text of \"iw dev IFACE scan\"");
    badReplay("vaster", "larger than 16 MiB, which no scan is");
    for (const char* const scenario : {"larger", "lines"})
        badReplay(scenario, "larger than a scenario can be, which is 64 KiB or 256 lines");

    const auto badRecord = [&row](const QByteArray& path, const QByteArray& reason) {
        row(recordingTo(path), "iw.txt", 14, IwOutput, // the list itself is not lost
            "wifi-scan: cannot write " + path + ": " + reason);
    };
    badRecord("missing/kept.scan", "No such file or directory");
    badRecord(".", "Is a directory");
    badRecord("pipe", "Invalid argument");

    for (const QByteArray name : {"nosuchwlan9", "far-too-long-for-an-interface", "../../etc"})
        row({name, "scanning"}, "", 3, Failed, "wifi-scan: there is no network interface " + name);
    row({"--help"}, "", 0, "usage*--json*--record FILE*WIFI_SCAN_REPLAY*\n  14  *", "");
    row({"--version"}, "iw.txt", 0, "wifi-scan 1.0\n", "");
    row({"--anonymous", "wlan0", "scanning"}, "iw.txt", 0,
        QByteArray(IwOutput).replace("00:00:0a", "00:00:01").replace("Cafe", "Network 1"),
        "wifi-scan: 1 access point(s) left out: malformed");
    for (const char* const option : {"--json", "--anonymous"})
        row({option, "wlan0", "scanning"}, "largest", 13,
            option == QByteArray("--json") ? "{" : Failed,
            "wifi-scan: a scenario is only copied as it is, without --json and --anonymous");
    const QByteArray usage =
        "usage: wifi-scan [--json] [--anonymous] [--record FILE] IFACE scanning";
    row({"--fast", "--json"}, "iw.txt", 2, "{", "wifi-scan: " + usage);
    row({"--json", "wlan0", "scanning"}, "iw.txt", 0, "{",
        "wifi-scan: 1 access point(s) left out: malformed");
    row({"--json", "--record", ".", "wlan0", "scanning"}, "iw.txt", 14, "{",
        "wifi-scan: cannot write .: Is a directory");
    const QList<QStringList> wrong = {{}, {"wlan0"}, {"wlan0", "scan"},
        {"wlan0", "scanning", "now"}, {"--fast", "wlan0", "scanning"}, recordingTo("")};
    for (const QStringList& arguments : wrong)
        row(arguments, "iw.txt", 2, Failed, "wifi-scan: " + usage);
}

void ToolTest::runs()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, replay);
    const Run run = runTool(arguments, replay);
    QTEST(run.status, "status");
    QFETCH(QByteArray, output);
    if (output == "{") { // one document, which agrees with the exit status, and nothing beside it
        QJsonParseError error = {};
        const QJsonDocument document = QJsonDocument::fromJson(run.output, &error);
        QVERIFY2(error.error == QJsonParseError::NoError, run.output);
        QCOMPARE(document["status"].toInt(-1), run.status);
    } else if (output.endsWith('*')) {
        const QRegularExpression wanted(QRegularExpression::wildcardToRegularExpression(output));
        QVERIFY2(wanted.match(run.output).hasMatch(), run.output);
    } else {
        QCOMPARE(run.output, output);
    }
    QTEST(run.remarks.trimmed().split('\n').last(), "lastRemark");
}

void ToolTest::record()
{
    QVERIFY(write("kept.scan", "something older\n"));
    // Lines, whatever is written.
    QCOMPARE(runTool(recordingTo("kept.scan") << "--json", "iw.txt").status, 0);
    QCOMPARE(contentsOf("kept.scan"), IwOutput);
    QCOMPARE(QFile::permissions("kept.scan"), QFile::permissions("iw.txt"));

    // A failure, and what does not fit, leave what was kept, and nothing else.
    const uint files = QDir().count();
    QCOMPARE(runTool(recordingTo("kept.scan"), "missing").status, 13);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit narrow = {1000, limit.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &narrow), 0);
    const int error = keep("kept.scan", std::string(1001, 'x')) ? 0 : errno;
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    QCOMPARE(error, EFBIG);
    QCOMPARE(contentsOf("kept.scan"), IwOutput);
    QCOMPARE(QDir().count(), files);
}

// Each scan replaces the file, with what it has to say or with nothing.
void ToolTest::remarks()
{
    const auto remarksOf = [](const QStringList& arguments, const QString& replay, int status) {
        return runTool(arguments, replay).status == status ? contentsOf("remarks") : "(status)";
    };
    qputenv("WIFI_SCAN_REMARKS", "remarks");
    QCOMPARE(remarksOf(Scan, "iw.txt", 0), QByteArray("1 access point(s) left out: malformed\n"));
    QCOMPARE(remarksOf({"no\nsuch", "scanning"}, "", 3),
        QByteArray("there is no network interface no such\n"));
    QCOMPARE(remarksOf(Scan, "largest", 0), QByteArray());

    qputenv("WIFI_SCAN_REMARKS", "missing/remarks");
    const Run run = runTool(Scan, "largest");
    qunsetenv("WIFI_SCAN_REMARKS");
    QVERIFY(run.status == 14 && run.output == contentsOf("largest"));
    QCOMPARE(run.remarks,
        QByteArray("wifi-scan: cannot write missing/remarks: No such file or directory\n"));
}

// Those that the test set's commands mean, and the name under which it brings one up.
void ToolTest::interfaces()
{
    qputenv("TESTSET_INTERFACE", "nosuchwlan9");
    const QByteArray meant = runTool(Scan, "").remarks;
    const QByteArray named = runTool({"nosuchwlan8", "scanning"}, "").remarks;
    qunsetenv("TESTSET_INTERFACE");
    QCOMPARE(meant, QByteArray("wifi-scan: there is no network interface nosuchwlan9\n"));
    QCOMPARE(named, QByteArray("wifi-scan: there is no network interface nosuchwlan8\n"));

    QVERIFY(QFile::link(WIFI_SCAN, "ifconfig"));
    const auto ifconfig = [](const QStringList& arguments) {
        QProcess process;
        process.start("./ifconfig", arguments);
        const bool ended = process.waitForFinished(Bound);
        return QByteArray::number(ended ? process.exitCode() : -1) + ": "
            + process.readAllStandardOutput() + process.readAllStandardError();
    };
    QCOMPARE(ifconfig({"nosuchwlan9", "up"}), QByteArray("0: "));
    QCOMPARE(ifconfig({"lo", "up"}), QByteArray("0: "));
    for (const QStringList& arguments : {QStringList("lo"), {"lo", "down"}, {"lo", "up", "now"}})
        QCOMPARE(ifconfig(arguments), QByteArray("2: usage: ifconfig IFACE up\n"));
}

// Output that did not arrive must not look like success.
void ToolTest::fullDevice()
{
    const Run run = runTool(Scan, "largest", "/dev/full");
    QCOMPARE(run.status, 14);
    QCOMPARE(run.remarks,
        QByteArray("wifi-scan: cannot write standard output: No space left on device\n"));
}

// A reader that is slower than the writer, which signals interrupt before each read.
void ToolTest::interruptedWrites()
{
    struct sigaction action = {}; // without SA_RESTART
    action.sa_handler = [](int) {};
    QCOMPARE(::sigaction(SIGUSR1, &action, nullptr), 0);
    int ends[2] = {};
    QCOMPARE(::pipe(ends), 0);
    const QByteArray text = contentsOf("vast").left(1024 * 1024);
    QByteArray arrived;
    std::thread reader([&arrived, from = ends[0], writer = ::pthread_self()] {
        char part[4096];
        for (ssize_t count = 1; count > 0; arrived.append(part, qMax(0, int(count)))) {
            // The first finds a part written, a later one nothing.
            for (int i = 0; i < 4; ++i, std::this_thread::yield())
                ::pthread_kill(writer, SIGUSR1);
            count = ::read(from, part, sizeof part);
        }
    });
    const bool written = writeAll(ends[1], text.toStdString());
    ::close(ends[1]);
    reader.join();
    ::close(ends[0]);
    QVERIFY(written && arrived == text);
}

QTEST_APPLESS_MAIN(ToolTest)
#include "tst_tool.moc"

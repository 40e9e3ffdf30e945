#include "../files.h"
#include "../texttable.h"
#include "analyser.h"
#include "device/paths.h"
#include "device/reportfiles.h"
#include "scantable.h"

#include <QImage>

#include <csignal>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace wifiondivo;

namespace {

QString folder()
{
    return QString::fromStdString(device::path(device::ReportFolder)) + '/';
}

/// The report of this name, with its date, which no test can foretell, replaced by "DATE" when it
/// has the right form.
QByteArray report(const QString& name)
{
    static const QRegularExpression date("(Saved:</td><td>)[A-Z][a-z]+day [A-Z][a-z]+ "
                                         "\\d{4} \\d\\d:\\d\\d:\\d\\d(</td>)");
    const QByteArray text = readFile(folder() + name + ".html");
    return QString::fromLatin1(text).replace(date, "\\1DATE\\2").toLatin1();
}

/// The first cells of a report's rows: names, then channels.
QString listed(const QString& name)
{
    static const QRegularExpression row("<tr><font size=\"4\"> <td>(\\w+)</td>");
    QStringList cells;
    for (auto match = row.globalMatch(report(name)); match.hasNext();)
        cells << match.next().captured(1);
    return cells.join(' ');
}

/// The entries of the results folder, or of a folder in it.
QStringList files(const QString& below = QString())
{
    return QDir(folder() + below)
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

const QByteArray OneOf2_4 = apLine(1, "one", 6, "-65 dBm");

/// The section General Information, as it begins each report.
const QByteArray General =
    "\n<br><font size=4> <a  style=\"color:blue;\"> General Information </a> </font> </br>\n"
    "<table border=\"1\">\n"
    "\t<tr><font size=\"4\"> <td>Date and Time Results Were Saved:</td><td>DATE</td></font></tr>\n"
    "\t<tr><font size=\"4\"> <td>Software Version:</td><td>4.2.0 (desk)</td></font></tr>\n"
    "\t<tr><font size=\"4\"> <td>MAC Address of Test "
    "Port:</td><td>ba:1a:ff:80:00:01</td></font></tr>\n"
    "\t<tr><font size=\"4\"> <td>Serial Number of Test Set:</td><td>SN-1</td></font></tr>\n"
    "</table>";

QStringList synced; ///< names of synced files, at that time
bool diskFails = false;

} // namespace

/// In the place of the C library's.
extern "C" int fsync(int file)
{
    synced << QFileInfo(QFile::symLinkTarget(QString("/proc/self/fd/%1").arg(file))).fileName();
    return diskFails ? -1 : int(syscall(SYS_fsync, file));
}

class ReportTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        const std::string vendor = device::path(device::VendorInfoFile);
        QVERIFY(writeFile(QString::fromStdString(vendor), "version=4.2.0 (desk)\n"));
        qputenv("TESTSET_EEPROM", m_image.toLocal8Bit());
    }
    void init()
    {
        writeFile(m_image, "mac=BA:1A:FF:80:00:01\nsn=SN-1\n");
        clear();
    }

    void writesReports_data() { addTableOf(QFINDTESTDATA("reports.txt")); }
    void writesReports()
    {
        QFETCH(QByteArray, input);
        QFETCH(QByteArray, expected);
        expected.replace("GENERAL", General);
        Analyser analyser;
        if (input.startsWith("wifiscan: "))
            analyser.scan(input.replace("\\xff", "\xff"));
        else
            QVERIFY(writeFile(m_image, input));
        char* printed = nullptr;
        std::size_t size = 0;
        FILE* const output = std::exchange(stdout, open_memstream(&printed, &size));
        save(analyser, "N");
        std::fclose(std::exchange(stdout, output));
        const char error[] = "### ERROR: FILE:source/wifiondivo\t Func:html_saveGeneralInfoOfSet\t";
        QCOMPARE(QByteArray(printed).count(error),
            !expected.contains("MAC Address") + !expected.contains("Serial Number"));
        std::free(printed);
        QCOMPARE(report("N"), expected.replace("\\xff", "\xff"));
        QStringList pictures;
        for (int tab : {1, 4}) {
            const QString picture = tab == 1 ? "N2-4g.png" : "N5g.png";
            if (!expected.contains(picture.toLatin1()))
                continue;
            // It shows its own band's graph, which is not on the screen.
            pictures << picture;
            const QImage image(folder() + "N_files/" + picture);
            QCOMPARE(image.convertToFormat(QImage::Format_RGB32), analyser.pictureOf(tab));
        }
        QCOMPARE(files("N_files"), pictures);
    }

    void asksForTheName()
    {
        Analyser analyser;
        onKeyPad(analyser, [](QWidget* pad) {
            QCOMPARE(pad->windowTitle(), QString("Save Test Result"));
            const QLineEdit* const edit = pad->findChild<QLineEdit*>();
            static const QRegularExpression preset("^\\d{8}-\\d{6}$");
            QVERIFY(preset.match(edit->text()).hasMatch());
            QCOMPARE(edit->maxLength(), 100);
        });
        QKeyEvent other(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier);
        QTimer::singleShot(0, [] { delete QApplication::activeModalWidget(); });
        QApplication::sendEvent(analyser.window.get(), &other);
        QVERIFY(!other.isAccepted());
        QCOMPARE(files(), QStringList()); // neither asking nor cancelling leaves a trace
    }

    void keepsToTheLastScanWhileAnotherRuns()
    {
        Analyser analyser;
        analyser.scan(apLine(1, "old", 6, "-65 dBm") + Over);
        HeldScan scan(analyser, apLine(1, "new", 149, "-65 dBm") + "wifiscan: fail\n");
        save(analyser, "during"); // the worker's table is empty now
        QCOMPARE(listed("during"), QString("old 6"));
        scan.open();
        QVERIFY(world::finishScan());
        // Once the thread has ended, the table is the failed scan's, the summaries still the old.
        save(analyser, "after");
        QCOMPARE(listed("after"), QString("new 6"));
        const HeldScan next(analyser, Over); // and it is held in its turn
        save(analyser, "next");
        QCOMPARE(listed("next"), QString("new 6"));
        const stEXT_WIFISCAN_result sent = scanTable("7/-40//sent"); // by the worker, still running
        QVERIFY(QMetaObject::invokeMethod(
            world::worker(), "sigWifiSSID2_4GCHScanReply", Q_ARG(stEXT_WIFISCAN_result, sent)));
        save(analyser, "sent");
        QCOMPARE(listed("sent"), QString("sent 7"));
    }

    void letsInWhatBelongsToAScanThatHasJustEnded()
    {
        Analyser analyser;
        analyser.scan(apLine(1, "old", 6, "-65 dBm") + Over);
        HeldScan scan(analyser, apLine(1, "new", 149, "-65 dBm") + Over);
        // With the key pad gone, nothing delivers events any more until the report is written.
        QObject other;
        onKeyPad(analyser, [&](QWidget* pad) {
            connect(pad, &QObject::destroyed, [&] {
                scan.open();
                QVERIFY(world::waitForThread());
                QMetaObject::invokeMethod(
                    &other, [&] { other.setObjectName("called"); }, Qt::QueuedConnection);
            });
            enter(pad, "N");
        });
        QCOMPARE(listed("N"), QString("new 149"));
        QCOMPARE(files("N_files"), QStringList("N5g.png"));
        // The picture shows the new scan, as the graph does when everything has been delivered.
        QCoreApplication::sendPostedEvents(analyser.tabs->widget(4));
        QCOMPARE(QImage(folder() + "N_files/N5g.png").convertToFormat(QImage::Format_RGB32),
            analyser.pictureOf(4));
        QCOMPARE(other.objectName(), QString()); // a call of somebody else waits for its turn
    }

    void holdsATableWhenTheNextScanOvertakesTheSignalsOfTheLast()
    {
        Analyser analyser;
        analyser.startScan(OneOf2_4 + Over);
        QVERIFY(world::waitForThread()); // its signals, finished() too, are still queued
        world::Gate gate;
        analyser.window->scanWifi();
        QVERIFY(world::Gate::isReached());
        QCoreApplication::sendPostedEvents();
        save(analyser, "N");
        QCOMPARE(listed("N"), QString("one 6"));
    }

    void savesUnderTheNameOrNotAtAll()
    {
        Analyser analyser;
        analyser.scan(OneOf2_4 + Over);
        save(analyser, "N", "keypadCancel");
        QCOMPARE(files(), QStringList());

        // 3 bytes each, of the 242 that there is room for; 2 more letters fill it.
        const QString longest(80, QChar(0x20ac));
        const QStringList names[] = {{""}, {" it's \"<b>\" "}, {"$(touch x);`touch x`'"},
            {QString::fromUtf8("za\xc5\xbc\xc3\xb3")}, {"../../etc/passwd", ".._.._etc_passwd"},
            {longest + QString(20, QChar(0x20ac)), longest}, {longest + "abc", longest + "ab"}};
        for (const QStringList& entered : names) {
            const QString name = entered.last();
            save(analyser, entered.first());
            QCOMPARE(files(), (QStringList{name + ".html", name + "_files"}));
            QCOMPARE(files(name + "_files"), QStringList(name + "2-4g.png"));
            const QString picture = "<img src=\"" + name + "_files/" + name + "2-4g.png\"";
            QVERIFY(report(name).contains(picture.toUtf8()));
            clear();
        }

        const QString controls = QString("a\nb\tc\x7f") + QChar(0x85); // this key pad has none
        QCOMPARE(reportName(controls), std::string("a_b_c__"));

        QVERIFY(QDir(folder()).mkpath("N.html")); // a folder stands in the report's place
        save(analyser, "N");
        QCOMPARE(files(), (QStringList{"N.html", "N_files"}));
        QCOMPARE(files("N.html") + files("N_files"), QStringList());
        clear();

        synced.clear();
        save(analyser, "N");
        QCOMPARE(synced, (QStringList{"N.html.part", "SSID-result", "N2-4g.png.part", "N_files"}));
        QVERIFY(writeFile(folder() + "N.html", "earlier"));
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit = {};
        getrlimit(RLIMIT_FSIZE, &limit);
        const rlimit full = {64, limit.rlim_max}; // no file grows any longer, as on a full disk
        setrlimit(RLIMIT_FSIZE, &full);
        save(analyser, "N");
        setrlimit(RLIMIT_FSIZE, &limit);
        diskFails = true;
        save(analyser, "N");
        diskFails = false;
        QCOMPARE(files() + files("N_files"), (QStringList{"N.html", "N_files", "N2-4g.png"}));
        QCOMPARE(report("N"), QByteArray("earlier"));
    }

    void writesOnlyWhatIsItsOwn()
    {
        Analyser analyser;
        analyser.scan(OneOf2_4 + Over);
        const QTemporaryDir outside;
        for (const char* path : {"y.png.part", "victim"})
            QVERIFY(writeFile(outside.filePath(path), "kept"));
        for (const char* path : {"old.html.part", "old_files/old5g.png.part", "old_files/old5g.png",
                 "other/x.png.part", "notes.part", "a.html.part/a"})
            QVERIFY(writeFile(folder() + path, "kept"));
        for (const char* link : {"N.html.part", "b.html.part"})
            QVERIFY(QFile::link(outside.filePath("victim"), folder() + link));
        for (const char* link : {"N_files", "linked_files"})
            QVERIFY(QFile::link(outside.path(), folder() + link));
        const auto openFiles = [] { return QDir("/proc/self/fd").count(); };
        const uint openBefore = openFiles();
        save(analyser, "N");
        QCOMPARE(openFiles(), openBefore);
        QVERIFY(report("N").endsWith("</html>"));
        QCOMPARE(files(),
            (QStringList{"N.html", "N_files", "a.html.part", "b.html.part", "linked_files",
                "notes.part", "old_files", "other"}));
        QCOMPARE(files("old_files") + files("other"), (QStringList{"old5g.png", "x.png.part"}));
        QCOMPARE(files("N_files"), (QStringList{"victim", "y.png.part"})); // outside
        QVERIFY(!QFileInfo(folder() + "N.html").isSymLink());
        QCOMPARE(QFileInfo(outside.filePath("victim")).size(), 4);

        const uid_t user = getuid();
        const uid_t same = uid_t(-1);
        const QString report = folder() + "N.html";
        const QString picture = folder() + "N_files/N2-4g.png";
        for (const QString& unwritable : {picture, report}) {
            clear();
            save(analyser, "N");
            for (const QString& file : {report, picture}) {
                const int writable = file == unwritable ? 0 : 0x2222;
                QVERIFY(writeFile(file, "kept"));
                QVERIFY(QFile::setPermissions(file, QFile::Permissions(0x4444 | writable)));
            }
            QCOMPARE(setresuid(user ? user : 65534, same, same), 0); // root may write anything
            save(analyser, "N");
            QCOMPARE(setresuid(user, same, same), 0);
            QCOMPARE(QFileInfo(picture).size(), 4); // the report comes first, or not at all
            QCOMPARE(QFileInfo(report).size() == 4, unwritable == report);
        }
    }

private:
    static void clear()
    {
        QVERIFY(QDir(folder()).removeRecursively());
        QVERIFY(QDir().mkpath(folder()));
    }
    QTemporaryDir m_folder;
    const QString m_image = m_folder.filePath("eeprom");
};

QTEST_MAIN(ReportTest)
#include "tst_report.moc"

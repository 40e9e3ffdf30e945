#include "2_4GraphCh.h"
#include "5GraphCh.h"
#include "reportfiles.h"
#include "scanfixture.h"
#include "scantable.h"

#include <QImage>
#include <QLineEdit>
#include <QTimer>

#include <csignal>
#include <sys/resource.h>

using namespace wifiondivo;

namespace {

QByteArray section(const char* title, const QByteArray& rows)
{
    return QByteArray("\n<br><font size=4> <a  style=\"color:blue;\"> ") + title
        + " </a> </font> </br>\n<table border=\"1\">\n" + rows + "</table>";
}

/// A row; `before` and `after` are the blanks around its font element, which not all rows have.
QByteArray row(const QByteArrayList& cells, const char* before = "", const char* after = "")
{
    return QByteArray("\t<tr>") + before + "<font size=\"4\"> <td>" + cells.join("</td><td>")
        + "</td>" + after + "</font></tr>\n";
}

QByteArray apRow(const QByteArrayList& cells)
{
    return row(cells, "", " ");
}

QByteArray general(const QByteArray& identity)
{
    return section("General Information",
        row({"Date and Time Results Were Saved:", "DATE"})
            + row({"Software Version:", "4.2.0 (desk)"}) + identity);
}

const QByteArray Mac = row({"MAC Address of Test Port:", "00:1a:ff:80:00:01"});
const QByteArray Serial = row({"Serial Number of Test Set:", "SN-1"});
const char End[] = "</body>\n</html>";

QByteArray essids(const QByteArray& rows)
{
    return section("ESSID", row({"ESSID", "Enc", "Signal", "Ch", "BSSID"}, " ") + rows) + "\n";
}

QByteArray channels(const char* title, const QByteArray& rows, const char* picture)
{
    return section(title, row({"Ch", "AP", "Best Signal"}, " ") + rows)
        + "<br> <img src=\"N_files/N" + picture + "\" /> </br>\n";
}

QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A report with its date, which no test can foretell, replaced by "DATE" when it has the right
/// form.
QByteArray dated(const QByteArray& report)
{
    static const QRegularExpression date("(Saved:</td><td>)[A-Z][a-z]+day [A-Z][a-z]+ "
                                         "\\d{4} \\d\\d:\\d\\d:\\d\\d(</td>)");
    return QString::fromUtf8(report).replace(date, "\\1DATE\\2").toUtf8();
}

QString folder()
{
    return device::ReportFolder;
}

} // namespace

class ReportTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { m_image.setFileName(m_folder.filePath("eeprom")); }
    void init()
    {
        ap2_4 = ap5 = 0;
        identity("mac=00:1A:FF:80:00:01\nsn=SN-1\n");
        QDir(folder()).removeRecursively();
    }

    void writesGeneralInformation_data()
    {
        QTest::addColumn<QByteArray>("image");
        QTest::addColumn<QByteArray>("rows");
        const QByteArray mac = "mac=00:1A:FF:80:00:01\n";
        QTest::newRow("both") << mac + "sn=SN-1\n" << Mac + Serial;
        QTest::newRow("no MAC") << QByteArray("sn=SN-1\n") << Serial;
        QTest::newRow("no serial") << mac << Mac;
        QTest::newRow("neither") << QByteArray() << QByteArray();
    }
    void writesGeneralInformation()
    {
        QFETCH(QByteArray, image);
        QFETCH(QByteArray, rows);
        identity(image);
        Analyser analyser;
        save(analyser, "before any scan");
        QCOMPARE(dated(read(folder() + "/before any scan.html")), general(rows) + End);
        QCOMPARE(files("before any scan_files"), QStringList());
    }

    void writesAScan_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QByteArray>("sections"); // behind the General Information
        QTest::addColumn<QStringList>("pictures");
        const QByteArray hostile = "caf\xc3\xa9 \xff%n";
        const QByteArray two = apRow({"two", "WPA2", "43/70", "6", "00:00:00:00:00:02"});
        const QByteArray open = apRow({hostile, "NONE", "-100 dBm", "1", "00:00:00:00:00:04"});
        const QByteArray three = apRow({"<b>&", "WPA2", "-65 dBm", "149", "00:00:00:00:00:03"});
        const QByteArray weak = apRow({"weak", "WPA2", "-96 dBm", "36", "00:00:00:00:00:05"});
        const QByteArray air2_4 = apLine(2, "two", 6, "43/70")
            + apLine(4, hostile, 1, "-100 dBm", "EncKey=0, EncType=NONE");
        const QByteArray air5 =
            apLine(3, "<b>&", 149, "-65 dBm") + apLine(5, "weak", 36, "-96 dBm");
        const QByteArray table2_4 =
            channels("2.4GHzChannel", row({"6", "1", "43%"}) + row({"1", "1", "0%"}), "2-4g.png");
        const QByteArray table5 = channels(
            "5.0GHzChannel", row({"149", "1", "- 65dBm"}) + row({"36", "1", "- 95dBm"}), "5g.png");
        QTest::newRow("both bands")
            << air2_4 + air5 << essids(two + three + open + weak) + table2_4 + table5
            << QStringList{"N2-4g.png", "N5g.png"};
        QTest::newRow("2.4 GHz only")
            << air2_4 << essids(two + open) + table2_4 << QStringList{"N2-4g.png"};
        QTest::newRow("5 GHz only")
            << air5 << essids(three + weak) + table5 << QStringList{"N5g.png"};
        QTest::newRow("channels that no table lists")
            << apLine(1, "one", 52, "-65 dBm") << QByteArray() << QStringList();
    }
    void writesAScan()
    {
        QFETCH(QByteArray, output);
        QFETCH(QByteArray, sections);
        QFETCH(QStringList, pictures);
        Analyser analyser;
        scan(analyser, output + "wifiscan: over\n", "WIFI Scan Finished");
        save(analyser, "N");
        // The byte that is not UTF-8 is made visible, as the date is replaced in a QString.
        QByteArray expected = general(Mac + Serial) + sections + End;
        const QByteArray actual = read(folder() + "/N.html").replace('\xff', "<FF>");
        QCOMPARE(dated(actual), expected.replace('\xff', "<FF>"));
        QCOMPARE(files("N_files"), pictures);
        for (const QString& picture : pictures) {
            const QImage image(folder() + "/N_files/" + picture);
            QCOMPARE(image.size(), QSize(640, 400));
            QCOMPARE(image.pixelColor(600, 305), QColor(Qt::black)); // the channel axis
            QCOMPARE(image.pixelColor(600, 399), QColor(Qt::white));
        }
    }

    void keepsToTheLastScanWhileAnotherRuns()
    {
        Analyser analyser;
        scan(analyser, apLine(1, "old", 6, "-65 dBm") + "wifiscan: over\n", "WIFI Scan Finished");
        analyser.replay(apLine(1, "new", 149, "-65 dBm") + "wifiscan: fail\n");
        analyser.pressScan();
        QVERIFY(analyser.waitForStatus("WIFI Scan Start...")); // the worker's table is empty now
        save(analyser, "during");
        QVERIFY(read(folder() + "/during.html").contains("<td>old</td>"));
        QVERIFY(analyser.waitForStatus("WIFI Scan Failed"));
        // Once the thread has ended, the table is the failed scan's, the summaries still the old.
        QTRY_VERIFY(
            (save(analyser, "after"), read(folder() + "/after.html").contains("<td>new</td>")));
        QVERIFY(read(folder() + "/after.html").contains("<td>6</td><td>1</td>"));
        QVERIFY(!read(folder() + "/after.html").contains("<td>old</td>"));
    }

    void changesTheHeldTableWhenItIsTold()
    {
        WifiSSIDHelper worker;
        const auto names = [&worker] {
            std::unique_ptr<FILE, int (*)(FILE*)> file(std::tmpfile(), std::fclose);
            worker.saveSSIDResult(file.get(), 4);
            QByteArray written(int(std::ftell(file.get())), '\0');
            std::rewind(file.get());
            written.resize(int(std::fread(written.data(), 1, size_t(written.size()), file.get())));
            QStringList found;
            for (const char* name : {"old", "new", "sent"}) {
                if (written.contains(name))
                    found << name;
            }
            return found.join(' ');
        };
        worker.scanstep_scan_ondivo(apLine(1, "old", 6, "-40"));
        worker.holdResult();
        worker.scanstep_scan_ondivo(apLine(1, "new", 6, "-40"));
        QCOMPARE(names(), QString("old"));
        worker.updateHeldResult(ScanTable().add(6, "-40", "", "sent"));
        QCOMPARE(names(), QString("sent"));
        worker.releaseResult();
        QCOMPARE(names(), QString("new"));
    }

    void cleansNames_data()
    {
        QTest::addColumn<QString>("entered");
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << "20261116-175047"
                               << "20261116-175047";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("blanks, quotes, markup") << " it's \"<b>\" "
                                                << " it's \"<b>\" ";
        QTest::newRow("shell") << "$(touch x);`touch x`'"
                               << "$(touch x);`touch x`'";
        QTest::newRow("UTF-8") << QString::fromUtf8("za\xc5\xbc\xc3\xb3\xc5\x82\xc4\x87")
                               << QString::fromUtf8("za\xc5\xbc\xc3\xb3\xc5\x82\xc4\x87");
        QTest::newRow("slashes") << "../../etc/passwd"
                                 << ".._.._etc_passwd";
        QTest::newRow("control characters") << QString("a\nb\tc\x7f") + QChar(0x85) << "a_b_c__";
        // 100 characters of 3 bytes: 242 bytes hold 80 of them
        QTest::newRow("too long") << QString(100, QChar(0x20ac)) << QString(80, QChar(0x20ac));
    }
    void cleansNames()
    {
        QFETCH(QString, entered);
        QFETCH(QString, name);
        QCOMPARE(QString::fromStdString(reportName(entered)), name);
    }

    void savesUnderTheNameOrNotAtAll()
    {
        Analyser analyser;
        scan(analyser, apLine(1, "one", 6, "-65 dBm") + "wifiscan: over\n", "WIFI Scan Finished");
        save(analyser, "N", "keypadCancel");
        QCOMPARE(files(""), QStringList());

        for (const char* entered : {"", "it's \"$(x)\"", "\xc5\xbc\xc3\xb3\xc5\x82w", "../out"}) {
            const QString name = QString(entered).replace('/', '_');
            save(analyser, entered);
            QCOMPARE(files(""), (QStringList{name + ".html", name + "_files"}));
            QCOMPARE(files(name + "_files"), QStringList(name + "2-4g.png"));
            QVERIFY(
                read(folder() + '/' + name + ".html")
                    .contains(("<img src=\"" + name + "_files/" + name + "2-4g.png\"").toUtf8()));
            clear();
        }

        QVERIFY(QDir(folder()).mkpath("N.html")); // a folder stands in the report's place
        save(analyser, "N");
        QCOMPARE(files(""), (QStringList{"N.html", "N_files"}));
        QCOMPARE(files("N.html") + files("N_files"), QStringList());
        clear();

        save(analyser, "N");
        const QByteArray earlier = read(folder() + "/N.html");
        withFullDisk([&] { save(analyser, "N"); });
        QCOMPARE(files(""), (QStringList{"N.html", "N_files"}));
        QCOMPARE(files("N_files"), QStringList("N2-4g.png"));
        QCOMPARE(read(folder() + "/N.html"), earlier);
    }

private:
    void identity(const QByteArray& image)
    {
        QVERIFY(m_image.open(QIODevice::WriteOnly));
        m_image.write(image);
        m_image.close();
        qputenv("TESTSET_EEPROM", m_image.fileName().toLocal8Bit());
    }
    static QStringList files(const QString& below)
    {
        return QDir(folder() + '/' + below)
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    static void clear()
    {
        QVERIFY(QDir(folder()).removeRecursively());
        QVERIFY(QDir().mkpath(folder()));
    }
    /// Lets no file grow beyond a few bytes meanwhile, as on a disk without room.
    template <typename Action> static void withFullDisk(Action action)
    {
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit = {};
        getrlimit(RLIMIT_FSIZE, &limit);
        const rlimit small = {64, limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        action();
        setrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, handler);
    }
    static void scan(Analyser& analyser, const QByteArray& output, const char* status)
    {
        analyser.replay(output);
        analyser.pressScan();
        QVERIFY(analyser.waitForStatus(status));
        QTRY_VERIFY(ap2_4 + ap5 > 0 || output.contains("Channel=52"));
    }
    /// Presses F1, enters a name on the key pad, and confirms or cancels.
    static void save(Analyser& analyser, const QString& name, const char* button = "keypadOk")
    {
        QTimer::singleShot(0, analyser.window.get(), [&] {
            QWidget* const pad = QApplication::activeModalWidget();
            QVERIFY(pad);
            QLineEdit* const edit = pad->findChild<QLineEdit*>("keypadEdit");
            static const QRegularExpression preset("^\\d{8}-\\d{6}$");
            QVERIFY(preset.match(edit->text()).hasMatch());
            edit->setText(name);
            pad->findChild<CPushButton*>(button)->click();
        });
        QTest::keyClick(analyser.window.get(), Qt::Key_F1);
    }

    QTemporaryDir m_folder;
    QFile m_image;
};

QTEST_MAIN(ReportTest)
#include "tst_report.moc"

#include "scanfixture.h"
#include "scantable.h"

#include "2_4GraphCh.h"
#include "5GraphCh.h"
#include "reportfiles.h"

#include <QImage>
#include <QLineEdit>
#include <QTimer>

#include <csignal>
#include <sys/resource.h>

using namespace wifiondivo;

namespace {

const char General[] = "\n<br><font size=4> <a  style=\"color:blue;\"> General Information </a> "
                       "</font> </br>\n<table border=\"1\">\n"
                       "\t<tr><font size=\"4\"> <td>Date and Time Results Were Saved:</td>"
                       "<td>DATE</td></font></tr>\n"
                       "\t<tr><font size=\"4\"> <td>Software Version:</td>"
                       "<td>4.2.0 (desk)</td></font></tr>\n";
const char Mac[] = "\t<tr><font size=\"4\"> <td>MAC Address of Test Port:</td>"
                   "<td>00:1a:ff:80:00:01</td></font></tr>\n";
const char Serial[] = "\t<tr><font size=\"4\"> <td>Serial Number of Test Set:</td>"
                      "<td>SN-1</td></font></tr>\n";
const char End[] = "</body>\n</html>";

const char EssidHead[] = "\n<br><font size=4> <a  style=\"color:blue;\"> ESSID </a> </font> </br>\n"
                         "<table border=\"1\">\n"
                         "\t<tr> <font size=\"4\"> <td>ESSID</td><td>Enc</td><td>Signal</td>"
                         "<td>Ch</td><td>BSSID</td></font></tr>\n";

QByteArray channelHead(const char* title)
{
    return QByteArray("\n<br><font size=4> <a  style=\"color:blue;\"> ") + title
        + " </a> </font> </br>\n<table border=\"1\">\n"
          "\t<tr> <font size=\"4\"> <td>Ch</td><td>AP</td><td>Best Signal</td></font></tr>\n";
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

class tst_Report : public QObject {
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
        QTest::newRow("both") << QByteArray("mac=00:1A:FF:80:00:01\nsn=SN-1\n")
                              << QByteArray(Mac) + Serial;
        QTest::newRow("no MAC") << QByteArray("sn=SN-1\n") << QByteArray(Serial);
        QTest::newRow("no serial") << QByteArray("mac=00:1a:ff:80:00:01\n") << QByteArray(Mac);
        QTest::newRow("neither") << QByteArray() << QByteArray();
    }
    void writesGeneralInformation()
    {
        QFETCH(QByteArray, image);
        QFETCH(QByteArray, rows);
        identity(image);
        Analyser analyser;
        save(analyser, "before any scan");
        QCOMPARE(
            dated(read(folder() + "/before any scan.html")), General + rows + "</table>" + End);
        QCOMPARE(files("before any scan_files"), QStringList());
    }

    void writesAScan_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QByteArray>("sections"); // behind the General Information
        QTest::addColumn<QStringList>("pictures");
        const QByteArray at2_4 = apLine(1, "<b>&", 6, "-65 dBm") + apLine(2, "two", 6, "43/70")
            + apLine(4, "caf\xc3\xa9 \xff%n", 1, "-100 dBm", "EncKey=0, EncType=NONE");
        const QByteArray at5 =
            apLine(3, "three", 149, "-65 dBm") + apLine(5, "weak", 36, "-96 dBm");
        const QByteArray row2_4 =
            "\t<tr><font size=\"4\"> <td><b>&</td><td>WPA2</td><td>-65 dBm</td><td>6</td>"
            "<td>00:00:00:00:00:01</td> </font></tr>\n"
            "\t<tr><font size=\"4\"> <td>two</td><td>WPA2</td><td>43/70</td><td>6</td>"
            "<td>00:00:00:00:00:02</td> </font></tr>\n";
        const QByteArray row4 =
            "\t<tr><font size=\"4\"> <td>caf\xc3\xa9 \xff%n</td><td>NONE</td><td>-100 dBm</td>"
            "<td>1</td><td>00:00:00:00:00:04</td> </font></tr>\n";
        const QByteArray row3 =
            "\t<tr><font size=\"4\"> <td>three</td><td>WPA2</td><td>-65 dBm</td><td>149</td>"
            "<td>00:00:00:00:00:03</td> </font></tr>\n";
        const QByteArray row5 =
            "\t<tr><font size=\"4\"> <td>weak</td><td>WPA2</td><td>-96 dBm</td><td>36</td>"
            "<td>00:00:00:00:00:05</td> </font></tr>\n";
        const QByteArray table2_4 = channelHead("2.4GHzChannel")
            + "\t<tr><font size=\"4\"> <td>6</td><td>2</td><td>50%</td></font></tr>\n"
              "\t<tr><font size=\"4\"> <td>1</td><td>1</td><td>0%</td></font></tr>\n</table>"
              "<br> <img src=\"N_files/N2-4g.png\" /> </br>\n";
        const QByteArray table5 = channelHead("5.0GHzChannel")
            + "\t<tr><font size=\"4\"> <td>149</td><td>1</td><td>- 65dBm</td></font></tr>\n"
              "\t<tr><font size=\"4\"> <td>36</td><td>1</td><td>- 95dBm</td></font></tr>\n</table>"
              "<br> <img src=\"N_files/N5g.png\" /> </br>\n";
        QTest::newRow("both bands")
            << apLine(1, "<b>&", 6, "-65 dBm") + apLine(2, "two", 6, "43/70")
                + apLine(3, "three", 149, "-65 dBm")
                + apLine(4, "caf\xc3\xa9 \xff%n", 1, "-100 dBm", "EncKey=0, EncType=NONE")
                + apLine(5, "weak", 36, "-96 dBm")
            << EssidHead + row2_4 + row3 + row4 + row5 + "</table>\n" + table2_4 + table5
            << QStringList{"N2-4g.png", "N5g.png"};
        QTest::newRow("2.4 GHz only")
            << at2_4 << EssidHead + row2_4 + row4 + "</table>\n" + table2_4
            << QStringList{"N2-4g.png"};
        QTest::newRow("5 GHz only")
            << at5 << EssidHead + row3 + row5 + "</table>\n" + table5 << QStringList{"N5g.png"};
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
        const QByteArray expected =
            General + QByteArray(Mac) + Serial + "</table>" + sections + End;
        const QByteArray actual = read(folder() + "/N.html").replace("\xff", "<FF>");
        QCOMPARE(dated(actual), QByteArray(expected).replace("\xff", "<FF>"));
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
        withFullDisk([&] { save(analyser, "M"); });
        QCOMPARE(files(""), (QStringList{"M_files", "N.html", "N_files"}));
        QCOMPARE(files("M_files"), QStringList());
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

QTEST_MAIN(tst_Report)
#include "tst_report.moc"

#include "../files.h"
#include "arguments.h"
#include "devicefolder.h"
#include "displayscale.h"
#include "installation.h"
#include "language.h"
#include "pluginloader.h"
#include "pluginrecord.h"
#include "scenarios.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <cstring>
#include <link.h>

using namespace testset;

/// The host's parts that need no window.
class HostPartsTest : public QObject {
    Q_OBJECT
private slots:
    void scale()
    {
        // 720 x 480 and a frame of 8 x 40 around the whole of it.
        const QPair<QSize, int> fitting[] = {{{800, 600}, 1}, {{640, 480}, 1}, {{1920, 1080}, 2},
            {{1448, 1000}, 2}, {{1447, 1000}, 1}, {{1448, 999}, 1}, {{7680, 4320}, 8},
            {{9999, 9999}, 8}};
        for (const auto& [available, factor] : fitting)
            QCOMPARE(fittingScale(available), factor);
    }

    void recordFault_data()
    {
        QTest::addColumn<QByteArray>("record");
        QTest::addColumn<QString>("fault"); // a part of it; empty when accepted

        const QByteArray good = "pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.8.4\ndebug=true\n"
                                "buildkey=i386 linux g++-4 full-config";
        const auto with = [&](const char* part, const char* another) {
            return QByteArray(good).replace(part, another);
        };
        QTest::newRow("the test set's own") << good << "";
        QTest::newRow("release build") << with("true", "false") << "";
        QTest::newRow("newer patch") << with("4.8.4", "4.8.7") << "";
        QTest::newRow("older minor") << with("4.8.4", "4.7.0") << "";
        QTest::newRow("newer minor") << with("4.8.4", "4.9.0") << "4.9.0";
        QTest::newRow("older major") << with("4.8.4", "3.8.4") << "3.8.4";
        QTest::newRow("version of two numbers") << with("4.8.4", "4.8") << "no Qt version";
        QTest::newRow("version of words") << with("4.8.4", "four.8.4") << "no Qt version";
        QTest::newRow("another machine") << with("i386", "arm") << "arm linux";
        QTest::newRow("longer build key") << with("config", "config x") << "full-config x";
        QTest::newRow("another pattern") << with("VERIFICATION", "OTHER") << "another form";
        QTest::newRow("no debug line") << with("debug=true\n", "") << "another form";
        QTest::newRow("cut short") << good.left(good.indexOf("\nbuildkey")) << "another form";
    }

    void recordFault()
    {
        QFETCH(QByteArray, record);
        compare(testset::recordFault(record.constData(), record.size() + 1));
    }

    void recordWithoutEnd()
    {
        // Three bytes of heap without a NUL: reading a fourth one is a fault that a sanitizer sees.
        const std::unique_ptr<char[]> bytes(new char[3]{'p', 'a', 't'});
        QVERIFY(testset::recordFault(bytes.get(), 3).contains("no readable"));
    }

    void arguments_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<QString>("fault"); // a part of it; empty when right
        const auto row = [](const char* name, const char* words, const char* fault) {
            QTest::newRow(name) << words << fault;
        };
        row("longest wait", "--survey d --wait 3600", "");
        row("too long a wait", "--survey d --wait 3601", "1 to 3600");
        row("no wait", "--survey d --wait 0", "1 to 3600");
        row("wait in words", "--survey d --wait 1m", "'1m'");
        row("wait without survey", "--wait 5", "belongs to --survey");
        row("name without survey", "--report-name=r", "belongs to --survey");
        row("stray word", "office", "'office'");
        row("value missing", "--scenario", "scenario");
        row("value empty", "--scenario=", "scenario");
        row("language without a name", "--language=", "language");
    }

    void arguments()
    {
        QFETCH(QString, words);
        compare(parseArguments(("testset " + words).split(' ')).fault);
    }

    void argumentValues()
    {
        const Arguments all = parseArguments(
            {"testset", "--survey=d", "--wait=7", "--report-name=", "--language=de"});
        QVERIFY(all.reportName && all.reportName->isEmpty()); // an empty name is a name
        QVERIFY(all.language == "de" && all.waitSeconds == 7);
    }

    void statusesAreTold()
    {
        for (int status = WrongUsage; status <= ScanNotPossible; ++status)
            QVERIFY2(usage().contains(QRegularExpression(QString(" %1  [a-z]").arg(status))),
                qPrintable(QString::number(status)));
    }

    void languageNames_data()
    {
        QTest::addColumn<QString>("code"); // of the language that a locale gets
        QTest::newRow("en_GB") << "en";
        QTest::newRow("de-Latn-AT") << "de";
        QTest::newRow("pt-PT") << "pt";
        QTest::newRow("pt-BR") << "pt_BR";
        QTest::newRow("zh") << "zh_CN";
        QTest::newRow("zh_TW") << QString(); // another script
        QTest::newRow("C") << QString();
        QTest::newRow("no language") << QString();
    }

    void languageNames()
    {
        QTemporaryDir folder;
        const QStringList codes = {"en", "de", "pt", "pt_BR", "zh_CN"};
        for (const QString& code : codes.mid(1))
            writeFile(folder.filePath("wifiondivo_" + code + ".qm"), "no translation");
        Translation translation(folder.path());
        QCOMPARE(translation.codes(), codes);
        QTEST(translation.find(QTest::currentDataTag()), "code");
        QVERIFY(!translation.use("de") && !translation.use("fr"));
        QCOMPARE(translation.code(), QString("en"));
    }

    void deviceFolder()
    {
        QTemporaryDir place;
        const QString root = place.filePath("new/it's");
        const Installation installation("/opt/set/bin");
        const QString tool = root + "/usr/local/k510/sbin/wifi-scan";
        {
            DeviceFolder device(root);
            QCOMPARE(device.prepare(installation).status, Success);
            QCOMPARE(qgetenv("TESTSET_DEVICE_ROOT"), root.toLocal8Bit());
            QVERIFY(qgetenv("PATH").startsWith(root.toLocal8Bit() + "/sbin:"));
            for (const QString& link : {tool, root + "/sbin/ifconfig"})
                QCOMPARE(QFileInfo(link).symLinkTarget(), QString("/opt/set/bin/wifi-scan"));
            QVERIFY(QFileInfo(root + "/tmp").isDir());
            // Another test set stays out until this one has gone.
            QCOMPARE(DeviceFolder(root).prepare(installation).status, DeviceFolderInUse);
            QCOMPARE(device.lastRemark(), QString());
            writeFile(QFile::decodeName(qgetenv("WIFI_SCAN_REMARKS")), "one\nwlan0 is down\n");
            QCOMPARE(device.lastRemark(), QString("wlan0 is down"));
        }
        // What somebody put there stays; the links follow the installation.
        const QString vendor = root + "/usr/local/qb740s-vendor-info.txt";
        writeFile(vendor, "version=5\n");
        QCOMPARE(DeviceFolder(root).prepare(Installation("/opt/other/bin")).status, Success);
        QCOMPARE(QFileInfo(vendor).size(), qint64(10));
        QCOMPARE(QFileInfo(tool).symLinkTarget(), QString("/opt/other/bin/wifi-scan"));
        QVERIFY(QFile::remove(tool));
        writeFile(tool, "a program of one's own");
        QCOMPARE(DeviceFolder(root).prepare(installation).status, DeviceFolderUnusable);
        QCOMPARE(DeviceFolder(vendor).prepare(installation).status, DeviceFolderUnusable);
    }

    /// A plug-in file cut short would kill the program that loads it.
    void cutShort()
    {
        const QByteArray bytes = readFile(FAKE_UTILITY);
        QTemporaryDir folder;
        QFile cut(folder.filePath("cut.so"));
        QVERIFY(cut.open(QIODevice::WriteOnly) && cut.write(bytes) == bytes.size());
        QVERIFY(cut.seek(18) && cut.putChar('\x7f') && cut.flush()); // the machine's number
        QVERIFY(loadPlugin(cut.fileName()).outcome.sentence.contains("another machine"));
        QVERIFY(cut.seek(18) && cut.putChar(bytes.at(18)) && cut.flush());
        QVERIFY(cut.seek(16) && cut.putChar('\1') && cut.flush()); // an object file's type
        QVERIFY(loadPlugin(cut.fileName()).outcome.sentence.contains("no shared library"));
        QVERIFY(cut.seek(16) && cut.putChar(bytes.at(16)) && cut.flush());
        ElfW(Ehdr) header;
        std::memcpy(&header, bytes.constData(), sizeof header);
        // A segment's size in the file.
        const qint64 size = qint64(header.e_phoff) + qint64(offsetof(ElfW(Phdr), p_filesz));
        QVERIFY(cut.seek(size + 3) && cut.putChar('\x7f') && cut.flush());
        QVERIFY(loadPlugin(cut.fileName()).outcome.sentence.contains("cut short"));
        QVERIFY(cut.seek(size + 3) && cut.putChar(bytes.at(int(size) + 3)) && cut.flush());
        for (int part = 15; part >= 0; --part) {
            QVERIFY(cut.resize(bytes.size() / 16 * part + 8));
            const Outcome outcome = loadPlugin(cut.fileName()).outcome;
            QVERIFY2(outcome.status == NotAPlugin, qPrintable(outcome.sentence));
            QVERIFY(part == 0 || outcome.sentence.contains("cut short"));
        }
    }

    void scenarioLookUp()
    {
        QTemporaryDir root;
        const QString folder = root.filePath("scenarios");
        QVERIFY(QDir().mkdir(folder));
        for (const char* const name : {"/b.scan", "/a.scan", "/notes.txt", "/../outside.scan"})
            QVERIFY(QFile(folder + name).open(QIODevice::WriteOnly));
        const QString outside = root.filePath("outside.scan");

        QCOMPARE(scenarioNames(folder), QStringList({"a", "b"}));
        QCOMPARE(findScenario(folder, "a"), folder + "/a.scan");
        QCOMPARE(findScenario(folder, outside), outside);
        for (const QString& name : {QString("../outside"), QString("notes"), folder})
            QVERIFY2(findScenario(folder, name).isNull(), qPrintable(name));
    }

private:
    /// Compares what was found with the row's part of it.
    static void compare(const QString& found)
    {
        QFETCH(QString, fault);
        QCOMPARE(found.isEmpty(), fault.isEmpty());
        QVERIFY2(found.contains(fault), qPrintable(found));
    }
};

QTEST_GUILESS_MAIN(HostPartsTest)
#include "tst_hostparts.moc"

#include "../files.h"
#include "arguments.h"
#include "devicefolder.h"
#include "displayscale.h"
#include "installation.h"
#include "language.h"
#include "newfile.h"
#include "pluginloader.h"
#include "pluginrecord.h"
#include "scenarios.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <cstring>
#include <link.h>
#include <sys/resource.h>

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

    void recordFaults()
    {
        const QByteArray good = "pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.8.4\ndebug=true\n"
                                "buildkey=i386 linux g++-4 full-config";
        // A part of the record, another in its place, and a part of the fault, if it is one.
        const char* const rows[][3] = {{"true", "true", ""}, {"true", "false", ""},
            {"4.8.4", "4.8.7", ""}, {"4.8.4", "4.7.0", ""}, {"4.8.4", "4.9.0", "4.9.0"},
            {"4.8.4", "3.8.4", "3.8.4"}, {"4.8.4", "4.8", "no Qt version"},
            {"i386", "arm", "arm linux"}, {"config", "config x", "full-config x"},
            {"VERIFICATION", "OTHER", "another form"}, {"debug=true\n", "", "another form"}};
        for (const auto& [part, other, fault] : rows) {
            const QByteArray record = QByteArray(good).replace(part, other);
            compare(recordFault(record.constData(), record.size() + 1), fault);
        }
    }

    void recordWithoutEnd()
    {
        // Three bytes of heap without a NUL: reading a fourth one is a fault that a sanitizer sees.
        const std::unique_ptr<char[]> bytes(new char[3]{'p', 'a', 't'});
        QVERIFY(recordFault(bytes.get(), 3).contains("no readable"));
    }

    void argumentFaults()
    {
        const QPair<QString, QString> rows[] = {{"--survey d --wait 3600 --scale 8", ""},
            {"--survey d --wait 3601", "'3601' is no waiting time: it is 1 to 3600"},
            {"--wait 5", "Option 'wait' belongs to"},
            {"--report-name=r", "Option 'report-name' belongs"},
            {"--scale 9", "'9' is no scale: it is a whole number from 1 to 8"},
            {"--scale 0", "'0' is no scale"}, {"office", "Unexpected argument 'office'"}};
        for (const auto& [words, fault] : rows)
            compare(parseArguments(("testset " + words).split(' ')).fault, fault);
        for (const char* const option :
            {"plugin", "scenario", "interface", "device-root", "language", "survey"})
            compare(parseArguments({"testset", QString("--%1=").arg(option)}).fault,
                QString("Option '%1' needs a value").arg(option));
    }

    void argumentValues()
    {
        const Arguments all = parseArguments({"testset", "--plugin=p", "--scenario=s",
            "--interface=i", "--device-root=r", "--language=de", "--scale=8", "--verbose",
            "--survey=d", "--wait=7", "--report-name="});
        QVERIFY(all.reportName && all.reportName->isEmpty()); // an empty name is a name
        QCOMPARE(all.plugin + all.scenario + all.interface + all.deviceRoot, QString("psir"));
        QCOMPARE(all.surveyFolder + all.language, QString("dde"));
        QVERIFY(all.waitSeconds == 7 && all.scale == 8 && all.verbose);
        QCOMPARE(parseArguments({"testset"}).waitSeconds, 90);
    }

    void helpListsStatusesAndLimits()
    {
        QStringList statuses;
        const QString help = helpText();
        auto found = QRegularExpression("^ +(\\d+)  ", QRegularExpression::MultilineOption)
                         .globalMatch(help.section("Exit status:", 1));
        while (found.hasNext())
            statuses << found.next().captured(1);
        QCOMPARE(
            statuses.join(' '), QString("0 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 128"));
        QCOMPARE(int(ScanNotPossible), 18);
        for (const char* const limit : {"720 x 480", "1 to 8;", "1 to 3600; otherwise 90"})
            QVERIFY2(help.simplified().contains(limit), limit);
    }

    void languageNames()
    {
        QTemporaryDir folder;
        const QStringList codes = {"en", "de", "pt", "pt_BR", "zh_CN"};
        for (const QString& code : codes.mid(1))
            writeFile(folder.filePath("wifiondivo_" + code + ".qm"), "no translation");
        Translation translation(folder.path());
        QCOMPARE(translation.codes(), codes);
        const QPair<const char*, QString> rows[] = {{"en_GB", "en"}, {"de-Latn-AT", "de"},
            {"pt-PT", "pt"}, {"pt-BR", "pt_BR"}, {"zh", "zh_CN"}, {"zh_TW", ""}, // another script
            {"C", ""}, {"no language", ""}};
        for (const auto& [locale, code] : rows)
            QCOMPARE(translation.find(locale), code);
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
        // A user's own files stay; the links follow the installation.
        const QString vendor = root + "/usr/local/qb740s-vendor-info.txt";
        writeFile(vendor, "version=5\n");
        QCOMPARE(DeviceFolder(root).prepare(Installation("/opt/other/bin")).status, Success);
        QCOMPARE(QFileInfo(vendor).size(), qint64(10));
        QCOMPARE(QFileInfo(tool).symLinkTarget(), QString("/opt/other/bin/wifi-scan"));
        QVERIFY(QFile::remove(tool));
        writeFile(tool, "a program of one's own");
        QCOMPARE(DeviceFolder(root).prepare(installation).status, DeviceFolderUnusable);
        QCOMPARE(DeviceFolder(vendor).prepare(installation).status, DeviceFolderUnusable);

        // Its programs are run: nobody else may write there.
        const QString shared = place.filePath("shared");
        QVERIFY(QDir().mkpath(shared + "/sbin"));
        QVERIFY(QFile(shared + "/sbin").setPermissions(QFile::Permissions(0x7775)));
        const Outcome refused = DeviceFolder(shared).prepare(installation);
        QVERIFY2(refused.sentence.endsWith("in it or in its sbin."), qPrintable(refused.sentence));
        // A file that the disk has no room for is not begun.
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit full = {8, RLIM_INFINITY};
        const rlimit free = {RLIM_INFINITY, RLIM_INFINITY};
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &full), 0);
        DeviceFolder unlucky(place.filePath("full"));
        const Outcome noRoom = unlucky.prepare(installation);
        const QString fault = saveFile(place.filePath("file"), "9 letters");
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &free), 0);
        QCOMPARE(noRoom.status, DeviceFolderUnusable);
        QVERIFY(!QFileInfo::exists(unlucky.path() + "/usr/local/qb740s-vendor-info.txt"));
        QVERIFY(fault.startsWith("File too large") && !QFileInfo::exists(place.filePath("file")));
        // Nothing is written through a link.
        QVERIFY(QFile::link(vendor, place.filePath("link")));
        QCOMPARE(saveFile(place.filePath("link"), "mine"), QString());
        QCOMPARE(QFileInfo(vendor).size(), qint64(10));
        QVERIFY(!QFileInfo(place.filePath("link")).isSymLink());
    }

    /// A plug-in file cut short would kill the program that loads it.
    void spoiltFiles()
    {
        const QByteArray bytes = readFile(FAKE_UTILITY);
        QTemporaryDir folder;
        const auto refusal = [file = folder.filePath("spoilt.so")](const QByteArray& content) {
            writeFile(file, content);
            const Outcome outcome = loadPlugin(file).outcome;
            return outcome.status == NotAPlugin ? outcome.sentence : "another status";
        };
        ElfW(Ehdr) header;
        std::memcpy(&header, bytes.constData(), sizeof header);
        const int segment = int(header.e_phoff) + int(offsetof(ElfW(Phdr), p_filesz));
        const std::tuple<int, char, const char*> rows[] = {{18, '\x7f', "another machine"},
            {16, '\1', "no shared library"}, {segment + 3, '\x7f', "cut short"}};
        for (const auto& [place, byte, fault] : rows)
            compare(refusal(QByteArray(bytes).replace(place, 1, &byte, 1)), fault);
        for (int part = 15; part > 0; --part)
            compare(refusal(bytes.left(bytes.size() / 16 * part + 8)), "cut short");
        compare(refusal(bytes.left(8)), "no shared library");
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
    /// `found` holds `fault`, or is empty as that is.
    static void compare(const QString& found, const QString& fault)
    {
        QCOMPARE(found.isEmpty(), fault.isEmpty());
        QVERIFY2(found.contains(fault), qPrintable(found));
    }
};

QTEST_GUILESS_MAIN(HostPartsTest)
#include "tst_hostparts.moc"

#include "../core/analyser.h"
#include "../files.h"
#include "device/paths.h"
#include "include/2_4GraphCh.h"
#include "include/5GraphCh.h"
#include "language.h"

#include <QDirIterator>
#include <QPixmapCache>
#include <QRandomGenerator>

#include <future>
#include <malloc.h>

using namespace wifiondivo;

namespace {

const int Scans = 1000; ///< in each of two ways
const int Lives = 500;
const int Kills = 200;

const quint32 Seed = 20;
QRandomGenerator chance(Seed);

/// The tool's output for so many access points on channels of both bands.
QByteArray outputOf(int count, const char* ending)
{
    static const int channels[] = {1, 6, 11, 13, 36, 64, 100, 149, 165};
    QByteArray output;
    for (int cell = 1; cell <= count; ++cell)
        output += apLine(cell, "net" + QByteArray::number(cell), channels[chance.bounded(9)],
            QByteArray::number(-30 - chance.bounded(70)) + " dBm");
    return output + ending;
}

/// Of the scan that states are compared after: drawn first, and so the same in each process.
const QByteArray RestingOutput = outputOf(20, Over);

const QStringList Names = {"one", "two", "three"};

void saveAll(Analyser& analyser)
{
    for (const QString& name : Names)
        save(analyser, name);
}

/// Bytes in use, large blocks too, without blocks that are cached or await deletion.
qint64 heap()
{
    QPixmapCache::clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto info = mallinfo2();
    return qint64(info.uordblks) + qint64(info.hblkhd);
}

} // namespace

/// The analyser for hours on end, and killed.
class SoakTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { stdout = std::fopen("/dev/null", "w"); } // the analyser's, not QtTest's

    void scansWithoutGrowth()
    {
        const char* const endings[] = {
            Over, "wifiscan: fail\n", "wifiscan: timeout\n", "", "wifiscan: NoResults\n"};
        testset::Translation translation(TRANSLATION_FOLDER);
        // In one window; then with the last two endings too, which leave Scan disabled, so that a
        // user closes the analyser and opens it again.
        for (const int ways : {3, 5}) {
            auto analyser = std::make_unique<Analyser>();
            QVector<qint64> heaps;
            for (int scan = 1; scan <= Scans; ++scan) {
                const bool isResting = scan % 10 == 0;
                const int way = isResting ? 0 : chance.bounded(ways);
                const QByteArray output =
                    isResting ? RestingOutput : outputOf(chance.bounded(128), endings[way]);
                analyser->scan(output);
                QCOMPARE(analyser->list->count(), output.count("CellNo"));
                for (const int tab : {1, 2, 3, 4, 0}) {
                    analyser->tabs->setCurrentIndex(tab);
                    analyser->window->grab();
                    for (const char* arrow : {"Down", "Right", "Up", "Left"})
                        analyser->buttons[arrow]->click();
                }
                if (scan % 4 == 0)
                    save(*analyser, Names.at(chance.bounded(3)));
                QCOMPARE(analyser->buttons["Scan"]->isEnabled(), way < 3);
                const bool reopens = way >= 3 || (isResting && ways > 3);
                QVERIFY(
                    translation.use(translation.codes().at(reopens || isResting ? 0 : scan % 5)));
                analyser->window->translate();
                if (reopens)
                    analyser.reset(), analyser = std::make_unique<Analyser>();
                if (isResting)
                    heaps << heap();
            }
            judge(ways == 3 ? "scans in one window" : "scans in many", Scans, heaps);
        }
    }

    void livesWithoutGrowth()
    {
        const auto sum = [](const auto& of) { return std::accumulate(of, std::end(of), 0); };
        QVector<qint64> heaps;
        for (int life = 1; life <= Lives; ++life) {
            auto analyser = std::make_unique<Analyser>();
            analyser->scan(RestingOutput);
            QVERIFY(ap2_4 > 0 && ap5 > 0);
            if (life % 2 == 0) {
                HeldScan scan(*analyser, RestingOutput);
                const auto opener = std::async(std::launch::async,
                    [&scan, wait = chance.bounded(2000u)] { QThread::usleep(wait), scan.open(); });
                analyser.reset();
            }
            analyser.reset();
            QCOMPARE(ap2_4 + sum(ChannelText) + sum(APText) + sum(BestText), 0);
            QCOMPARE(ap5 + sum(Channel5Text) + sum(AP5Text) + sum(Best5Text), 0);
            heaps << heap();
        }
        judge("lives, half of them ended in a scan", Lives, heaps);
    }

    void leavesWholeReportsWhenKilled()
    {
        Analyser analyser;
        analyser.scan(RestingOutput);
        while (qEnvironmentVariableIsSet("SOAK_SAVES")) // this is the process that is killed
            std::fputs("saves", stderr), saveAll(analyser);
        qputenv("SOAK_SAVES", "until killed");
        clear();
        saveAll(analyser);
        const QMap<QString, QString> whole = reportFiles();
        QVERIFY(!QImage::fromData(whole[m_folder + "one_files/one2-4g.png"].toLatin1()).isNull());
        // The first is the report "one", with its four sections.
        QVERIFY(whole.first().contains(QRegularExpression("(<table border[\\s\\S]*){4}</html>$")));
        int hits = 0;
        for (int kill = 0; kill < Kills; ++kill) {
            const bool isFirst = kill % 4 < 2; // no earlier report is there to be seen instead
            isFirst ? clear() : saveAll(analyser);
            QProcess saver;
            saver.setReadChannel(QProcess::StandardError);
            saver.start(
                qApp->applicationFilePath(), {QTest::currentTestFunction(), "-nocrashhandler"});
            while (!saver.readAll().contains("saves"))
                QVERIFY(saver.waitForReadyRead());
            QThread::usleep(chance.bounded(50000u));
            kill % 2 ? saver.kill() : saver.terminate();
            QVERIFY(saver.waitForFinished() && saver.exitStatus() == QProcess::CrashExit);
            QMap<QString, QString> left = reportFiles();
            const QStringList parts = QStringList(left.keys()).filter(".part");
            for (const QString& part : parts)
                left.remove(part);
            QVERIFY(isFirst || left.size() == whole.size());
            for (auto file = left.begin(); file != left.end(); ++file)
                QCOMPARE(file.value(), whole.value(file.key(), "is no report's"));
            hits += !parts.isEmpty();
            save(analyser, Names.first());
            QCOMPARE(QStringList(reportFiles().keys()).filter(".part"), QStringList());
        }
        m_figures += QString::asprintf("%d kills, %d while a .part was there\n", Kills, hits);
        QVERIFY(hits > 0);
    }

    void cleanupTestCase() { QVERIFY(writeFile("figures.txt", m_figures.toUtf8())); }

private:
    void clear() { QVERIFY(QDir(m_folder).removeRecursively() && QDir().mkpath(m_folder)); }

    /// Adds to the figures. In the first fifth caches fill, mostly with the glyphs of all
    /// languages; later they vary by 2 to 6 KiB. The smallest leak takes 32 bytes each time.
    void judge(const char* what, int count, const QVector<qint64>& looks)
    {
        const QVector<qint64> heaps = looks.mid(looks.size() / 5);
        m_figures += QString::asprintf("%d %s: %lld bytes of heap after a fifth, %lld at most, "
                                       "%lld at last, %d pages resident\n",
            count, what, heaps.first(), *std::max_element(heaps.begin(), heaps.end()), heaps.last(),
            readFile("/proc/self/statm").split(' ').at(1).toInt());
        QVERIFY2(heaps.last() - heaps.first() < 12LL * count, qPrintable(m_figures));
    }

    /// All files below the results folder, reports without their dates.
    QMap<QString, QString> reportFiles()
    {
        static const QRegularExpression date("(?<=Saved:</td><td>)[^<]+");
        QMap<QString, QString> files;
        QDirIterator file(m_folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (file.hasNext()) {
            const QByteArray content = readFile(file.next());
            files[file.filePath()] = QString::fromLatin1(content, content.size()).remove(date);
        }
        return files;
    }

    const QString m_folder = QString::fromStdString(device::path(device::ReportFolder)) + '/';
    QString m_figures = QString("seed %1\n").arg(Seed);
};

QTEST_MAIN(SoakTest)
#include "tst_soak.moc"

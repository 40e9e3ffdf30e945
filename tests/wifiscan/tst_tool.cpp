#include "../files.h"
#include "atomicfile.h"
#include "replay.h"
#include "tables.h"

#include <csignal>
#include <cstdio>
#include <sys/stat.h>
#include <sys/time.h>

using namespace wifiscan;

/// The program as the device's caller runs it, in a folder of its own.
class ToolTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QVERIFY(QDir::setCurrent(m_folder.path()));
        qputenv("PATH", QFileInfo(WIFI_SCAN).path().toUtf8() + ':' + qgetenv("PATH"));
        qputenv("SCENARIOS", SCENARIOS);
        const QByteArray text =
            "BSS 02:00:00:00:00:0a(on wlan0)\n\tfreq: 2437\n\tsignal: -60.00 dBm\n"
            "\tSSID: Cafe\n";
        const QByteArray largest =
            QByteArray("wifiscan: over\n").leftJustified(MaxScenarioBytes, 'x');
        const QByteArray more = "BSS 02:00:00:00:00:0b\n\tfreq: 5955\nBSS 02\n";
        const QByteArray vast = (text + more).leftJustified(MaxReplayBytes, '\n');
        QVERIFY(writeFile("iw.txt", text + ".\n") && writeFile("vast", vast)
            && writeFile("vaster", vast + '\n'));
        QVERIFY(writeFile("largest", largest) && writeFile("larger", largest + 'x'));
        QVERIFY(writeFile("lines", "wifiscan: over\n" + QByteArray(256, '\n'))
            && writeFile("empty", ""));
        QCOMPARE(::mkfifo("pipe", 0600), 0);
    }

    void runs_data() { addTableOf(QFINDTESTDATA("runs.txt")); }
    void runs()
    {
        QFETCH(QByteArray, input);
        QProcess shell;
        shell.start("timeout", {"60", "sh", "-c", input}); // and all that the shell has started
        QVERIFY(shell.waitForFinished(-1) && shell.exitStatus() == QProcess::NormalExit);
        QByteArray remarks = shell.readAllStandardError();
        // Valgrind calls a program by its whole path.
        remarks.replace(WIFI_SCAN, "wifi-scan").replace("\n", "\n! ").chop(2);
        QByteArray seen = shell.readAllStandardOutput() + (remarks.isEmpty() ? "" : "! ") + remarks;
        if (shell.exitCode() != 0)
            seen += "exit " + QByteArray::number(shell.exitCode()) + '\n';
        seen.chop(1);
        QTEST(seen, "expected");
    }

    // The manual has each status and its word, and no other.
    void statuses()
    {
        const QByteArray manual = readFile(MANUAL);
        for (const AboutStatus& entry : Statuses)
            QVERIFY(manual.contains(
                ".It " + QByteArray::number(int(entry.status)) + " Pq Cm " + entry.word + '\n'));
        QCOMPARE(manual.count(" Pq Cm "), int(std::size(Statuses)));
    }

    // A reader that is slower than the writer, which a timer's signals interrupt: the first when a
    // part is written, later ones when nothing is.
    void interruptedWrites()
    {
        struct sigaction action = {}; // without SA_RESTART
        action.sa_handler = [](int) {};
        QCOMPARE(::sigaction(SIGALRM, &action, nullptr), 0);
        const QByteArray text = readFile("vast").left(1024 * 1024);
        std::FILE* const reader = ::popen("sleep 0.3; cat >arrived", "w");
        const itimerval often = {{0, 10000}, {0, 10000}};
        const itimerval never = {};
        QCOMPARE(::setitimer(ITIMER_REAL, &often, nullptr), 0);
        const bool written = writeAll(::fileno(reader), text.toStdString());
        QCOMPARE(::setitimer(ITIMER_REAL, &never, nullptr), 0);
        QCOMPARE(::pclose(reader), 0);
        QVERIFY(written && readFile("arrived") == text);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_APPLESS_MAIN(ToolTest)
#include "tst_tool.moc"

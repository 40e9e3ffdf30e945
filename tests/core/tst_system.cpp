#include "device/system.h"

#include <QElapsedTimer>
#include <QtTest>

using namespace wifiondivo::device;

/// Commands and pauses as they really are; every other test has a world of its own instead.
class SystemTest : public QObject {
    Q_OBJECT
private slots:
    void runsACommandToItsEnd()
    {
        QTemporaryDir folder;
        QVERIFY(QDir::setCurrent(folder.path()));
        runCommand("echo one > log; sleep 0.1; echo two >> log; exit 3");
        runCommand("no-such-command 2> /dev/null");
        runCommand("echo three >> log");
        QFile log("log");
        QVERIFY(log.open(QIODevice::ReadOnly));
        QCOMPARE(log.readAll(), QByteArray("one\ntwo\nthree\n"));
        QDir::setCurrent("/");
    }

    void sleepsForAWholeSecond()
    {
        QElapsedTimer timer;
        timer.start();
        pause(1); // however busy the machine is, not less
        QVERIFY(timer.elapsed() >= 1000);
    }
};

QTEST_GUILESS_MAIN(SystemTest)
#include "tst_system.moc"

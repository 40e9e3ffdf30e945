#include "../files.h"
#include "device/system.h"

#include <QElapsedTimer>
#include <QtTest>

/// Commands and pauses themselves, for which the other tests have a world of their own.
class SystemTest : public QObject {
    Q_OBJECT
private slots:
    void runsACommandToItsEnd()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("it's here");
        const QString quoted = folder.filePath("it'\\''s here");
        wifiondivo::device::runCommand(QString("echo a; echo b > '%1'").arg(quoted).toStdString());
        QCOMPARE(readFile(file), QByteArray("b\n"));
    }

    /// A pause may be longer than asked for, never shorter.
    void pausesForSeconds()
    {
        QElapsedTimer clock;
        clock.start();
        wifiondivo::device::pause(1);
        QVERIFY(clock.elapsed() >= 1000);
    }
};

QTEST_GUILESS_MAIN(SystemTest)
#include "tst_system.moc"

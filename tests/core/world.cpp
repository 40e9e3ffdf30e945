#include "world.h"

#include "device/paths.h"
#include "device/system.h"

#include <QCoreApplication>
#include <QFile>
#include <QMutex>
#include <QPointer>
#include <QSemaphore>
#include <QThread>

#include <cstdlib>

namespace {

const int LongestWait = 30000; ///< milliseconds; far more than anything here takes

QMutex guard; ///< of what follows, which the worker's thread writes
QStringList done;
QByteArray toolOutput;
QPointer<QThread> scanThread;
bool isHeld = false;

QSemaphore started; ///< a scan has begun
QSemaphore reached; ///< a scan stands at the gate
QSemaphore opened;

/// Without the device root, quoted or as it is, in front of every path.
QString asOnTheTestSet(QString command)
{
    const QString root = QString::fromStdString(wifiondivo::device::root());
    return command.remove('\'' + root + '\'').remove(root);
}

void note(const QString& what)
{
    const QMutexLocker lock(&guard);
    done << what;
}

void runTool()
{
    QMutexLocker lock(&guard);
    if (isHeld) {
        lock.unlock();
        reached.release();
        opened.tryAcquire(1, LongestWait);
        lock.relock();
    }
    QFile file(
        QString::fromStdString(wifiondivo::device::path(wifiondivo::device::ScanOutputFile)));
    if (file.open(QIODevice::WriteOnly))
        file.write(toolOutput);
}

} // namespace

namespace wifiondivo {
namespace device {

void runCommand(const std::string& commandLine)
{
    const QString command = asOnTheTestSet(QString::fromStdString(commandLine));
    note(command);
    if (command == InterfaceUp) {
        const QMutexLocker lock(&guard);
        scanThread = QThread::currentThread();
        started.release();
    } else if (command == ScanIntoFile) {
        runTool();
    } else if (command.startsWith("mkdir ") || command.startsWith("rm ")) {
        static_cast<void>(std::system(commandLine.c_str()));
    }
}

void pause(unsigned long seconds)
{
    note(QString("pause %1").arg(seconds));
}

} // namespace device
} // namespace wifiondivo

namespace world {

void reset(const QByteArray& output)
{
    const QMutexLocker lock(&guard);
    done.clear();
    toolOutput = output;
    started.tryAcquire(started.available());
}

QStringList log()
{
    const QMutexLocker lock(&guard);
    return done;
}

Gate::Gate()
{
    const QMutexLocker lock(&guard);
    isHeld = true;
}

Gate::~Gate()
{
    open();
}

bool Gate::isReached()
{
    return reached.tryAcquire(1, LongestWait);
}

void Gate::open()
{
    if (m_isOpen)
        return;
    m_isOpen = true;
    {
        const QMutexLocker lock(&guard);
        isHeld = false;
    }
    opened.release();
}

QThread* worker()
{
    return scanThread.data();
}

bool waitForThread()
{
    return started.tryAcquire(1, LongestWait) && scanThread && scanThread->wait(LongestWait);
}

bool finishScan()
{
    const bool hasEnded = waitForThread();
    QCoreApplication::sendPostedEvents();
    return hasEnded;
}

} // namespace world

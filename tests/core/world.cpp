#include "world.h"

#include "../files.h"
#include "device/paths.h"
#include "device/system.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSemaphore>
#include <QThread>

#include <cstdlib>
#include <mutex>
#include <utility>

using namespace wifiondivo::device;

namespace {

const int MaxWait = 30000; ///< milliseconds; far more than anything here takes

std::mutex guard; ///< of the variables below, which the worker's thread writes
QStringList done;
QByteArray toolOutput;
QPointer<QThread> scanThread;

/// Held by a scan's thread from the scan to the thread's very end. QThread::wait() tells of the end
/// too, but by means that the thread sanitizer cannot see.
std::mutex threadsLife;
struct ThreadsLife {
    ThreadsLife() { threadsLife.lock(); }
    ~ThreadsLife() { threadsLife.unlock(); }
};

QSemaphore started;    ///< a scan has begun
QSemaphore reached;    ///< a scan stands at the gate
QSemaphore toolRun(1); ///< of the gate or of the tool

/// Without the device root, quoted or as it is, in front of every path.
QString asOnTheTestSet(QString command)
{
    const QString prefix = QString::fromStdString(root());
    return command.remove('\'' + prefix + '\'').remove(prefix);
}

void note(const QString& what)
{
    const std::lock_guard<std::mutex> lock(guard);
    done << what;
}

void runTool()
{
    reached.release();
    const bool isFree = toolRun.tryAcquire(1, MaxWait);
    const std::lock_guard<std::mutex> lock(guard);
    writeFile(QString::fromStdString(path(ScanOutputFile)), toolOutput);
    toolRun.release(isFree);
}

} // namespace

namespace wifiondivo {
namespace device {

void runCommand(const std::string& commandLine)
{
    const QString command = asOnTheTestSet(QString::fromStdString(commandLine));
    note(command);
    if (command == InterfaceUp) {
        thread_local const ThreadsLife life;
        const std::lock_guard<std::mutex> lock(guard);
        scanThread = QThread::currentThread();
        started.release();
    } else if (command == ScanIntoFile) {
        runTool();
    } else if (command.startsWith("mkdir ") || command.startsWith("rm ")) {
        if (std::system(commandLine.c_str()) == -1)
            qFatal("no shell to run %s", commandLine.c_str());
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
    const std::lock_guard<std::mutex> lock(guard);
    done.clear();
    toolOutput = output;
    started.tryAcquire(started.available());
}

QStringList log()
{
    const std::lock_guard<std::mutex> lock(guard);
    return done;
}

Gate::Gate()
    : m_isHolding(toolRun.tryAcquire(1, MaxWait))
{
    reached.tryAcquire(reached.available()); // by scans before
}

Gate::~Gate()
{
    open();
}

bool Gate::isReached()
{
    return reached.tryAcquire(1, MaxWait);
}

void Gate::open()
{
    toolRun.release(std::exchange(m_isHolding, false));
}

QThread* worker()
{
    const std::lock_guard<std::mutex> lock(guard);
    return scanThread.data();
}

bool waitForThread()
{
    QThread* const thread = started.tryAcquire(1, MaxWait) ? worker() : nullptr;
    if (!thread || !thread->wait(MaxWait))
        return false;
    const std::lock_guard<std::mutex> life(threadsLife);
    return true;
}

bool finishScan()
{
    const bool hasEnded = waitForThread();
    QCoreApplication::sendPostedEvents();
    return hasEnded;
}

} // namespace world

#include "comparison.h"
#include "devicefolder.h"
#include "installation.h"
#include "language.h"
#include "pluginloader.h"
#include "testsetwindow.h"

#include <QApplication>
#include <QLabel>
#include <QProcess>

#include <sys/resource.h>
#include <unistd.h>

using namespace testset;

namespace {

/// Processor time of the programs that have ended so far, in seconds.
double timeOfPrograms()
{
    struct rusage used = {};
    getrusage(RUSAGE_CHILDREN, &used);
    return double(used.ru_utime.tv_sec + used.ru_stime.tv_sec)
        + double(used.ru_utime.tv_usec + used.ru_stime.tv_usec) / 1e6;
}

/// A program with these arguments, or for the floor with others.
Sides program(const QString& path, const QStringList& measured, const QStringList& floor)
{
    return [=](benchmark::State& state, bool isFloor) {
        qputenv("WIFI_SCAN_REPLAY", CROWDED_SCENARIO);
        const double begin = timeOfPrograms();
        while (state.KeepRunning()) {
            QProcess process;
            process.start(path, isFloor ? floor : measured);
            if (!process.waitForFinished() || process.exitCode() != 0)
                state.SkipWithError("the program failed");
        }
        state.counters["value"] =
            benchmark::Counter(timeOfPrograms() - begin, benchmark::Counter::kAvgIterations);
    };
}

/// The test set's screen with the analyser on it, as testset makes it.
int showUtility()
{
    const Installation installation(QApplication::applicationDirPath());
    Translation translation(installation.translationFolder());
    translation.use("en");
    DeviceFolder device(qEnvironmentVariable("TESTSET_DEVICE_ROOT") + "/set");
    if (!device.prepare(installation).sentence.isEmpty())
        return 1;
    const LoadedPlugin plugin = loadPlugin(installation.pluginFile());
    if (!plugin.utility)
        return 1;
    TestSetWindow window(*plugin.utility, translation, device);
    window.show();
    if (!window.openUtility())
        return 1;
    QCoreApplication::processEvents();
    _exit(0); // the end is not measured
}

int sayHello()
{
    QLabel label("Hello");
    label.resize(720, 480);
    label.show();
    QCoreApplication::processEvents();
    _exit(0);
}

} // namespace

int startAs(const std::string& word)
{
    return word == "--utility" ? showUtility() : word == "--hello" ? sayHello() : -1;
}

void comparePrograms(const char* self)
{
    compare("wifi-scan, a scenario of 127", "wifi-scan --help", 1.15, Most,
        program(WIFI_SCAN, {"wlan0", "scanning"}, {"--help"}));
    compare("start until the utility is shown", "a window of Qt that says hello", 1.3, {0},
        program(self, {"--utility"}, {"--hello"}));
}

#include "comparison.h"
#include "cwidgetstyle.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    CWidgetStyle::applyTo(application);
    if (const int status = startAs(argv[argc - 1]); status >= 0)
        return status;
    // In memory where there is such a folder: the disk is not measured.
    const QTemporaryDir folder(
        (QDir("/dev/shm").exists() ? "/dev/shm" : QDir::tempPath()) + "/wifiondivo-bench-XXXXXX");
    qputenv("TESTSET_DEVICE_ROOT", folder.path().toLocal8Bit());
    benchmark::Initialize(&argc, argv);
    stdout = std::fopen("/dev/null", "w"); // the analyser's; the results go to std::cout
    compareScan();
    compareViews();
    comparePrograms(argv[0]);
    return runComparisons("ratios.json") ? EXIT_SUCCESS : EXIT_FAILURE;
}

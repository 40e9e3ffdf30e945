#include "programrun.h"

#include <QProcess>
#include <QTemporaryDir>

namespace {

const int LongestRunMilliseconds = 60000;

} // namespace

ProgramRun runTestSet(const QStringList& arguments, const QStringList& environment)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const char* const name :
        {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "WIFI_SCAN_REPLAY"})
        variables.remove(name);
    QTemporaryDir runtime; // where Qt would otherwise complain that there is none
    variables.insert("XDG_RUNTIME_DIR", runtime.path());
    for (const QString& pair : environment)
        variables.insert(pair.section('=', 0, 0), pair.section('=', 1));

    QProcess process;
    process.setProcessEnvironment(variables);
    process.start(TESTSET_PROGRAM, arguments);
    ProgramRun run;
    if (process.waitForFinished(LongestRunMilliseconds)
        && process.exitStatus() == QProcess::NormalExit)
        run.status = process.exitCode();
    run.output = QString::fromUtf8(process.readAllStandardOutput());
    run.errors = QString::fromUtf8(process.readAllStandardError());
    return run;
}

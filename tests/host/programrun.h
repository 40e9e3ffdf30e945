#pragma once

#include <QProcess>
#include <QStringList>

constexpr int LongestRunMilliseconds = 60000;

/// What a run of the real program left.
struct ProgramRun {
    int status = -1; ///< -1 for a crash, and for no end within a minute
    QString output;  ///< what it printed, errors too
};

/// Runs the program without a display, with further "NAME=value" pairs in its environment.
inline ProgramRun runTestSet(const QStringList& arguments, const QStringList& environment = {})
{
    const QStringList none = {
        "DISPLAY=", "WAYLAND_DISPLAY=", "QT_QPA_PLATFORM=", "WIFI_SCAN_REPLAY="};
    QProcess process;
    process.setEnvironment(QProcess::systemEnvironment() + none + environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(TESTSET_PROGRAM, arguments);
    ProgramRun run;
    if (process.waitForFinished(LongestRunMilliseconds)
        && process.exitStatus() == QProcess::NormalExit)
        run.status = process.exitCode();
    run.output = QString::fromUtf8(process.readAll());
    return run;
}

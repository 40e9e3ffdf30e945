#pragma once

#include "../patience.h"

#include <QProcess>
#include <QStringList>

/// Where reports lie in a device tree.
const QString ResultsFolder = "/home/fileman/k510/k510-rslt/wifiport/SSID-result";

/// A run of the real program without a display, and its results.
struct ProgramRun {
    QProcess process;
    int status = -1; ///< -1 for a crash, and for no end within that time
    QString output;  ///< standard output and standard error

    /// Starts it, with further "NAME=value" pairs in its environment.
    explicit ProgramRun(const QStringList& arguments, const QStringList& environment = {},
        const QString& program = TESTSET_PROGRAM)
    {
        const QStringList none = {
            "DISPLAY=", "WAYLAND_DISPLAY=", "QT_QPA_PLATFORM=", "WIFI_SCAN_REPLAY=", "LANGUAGE=en"};
        process.setEnvironment(QProcess::systemEnvironment() + none + environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments);
    }

    void finish()
    {
        if (process.waitForFinished(MaxRunMilliseconds)
            && process.exitStatus() == QProcess::NormalExit)
            status = process.exitCode();
        output = QString::fromUtf8(process.readAll());
    }
};

#pragma once

#include <QString>
#include <QStringList>

/// What a run of the real program left.
struct ProgramRun {
    int status = -1; ///< -1 for a crash, and for no end within a minute
    QString output;
    QString errors;
};

/// Runs the program without a display, with further "NAME=value" pairs in its environment.
ProgramRun runTestSet(const QStringList& arguments, const QStringList& environment = {});

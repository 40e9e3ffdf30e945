#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace testset {

/// The command line, read and checked.
struct Arguments {
    QString fault; ///< the fault of the command line; empty if there is no fault
    bool help = false;
    bool version = false;
    bool verbose = false; ///< other output stays on the terminal
    bool listScenarios = false;
    QString plugin;   ///< empty for the installed plug-in
    QString scenario; ///< name or file; empty for the real adapter
    bool listInterfaces = false;
    QString interface;                 ///< empty for the usual one
    QString deviceRoot;                ///< empty for the folder in the user's data
    QString surveyFolder;              ///< empty for a window
    std::optional<QString> reportName; ///< null leaves the key pad's preset; may be empty
    int waitSeconds = 90;              ///< 1..3600
    int scale = 0;                     ///< 1 to MaxScale; 0 for the largest that fits
    QString language;                  ///< name of a locale; empty for the user's own
};

/// Reads the command line; its first word is the program. Needs no application object.
Arguments parseArguments(const QStringList& words);

/// The text of --help: every option and exit status. Needs an application object.
QString helpText();

} // namespace testset

#pragma once

#include <QString>

namespace testset {

/// What the program's exit status tells. The numbers are fixed: scripts rely on them.
enum ExitStatus {
    Success = 0,
    WrongUsage = 2,         ///< an unknown option or a bad value
    PluginMissing = 3,      ///< the plug-in file is not there or cannot be read
    NotAPlugin = 4,         ///< the file cannot be loaded or lacks a plug-in's entry points
    WrongRecord = 5,        ///< made for another Qt than the test set's
    WrongInterface = 6,     ///< a plug-in, but not a utility
    UnknownScenario = 7,    ///< neither the name of a scenario nor a readable file
    NoDisplay = 8,          ///< a window was asked for where no display is
    UtilityUnusable = 9,    ///< the utility did not start or has nothing that a survey could press
    FolderNotWritable = 10, ///< the survey's folder or a picture in it could not be written
    NoAdapter = 11,         ///< the utility answered Scan with a message
    NoResults = 12,         ///< the scan found no access point
    ScanFailed = 13,        ///< the scan tool reported a failure or a time-out
    ScanWithoutEnd = 14,    ///< the scan did not end within the time that it was given
    ReportNotSaved = 15,    ///< the save key brought up no key pad, or there are files missing
    DeviceFolderUnusable = 16, ///< the files of a test set cannot be laid out in it
    DeviceFolderInUse = 17,    ///< another test set is at work in it
    ScanNotPossible = 18,      ///< the scan tool cannot be started or its output not be written
    EndedBySignal = 128        ///< with the signal's number added, as shells count
};

/// How something ended: the status and, unless that is Success, one sentence for the user.
struct Outcome {
    ExitStatus status = Success;
    QString sentence;
};

} // namespace testset

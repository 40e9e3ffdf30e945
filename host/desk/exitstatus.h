#pragma once

#include <QList>
#include <QString>

namespace testset {

/// The program's exit statuses; statusMeanings() says when each is used. The numbers are fixed:
/// scripts rely on them.
enum ExitStatus {
    Success = 0,
    WrongUsage = 2,
    PluginMissing = 3,
    NotAPlugin = 4,
    WrongRecord = 5,
    WrongInterface = 6,
    UnknownScenario = 7,
    NoDisplay = 8,
    UtilityUnusable = 9,
    FolderNotWritable = 10,
    NoAdapter = 11,
    NoResults = 12,
    ScanFailed = 13,
    ScanWithoutEnd = 14,
    ReportNotSaved = 15,
    DeviceFolderUnusable = 16,
    DeviceFolderInUse = 17,
    ScanNotPossible = 18,
    OutputLost = 19,
    EndedBySignal = 128 ///< with the signal's number added, as shells count
};

struct StatusMeaning {
    ExitStatus status;
    const char* meaning;
};

/// Every exit status, in their order, for the user.
QList<StatusMeaning> statusMeanings();

/// How something ended: the status and, unless that is Success, one sentence for the user.
struct Outcome {
    ExitStatus status = Success;
    QString sentence;
};

} // namespace testset

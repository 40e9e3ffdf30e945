#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace testset {

/// Names of the stored scans in `folder`, sorted; empty when there is no such folder.
QStringList scenarioNames(const QString& folder);

/// A stored scan, with the number of its access points.
struct StoredScan {
    QString name;
    int accessPoints2_4; ///< on 2.4 GHz
    int accessPoints5;   ///< on 5 GHz
    bool hasList;        ///< false for a scan that fails or times out
};

/// The stored scans in `folder`, sorted by name.
QList<StoredScan> storedScans(const QString& folder);

/// Absolute path of the stored scan that `nameOrFile` means: the one of that name in `folder`, or
/// else a readable file. Null when it is neither.
QString findScenario(const QString& folder, const QString& nameOrFile);

/// The reason why the scan tool cannot replay a file; empty if it can.
QString scenarioFault(const QString& file);

/// Lets the scan tool, which runs as a child of this process, replay `file`.
void replay(const QString& file);

/// The file that the scan tool replays; empty when it asks the real adapter.
QString replayedFile();

} // namespace testset

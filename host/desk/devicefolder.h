#pragma once

#include "exitstatus.h"

#include <QCoreApplication>
#include <QString>

namespace testset {

class Installation;

/// The device tree of this run: one folder that stands for the test set's file system, in which the
/// utility reads, writes and runs its files. GUI thread only.
class DeviceFolder {
    Q_DECLARE_TR_FUNCTIONS(testset::DeviceFolder)
public:
    /// English for a terminal, or the language in use for the screen.
    enum class Texts { English, Translated };

    /// `named` is the user's choice, relative to the current folder, or empty for the usual
    /// one in the user's data folder.
    explicit DeviceFolder(const QString& named);
    ~DeviceFolder();
    DeviceFolder(const DeviceFolder&) = delete;
    DeviceFolder& operator=(const DeviceFolder&) = delete;

    /// Names the folder to this process and its children, keeps every other test set out of it for
    /// as long as this object lives, and creates the missing files that a test set
    /// brings. The folder must belong to this user and be writable by nobody else. No file that
    /// lies there already is changed, but for links to programs, which follow the installation. The
    /// outcome gives the reason.
    Outcome prepare(const Installation& installation);

    /// Makes sure that all results belong to the next scan: takes away the output of an earlier
    /// one and sees that the tool can be started and its output be written. Why not, empty when all
    /// is well. Not to be called while a scan runs.
    QString prepareScan(Texts texts) const;

    /// Why a scan whose commands have ended has no result, as far as it can be seen: the tool's
    /// last remark, a full disk, or an output without its closing line. Empty for no fault.
    QString scanFault(Texts texts) const;

    QString path() const;
    /// The log of the output of the utility and its commands.
    QString log() const;
    /// Where the reports of the analyser lie.
    QString reports() const;
    /// The scan tool's remarks on the last scan; empty if there are no remarks.
    QString lastRemark() const;

private:
    QString filePath(const char* onTestSet) const;
    bool lock();

    QString m_path;
    int m_lockFile = -1;
};

} // namespace testset

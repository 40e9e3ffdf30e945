#include "scenarios.h"

#include "environment.h"
#include "replay.h"
#include "scenario.h"

#include <QDir>
#include <QFileInfo>

namespace testset {

namespace {

const char* const Suffix = ".scan";

bool isReadableFile(const QFileInfo& info)
{
    return info.isFile() && info.isReadable();
}

} // namespace

QStringList scenarioNames(const QString& folder)
{
    QStringList names;
    const QFileInfoList files =
        QDir(folder).entryInfoList({QString("*") + Suffix}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : files)
        names << file.completeBaseName();
    return names;
}

QList<StoredScan> storedScans(const QString& folder)
{
    QList<StoredScan> scans;
    for (const QString& name : scenarioNames(folder)) {
        const std::string path = QFile::encodeName(findScenario(folder, name)).toStdString();
        const wifiscan::ScanResult result =
            wifiscan::readScenario(wifiscan::readReplay(path).scenario);
        StoredScan scan = {name, 0, 0, result.status == wifiscan::ExitStatus::Done};
        for (const wifiscan::AccessPoint& accessPoint : result.heard.accessPoints) {
            const bool is2_4 = wifiscan::bandOf(accessPoint.frequencyMhz) == wifiscan::Band::Ghz2;
            ++(is2_4 ? scan.accessPoints2_4 : scan.accessPoints5);
        }
        scans << scan;
    }
    return scans;
}

QString findScenario(const QString& folder, const QString& nameOrFile)
{
    // A slash makes it a path, so that no name leads out of the folder.
    const QFileInfo named(QDir(folder).filePath(nameOrFile + Suffix));
    if (!nameOrFile.contains('/') && isReadableFile(named))
        return named.absoluteFilePath();
    const QFileInfo file(nameOrFile);
    return isReadableFile(file) ? file.absoluteFilePath() : QString();
}

QString scenarioFault(const QString& file)
{
    return QString::fromStdString(
        wifiscan::readReplay(QFile::encodeName(file).toStdString()).problem);
}

void replay(const QString& file)
{
    qputenv(environment::Replay, QFile::encodeName(file));
}

QString replayedFile()
{
    return QFile::decodeName(qgetenv(environment::Replay));
}

} // namespace testset

#include "reports.h"

#include "reportcontents.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <sys/stat.h>

namespace testset {

Reports::Reports(const QString& folder)
    : m_folder(folder)
{
}

QString Reports::folder() const
{
    return m_folder;
}

QList<SavedReport> Reports::all() const
{
    QList<SavedReport> reports;
    const QDir folder(m_folder);
    for (const QFileInfo& file : folder.entryInfoList({"*.html"}, QDir::Files | QDir::Hidden)) {
        SavedReport report{
            file.filePath(), file.completeBaseName(), file.lastModified(), file.size()};
        const QDir pictures(folder.filePath(report.name + "_files"));
        for (const QFileInfo& picture : pictures.entryInfoList({"*.png"}, QDir::Files))
            report.bytes += picture.size();
        reports << report;
    }
    std::stable_sort(reports.begin(), reports.end(),
        [](const SavedReport& a, const SavedReport& b) { return a.saved > b.saved; });
    return reports;
}

void Reports::rememberAll()
{
    m_known = states();
}

QString Reports::latest() const
{
    const QMap<QString, QByteArray> now = states();
    for (auto file = now.begin(); file != now.end(); ++file) {
        if (m_known.value(file.key()) != file.value())
            return QDir(m_folder).filePath(file.key());
    }
    return QString();
}

QStringList Reports::missingPictures(const QString& report)
{
    const std::optional<ReportContents> contents = readReport(report);
    if (!contents)
        return {report};
    QStringList missing;
    for (const ReportSection& section : contents->sections) {
        const QFileInfo file(section.pictureFile);
        if (!section.picture.isEmpty()
            && (file.size() == 0 || file.lastModified() < contents->saved))
            missing << section.picture;
    }
    return missing;
}

/// A file that is written anew has another state, also within one tick of the file system's clock.
QMap<QString, QByteArray> Reports::states() const
{
    QMap<QString, QByteArray> files;
    const QDir::Filters filters = QDir::Files | QDir::Hidden;
    for (const QString& name : QDir(m_folder).entryList({"*.html"}, filters)) {
        struct stat state;
        if (::lstat(QFile::encodeName(QDir(m_folder).filePath(name)).constData(), &state) != 0)
            continue;
        files[name] = QByteArray::number(qulonglong(state.st_ino)) + ' '
            + QByteArray::number(qlonglong(state.st_mtim.tv_sec)) + ' '
            + QByteArray::number(qlonglong(state.st_mtim.tv_nsec));
    }
    return files;
}

} // namespace testset

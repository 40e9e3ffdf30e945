#pragma once

#include <QDateTime>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

namespace testset {

/// A report as it lies in the results folder.
struct SavedReport {
    QString path;
    QString name; ///< as the user called it
    QDateTime saved;
    qint64 bytes = 0; ///< with its pictures
};

/// The folder in which the analyser saves its reports, watched from outside: the analyser does not
/// tell whether it could. GUI thread only.
class Reports {
public:
    explicit Reports(const QString& folder);

    QString folder() const;
    /// All reports, the newest first.
    QList<SavedReport> all() const;

    /// Takes what lies there now as known.
    void look();
    /// The report that came or was replaced since the last look, its whole path; empty when none
    /// did.
    QString latest() const;
    /// The pictures that a report shows and that were not saved with it, as it names them: they are
    /// missing, empty or of an earlier report, since the analyser writes them behind the report.
    static QStringList missingPictures(const QString& report);

private:
    QMap<QString, QByteArray> states() const;

    QString m_folder;
    QMap<QString, QByteArray> m_known; ///< a file's name and what tells it from a later one
};

} // namespace testset

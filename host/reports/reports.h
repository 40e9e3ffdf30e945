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
/// say whether it could save one. GUI thread only.
class Reports {
public:
    explicit Reports(const QString& folder);

    QString folder() const;
    /// All reports, the newest first.
    QList<SavedReport> all() const;

    /// Takes the reports that lie there now as known.
    void rememberAll();
    /// The whole path of the report that was written since rememberAll(); empty if no report was
    /// written.
    QString latest() const;
    /// The pictures of a report that were not saved with it, as it names them: each is missing,
    /// empty or older than the report, since the analyser writes the pictures after the report. The
    /// report itself when it cannot be read.
    static QStringList missingPictures(const QString& report);

private:
    QMap<QString, QByteArray> states() const;

    QString m_folder;
    QMap<QString, QByteArray> m_known; ///< the state of each file, by its name
};

} // namespace testset

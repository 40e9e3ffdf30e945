#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace testset {

/// A section of a report: a table under a title, and a picture below it if there is one.
struct ReportSection {
    QString title;
    QStringList header; ///< empty for a table of labels and values
    QList<QStringList> rows;
    QString picture; ///< as named in the report; empty if there is no picture
    /// The picture's whole path; empty unless it is a regular file in the report's folder or below.
    QString pictureFile;
};

/// The contents of a report of the analyser.
struct ReportContents {
    QString name;
    QDateTime saved;
    QList<ReportSection> sections;
};

/// Reads a report as its writer meant it, line by line and not as HTML: nothing in it is escaped,
/// so that to a browser the name of a network could be an element. A name that holds the border of
/// two cells stays whole. Null if the file cannot be read, is larger than 4 MiB or has no
/// section.
std::optional<ReportContents> readReport(const QString& path);

} // namespace testset

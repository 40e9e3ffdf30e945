#pragma once

#include <QCoreApplication>
#include <QTextDocument>

namespace testset {

struct ReportContents;

/// A report laid out to be read: its name, a table for each section, whose header is repeated on
/// each page, and the pictures in their own size or smaller. All texts are plain ones, whatever
/// they look like. GUI thread only.
class ReportDocument : public QTextDocument {
    Q_DECLARE_TR_FUNCTIONS(testset::ReportDocument)
public:
    enum Medium { Screen, Paper };
    ReportDocument(const ReportContents& contents, Medium medium, QObject* parent = nullptr);

    /// Writes the report as PDF on A4 pages, with its name and the page's number below each. The
    /// file appears only when it is whole. Why not, empty when all is well.
    static QString savePdf(const ReportContents& contents, const QString& path);
};

} // namespace testset

#pragma once

#include "cwidget.h"
#include "reports.h"

#include <QScopedPointer>

#include <optional>

class CPushButton;
class QLabel;
class QStackedWidget;
class QTemporaryFile;
class QTextBrowser;
class QTreeWidget;

namespace testset {

struct ReportContents;

/// The reports that were saved: a list, the newest first, and one of them to be read, which can be
/// exported as PDF. GUI thread only.
class ResultsScreen : public CWidget {
    Q_OBJECT
public:
    /// `reports` must outlive the screen. PDF files go to `pdfFolder`, made when it is missing.
    ResultsScreen(const Reports& reports, const QString& pdfFolder, QWidget* parent = nullptr);
    ~ResultsScreen() override;

    /// Shows the list as it is now.
    void showList();
    /// Goes from a report back to the list; false when the list is shown already.
    bool back();
    /// Sets the texts again in the current language.
    void setTexts();

signals:
    /// A message about the last press, for the user.
    void noticed(const QString& notice);

private:
    /// The report of the current row; null, with a notice, if it cannot be read or there is no row.
    std::optional<ReportContents> readChosen();
    void openChosen();
    void layOut(const ReportContents& contents);
    void exportChosen();
    void openFolder();
    bool isReportShown() const;
    void nameButtons();
    CPushButton* addButton(const char* name);

    const Reports& m_reports;
    QString m_pdfFolder;
    QScopedPointer<QTemporaryFile> m_openFailure; ///< written when the last Show folder failed
    QList<SavedReport> m_listed;                  ///< in the order of the rows
    QStackedWidget* m_pages;
    QTreeWidget* m_list;
    QLabel* m_nothing; ///< in the list's place while there are no reports
    QTextBrowser* m_report;
    CPushButton* m_open; ///< or, with a report, back to the list
    CPushButton* m_export;
    CPushButton* m_folder;
};

} // namespace testset

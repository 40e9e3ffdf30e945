#pragma once

#include "cwidget.h"

#include <QStringList>

class CPushButton;
class QLabel;
class QTableWidget;

/// A table shown page by page. GUI thread only.
///
/// The header and each row are H / 12 - 5 pixels high, H being the height of the tab region; the
/// rows of a page follow the header without a gap, and the page buttons with "1/2" between them lie
/// under the last possible row. With a single page there are no page buttons.
class TOOLKIT_EXPORT CPageTable : public CWidget {
    Q_OBJECT
public:
    explicit CPageTable(QWidget* parent = nullptr);
    ~CPageTable() override;

    /// There are as many columns as labels.
    void setHorizontalHeaderLabels(const QStringList& labels);
    /// Width in pixels.
    void setColumnWidth(int column, int width);
    /// Rows of a page, at least 1.
    void setMaxVisibleRows(int rows);
    /// Further rows are empty, surplus ones are dropped; negative counts as 0.
    void setRowCount(int rows);
    int rowCount() const;
    /// An index outside 0..rowCount() changes nothing.
    void insertRow(int row);
    /// A cell outside the table changes nothing.
    void setCellValue(int row, int column, const QString& text);
    QString cellValue(int row, int column) const;
    int pageCount() const;
    int currentPage() const;
    /// Shows page `page` from 0; one that does not exist changes nothing.
    void setCurrentPage(int page);

signals:
    /// Another page, counted from 0, is shown: by a page button, by setCurrentPage(), or because
    /// the page shown so far lost its last row. Never sent when the page stays the same.
    void currentPageChanged(int page);

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void showPreviousPage();
    void showNextPage();

private:
    void showPage(int page);
    void nameButtons();

    int m_maxVisibleRows;
    int m_currentPage;
    QTableWidget* m_table;
    CPushButton* m_previous;
    QLabel* m_position; ///< "1/2"
    CPushButton* m_next;
};

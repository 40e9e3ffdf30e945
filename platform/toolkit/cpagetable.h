#pragma once

#include "cwidget.h"

#include <QList>
#include <QMap>
#include <QStringList>

class CPushButton;
class QPainter;

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

    void setHorizontalHeaderLabels(const QStringList& labels);
    /// Width in pixels; columns up to the label count or the highest one given a width exist, 64 at
    /// most. Columns without a width share what the others leave.
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
    int columnCount() const;
    QString headerLabel(int column) const;
    /// Where a cell lies in the widget; row -1 is the header. A null rectangle for a cell that does
    /// not exist or is on another page.
    QRect cellRect(int row, int column) const;
    int pageCount() const;
    int currentPage() const;
    /// Shows page `page` from 0; one that does not exist changes nothing.
    void setCurrentPage(int page);

signals:
    /// Another page, counted from 0, is shown: by a page button, by setCurrentPage(), or because
    /// the page shown so far lost its last row. Never sent when the page stays the same.
    void currentPageChanged(int page);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void showPreviousPage();
    void showNextPage();

private:
    QList<int> columnEdges() const;
    void paintCells(QPainter& painter, int top, const QStringList& texts, bool bold) const;
    void updatePages();
    void placePageButtons();
    void nameButtons();

    QStringList m_labels;
    QMap<int, int> m_widths;   ///< pixels by column
    QList<QStringList> m_rows; ///< a row may hold fewer texts than there are columns
    int m_maxVisibleRows;
    int m_currentPage;
    CPushButton* m_previous;
    CPushButton* m_next;
};

#include "cpagetable.h"

#include "cpushbutton.h"
#include "cwidgetstyle.h"

#include <QEvent>
#include <QPainter>

namespace {

const int MaxColumns = 64;
const int PageButtonWidth = 120;
const int PageButtonHeight = 44;
const int PageButtonGap = 8; ///< between the last possible row and the page buttons
const int PageTextWidth = 96;
const int TableCellPadding = 4;

/// Header and rows have the same height.
int rowHeight()
{
    return CWidgetStyle::getScreenRegion(CWidgetStyle::TabRegion).height() / 12 - 5;
}

QString colorName(CWidgetStyle::ColorCode code)
{
    return CWidgetStyle::getColor(code).name();
}

/// The look of progress bars that somebody places on the cells. The text lies on both parts of a
/// bar in one colour, so the filled part is the light tint of the accent.
QString progressBarStyle()
{
    return QString::fromLatin1("QProgressBar { border: none; margin: 3px 4px; background: %1;"
                               " color: %2; text-align: center;"
                               " font: bold 13px \"DejaVu Sans\"; }"
                               "QProgressBar::chunk { background: %3; }")
        .arg(colorName(CWidgetStyle::HeaderBackground), colorName(CWidgetStyle::PageText),
            colorName(CWidgetStyle::AccentTint));
}

} // namespace

CPageTable::CPageTable(QWidget* parent)
    : CWidget(parent)
    , m_maxVisibleRows(1)
    , m_currentPage(0)
    , m_previous(new CPushButton(this))
    , m_next(new CPushButton(this))
{
    setFont(CWidgetStyle::font());
    setStyleSheet(progressBarStyle());
    m_previous->setObjectName(QLatin1String("previousPage"));
    m_next->setObjectName(QLatin1String("nextPage"));
    nameButtons();
    connect(m_previous, SIGNAL(clicked()), this, SLOT(showPreviousPage()));
    connect(m_next, SIGNAL(clicked()), this, SLOT(showNextPage()));
    updatePages();
}

CPageTable::~CPageTable() { }

void CPageTable::setHorizontalHeaderLabels(const QStringList& labels)
{
    m_labels = labels.mid(0, MaxColumns);
    update();
}

void CPageTable::setColumnWidth(int column, int width)
{
    if (column < 0 || column >= MaxColumns)
        return;
    m_widths[column] = qMax(0, width);
    update();
}

void CPageTable::setMaxVisibleRows(int rows)
{
    m_maxVisibleRows = qMax(1, rows);
    updatePages();
}

void CPageTable::setRowCount(int rows)
{
    const int wanted = qMax(0, rows);
    while (m_rows.size() > wanted)
        m_rows.removeLast();
    while (m_rows.size() < wanted)
        m_rows.append(QStringList());
    updatePages();
}

int CPageTable::rowCount() const
{
    return m_rows.size();
}

void CPageTable::insertRow(int row)
{
    if (row < 0 || row > m_rows.size())
        return;
    m_rows.insert(row, QStringList());
    updatePages();
}

void CPageTable::setCellValue(int row, int column, const QString& text)
{
    if (row < 0 || row >= m_rows.size() || column < 0 || column >= columnCount())
        return;
    QStringList& cells = m_rows[row];
    while (cells.size() <= column)
        cells.append(QString());
    cells[column] = text;
    update();
}

QString CPageTable::cellValue(int row, int column) const
{
    return m_rows.value(row).value(column);
}

QString CPageTable::headerLabel(int column) const
{
    return m_labels.value(column);
}

QRect CPageTable::cellRect(int row, int column) const
{
    const int line = row < 0 ? 0 : row - m_currentPage * m_maxVisibleRows + 1;
    if (row < -1 || row >= m_rows.size() || (row >= 0 && (line < 1 || line > m_maxVisibleRows))
        || column < 0 || column >= columnCount())
        return QRect();
    const QList<int> edges = columnEdges();
    return QRect(
        edges.at(column), line * rowHeight(), edges.at(column + 1) - edges.at(column), rowHeight());
}

int CPageTable::pageCount() const
{
    return qMax(1, (m_rows.size() + m_maxVisibleRows - 1) / m_maxVisibleRows);
}

int CPageTable::currentPage() const
{
    return m_currentPage;
}

void CPageTable::setCurrentPage(int page)
{
    if (page < 0 || page >= pageCount() || page == m_currentPage)
        return;
    m_currentPage = page;
    updatePages();
    emit currentPageChanged(page);
}

void CPageTable::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    const int height = rowHeight();
    painter.fillRect(0, 0, width(), height, CWidgetStyle::getColor(CWidgetStyle::HeaderBackground));
    paintCells(painter, 0, m_labels, true);

    const int first = m_currentPage * m_maxVisibleRows;
    const int shown = qMin(m_maxVisibleRows, m_rows.size() - first);
    for (int k = 0; k < shown; ++k) {
        const int top = height * (k + 1);
        if (k % 2)
            painter.fillRect(
                0, top, width(), height, CWidgetStyle::getColor(CWidgetStyle::AlternateRow));
        paintCells(painter, top, m_rows.at(first + k), false);
    }

    painter.setPen(CWidgetStyle::getColor(CWidgetStyle::GridLine));
    const int bottom = height * (shown + 1) - 1;
    for (int k = 0; k <= shown; ++k)
        painter.drawLine(0, height * (k + 1) - 1, width() - 1, height * (k + 1) - 1);
    const QList<int> edges = columnEdges();
    for (int column = 1; column + 1 < edges.size(); ++column)
        painter.drawLine(edges.at(column), 0, edges.at(column), bottom);

    if (pageCount() > 1) {
        painter.setFont(CWidgetStyle::font(16, true));
        painter.setPen(CWidgetStyle::getColor(CWidgetStyle::PageText));
        const QRect between(m_previous->geometry().right() + 1, m_previous->y(), PageTextWidth,
            m_previous->height());
        painter.drawText(between, Qt::AlignCenter,
            QString::fromLatin1("%1/%2").arg(m_currentPage + 1).arg(pageCount()));
    }
}

void CPageTable::resizeEvent(QResizeEvent* event)
{
    CWidget::resizeEvent(event);
    placePageButtons();
}

void CPageTable::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        nameButtons();
    CWidget::changeEvent(event);
}

void CPageTable::showPreviousPage()
{
    setCurrentPage(m_currentPage - 1);
}

void CPageTable::showNextPage()
{
    setCurrentPage(m_currentPage + 1);
}

int CPageTable::columnCount() const
{
    const int highest = m_widths.isEmpty() ? -1 : (m_widths.end() - 1).key();
    return qMax(m_labels.size(), highest + 1);
}

/// Left edge of every column and the right edge of the last one.
QList<int> CPageTable::columnEdges() const
{
    const int columns = columnCount();
    int left = width();
    for (const int columnWidth : m_widths)
        left -= columnWidth;
    const int without = columns - m_widths.size();
    const int share = without > 0 ? qMax(0, left) / without : 0;
    QList<int> edges;
    int edge = 0;
    for (int column = 0; column < columns; ++column) {
        edges.append(edge);
        edge += m_widths.value(column, share);
    }
    edges.append(edge);
    return edges;
}

void CPageTable::paintCells(QPainter& painter, int top, const QStringList& texts, bool bold) const
{
    painter.setFont(CWidgetStyle::font(14, bold));
    painter.setPen(CWidgetStyle::getColor(CWidgetStyle::PageText));
    const QFontMetrics metrics = painter.fontMetrics();
    const QList<int> edges = columnEdges();
    const int columns = qMin(texts.size(), edges.size() - 1);
    for (int column = 0; column < columns; ++column) {
        const QRect cell(edges.at(column) + TableCellPadding, top,
            edges.at(column + 1) - edges.at(column) - 2 * TableCellPadding, rowHeight());
        painter.drawText(cell, Qt::AlignCenter | Qt::TextSingleLine,
            metrics.elidedText(texts.at(column), Qt::ElideRight, cell.width()));
    }
}

void CPageTable::updatePages()
{
    const int lastPage = pageCount() - 1;
    const bool lost = m_currentPage > lastPage;
    if (lost)
        m_currentPage = lastPage;
    m_previous->setVisible(lastPage > 0);
    m_next->setVisible(lastPage > 0);
    m_previous->setEnabled(m_currentPage > 0);
    m_next->setEnabled(m_currentPage < lastPage);
    placePageButtons();
    update();
    if (lost)
        emit currentPageChanged(m_currentPage);
}

void CPageTable::placePageButtons()
{
    const int top = rowHeight() * (m_maxVisibleRows + 1) + PageButtonGap;
    const int left = (width() - PageTextWidth) / 2 - PageButtonWidth;
    m_previous->setGeometry(left, top, PageButtonWidth, PageButtonHeight);
    m_next->setGeometry(
        left + PageButtonWidth + PageTextWidth, top, PageButtonWidth, PageButtonHeight);
}

void CPageTable::nameButtons()
{
    m_previous->setText(tr("Previous"));
    m_next->setText(tr("Next"));
}

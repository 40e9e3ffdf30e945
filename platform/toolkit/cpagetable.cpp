#include "cpagetable.h"

#include "cpushbutton.h"
#include "cwidgetstyle.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

const int PageButtonWidth = 120;
const int PageButtonHeight = 44;
const int PageButtonGap = 8; ///< between the last possible row and the page buttons
const int PageTextWidth = 96;

/// Header and rows have the same height.
int rowHeight()
{
    return CWidgetStyle::getScreenRegion(CWidgetStyle::TabRegion).height() / 12 - 5;
}

/// A table that only shows: presses and keys go through to the widgets around it.
QTableWidget* createTable()
{
    QTableWidget* const table = new QTableWidget;
    table->setFocusPolicy(Qt::NoFocus);
    table->setAttribute(Qt::WA_TransparentForMouseEvents);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setAlternatingRowColors(true);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(rowHeight());
    table->horizontalHeader()->setFixedHeight(rowHeight());
    QTableWidgetItem* const cell = new QTableWidgetItem;
    cell->setTextAlignment(Qt::AlignCenter);
    cell->setFlags(Qt::ItemIsEnabled);
    table->setItemPrototype(cell);
    return table;
}

} // namespace

CPageTable::CPageTable(QWidget* parent)
    : CWidget(parent)
    , m_maxVisibleRows(1)
    , m_currentPage(0)
    , m_table(createTable())
    , m_previous(new CPushButton)
    , m_position(new QLabel)
    , m_next(new CPushButton)
{
    m_previous->setObjectName(QLatin1String("previousPage"));
    m_previous->setFixedSize(PageButtonWidth, PageButtonHeight);
    m_position->setFont(CWidgetStyle::font(CWidgetStyle::LargeText, true));
    m_position->setAlignment(Qt::AlignCenter);
    m_position->setFixedWidth(PageTextWidth);
    m_next->setObjectName(QLatin1String("nextPage"));
    m_next->setFixedSize(PageButtonWidth, PageButtonHeight);

    QHBoxLayout* const buttons = new QHBoxLayout;
    buttons->setSpacing(0);
    buttons->addStretch();
    buttons->addWidget(m_previous);
    buttons->addWidget(m_position);
    buttons->addWidget(m_next);
    buttons->addStretch();
    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(PageButtonGap);
    layout->addWidget(m_table);
    layout->addLayout(buttons);
    layout->addStretch();

    nameButtons();
    connect(m_previous, SIGNAL(clicked()), SLOT(showPreviousPage()));
    connect(m_next, SIGNAL(clicked()), SLOT(showNextPage()));
    showPage(0);
}

CPageTable::~CPageTable() { }

void CPageTable::setHorizontalHeaderLabels(const QStringList& labels)
{
    m_table->setColumnCount(labels.size());
    m_table->setHorizontalHeaderLabels(labels);
}

void CPageTable::setColumnWidth(int column, int width)
{
    m_table->setColumnWidth(column, width);
}

void CPageTable::setMaxVisibleRows(int rows)
{
    m_maxVisibleRows = qMax(1, rows);
    showPage(m_currentPage);
}

void CPageTable::setRowCount(int rows)
{
    m_table->setRowCount(qMax(0, rows));
    showPage(m_currentPage);
}

int CPageTable::rowCount() const
{
    return m_table->rowCount();
}

void CPageTable::insertRow(int row)
{
    m_table->insertRow(row);
    showPage(m_currentPage);
}

void CPageTable::setCellValue(int row, int column, const QString& text)
{
    m_table->model()->setData(m_table->model()->index(row, column), text);
}

QString CPageTable::cellValue(int row, int column) const
{
    return m_table->model()->index(row, column).data().toString();
}

int CPageTable::pageCount() const
{
    return qMax(1, (rowCount() + m_maxVisibleRows - 1) / m_maxVisibleRows);
}

int CPageTable::currentPage() const
{
    return m_currentPage;
}

void CPageTable::setCurrentPage(int page)
{
    if (page >= 0 && page < pageCount())
        showPage(page);
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

/// Shows that page, or the last one when there are not so many.
void CPageTable::showPage(int page)
{
    const int shown = qMin(page, pageCount() - 1);
    for (int row = 0; row < rowCount(); ++row)
        m_table->setRowHidden(row, row / m_maxVisibleRows != shown);
    m_table->setFixedHeight(rowHeight() * (m_maxVisibleRows + 1));
    m_position->setText(QString::fromLatin1("%1/%2").arg(shown + 1).arg(pageCount()));
    m_previous->setEnabled(shown > 0);
    m_next->setEnabled(shown < pageCount() - 1);
    m_previous->setVisible(pageCount() > 1);
    m_position->setVisible(pageCount() > 1);
    m_next->setVisible(pageCount() > 1);
    if (shown == m_currentPage)
        return;
    m_currentPage = shown;
    emit currentPageChanged(shown);
}

void CPageTable::nameButtons()
{
    m_previous->setText(tr("Previous"));
    m_next->setText(tr("Next"));
}

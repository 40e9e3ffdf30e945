#include "accesspointlist.h"

#include "cwidgetstyle.h"
#include "qtcompat.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTreeWidget>

#include <iterator>
#include <numeric>

namespace {

const int MinHeaderHeight = 28;
const int MinRowHeight = 40; ///< for a finger
const int ScrollBarWidth = 16;
const int ListCellPadding = 8;

const int SignalFull = 75; ///< the figure at which every bar is lit
const int SignalBars = 5;
const int FocusWidth = 2; ///< of the frame around the rows

enum Column { SignalColumn, EssidColumn, BssidColumn, ChannelColumn, SecurityColumn, ColumnCount };

/// Widths in pixels; the ESSID takes the rest.
const int columnWidths[ColumnCount] = {80, 0, 152, 72, 92};

/// A station's name may hold any characters; on the screen a character that would break
/// the line, turn its direction or stay unseen becomes the replacement sign.
QString displayable(const QString& text)
{
    QString shown = text;
    for (QChar& character : shown) {
        switch (character.category()) {
        case QChar::Other_Control:
        case QChar::Other_Format:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            character = QChar(QChar::ReplacementCharacter);
            break;
        default:
            break;
        }
    }
    return shown;
}

QString methodName(SecurityMode mode)
{
    switch (mode) {
    case Security_WEP:
        return QLatin1String("WEP");
    case Security_WPA1:
        return QLatin1String("WPA1");
    case Security_WPA2:
        return QLatin1String("WPA2");
    case Security_None:
        break;
    }
    return AccessPointList::tr("Open");
}

/// One line in bold, or two regular ones when the name is too long; with an ellipsis only when it
/// is too long even for those.
void paintName(QPainter& painter, const QRect& rect, const QString& name)
{
    painter.setFont(CWidgetStyle::font(CWidgetStyle::NormalText, true));
    if (qtcompat::textWidth(painter.fontMetrics(), name) <= rect.width()) {
        painter.drawText(rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, name);
        return;
    }
    painter.setFont(CWidgetStyle::font());
    const QFontMetrics metrics = painter.fontMetrics();
    const int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWrapAnywhere;
    const QRect needed = metrics.boundingRect(rect, flags, name);
    if (needed.height() <= rect.height())
        painter.drawText(rect, flags, name);
    else
        painter.drawText(rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
            metrics.elidedText(name, Qt::ElideMiddle, rect.width()));
}

void paintSignal(QPainter& painter, const QRect& rect, const QString& figure)
{
    const int lit =
        (qBound(0, figure.toInt(), SignalFull) * SignalBars + SignalFull - 1) / SignalFull;
    const int bottom = rect.center().y() + 11;
    for (int i = 0; i < SignalBars; ++i) {
        const int height = 6 + 4 * i;
        painter.fillRect(rect.left() + ListCellPadding + 8 * i, bottom - height, 6, height,
            CWidgetStyle::getColor(i < lit ? CWidgetStyle::Accent : CWidgetStyle::GridLine));
    }
    painter.setPen(CWidgetStyle::getColor(CWidgetStyle::MutedText));
    painter.drawText(
        rect.adjusted(0, 0, -ListCellPadding / 2, 0), Qt::AlignRight | Qt::AlignVCenter, figure);
}

void paintSecurity(QPainter& painter, const QRect& rect, bool open, const QString& method)
{
    const QColor color =
        CWidgetStyle::getColor(open ? CWidgetStyle::MutedText : CWidgetStyle::PageText);
    const QRectF body(rect.left() + ListCellPadding, rect.center().y() - 1, 14, 10);
    QPainterPath shackle;
    // An open lock's shackle stands beside the body and ends above it.
    const qreal left = body.left() + (open ? 8 : 3);
    shackle.moveTo(left, body.top());
    shackle.lineTo(left, body.top() - 4);
    shackle.arcTo(QRectF(left, body.top() - 8, 8, 8), 180, -180);
    shackle.lineTo(left + 8, body.top() - (open ? 2 : 0));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(shackle);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(body, 2, 2);
    painter.setFont(CWidgetStyle::font(CWidgetStyle::NormalText, !open));
    painter.setPen(color);
    painter.drawText(
        rect.adjusted(ListCellPadding + 28, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, method);
}

class RowDelegate : public QStyledItemDelegate {
public:
    explicit RowDelegate(QObject* parent)
        : QStyledItemDelegate(parent)
        , rowHeight(MinRowHeight)
    {
    }

    int rowHeight; ///< pixels

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override
    {
        const QRect& cell = option.rect;
        const QString text = index.data().toString();
        const bool current = option.state & QStyle::State_Selected;
        painter->save();
        const CWidgetStyle::ColorCode striped =
            index.row() % 2 ? CWidgetStyle::AlternateRow : CWidgetStyle::PageBackground;
        painter->fillRect(
            cell, CWidgetStyle::getColor(current ? CWidgetStyle::AccentWash : striped));
        if (current && index.column() == SignalColumn)
            painter->fillRect(cell.left(), cell.top(), 4, cell.height(),
                CWidgetStyle::getColor(CWidgetStyle::Accent));
        painter->fillRect(cell.left(), cell.bottom(), cell.width(), 1,
            CWidgetStyle::getColor(CWidgetStyle::GridLine));

        const QRect textRect = cell.adjusted(ListCellPadding, 0, 0, 0);
        painter->setFont(CWidgetStyle::font());
        painter->setPen(CWidgetStyle::getColor(CWidgetStyle::PageText));
        switch (index.column()) {
        case SignalColumn:
            paintSignal(*painter, cell, text);
            break;
        case EssidColumn:
            paintName(*painter, textRect, text);
            break;
        case SecurityColumn:
            paintSecurity(*painter, cell, index.data(Qt::UserRole).toInt() == Security_None, text);
            break;
        default:
            painter->drawText(textRect,
                (index.column() == ChannelColumn ? Qt::AlignHCenter : Qt::AlignLeft)
                    | Qt::AlignVCenter | Qt::TextSingleLine,
                painter->fontMetrics().elidedText(text, Qt::ElideRight, textRect.width()));
            break;
        }
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        return QSize(0, rowHeight);
    }
};

} // namespace

_APInfo::_APInfo()
    : _channel(0)
    , _signal(0)
    , _secMode(Security_None)
{
}

_APInfo::_APInfo(const _APInfo& other) = default;
_APInfo::~_APInfo() = default;
_APInfo& _APInfo::operator=(const _APInfo& other) = default;

AccessPointListItem::AccessPointListItem(const _APInfo& info)
    : QTreeWidgetItem(QStringList() << QString::number(info._signal) << displayable(info._essid)
                                    << displayable(info._bssid) << QString::number(info._channel))
    , m_info(info)
{
    setData(SecurityColumn, Qt::UserRole, info._secMode);
    translate();
}

AccessPointListItem::~AccessPointListItem() { }

void AccessPointListItem::translate()
{
    setText(SecurityColumn, methodName(m_info._secMode));
    // The figure has no title above it.
    setData(
        SignalColumn, Qt::AccessibleTextRole, AccessPointList::tr("Signal %1").arg(m_info._signal));
}

SecurityMode AccessPointListItem::getSecurityMode() const
{
    return m_info._secMode;
}

const _APInfo& AccessPointListItem::info() const
{
    return m_info;
}

/// The scrolling rows under their titles. It turns presses and keys into a current row.
class AccessPointList::View : public QTreeWidget {
public:
    View(const QStringList& titles, AccessPointList* list)
        : QTreeWidget(list)
        , m_list(list)
        , m_rows(new RowDelegate(this))
        , m_isNew(true)
        , m_pressedY(0)
        , m_pressedValue(0)
        , m_dragging(false)
    {
        setFocusPolicy(Qt::StrongFocus);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setRootIsDecorated(false);
        setUniformRowHeights(true);
        setItemDelegate(m_rows);
        setColumnCount(ColumnCount);
        for (int column = 0; column < ColumnCount; ++column) {
            headerItem()->setText(column, displayable(titles.value(column)));
            setColumnWidth(column, columnWidths[column]);
        }
        headerItem()->setTextAlignment(ChannelColumn, Qt::AlignCenter);
        translate();
        header()->setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    /// Whole rows that fill the height, so that no strip of a further one looks like a row that
    /// cannot be read; the titles get the remainder of the division.
    void fitRows(int height)
    {
        const int rows = qMax(1, (height - MinHeaderHeight) / MinRowHeight);
        m_rows->rowHeight = qMax(MinRowHeight, (height - MinHeaderHeight) / rows);
        // Not the header's own height, which Qt 4 does not keep free above the rows.
        headerItem()->setSizeHint(
            SignalColumn, QSize(0, qMax(MinHeaderHeight, height - rows * m_rows->rowHeight)));
        doItemsLayout();
    }

    /// Invisible texts: the titles of the two columns without a visible title.
    void translate()
    {
        setAccessibleName(AccessPointList::tr("Access points"));
        headerItem()->setData(SignalColumn, Qt::AccessibleTextRole, AccessPointList::tr("Signal"));
        headerItem()->setData(
            SecurityColumn, Qt::AccessibleTextRole, AccessPointList::tr("Security"));
        viewport()->update();
    }

    void setUsed()
    {
        m_isNew = false;
        viewport()->update();
    }

protected:
    // An item view's makes the first row current.
    void focusInEvent(QFocusEvent*) override { viewport()->update(); }
    void focusOutEvent(QFocusEvent*) override { viewport()->update(); }

    void paintEvent(QPaintEvent* event) override
    {
        QTreeWidget::paintEvent(event);
        QPainter painter(viewport());
        const QRect area = viewport()->rect();
        if (m_isNew) {
            painter.setFont(CWidgetStyle::font(CWidgetStyle::LargeText));
            painter.setPen(CWidgetStyle::getColor(CWidgetStyle::MutedText));
            painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap,
                AccessPointList::tr("Press Scan to look for access points."));
        }
        if (hasFocus()) {
            painter.setPen(QPen(CWidgetStyle::getColor(CWidgetStyle::Accent), FocusWidth));
            painter.drawRect(area.adjusted(1, 1, -1, -1));
        }
    }

    void scrollContentsBy(int dx, int dy) override
    {
        QTreeWidget::scrollContentsBy(dx, dy);
        viewport()->update(); // the frame of the focus does not scroll
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        m_pressedY = event->pos().y();
        m_pressedValue = verticalScrollBar()->value();
        m_dragging = false;
    }

    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        const int moved = event->pos().y() - m_pressedY;
        if (qAbs(moved) >= QApplication::startDragDistance())
            m_dragging = true;
        if (m_dragging) // the bar counts rows
            verticalScrollBar()->setValue(
                m_pressedValue - qRound(qreal(moved) / m_rows->rowHeight));
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (!m_dragging && event->button() == Qt::LeftButton)
            m_list->setCurrentRow(indexAt(event->pos()).row());
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        switch (event->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Home:
        case Qt::Key_End:
            break;
        default: // the window's own keys, such as F1
            event->ignore();
            return;
        }
        const int earlier = currentIndex().row();
        QTreeWidget::keyPressEvent(event);
        event->accept(); // at either end, too
        if (currentIndex().row() != earlier)
            m_list->tellCurrent();
    }

private:
    AccessPointList* m_list;
    RowDelegate* m_rows;
    bool m_isNew; ///< nothing has been in the list yet
    int m_pressedY;
    int m_pressedValue;
    bool m_dragging;
};

AccessPointList::AccessPointList(const QStringList& titles, QWidget* parent)
    : CWidget(parent)
    , m_view(new View(titles, this))
{
    setFont(CWidgetStyle::font());
    setFocusProxy(m_view);
}

AccessPointList::~AccessPointList() { }

void AccessPointList::addItem(const _APInfo& info)
{
    m_view->addTopLevelItem(new AccessPointListItem(info));
    m_view->setUsed();
}

void AccessPointList::clear()
{
    m_view->clear();
    m_view->setUsed();
}

int AccessPointList::count() const
{
    return m_view->topLevelItemCount();
}

AccessPointListItem* AccessPointList::item(int index) const
{
    return static_cast<AccessPointListItem*>(m_view->topLevelItem(index));
}

AccessPointListItem* AccessPointList::getAPItem(const QString& bssid) const
{
    for (int row = 0; row < count(); ++row) {
        if (item(row)->info()._bssid == bssid)
            return item(row);
    }
    return nullptr;
}

void AccessPointList::setCurrentRow(int index)
{
    if (!item(index) || index == m_view->currentIndex().row())
        return;
    m_view->setCurrentItem(item(index));
    tellCurrent();
}

void AccessPointList::resizeEvent(QResizeEvent* event)
{
    CWidget::resizeEvent(event);
    m_view->setGeometry(rect());
    m_view->fitRows(height());
    // There is always room for the scroll bar; without one the last column stretches over it.
    const int fixedWidth =
        std::accumulate(std::begin(columnWidths), std::end(columnWidths), ScrollBarWidth);
    m_view->setColumnWidth(EssidColumn, qMax(0, width() - fixedWidth));
}

void AccessPointList::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        for (int row = 0; row < count(); ++row)
            item(row)->translate();
        m_view->translate();
    }
    CWidget::changeEvent(event);
}

void AccessPointList::tellCurrent()
{
    // Copies, since a receiver of the first signal may clear the list or delete it.
    const _APInfo info = item(m_view->currentIndex().row())->info();
    const QPointer<AccessPointList> self = this;
    emit currentAPESSIDChanged(info._essid);
    if (self)
        emit currentAPBSSIDChanged(info._bssid);
}

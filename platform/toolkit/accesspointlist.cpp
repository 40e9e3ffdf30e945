#include "accesspointlist.h"

#include "cwidgetstyle.h"
#include "qtcompat.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QScrollBar>

namespace {

const int HeaderHeight = 28;
const int RowHeight = 40; ///< for a finger
const int ScrollBarWidth = 16;
const int Padding = 8;

const int SignalFull = 75; ///< the figure at which every bar is lit
const int SignalBars = 5;

enum Column { SignalColumn, EssidColumn, BssidColumn, ChannelColumn, SecurityColumn, ColumnCount };

/// Widths in pixels; the ESSID takes what is left.
const int columnWidths[ColumnCount] = {80, 0, 152, 72, 92};

/// The rectangles of a row's cells, or of the titles, in the strip of that height at `top`.
QList<QRect> cells(int width, int top, int height)
{
    int fixedWidth = 0;
    for (const int columnWidth : columnWidths)
        fixedWidth += columnWidth;
    const int essidWidth = qMax(0, width - ScrollBarWidth - fixedWidth);
    QList<QRect> rects;
    int left = 0;
    for (int column = 0; column < ColumnCount; ++column) {
        const int columnWidth = column == EssidColumn ? essidWidth : columnWidths[column];
        rects.append(QRect(left, top, columnWidth, height));
        left += columnWidth;
    }
    return rects;
}

/// What a station sends as its name may hold anything; on the screen a character that would break
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

/// One line, or two lines of a smaller font when the name is too long for one; with an ellipsis
/// only when it is too long even for those.
void paintName(QPainter& painter, const QRect& rect, const QString& name)
{
    painter.setFont(CWidgetStyle::font(14, true));
    if (qtcompat::textWidth(painter.fontMetrics(), name) <= rect.width()) {
        painter.drawText(rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, name);
        return;
    }
    painter.setFont(CWidgetStyle::font(12, true));
    const QFontMetrics metrics = painter.fontMetrics();
    const int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWrapAnywhere;
    const QRect needed = metrics.boundingRect(rect, flags, name);
    if (needed.height() <= rect.height())
        painter.drawText(rect, flags, name);
    else
        painter.drawText(rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
            metrics.elidedText(name, Qt::ElideMiddle, rect.width()));
}

void paintSignal(QPainter& painter, const QRect& rect, int figure)
{
    const int clamped = qBound(0, figure, SignalFull);
    const int lit = (clamped * SignalBars + SignalFull - 1) / SignalFull;
    const int bottom = rect.center().y() + 11;
    for (int i = 0; i < SignalBars; ++i) {
        const int height = 6 + 4 * i;
        painter.fillRect(rect.left() + Padding + 8 * i, bottom - height, 6, height,
            CWidgetStyle::getColor(i < lit ? CWidgetStyle::Accent : CWidgetStyle::GridLine));
    }
    painter.setFont(CWidgetStyle::font());
    painter.setPen(CWidgetStyle::getColor(CWidgetStyle::MutedText));
    painter.drawText(rect.adjusted(0, 0, -Padding, 0), Qt::AlignRight | Qt::AlignVCenter,
        QString::number(clamped));
}

void paintSecurity(QPainter& painter, const QRect& rect, SecurityMode mode)
{
    const bool open = mode == Security_None;
    const QColor color =
        CWidgetStyle::getColor(open ? CWidgetStyle::MutedText : CWidgetStyle::PageText);
    const QRectF body(rect.left() + Padding, rect.center().y() - 1, 14, 10);
    QPainterPath shackle;
    // An open lock's shackle stands beside the body and ends above it.
    const qreal left = body.left() + (open ? 8 : 3);
    shackle.moveTo(left, body.top());
    shackle.lineTo(left, body.top() - 4);
    shackle.arcTo(QRectF(left, body.top() - 8, 8, 8), 180, -180);
    shackle.lineTo(left + 8, body.top() - (open ? 2 : 0));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(shackle);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(body, 2, 2);
    painter.restore();
    painter.setFont(CWidgetStyle::font(13, !open));
    painter.setPen(color);
    painter.drawText(
        rect.adjusted(Padding + 28, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, methodName(mode));
}

QString scrollBarStyle()
{
    return QString::fromLatin1("QScrollBar:vertical { background: %1; width: %2px; margin: 0; }"
                               "QScrollBar::handle:vertical { background: %3; min-height: 40px;"
                               " margin: 2px 4px; border-radius: 4px; }"
                               "QScrollBar::add-line, QScrollBar::sub-line { height: 0; }"
                               "QScrollBar::add-page, QScrollBar::sub-page { background: none; }")
        .arg(CWidgetStyle::getColor(CWidgetStyle::HeaderBackground).name())
        .arg(ScrollBarWidth)
        .arg(CWidgetStyle::getColor(CWidgetStyle::MutedText).name());
}

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
    : m_info(info)
{
}

AccessPointListItem::~AccessPointListItem() { }

SecurityMode AccessPointListItem::getSecurityMode() const
{
    return m_info._secMode;
}

const _APInfo& AccessPointListItem::info() const
{
    return m_info;
}

/// The scrolling rows. They belong to the list; this shows them and turns presses and keys into a
/// current row.
class AccessPointList::View : public QAbstractScrollArea {
public:
    explicit View(AccessPointList* list)
        : QAbstractScrollArea(list)
        , m_list(list)
        , m_pressedY(0)
        , m_pressedValue(0)
        , m_dragging(false)
    {
        setFrameStyle(QFrame::NoFrame);
        setFocusPolicy(Qt::StrongFocus);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        verticalScrollBar()->setStyleSheet(scrollBarStyle());
        verticalScrollBar()->setSingleStep(RowHeight / 2);
    }

    void updateRange()
    {
        const int rows = m_list->count() * RowHeight;
        verticalScrollBar()->setPageStep(viewport()->height());
        verticalScrollBar()->setRange(0, qMax(0, rows - viewport()->height()));
        viewport()->update();
    }

    void ensureVisible(int row)
    {
        QScrollBar* const bar = verticalScrollBar();
        const int top = row * RowHeight;
        if (top < bar->value())
            bar->setValue(top);
        else if (top + RowHeight > bar->value() + viewport()->height())
            bar->setValue(top + RowHeight - viewport()->height());
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(viewport());
        const QRect area = viewport()->rect();
        painter.fillRect(area, CWidgetStyle::getColor(CWidgetStyle::PageBackground));
        const int offset = verticalScrollBar()->value();
        for (int row = offset / RowHeight; row < m_list->count(); ++row) {
            const int top = row * RowHeight - offset;
            if (top > area.bottom())
                break;
            paintRow(painter, row, top);
        }
    }

    void resizeEvent(QResizeEvent* event) override
    {
        QAbstractScrollArea::resizeEvent(event);
        updateRange();
    }

    void scrollContentsBy(int, int) override { viewport()->update(); }

    void mousePressEvent(QMouseEvent* event) override
    {
        m_pressedY = event->pos().y();
        m_pressedValue = verticalScrollBar()->value();
        m_dragging = false;
    }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        const int moved = event->pos().y() - m_pressedY;
        if (qAbs(moved) >= QApplication::startDragDistance())
            m_dragging = true;
        if (m_dragging)
            verticalScrollBar()->setValue(m_pressedValue - moved);
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (m_dragging || event->button() != Qt::LeftButton)
            return;
        m_list->setCurrentRow((event->pos().y() + verticalScrollBar()->value()) / RowHeight);
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        const int pageRows = qMax(1, viewport()->height() / RowHeight);
        const int last = m_list->count() - 1;
        switch (event->key()) {
        case Qt::Key_Up:
            moveCurrent(m_list->m_current - 1);
            break;
        case Qt::Key_Down:
            moveCurrent(m_list->m_current + 1);
            break;
        case Qt::Key_PageUp:
            moveCurrent(m_list->m_current - pageRows);
            break;
        case Qt::Key_PageDown:
            moveCurrent(m_list->m_current + pageRows);
            break;
        case Qt::Key_Home:
            moveCurrent(0);
            break;
        case Qt::Key_End:
            moveCurrent(last);
            break;
        default: // the window's own keys, such as F1
            event->ignore();
            break;
        }
    }

private:
    void moveCurrent(int row)
    {
        m_list->setCurrentRow(qBound(0, row, qMax(0, m_list->count() - 1)));
    }

    void paintRow(QPainter& painter, int row, int top)
    {
        const _APInfo& info = m_list->item(row)->info();
        const bool current = row == m_list->m_current;
        const QRect strip(0, top, viewport()->width(), RowHeight);
        if (current)
            painter.fillRect(strip, CWidgetStyle::getColor(CWidgetStyle::AccentWash));
        else if (row % 2)
            painter.fillRect(strip, CWidgetStyle::getColor(CWidgetStyle::AlternateRow));
        if (current)
            painter.fillRect(0, top, 4, RowHeight, CWidgetStyle::getColor(CWidgetStyle::Accent));
        painter.setPen(CWidgetStyle::getColor(CWidgetStyle::GridLine));
        painter.drawLine(0, strip.bottom(), strip.right(), strip.bottom());

        const QList<QRect> rects = cells(m_list->width(), top, RowHeight);
        paintSignal(painter, rects.at(SignalColumn), info._signal);
        painter.setPen(CWidgetStyle::getColor(CWidgetStyle::PageText));
        paintName(
            painter, rects.at(EssidColumn).adjusted(Padding, 0, 0, 0), displayable(info._essid));
        painter.setFont(CWidgetStyle::font());
        const QRect bssidRect = rects.at(BssidColumn).adjusted(Padding, 0, 0, 0);
        painter.drawText(bssidRect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
            painter.fontMetrics().elidedText(
                displayable(info._bssid), Qt::ElideRight, bssidRect.width()));
        painter.drawText(rects.at(ChannelColumn), Qt::AlignCenter, QString::number(info._channel));
        paintSecurity(painter, rects.at(SecurityColumn), info._secMode);
    }

    AccessPointList* m_list;
    int m_pressedY;
    int m_pressedValue;
    bool m_dragging;
};

AccessPointList::AccessPointList(const QStringList& titles, QWidget* parent)
    : CWidget(parent)
    , m_titles(titles)
    , m_current(-1)
    , m_view(new View(this))
{
    setFont(CWidgetStyle::font());
}

AccessPointList::~AccessPointList()
{
    delete m_view; // before the rows that it shows
    qDeleteAll(m_items);
}

void AccessPointList::addItem(const _APInfo& info)
{
    m_items.append(new AccessPointListItem(info));
    m_view->updateRange();
}

void AccessPointList::clear()
{
    m_current = -1;
    qDeleteAll(m_items);
    m_items.clear();
    m_view->updateRange();
}

int AccessPointList::count() const
{
    return m_items.size();
}

AccessPointListItem* AccessPointList::item(int index) const
{
    return m_items.value(index, nullptr);
}

AccessPointListItem* AccessPointList::getAPItem(const QString& bssid) const
{
    for (AccessPointListItem* const candidate : m_items) {
        if (candidate->info()._bssid == bssid)
            return candidate;
    }
    return nullptr;
}

void AccessPointList::setCurrentRow(int index)
{
    if (index < 0 || index >= m_items.size() || index == m_current)
        return;
    m_current = index;
    m_view->ensureVisible(index);
    m_view->viewport()->update();
    // Copies, since a receiver of the first signal may clear the list or delete it.
    const _APInfo info = m_items.at(index)->info();
    const QPointer<AccessPointList> self = this;
    emit currentAPESSIDChanged(info._essid);
    if (self)
        emit currentAPBSSIDChanged(info._bssid);
}

void AccessPointList::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    painter.fillRect(
        0, 0, width(), HeaderHeight, CWidgetStyle::getColor(CWidgetStyle::HeaderBackground));
    painter.setFont(CWidgetStyle::font(13, true));
    painter.setPen(CWidgetStyle::getColor(CWidgetStyle::PageText));
    const QList<QRect> rects = cells(width(), 0, HeaderHeight);
    for (int column = 0; column < ColumnCount; ++column) {
        const Qt::Alignment alignment =
            column == ChannelColumn ? Qt::AlignCenter : Qt::AlignVCenter;
        painter.drawText(rects.at(column).adjusted(column == ChannelColumn ? 0 : Padding, 0, 0, 0),
            static_cast<int>(alignment) | Qt::TextSingleLine, displayable(m_titles.value(column)));
    }
}

void AccessPointList::resizeEvent(QResizeEvent* event)
{
    CWidget::resizeEvent(event);
    m_view->setGeometry(0, HeaderHeight, width(), qMax(0, height() - HeaderHeight));
}

void AccessPointList::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        m_view->viewport()->update(); // the rows look their words up when they are painted
    CWidget::changeEvent(event);
}

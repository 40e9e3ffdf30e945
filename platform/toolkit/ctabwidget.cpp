#include "ctabwidget.h"

#include "cwidgetstyle.h"
#include "qtcompat.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

const int BarMargin = 4; ///< around the row of tabs
const int TabGap = 4;
const int SeparatorGap = 12;
const int PreferredTabWidth = 120;
const int TabTextPadding = 24; ///< both sides together

bool isInsideTabs(const QWidget* widget)
{
    for (const QWidget* above = widget->parentWidget(); above; above = above->parentWidget()) {
        if (qobject_cast<const CTabWidget*>(above))
            return true;
    }
    return false;
}

/// Lets the keyboard focus, if it is on the page, go to what is around the tabs and takes it by a
/// click; without such a widget Qt finds a place for it when the page hides.
void giveFocusAway(const QWidget* page)
{
    const QWidget* const focus = QApplication::focusWidget();
    if (!focus || !page->isAncestorOf(focus))
        return;
    QWidget* around = page->parentWidget();
    while (around && !(around->focusPolicy() & Qt::ClickFocus))
        around = around->parentWidget();
    if (around)
        around->setFocus(Qt::OtherFocusReason);
}

} // namespace

CTabWidget::CTabWidget(QWidget* parent)
    : CWidget(parent)
    , m_pageArea(new QWidget(this))
    , m_current(-1)
    , m_selectedBackground(CWidgetStyle::getColor(CWidgetStyle::SelectedTabBackground))
    , m_releasedBackground(CWidgetStyle::getColor(CWidgetStyle::ReleasedTabBackground))
    , m_selectedText(CWidgetStyle::getColor(CWidgetStyle::SelectedTabText))
    , m_releasedText(CWidgetStyle::getColor(CWidgetStyle::ReleasedTabText))
{
    setFont(CWidgetStyle::font());
    setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::FrameBackground));
    QPalette palette = m_pageArea->palette();
    palette.setColor(QPalette::Window, CWidgetStyle::getColor(CWidgetStyle::PageBackground));
    m_pageArea->setPalette(palette);
    m_pageArea->setAutoFillBackground(true);
}

CTabWidget::~CTabWidget() { }

int CTabWidget::addTab(QWidget* page, const QString& title)
{
    if (!page)
        return -1;
    const Tab tab = {page, title, false};
    m_tabs.append(tab);
    page->setParent(m_pageArea);
    page->move(0, 0);
    page->resize(m_pageArea->size());
    if (m_tabs.size() == 2)
        setFocusPolicy(Qt::TabFocus);
    const bool first = m_current < 0;
    if (first)
        m_current = m_tabs.size() - 1;
    page->setVisible(first);
    update();
    return m_tabs.size() - 1;
}

void CTabWidget::addSeparator()
{
    if (m_tabs.isEmpty())
        return;
    m_tabs.last().gapBehind = true;
    update();
}

int CTabWidget::count() const
{
    return m_tabs.size();
}

QWidget* CTabWidget::widget(int index) const
{
    if (index < 0 || index >= m_tabs.size())
        return nullptr;
    return m_tabs.at(index).page;
}

int CTabWidget::currentIndex() const
{
    return m_current;
}

void CTabWidget::setCurrentIndex(int index)
{
    if (index < 0 || index >= m_tabs.size() || index == m_current)
        return;
    QWidget* const earlier = widget(m_current);
    QWidget* const later = widget(index);
    m_current = index;
    if (later)
        later->show();
    if (earlier) {
        giveFocusAway(earlier);
        earlier->hide();
    }
    update();
    emit currentChanged(index);
}

void CTabWidget::setTabText(int index, const QString& title)
{
    if (index < 0 || index >= m_tabs.size())
        return;
    m_tabs[index].title = title;
    update();
}

QString CTabWidget::tabText(int index) const
{
    return m_tabs.value(index).title;
}

QRect CTabWidget::tabRect(int index) const
{
    return tabRects().value(index);
}

void CTabWidget::setSelectTabBgColor(const QColor& color)
{
    m_selectedBackground = color;
    update();
}

void CTabWidget::setReleaseTabBgColor(const QColor& color)
{
    m_releasedBackground = color;
    update();
}

void CTabWidget::setSelectTabTextColor(const QColor& color)
{
    m_selectedText = color;
    update();
}

void CTabWidget::setReleaseTabTextColor(const QColor& color)
{
    m_releasedText = color;
    update();
}

void CTabWidget::resizeEvent(QResizeEvent* event)
{
    CWidget::resizeEvent(event);
    const int bar = CWidgetStyle::tabBarHeight();
    m_pageArea->setGeometry(0, bar, width(), qMax(0, height() - bar));
    for (const Tab& tab : m_tabs) {
        if (tab.page)
            tab.page->resize(m_pageArea->size());
    }
}

void CTabWidget::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    if (isInsideTabs(this)) { // light, so that the bar reads as a part of the outer page
        painter.fillRect(0, 0, width(), CWidgetStyle::tabBarHeight(),
            CWidgetStyle::getColor(CWidgetStyle::HeaderBackground));
    }
    const QList<QRect> rects = tabRects();
    for (int i = 0; i < rects.size(); ++i)
        paintTab(painter, i, rects.at(i));
}

void CTabWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        const QList<QRect> rects = tabRects();
        for (int i = 0; i < rects.size(); ++i) {
            // The whole height of the bar and half of the gap to the next tab count as the tab.
            const int half = TabGap / 2;
            QRect target(rects.at(i).adjusted(-half, 0, half, 0));
            target.setTop(0);
            target.setBottom(CWidgetStyle::tabBarHeight() - 1);
            if (target.contains(event->pos())) {
                setCurrentIndex(i);
                return;
            }
        }
    }
    event->ignore();
}

void CTabWidget::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Left)
        setCurrentIndex(m_current - 1);
    else if (event->key() == Qt::Key_Right)
        setCurrentIndex(m_current + 1);
    else
        CWidget::keyPressEvent(event);
}

/// The tabs from left to right: each as wide as its title needs and at least the preferred width;
/// when that is more than the bar has, all shrink in proportion.
QList<QRect> CTabWidget::tabRects() const
{
    const QFontMetrics metrics(CWidgetStyle::font(13, true));
    QList<int> widths;
    int wanted = 0;
    int gaps = 2 * BarMargin;
    for (const Tab& tab : m_tabs) {
        widths.append(
            qMax(PreferredTabWidth, qtcompat::textWidth(metrics, tab.title) + TabTextPadding));
        wanted += widths.last();
        gaps += tab.gapBehind ? SeparatorGap : TabGap;
    }
    const int available = qMax(0, width() - gaps);
    QList<QRect> rects;
    int left = BarMargin;
    for (int i = 0; i < m_tabs.size(); ++i) {
        const int tabWidth = wanted > available ? widths.at(i) * available / wanted : widths.at(i);
        rects.append(QRect(left, BarMargin, tabWidth, CWidgetStyle::tabBarHeight() - BarMargin));
        left += tabWidth + (m_tabs.at(i).gapBehind ? SeparatorGap : TabGap);
    }
    return rects;
}

void CTabWidget::paintTab(QPainter& painter, int index, const QRect& rect) const
{
    const bool selected = index == m_current;
    // A released tab ends above the page, the selected one is part of it.
    const QRect shape = selected ? rect : rect.adjusted(0, 0, 0, -BarMargin);
    painter.fillRect(shape, selected ? m_selectedBackground : m_releasedBackground);
    if (selected)
        painter.fillRect(QRect(shape.left(), shape.top(), shape.width(), 4),
            CWidgetStyle::getColor(CWidgetStyle::Accent));
    if (selected && hasFocus()) {
        painter.setPen(QPen(CWidgetStyle::getColor(CWidgetStyle::Accent), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(shape.adjusted(5, 9, -5, -5));
    }
    painter.setFont(CWidgetStyle::font(13, selected));
    painter.setPen(selected ? m_selectedText : m_releasedText);
    const QRect textRect = rect.adjusted(4, 0, -4, -BarMargin);
    const QString title =
        painter.fontMetrics().elidedText(m_tabs.at(index).title, Qt::ElideRight, textRect.width());
    painter.drawText(textRect, Qt::AlignCenter | Qt::TextSingleLine, title);
}

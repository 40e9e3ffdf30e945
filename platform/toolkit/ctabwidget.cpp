#include "ctabwidget.h"

#include "cwidgetstyle.h"
#include "qtcompat.h"
#include "surroundings.h"

#include <QApplication>
#include <QPainter>
#include <QStackedWidget>
#include <QTabBar>

namespace {

const int BarMargin = 4; ///< around the row of tabs
const int TabGap = 4;
const int SeparatorGap = 12;
const int PreferredTabWidth = 120;
const int TabTextPadding = 24; ///< both sides together

} // namespace

/// The tabs, each with the gap after it, which is the tab's data. A tab is as wide as its title
/// needs and at least the preferred width; when that is more than the bar has, all shrink in
/// proportion.
class CTabWidget::Bar : public QTabBar {
public:
    explicit Bar(QWidget* parent)
        : QTabBar(parent)
        , selectedBackground(CWidgetStyle::getColor(CWidgetStyle::SelectedTabBackground))
        , releasedBackground(CWidgetStyle::getColor(CWidgetStyle::ReleasedTabBackground))
        , selectedText(CWidgetStyle::getColor(CWidgetStyle::SelectedTabText))
        , releasedText(CWidgetStyle::getColor(CWidgetStyle::ReleasedTabText))
    {
        setFont(CWidgetStyle::font(CWidgetStyle::NormalText, true));
        setExpanding(false);
        setUsesScrollButtons(false);
        setFocusPolicy(Qt::NoFocus);
    }

    QColor selectedBackground;
    QColor releasedBackground;
    QColor selectedText;
    QColor releasedText;

protected:
    QSize tabSizeHint(int index) const override
    {
        int wanted = 0;
        int available = width();
        for (int tab = 0; tab < count(); ++tab) {
            wanted += wantedWidth(tab);
            available -= tabData(tab).toInt();
        }
        int width = wantedWidth(index);
        if (wanted > available)
            width = width * qMax(0, available) / wanted;
        return QSize(width + tabData(index).toInt(), CWidgetStyle::tabBarHeight());
    }

    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        for (int tab = 0; tab < count(); ++tab)
            paintTab(painter, tab);
    }

private:
    int wantedWidth(int tab) const
    {
        return qMax(
            PreferredTabWidth, qtcompat::textWidth(fontMetrics(), tabText(tab)) + TabTextPadding);
    }

    void paintTab(QPainter& painter, int tab) const
    {
        const bool selected = tab == currentIndex();
        const QColor accent = CWidgetStyle::getColor(CWidgetStyle::Accent);
        const QRect rect = tabRect(tab).adjusted(0, BarMargin, -tabData(tab).toInt(), 0);
        // A released tab ends above the page, the selected one is part of it.
        const QRect shape = selected ? rect : rect.adjusted(0, 0, 0, -BarMargin);
        painter.fillRect(shape, selected ? selectedBackground : releasedBackground);
        if (selected)
            painter.fillRect(QRect(shape.left(), shape.top(), shape.width(), 4), accent);
        if (selected && hasFocus()) {
            painter.setPen(QPen(accent, 2));
            painter.drawRect(shape.adjusted(5, 9, -5, -5));
        }
        painter.setFont(CWidgetStyle::font(CWidgetStyle::NormalText, selected));
        painter.setPen(selected ? selectedText : releasedText);
        const QRect textRect = rect.adjusted(4, 0, -4, -BarMargin);
        painter.drawText(textRect, Qt::AlignCenter | Qt::TextSingleLine,
            painter.fontMetrics().elidedText(tabText(tab), Qt::ElideRight, textRect.width()));
    }
};

CTabWidget::CTabWidget(QWidget* parent)
    : CWidget(parent)
    , m_bar(new Bar(this))
    , m_pages(new QStackedWidget(this))
{
    setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::FrameBackground));
    QPalette palette = m_pages->palette();
    palette.setColor(QPalette::Window, CWidgetStyle::getColor(CWidgetStyle::PageBackground));
    m_pages->setPalette(palette);
    m_pages->setAutoFillBackground(true);
    connect(m_bar, SIGNAL(currentChanged(int)), SLOT(showPage(int)));
}

CTabWidget::~CTabWidget() { }

int CTabWidget::addTab(QWidget* page, const QString& title)
{
    if (!page)
        return -1;
    // Light, so that an inner bar reads as a part of the outer page.
    if (CTabWidget* const inner = qobject_cast<CTabWidget*>(page))
        inner->setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::HeaderBackground));
    m_pages->addWidget(page);
    const int index = m_bar->addTab(title);
    m_bar->setTabData(index, TabGap);
    m_bar->setFocusPolicy(index > 0 ? Qt::TabFocus : Qt::NoFocus);
    setTabText(index, title);
    return index;
}

void CTabWidget::addSeparator()
{
    m_bar->setTabData(count() - 1, SeparatorGap);
}

int CTabWidget::count() const
{
    return m_bar->count();
}

QWidget* CTabWidget::widget(int index) const
{
    return m_pages->widget(index);
}

int CTabWidget::currentIndex() const
{
    return m_bar->currentIndex();
}

void CTabWidget::setCurrentIndex(int index)
{
    m_bar->setCurrentIndex(index);
}

void CTabWidget::setTabText(int index, const QString& title)
{
    m_bar->setTabText(index, title); // and lays out the tabs
    if (QWidget* const page = widget(index))
        page->setAccessibleName(title);
}

QString CTabWidget::tabText(int index) const
{
    return m_bar->tabText(index);
}

void CTabWidget::setSelectTabBgColor(const QColor& color)
{
    m_bar->selectedBackground = color;
    m_bar->update();
}

void CTabWidget::setReleaseTabBgColor(const QColor& color)
{
    m_bar->releasedBackground = color;
    m_bar->update();
}

void CTabWidget::setSelectTabTextColor(const QColor& color)
{
    m_bar->selectedText = color;
    m_bar->update();
}

void CTabWidget::setReleaseTabTextColor(const QColor& color)
{
    m_bar->releasedText = color;
    m_bar->update();
}

void CTabWidget::resizeEvent(QResizeEvent* event)
{
    CWidget::resizeEvent(event);
    const int bar = CWidgetStyle::tabBarHeight();
    m_bar->setGeometry(BarMargin, 0, width() - 2 * BarMargin, bar);
    m_pages->setGeometry(0, bar, width(), height() - bar);
}

void CTabWidget::showPage(int index)
{
    const QWidget* const focus = QApplication::focusWidget();
    if (focus && m_pages->isAncestorOf(focus))
        focusAround(m_pages);
    m_pages->setCurrentIndex(index);
    emit currentChanged(index);
}

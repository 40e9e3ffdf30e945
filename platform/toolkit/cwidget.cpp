#include "cwidget.h"

#include <QPainter>

CWidget::CWidget(QWidget* parent)
    : QWidget(parent)
    , m_borderColor(Qt::black)
    , m_borderLeft(0)
    , m_borderTop(0)
    , m_borderRight(0)
    , m_borderBottom(0)
    , m_arrowKeyFocus(false)
{
}

CWidget::~CWidget() { }

int CWidget::type() const
{
    return 0;
}

bool CWidget::apply()
{
    return true;
}

bool CWidget::initialize()
{
    return false;
}

bool CWidget::load(const QString&)
{
    return false;
}

bool CWidget::save(const QString&)
{
    return false;
}

bool CWidget::updateParm(void*, unsigned int)
{
    return false;
}

void CWidget::setSize(int width, int height)
{
    QWidget::setFixedSize(width, height);
}

void CWidget::setSize(const QSize& size)
{
    setSize(size.width(), size.height());
}

void CWidget::setFixedSize(int width, int height)
{
    QWidget::setFixedSize(width, height);
}

void CWidget::setWidth(int width)
{
    QWidget::setFixedWidth(width);
}

void CWidget::setHeight(int height)
{
    QWidget::setFixedHeight(height);
}

void CWidget::clientWndStateChanged(int) { }

void CWidget::translate() { }

void CWidget::updateWidgetStyle()
{
    update();
}

void CWidget::updateWindow(bool withChildren)
{
    update();
    if (!withChildren)
        return;
    const QList<QWidget*> children = findChildren<QWidget*>();
    for (QWidget* child : children)
        child->update();
}

void CWidget::closeWindow()
{
    close();
}

void CWidget::setArrowKeyFocus(bool focus)
{
    m_arrowKeyFocus = focus;
}

bool CWidget::hasArrowKeyFocus() const
{
    return m_arrowKeyFocus;
}

void CWidget::setBackgroundColor(const QColor& color)
{
    m_backgroundColor = color;
    update();
}

QColor CWidget::backgroundColor() const
{
    return m_backgroundColor;
}

void CWidget::setBorderColor(const QColor& color)
{
    m_borderColor = color;
    update();
}

void CWidget::setBorderWidth(int width)
{
    setBorderWidth(width, width, width, width);
}

void CWidget::setBorderWidth(int left, int top, int right, int bottom)
{
    m_borderLeft = qMax(0, left);
    m_borderTop = qMax(0, top);
    m_borderRight = qMax(0, right);
    m_borderBottom = qMax(0, bottom);
    update();
}

void CWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (m_backgroundColor.isValid())
        painter.fillRect(rect(), m_backgroundColor);
    if (m_borderLeft > 0)
        painter.fillRect(0, 0, m_borderLeft, height(), m_borderColor);
    if (m_borderTop > 0)
        painter.fillRect(0, 0, width(), m_borderTop, m_borderColor);
    if (m_borderRight > 0)
        painter.fillRect(width() - m_borderRight, 0, m_borderRight, height(), m_borderColor);
    if (m_borderBottom > 0)
        painter.fillRect(0, height() - m_borderBottom, width(), m_borderBottom, m_borderColor);
}

void CWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    updateWidgetStyle();
}

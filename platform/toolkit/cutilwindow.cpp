#include "cutilwindow.h"

#include "cwidgetstyle.h"

#include <QEvent>

CUtilWindow::CUtilWindow(QWidget* parent)
    : CWidget(parent)
{
    setFont(CWidgetStyle::font());
    setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::FrameBackground));
    if (parent) {
        parent->installEventFilter(this);
        setGeometry(parent->rect());
    } else {
        setGeometry(CWidgetStyle::getScreenRegion(CWidgetStyle::UtilityRegion));
    }
}

CUtilWindow::~CUtilWindow() { }

void CUtilWindow::setCentralWidget(QWidget* widget)
{
    if (widget == m_central)
        return;
    delete m_central;
    m_central = widget;
    if (!widget)
        return;
    widget->setParent(this);
    widget->setGeometry(rect());
    widget->show();
}

QWidget* CUtilWindow::centralWidget() const
{
    return m_central;
}

void CUtilWindow::translate()
{
    if (CWidget* const central = qobject_cast<CWidget*>(m_central))
        central->translate();
}

void CUtilWindow::closeWindow()
{
    delete this;
}

void CUtilWindow::resizeEvent(QResizeEvent* event)
{
    CWidget::resizeEvent(event);
    if (m_central)
        m_central->setGeometry(rect());
}

bool CUtilWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return CWidget::eventFilter(watched, event);
}

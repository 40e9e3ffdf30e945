#include "surroundings.h"

#include "cwidgetstyle.h"

#include <QApplication>
#include <QDesktopWidget>

QRect modalArea(const QWidget* parent)
{
    if (parent) {
        const QWidget* const window = parent->window();
        return QRect(window->mapToGlobal(QPoint(0, 0)), window->size());
    }
    QRect area = CWidgetStyle::getScreenRegion(CWidgetStyle::ScreenAll);
    QDesktopWidget* const desktop = QApplication::desktop();
    area.moveCenter(desktop->screenGeometry(desktop).center());
    return area;
}

bool focusAround(const QWidget* widget)
{
    QWidget* around = widget->parentWidget();
    while (around && !(around->isVisible() && around->focusPolicy() & Qt::ClickFocus))
        around = around->parentWidget();
    if (around)
        around->setFocus(Qt::OtherFocusReason);
    return around;
}

#include "accessibility.h"

#include "cwidget.h"
#include "topbar.h"

#include <QAccessibleWidget>
#include <QStackedWidget>

namespace testset {

namespace {

QAccessibleInterface* createInterface(const QString&, QObject* object)
{
    if (BusyMark* const mark = qobject_cast<BusyMark*>(object))
        return new QAccessibleWidget(mark, QAccessible::Indicator);
    CWidget* const page = qobject_cast<CWidget*>(object);
    const bool isPicture =
        page && qobject_cast<QStackedWidget*>(page->parent()) && !page->findChild<QWidget*>();
    return isPicture ? new QAccessibleWidget(page, QAccessible::Graphic) : nullptr;
}

} // namespace

void installAccessibility()
{
    QAccessible::installFactory(createInterface);
}

} // namespace testset

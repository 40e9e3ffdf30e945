#include "liststyle.h"

#include "cwidgetstyle.h"

#include <QAbstractScrollArea>
#include <QScroller>

namespace testset {

QString listStyle()
{
    return QString("QAbstractItemView, QTextBrowser { background: %1; border: 2px solid %1; }"
                   "QAbstractItemView:focus, QTextBrowser:focus { border: 2px solid %2; }"
                   "QAbstractItemView { outline: none; }"
                   "QAbstractItemView::item { height: %3px; border-bottom: 1px solid %4;"
                   " padding: 0 8px; }"
                   "QAbstractItemView::item:selected { background: %5; color: %6; }")
        .arg(CWidgetStyle::getColor(CWidgetStyle::PageBackground).name(),
            CWidgetStyle::getColor(CWidgetStyle::Accent).name())
        .arg(CWidgetStyle::touchHeight())
        .arg(CWidgetStyle::getColor(CWidgetStyle::GridLine).name(),
            CWidgetStyle::getColor(CWidgetStyle::AccentWash).name(),
            CWidgetStyle::getColor(CWidgetStyle::PageText).name());
}

void letFingersDrag(QAbstractScrollArea* view)
{
    QScroller::grabGesture(view->viewport(), QScroller::LeftMouseButtonGesture);
}

} // namespace testset

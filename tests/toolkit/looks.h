#pragma once

#include <QWidget>

/// Where the widgets of these names lie in a window: "okKey 8,40 60x30, noKey hidden, ...".
inline QString places(const QWidget& window, const QString& names)
{
    QStringList places;
    for (const QString& name : names.split(' ')) {
        const QWidget* const widget = window.findChild<QWidget*>(name);
        if (!widget || !widget->isVisibleTo(&window)) {
            places << name + (widget ? " hidden" : " missing");
            continue;
        }
        const QPoint at = widget->mapTo(&window, QPoint(0, 0));
        places << QString::asprintf(
            "%s %d,%d %dx%d", qPrintable(name), at.x(), at.y(), widget->width(), widget->height());
    }
    return places.join(", ");
}

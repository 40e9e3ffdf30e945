#pragma once

#include <QImage>
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

/// The colours of a picture from a place to its right or lower edge, each with the number of its
/// pixels: "f5f7f8 12, 00796b 6".
inline QString colours(const QImage& picture, QPoint place, Qt::Orientation direction)
{
    const QPoint step = direction == Qt::Horizontal ? QPoint(1, 0) : QPoint(0, 1);
    QStringList runs;
    for (int count = 1; picture.rect().contains(place); place += step, ++count) {
        const QRgb colour = picture.pixel(place);
        if (picture.rect().contains(place + step) && picture.pixel(place + step) == colour)
            continue;
        runs << QString::asprintf("%06x %d", colour & 0xffffff, count);
        count = 0;
    }
    return runs.join(", ");
}

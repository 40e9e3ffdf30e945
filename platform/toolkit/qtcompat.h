#pragma once

// The one place where Qt 4.8 and Qt 5 differ for this project. Everything else is written in the
// API that both share.

#include <QFontMetrics>
#include <QHeaderView>
#include <QtGlobal>
#include <QWheelEvent>

namespace qtcompat {

/// Width in pixels that `text` takes on a line.
inline int textWidth(const QFontMetrics& metrics, const QString& text)
{
#if QT_VERSION >= 0x050b00
    return metrics.horizontalAdvance(text);
#else
    return metrics.width(text);
#endif
}

/// Sets how the header section `column` takes its width.
inline void setSectionResizeMode(QHeaderView* header, int column, QHeaderView::ResizeMode mode)
{
#if QT_VERSION >= 0x050000
    header->setSectionResizeMode(column, mode);
#else
    header->setResizeMode(column, mode);
#endif
}

} // namespace qtcompat

#pragma once

// The one place where Qt 4.8 and Qt 5 differ for this project. Everything else is written in the
// API that both share.

#include <QFontMetrics>
#include <QString>
#include <QtGlobal>

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

} // namespace qtcompat

#include "cwidgetstyle.h"

namespace {

const int ScreenWidth = 720;
const int ScreenHeight = 480;
const int UtilityHeight = 400; ///< the host keeps the rest for its own bars
const int ToolboxWidth = 80;
const int TabBarHeight = 44;
const int TouchHeight = 40;

} // namespace

QRect CWidgetStyle::getScreenRegion(ScreenRegion region)
{
    switch (region) {
    case ScreenAll:
        return QRect(0, 0, ScreenWidth, ScreenHeight);
    case UtilityRegion:
        return QRect(0, 0, ScreenWidth, UtilityHeight);
    case TabRegion:
        return QRect(0, 0, ScreenWidth - ToolboxWidth, UtilityHeight);
    case ToolboxRegion:
        return QRect(ScreenWidth - ToolboxWidth, 0, ToolboxWidth, UtilityHeight);
    }
    return QRect();
}

QSize CWidgetStyle::getSize(SizeCode code)
{
    if (code != TabPageSize)
        return QSize();
    const QRect tabs = getScreenRegion(TabRegion);
    return QSize(tabs.width(), tabs.height() - tabBarHeight());
}

QColor CWidgetStyle::getColor(ColorCode code)
{
    switch (code) {
    case PageBackground:
    case SelectedTabBackground:
        return QColor(0xf5, 0xf7, 0xf8);
    case ReleasedTabBackground:
    case RaisedBackground:
        return QColor(0x3d, 0x50, 0x5d);
    case SelectedTabText:
    case PageText:
        return QColor(0x15, 0x21, 0x2b);
    case ReleasedTabText:
        return QColor(0xdd, 0xe5, 0xea);
    case FrameBackground:
        return QColor(0x20, 0x2d, 0x37);
    case FrameText:
    case AccentText:
        return QColor(0xff, 0xff, 0xff);
    case MutedText:
        return QColor(0x51, 0x60, 0x6b);
    case GridLine:
        return QColor(0xd0, 0xd8, 0xdd);
    case HeaderBackground:
        return QColor(0xdd, 0xe4, 0xe9);
    case AlternateRow:
        return QColor(0xeb, 0xef, 0xf2);
    case Accent:
        return QColor(0x00, 0x79, 0x6b);
    case Fault:
        return QColor(0xc6, 0x28, 0x28);
    case Disabled:
        return QColor(0xd3, 0xda, 0xdf);
    case DisabledText:
        return QColor(0x5d, 0x6a, 0x74);
    case DisabledOnFrame:
        return QColor(0x2a, 0x38, 0x43);
    case DisabledTextOnFrame:
        return QColor(0x7f, 0x8e, 0x99);
    case AccentTint:
        return QColor(0x79, 0xcb, 0xc0);
    case AccentWash:
        return QColor(0xd5, 0xed, 0xea);
    }
    return QColor();
}

QFont CWidgetStyle::font(int pixelSize, bool bold)
{
    QFont font(QLatin1String("DejaVu Sans"));
    font.setPixelSize(qMax(1, pixelSize));
    font.setBold(bold);
    return font;
}

int CWidgetStyle::tabBarHeight()
{
    return TabBarHeight;
}

int CWidgetStyle::touchHeight()
{
    return TouchHeight;
}

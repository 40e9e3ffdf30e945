#include "cwidgetstyle.h"

#include <QApplication>

namespace {

const int ScreenWidth = 720;
const int ScreenHeight = 480;
const int UtilityHeight = 400; ///< the host keeps the rest for its own bars
const int ToolboxWidth = 80;
const int TabBarHeight = 44;
const int TouchHeight = 40;
const int ReliefPercent = 145; ///< how much darker the edge of a button is

/// The colours, and their names in the style sheet.
struct Color {
    CWidgetStyle::ColorCode code;
    QRgb rgb;
    const char* name;
};

const Color colors[] = {
    {CWidgetStyle::PageBackground, 0xf5f7f8, "<page>"},
    {CWidgetStyle::SelectedTabBackground, 0xf5f7f8, "<selected-tab>"},
    {CWidgetStyle::ReleasedTabBackground, 0x3d505d, "<released-tab>"},
    {CWidgetStyle::SelectedTabText, 0x15212b, "<selected-tab-text>"},
    {CWidgetStyle::ReleasedTabText, 0xdde5ea, "<released-tab-text>"},
    {CWidgetStyle::FrameBackground, 0x202d37, "<frame>"},
    {CWidgetStyle::FrameText, 0xffffff, "<frame-text>"},
    {CWidgetStyle::RaisedBackground, 0x3d505d, "<raised>"},
    {CWidgetStyle::PageText, 0x15212b, "<page-text>"},
    {CWidgetStyle::MutedText, 0x51606b, "<muted-text>"},
    {CWidgetStyle::GridLine, 0xd0d8dd, "<grid>"},
    {CWidgetStyle::HeaderBackground, 0xdde4e9, "<header>"},
    {CWidgetStyle::AlternateRow, 0xebeff2, "<alternate>"},
    {CWidgetStyle::Accent, 0x00796b, "<accent>"},
    {CWidgetStyle::AccentText, 0xffffff, "<accent-text>"},
    {CWidgetStyle::Fault, 0xc62828, "<fault>"},
    {CWidgetStyle::DisabledText, 0x5d6a74, "<disabled-text>"},
    {CWidgetStyle::AccentTint, 0x79cbc0, "<accent-tint>"},
    {CWidgetStyle::AccentWash, 0xd5edea, "<accent-wash>"},
    {CWidgetStyle::DisabledTextOnFrame, 0x7f8e99, "<disabled-text-on-frame>"},
    {CWidgetStyle::ButtonGray, 0x566773, "<button-gray>"},
    {CWidgetStyle::ButtonOrange, 0xb45309, "<button-orange>"},
    {CWidgetStyle::ButtonLightBlue, 0x9cd0ee, "<button-light-blue>"},
};

/// The faces of CPushButton, in the order of its styles.
struct ButtonLook {
    CWidgetStyle::ColorCode background;
    CWidgetStyle::ColorCode text;
};

const ButtonLook buttonLooks[] = {
    {CWidgetStyle::ButtonGray, CWidgetStyle::AccentText},
    {CWidgetStyle::Accent, CWidgetStyle::AccentText},
    {CWidgetStyle::ButtonOrange, CWidgetStyle::AccentText},
    {CWidgetStyle::Fault, CWidgetStyle::AccentText},
    {CWidgetStyle::ButtonLightBlue, CWidgetStyle::PageText},
};

/// The relief at the lower edge is the last 6 % of a button's height.
const char buttonSheet[] = R"(
CPushButton[look="%1"] { color: %3; outline: 2px solid %3; background: qlineargradient(
    x1: 0, y1: 0, x2: 0, y2: 1, stop: 0.939 %2, stop: 0.94 %4); }
CPushButton[look="%1"]:flat { background: %2; }
CPushButton[look="%1"]:pressed { background: %4; }
)";

/// Widgets that paint themselves, such as tabs and the rows of the list, have no rule here. A
/// button that cannot be pressed has translucent colours, which do on pages and on the dark frame.
/// The text of a bar lies on both parts of it in one colour, so the filled part is the light tint
/// of the accent.
const char styleSheet[] = R"(
CPushButton { border: none; border-radius: 4px; outline-radius: 4px; padding: 3px 3px 6px 3px; }
CPushButton:flat { padding: 3px; }
CPushButton:pressed { padding: 6px 3px 3px 3px; }
CPushButton:disabled { color: <disabled-text-on-frame>; background: qlineargradient(
    x1: 0, y1: 0, x2: 0, y2: 1, stop: 0.939 rgba(80, 100, 117, 20%),
    stop: 0.94 rgba(54, 70, 85, 28%)); }
CUtilWindow CPushButton:disabled { color: <disabled-text>; }

CMessageBox { background: <page>; border: 2px solid <frame>; }
CKeyPad { background: <frame>; }
CKeyPad QLabel { background: <raised>; color: <frame-text>; }
CKeyPad QLineEdit { background: <page>; color: <page-text>; border: none; padding: 0 12px;
    selection-background-color: <accent>; selection-color: <accent-text>; }

QTreeView, QTableView { border: none; background: <page>; color: <page-text>;
    alternate-background-color: <alternate>; gridline-color: <grid>; }
QHeaderView, QHeaderView::section { background: <header>; border: none; }
QHeaderView::section { color: <page-text>; padding-left: 8px; font: bold 13px "DejaVu Sans"; }
QTableView QHeaderView::section { padding: 0 4px; border-bottom: 1px solid <grid>;
    border-right: 1px solid <grid>; }
QTableView QHeaderView::section:last { border-right: none; }
CPageTable QProgressBar { border: none; margin: 3px 4px; background: <header>; color: <page-text>;
    text-align: center; font: bold 13px "DejaVu Sans"; }
CPageTable QProgressBar::chunk { background: <accent-tint>; }
AccessPointList QScrollBar { background: <header>; width: 16px; margin: 0; }
AccessPointList QScrollBar::handle { background: <muted-text>; min-height: 40px; margin: 2px 4px;
    border-radius: 4px; }
AccessPointList QScrollBar::add-line, AccessPointList QScrollBar::sub-line { height: 0; }
AccessPointList QScrollBar::add-page, AccessPointList QScrollBar::sub-page { background: none; }
)";

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
    for (const Color& color : colors) {
        if (color.code == code)
            return QColor(color.rgb);
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

void CWidgetStyle::applyTo(QApplication& application)
{
    QString sheet;
    int style = 0;
    for (const ButtonLook& look : buttonLooks) {
        const QColor background = getColor(look.background);
        sheet += QString::fromLatin1(buttonSheet)
                     .arg(style++)
                     .arg(background.name(), getColor(look.text).name(),
                         background.darker(ReliefPercent).name());
    }
    sheet += QString::fromLatin1(styleSheet);
    for (const Color& color : colors)
        sheet.replace(QLatin1String(color.name), QColor(color.rgb).name());
    QApplication::setStyle(QLatin1String("Fusion"));
    QApplication::setFont(font());
    application.setStyleSheet(sheet);
}

int CWidgetStyle::tabBarHeight()
{
    return TabBarHeight;
}

int CWidgetStyle::touchHeight()
{
    return TouchHeight;
}

#pragma once

#include "toolkitglobal.h"

#include <QColor>
#include <QFont>
#include <QRect>
#include <QSize>

class QApplication;

/// The host's look: screen regions, sizes, and the one table of colours, the fonts and the one
/// style sheet for the whole toolkit. Class-wide; nothing is kept per object.
class TOOLKIT_EXPORT CWidgetStyle {
public:
    /// Rectangles of the screen, in pixels of the 720 x 480 display's utility area.
    enum ScreenRegion {
        UtilityRegion = 4, ///< the utility window, 720 x 400
        TabRegion = 5,     ///< a utility's tabs: 640 x 400
        ToolboxRegion = 6, ///< the button strip to the right of the tabs: 80 x 400
        ScreenAll = 0      ///< the whole display: 720 x 480
    };
    enum SizeCode {
        TabPageSize = 8 ///< a page below the tab bar of the tab region
    };
    /// Colours by code. Names beyond the numbered ones are the toolkit's own palette.
    enum ColorCode {
        PageBackground = 0, ///< light page
        SelectedTabBackground = 12,
        ReleasedTabBackground = 13,
        SelectedTabText = 14,
        ReleasedTabText = 15,
        FrameBackground = 32, ///< the dark slate around the pages
        FrameText = 33,
        RaisedBackground = 34, ///< buttons and bars on the frame
        PageText = 35,
        MutedText = 36,
        GridLine = 37, ///< hairlines on pages
        HeaderBackground = 38,
        AlternateRow = 39,
        Accent = 40, ///< the one accent colour: action, progress, current
        AccentText = 42,
        Fault = 43,        ///< red, for faults and the selection only
        DisabledText = 45, ///< of a button on a page that cannot be pressed
        AccentTint = 46,   ///< the accent light enough for dark text on it: filled part of a bar
        AccentWash = 47,   ///< the accent as a background of the current row
        DisabledTextOnFrame = 49, ///< the same as DisabledText on the dark frame
        ButtonGray = 50,
        ButtonOrange = 51,
        ButtonLightBlue = 52
    };
    /// Texts come in these sizes, each regular or bold: every further font costs at the start.
    enum TextSize {
        NormalText = 13, ///< pixels
        LargeText = 16   ///< titles and hints
    };

    /// The rectangle of a region; a null rectangle for an unknown code.
    static QRect getScreenRegion(ScreenRegion region);
    /// The size of a code; an empty size for an unknown code.
    static QSize getSize(SizeCode code);
    /// The colour of a code; an invalid colour for an unknown code.
    static QColor getColor(ColorCode code);

    /// The interface's font. A size in pixels, since the display's resolution is fixed.
    static QFont font(int pixelSize = NormalText, bool bold = false);
    /// Gives the application the toolkit's look; without it the widgets work as well.
    static void applyTo(QApplication& application);
    /// Height of a tab bar in pixels; pages below it have at least H - 50 left.
    static int tabBarHeight();
    /// Least height in pixels of anything that a finger has to hit.
    static int touchHeight();
};

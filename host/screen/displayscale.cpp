#include "displayscale.h"

#include "cwidgetstyle.h"

#include <QtGlobal>

namespace testset {

namespace {

const QSize WindowFrame(8, 40); ///< size of a usual title bar and borders

} // namespace

int fittingScale(const QSize& available)
{
    const QSize screen = CWidgetStyle::getScreenRegion(CWidgetStyle::ScreenAll).size();
    const QSize room = available - WindowFrame;
    return qBound(
        1, qMin(room.width() / screen.width(), room.height() / screen.height()), MaxScale);
}

void useScale(int factor)
{
    // A fraction would put the edges of neighbours between two pixels and leave stray lines.
    for (const char* const variable :
        {"QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR", "QT_DEVICE_PIXEL_RATIO"})
        qunsetenv(variable);
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
    qputenv("QT_FONT_DPI", "96"); // all sizes are pixels of the test set's display
    qputenv("QT_SCALE_FACTOR", QByteArray::number(factor));
}

} // namespace testset

#include "cpushbutton.h"

#include "cwidgetstyle.h"
#include "qtcompat.h"
#include "surroundings.h"

#include <QKeyEvent>
#include <QStyle>

namespace {

const int MinButtonWidth = 72;    ///< so that short texts in a column of buttons get equal widths
const int ButtonTextPadding = 16; ///< both sides together
const int PreferredButtonHeight = 48;

} // namespace

CPushButton::CPushButton(QWidget* parent)
    : QPushButton(parent)
{
    setFont(CWidgetStyle::font(CWidgetStyle::NormalText, true));
    setFocusPolicy(Qt::TabFocus);
    setAutoDefault(false); // in a dialog Enter belongs to the dialog unless a button has the focus
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    setStyle(StyleGray, false);
}

CPushButton::~CPushButton() { }

void CPushButton::setStyle(ButtonStyle style, bool flat)
{
    setProperty("look", int(style));
    setFlat(flat);
    if (testAttribute(Qt::WA_WState_Polished)) { // the style sheet's rules are looked up again
        QWidget::style()->unpolish(this);
        QWidget::style()->polish(this);
        update();
    }
}

void CPushButton::setTextColor(const QColor& color)
{
    setStyleSheet(color.isValid()
            ? QString::fromLatin1("CPushButton:enabled { color: %1; }").arg(color.name())
            : QString());
}

QSize CPushButton::sizeHint() const
{
    const int textWidth = qtcompat::textWidth(fontMetrics(), text()) + ButtonTextPadding;
    return QSize(qMax(MinButtonWidth, textWidth), PreferredButtonHeight);
}

QSize CPushButton::minimumSizeHint() const
{
    return QSize(CWidgetStyle::touchHeight(), CWidgetStyle::touchHeight());
}

void CPushButton::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        break;
    case Qt::Key_Space:
    case Qt::Key_Select:
        QPushButton::keyPressEvent(event);
        break;
    default: // the arrows too, by which Qt would go to another button
        event->ignore();
        break;
    }
}

bool CPushButton::focusNextPrevChild(bool next)
{
    // Qt also asks this of a button that has just been disabled or hidden. The next widget would
    // mostly be another button, which a second press of Enter must not hit.
    if ((!isEnabled() || !isVisible()) && focusAround(this))
        return true;
    return QPushButton::focusNextPrevChild(next);
}

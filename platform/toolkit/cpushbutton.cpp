#include "cpushbutton.h"

#include "cwidget.h"
#include "cwidgetstyle.h"
#include "qtcompat.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

const int LeastButtonWidth = 72;  ///< so that short texts in a column of buttons get equal widths
const int ButtonTextPadding = 16; ///< both sides together
const int PreferredButtonHeight = 48;
const int ButtonRelief = 3; ///< the darker edge at the bottom of a button that is not flat
const qreal ButtonRadius = 4;
const int ButtonFocusWidth = 2;

QColor baseColor(CPushButton::ButtonStyle style)
{
    switch (style) {
    case CPushButton::StyleGreen:
        return CWidgetStyle::getColor(CWidgetStyle::Accent);
    case CPushButton::StyleOrange:
        return QColor(0xb4, 0x53, 0x09);
    case CPushButton::StyleRed:
        return CWidgetStyle::getColor(CWidgetStyle::Fault);
    case CPushButton::StyleLightBlue:
        return QColor(0x9c, 0xd0, 0xee);
    case CPushButton::StyleGray:
        break;
    }
    return QColor(0x56, 0x67, 0x73);
}

QColor styleTextColor(CPushButton::ButtonStyle style)
{
    return CWidgetStyle::getColor(
        style == CPushButton::StyleLightBlue ? CWidgetStyle::PageText : CWidgetStyle::AccentText);
}

bool isOnDark(const QWidget* button)
{
    QColor behind;
    for (const QWidget* above = button->parentWidget(); above && !behind.isValid();
         above = above->parentWidget()) {
        if (const CWidget* const widget = qobject_cast<const CWidget*>(above))
            behind = widget->backgroundColor();
        if (!behind.isValid() && above->isWindow())
            behind = above->palette().color(QPalette::Window);
    }
    return behind.isValid() && behind.lightness() < 128;
}

void fillRounded(QPainter& painter, const QRect& rect, const QColor& color)
{
    painter.setBrush(color);
    painter.drawRoundedRect(rect, ButtonRadius, ButtonRadius);
}

} // namespace

CPushButton::CPushButton(QWidget* parent)
    : QPushButton(parent)
    , m_style(StyleGray)
    , m_flat(false)
{
    setFont(CWidgetStyle::font(14, true));
    setFocusPolicy(Qt::TabFocus);
    setAutoDefault(false); // in a dialog Enter belongs to the dialog unless a button has the focus
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

CPushButton::~CPushButton() { }

void CPushButton::setStyle(ButtonStyle style, bool flat)
{
    m_style = style;
    m_flat = flat;
    update();
}

void CPushButton::setTextColor(const QColor& color)
{
    m_textColor = color;
    update();
}

QSize CPushButton::sizeHint() const
{
    const int textWidth = qtcompat::textWidth(fontMetrics(), text()) + ButtonTextPadding;
    return QSize(qMax(LeastButtonWidth, textWidth), PreferredButtonHeight);
}

QSize CPushButton::minimumSizeHint() const
{
    return QSize(CWidgetStyle::touchHeight(), CWidgetStyle::touchHeight());
}

void CPushButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    const bool pressed = isEnabled() && (isDown() || isChecked());
    QColor color = baseColor(m_style);
    QColor textColor = m_textColor.isValid() ? m_textColor : styleTextColor(m_style);
    if (!isEnabled()) {
        const bool dark = isOnDark(this);
        color =
            CWidgetStyle::getColor(dark ? CWidgetStyle::DisabledOnFrame : CWidgetStyle::Disabled);
        textColor = CWidgetStyle::getColor(
            dark ? CWidgetStyle::DisabledTextOnFrame : CWidgetStyle::DisabledText);
    }
    const QColor edge = color.darker(isEnabled() ? 145 : 110);
    QRect face = rect();
    if (m_flat) {
        fillRounded(painter, face, pressed ? edge : color);
    } else if (pressed) {
        fillRounded(painter, face, edge);
        face.setTop(ButtonRelief);
    } else {
        fillRounded(painter, face, edge);
        face.setBottom(face.bottom() - ButtonRelief);
        fillRounded(painter, face, color);
    }

    if (hasFocus()) {
        painter.setPen(QPen(textColor, ButtonFocusWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(face).adjusted(3, 3, -3, -3), ButtonRadius, ButtonRadius);
    }
    painter.setFont(font());
    painter.setPen(textColor);
    const QString shown = painter.fontMetrics().elidedText(text(), Qt::ElideRight, width() - 4);
    painter.drawText(face, Qt::AlignCenter | Qt::TextSingleLine, shown);
}

void CPushButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

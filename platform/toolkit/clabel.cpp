#include "clabel.h"

#include "cwidgetstyle.h"
#include "qtcompat.h"

#include <QPainter>

namespace {

const int LabelPadding = 8; ///< left and right of the text

} // namespace

CLabel::CLabel(QWidget* parent)
    : CWidget(parent)
    , m_textColor(CWidgetStyle::getColor(CWidgetStyle::PageText))
{
    setFont(CWidgetStyle::font());
}

CLabel::~CLabel() { }

void CLabel::setText(const QString& text)
{
    m_text = text;
    updateGeometry();
    update();
}

QString CLabel::text() const
{
    return m_text;
}

void CLabel::setTextColor(const QColor& color)
{
    m_textColor = color;
    update();
}

QSize CLabel::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    // One more, since the width of a text is rounded to whole pixels.
    return QSize(qtcompat::textWidth(metrics, m_text) + 1 + 2 * LabelPadding, metrics.height() + 8);
}

void CLabel::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    painter.setPen(m_textColor);
    const QRect textRect = rect().adjusted(LabelPadding, 0, -LabelPadding, 0);
    const QString shown =
        painter.fontMetrics().elidedText(m_text, Qt::ElideRight, textRect.width());
    painter.drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
}

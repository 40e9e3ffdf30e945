#include "clabel.h"

#include "cwidgetstyle.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

const int LabelPadding = 8; ///< left and right of the text

} // namespace

CLabel::CLabel(QWidget* parent)
    : CWidget(parent)
    , m_text(new QLabel)
{
    m_text->setTextFormat(Qt::PlainText);
    setTextColor(CWidgetStyle::getColor(CWidgetStyle::PageText));
    QHBoxLayout* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(LabelPadding, 0, LabelPadding, 0);
    layout->addWidget(m_text);
}

CLabel::~CLabel() { }

void CLabel::setText(const QString& text)
{
    m_text->setText(text);
}

QString CLabel::text() const
{
    return m_text->text();
}

void CLabel::setTextColor(const QColor& color)
{
    QPalette palette = m_text->palette();
    palette.setColor(QPalette::WindowText, color);
    m_text->setPalette(palette);
}

#include "topbar.h"

#include "cwidgetstyle.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QTime>
#include <QTimer>

namespace testset {

namespace {

const int BarHeight = 40;
const int BarMargin = 12;
const int LabelMargin = 8;
const int ClockWidth = 64;
const int ClockMilliseconds = 1000;

const int MarkSize = 24;
const int MarkDots = 8;
const int MarkRadius = 9; ///< of the circle on which the dots lie
const int DotRadius = 2;
const int StepMilliseconds = 120;

QLabel* createLabel(const char* name)
{
    QLabel* const label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setMargin(LabelMargin);
    QPalette colours = label->palette();
    colours.setColor(QPalette::WindowText, CWidgetStyle::getColor(CWidgetStyle::FrameText));
    label->setPalette(colours);
    return label;
}

} // namespace

BusyMark::BusyMark(QWidget* parent)
    : QWidget(parent)
    , m_timer(new QTimer(this))
{
    setFixedSize(MarkSize, MarkSize);
    m_timer->setInterval(StepMilliseconds);
    connect(m_timer, &QTimer::timeout, this, &BusyMark::step);
}

void BusyMark::setBusy(bool busy)
{
    if (busy == isBusy())
        return;
    if (busy)
        m_timer->start();
    else
        m_timer->stop();
    update();
}

bool BusyMark::isBusy() const
{
    return m_timer->isActive();
}

/// Dots on a circle, the brightest one in front of a tail.
void BusyMark::paintEvent(QPaintEvent*)
{
    if (!isBusy())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.translate(QRectF(rect()).center());
    painter.rotate(m_step * 360.0 / MarkDots);
    QColor dot = CWidgetStyle::getColor(CWidgetStyle::AccentTint);
    for (int behind = 0; behind < MarkDots; ++behind) {
        dot.setAlphaF(1.0 - qreal(behind) / MarkDots);
        painter.setBrush(dot);
        painter.drawEllipse(QPoint(0, -MarkRadius), DotRadius, DotRadius);
        painter.rotate(-360.0 / MarkDots);
    }
}

void BusyMark::step()
{
    m_step = (m_step + 1) % MarkDots;
    update();
}

TopBar::TopBar(QWidget* parent)
    : CWidget(parent)
    , m_title(createLabel("title"))
    , m_busy(new BusyMark)
    , m_message(createLabel("message"))
    , m_clock(createLabel("clock"))
{
    setHeight(BarHeight);
    setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::RaisedBackground));
    QHBoxLayout* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(BarMargin, 0, BarMargin, 0);
    layout->setSpacing(BarMargin);
    m_title->setFont(CWidgetStyle::font(CWidgetStyle::LargeText, true));
    layout->addWidget(m_title);
    layout->addWidget(m_busy);

    // Its width does not follow the text: a long file name must not push the title away.
    m_message->setMargin(0);
    m_message->setWordWrap(true);
    m_message->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_message->setMinimumWidth(1);
    layout->addWidget(m_message, 1);

    m_clock->setFixedWidth(ClockWidth);
    layout->addWidget(m_clock);
    QTimer* const clock = new QTimer(this);
    connect(clock, &QTimer::timeout, this, &TopBar::showTime);
    clock->start(ClockMilliseconds);
    showTime();
}

void TopBar::setTitle(const QString& title)
{
    m_title->setText(title);
}

void TopBar::setMessage(const QString& message)
{
    m_message->setText(message);
}

void TopBar::setBusy(bool busy)
{
    m_busy->setBusy(busy);
    m_busy->setAccessibleName(busy ? tr("Busy") : QString());
}

void TopBar::showTime()
{
    m_clock->setText(QTime::currentTime().toString("hh:mm"));
}

} // namespace testset

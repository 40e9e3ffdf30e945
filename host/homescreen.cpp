#include "homescreen.h"

#include "clabel.h"
#include "cwidgetstyle.h"
#include "utilinterface.h"

#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace testset {

namespace {

const int Margin = 16;
const int TileWidth = 220;
const int TileHeight = 140;
const int Corner = 4;

/// Four rising bars, the last ones larger, centred in `area`: a measurement.
void paintSymbol(QPainter& painter, const QRect& area)
{
    const int bars = 4;
    const int barWidth = 12;
    const int gap = 6;
    const int left = area.center().x() - (bars * barWidth + (bars - 1) * gap) / 2;
    for (int bar = 0; bar < bars; ++bar) {
        const int height = area.height() * (bar + 1) / bars;
        painter.fillRect(left + bar * (barWidth + gap), area.bottom() + 1 - height, barWidth,
            height, CWidgetStyle::getColor(CWidgetStyle::AccentTint));
    }
}

} // namespace

UtilityTile::UtilityTile(QWidget* parent)
    : QPushButton(parent)
{
    setFixedSize(TileWidth, TileHeight);
}

void UtilityTile::setTexts(const QString& title, const QString& detail)
{
    m_title = title;
    m_detail = detail;
    setAccessibleName(title);
    update();
}

void UtilityTile::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor frame = CWidgetStyle::getColor(
        hasFocus() || isDown() ? CWidgetStyle::AccentTint : CWidgetStyle::MutedText);
    painter.setPen(QPen(frame, hasFocus() ? 2 : 1));
    painter.setBrush(
        CWidgetStyle::getColor(CWidgetStyle::RaisedBackground).lighter(isDown() ? 130 : 100));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), Corner, Corner);

    paintSymbol(painter, QRect(0, 20, width(), 44));
    painter.setPen(CWidgetStyle::getColor(CWidgetStyle::FrameText));
    painter.setFont(CWidgetStyle::font(16, true));
    painter.drawText(QRect(0, 76, width(), 24), Qt::AlignCenter, m_title);
    painter.setFont(CWidgetStyle::font(12));
    painter.drawText(QRect(0, 104, width(), 20), Qt::AlignCenter, m_detail);
}

void UtilityTile::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

HomeScreen::HomeScreen(const UtilInterface& utility, QWidget* parent)
    : CWidget(parent)
    , m_utility(utility)
    , m_hint(new CLabel)
    , m_tile(new UtilityTile)
{
    setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::FrameBackground));
    m_hint->setTextColor(CWidgetStyle::getColor(CWidgetStyle::FrameText));

    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Margin);
    layout->addWidget(m_hint);
    layout->addWidget(m_tile);
    layout->addStretch();

    connect(m_tile, &UtilityTile::clicked, this, &HomeScreen::utilityChosen);
}

void HomeScreen::setTexts(bool isOpen)
{
    m_hint->setText(tr("Choose a utility."));
    m_tile->setTexts(utilityTitle(m_utility),
        isOpen ? tr("Open: press to go on")
               : m_utility.getPluginName() + ' ' + m_utility.getPluginVersion());
}

UtilityTile* HomeScreen::tile() const
{
    return m_tile;
}

QString utilityTitle(const UtilInterface& utility)
{
    if (utility.getPluginID() == "com.korvane.CommonUtil.wifiondivoPlugin")
        return HomeScreen::tr("Wi-Fi Analyser");
    return utility.getPluginName();
}

} // namespace testset

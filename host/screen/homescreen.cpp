#include "homescreen.h"

#include "clabel.h"
#include "cwidgetstyle.h"
#include "liststyle.h"
#include "utilinterface.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QPainter>
#include <QVBoxLayout>

namespace testset {

namespace {

const int Margin = 16;
const int TileWidth = 220;
const int TileHeight = 140;
const int Corner = 4;
const int HintHeight = 25;

/// Four rising bars, the last ones larger, centred in `area`.
void paintMeasurement(QPainter& painter, const QRect& area)
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

/// A sheet with lines of text, centred in `area`.
void paintDocument(QPainter& painter, const QRect& area)
{
    QRect sheet(0, 0, area.height() * 3 / 4, area.height());
    sheet.moveCenter(area.center());
    painter.fillRect(sheet, CWidgetStyle::getColor(CWidgetStyle::AccentTint));
    const int lines = 4;
    const int margin = 6;
    for (int line = 1; line <= lines; ++line) {
        const int missing = line == lines ? sheet.width() / 3 : 0; // the last line of a paragraph
        painter.fillRect(sheet.left() + margin, sheet.top() + line * sheet.height() / (lines + 1),
            sheet.width() - 2 * margin - missing, 3,
            CWidgetStyle::getColor(CWidgetStyle::RaisedBackground));
    }
}

} // namespace

HomeTile::HomeTile(Symbol symbol, QWidget* parent)
    : QPushButton(parent)
    , m_symbol(symbol)
{
    setFixedSize(TileWidth, TileHeight);
}

void HomeTile::setTexts(const QString& title, const QString& detail)
{
    m_title = title;
    m_detail = detail;
    setAccessibleName(title);
    setAccessibleDescription(detail);
    update();
}

void HomeTile::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor frame = CWidgetStyle::getColor(
        hasFocus() || isDown() ? CWidgetStyle::AccentTint : CWidgetStyle::MutedText);
    painter.setPen(QPen(frame, hasFocus() ? 2 : 1));
    painter.setBrush(
        CWidgetStyle::getColor(CWidgetStyle::RaisedBackground).lighter(isDown() ? 130 : 100));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), Corner, Corner);

    const QRect symbol(0, 20, width(), 44);
    if (m_symbol == Measurement)
        paintMeasurement(painter, symbol);
    else
        paintDocument(painter, symbol);
    painter.setPen(CWidgetStyle::getColor(CWidgetStyle::FrameText));
    painter.setFont(CWidgetStyle::font(CWidgetStyle::LargeText, true));
    painter.drawText(QRect(0, 76, width(), 24), Qt::AlignCenter, m_title);
    painter.setFont(CWidgetStyle::font());
    painter.drawText(QRect(0, 104, width(), 20), Qt::AlignCenter, m_detail);
}

void HomeTile::keyPressEvent(QKeyEvent* event)
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
    , m_utilityTile(new HomeTile(HomeTile::Measurement))
    , m_resultsTile(new HomeTile(HomeTile::Document))
    , m_scansHint(new CLabel)
    , m_list(new QListWidget)
{
    setBackgroundColor(CWidgetStyle::getColor(CWidgetStyle::FrameBackground));
    for (CLabel* const hint : {m_hint, m_scansHint}) {
        hint->setHeight(HintHeight);
        hint->setTextColor(CWidgetStyle::getColor(CWidgetStyle::FrameText));
    }
    m_list->setObjectName("storedScans");
    m_list->setStyleSheet(listStyle());
    m_list->setUniformItemSizes(true);
    letFingersDrag(m_list);
    m_scansHint->hide();
    m_list->hide();

    QHBoxLayout* const tiles = new QHBoxLayout;
    tiles->setSpacing(Margin);
    tiles->addWidget(m_utilityTile);
    tiles->addWidget(m_resultsTile);
    tiles->addStretch();
    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Margin);
    layout->addWidget(m_hint);
    layout->addLayout(tiles);
    layout->addWidget(m_scansHint);
    layout->addWidget(m_list, 1);
    layout->addStretch();

    connect(m_utilityTile, &HomeTile::clicked, this, &HomeScreen::utilityChosen);
    connect(m_resultsTile, &HomeTile::clicked, this, &HomeScreen::resultsChosen);
    const auto choose = [this] { emit storedScanChosen(m_scans.value(m_list->currentRow()).name); };
    connect(m_list, &QListWidget::itemClicked, this, choose);
    connect(m_list, &QListWidget::itemActivated, this, choose);
}

void HomeScreen::setStoredScans(const QList<StoredScan>& scans, const QString& current)
{
    m_scans = scans;
    m_list->clear();
    for (const StoredScan& scan : scans) {
        m_list->addItem(scan.name);
        if (scan.name == current)
            m_list->setCurrentRow(m_list->count() - 1);
    }
    m_scansHint->setVisible(!scans.isEmpty());
    m_list->setVisible(!scans.isEmpty());
}

void HomeScreen::setTexts(bool isOpen, int reports)
{
    m_scansHint->setText(tr("No Wi-Fi adapter: choose a stored scan."));
    for (int row = 0; row < m_list->count(); ++row) {
        const StoredScan& scan = m_scans[row];
        m_list->item(row)->setText(scan.name + ": "
            + (scan.hasList ? tr("access points on 2.4 GHz: %1, on 5 GHz: %2")
                                  .arg(scan.accessPoints2_4)
                                  .arg(scan.accessPoints5)
                            : tr("a scan that fails")));
    }
    m_hint->setText(tr("Choose a utility."));
    m_utilityTile->setTexts(utilityTitle(m_utility),
        isOpen ? tr("Open: press to go on")
               : m_utility.getPluginName() + ' ' + m_utility.getPluginVersion());
    m_resultsTile->setTexts(
        tr("Results"), reports > 0 ? tr("Reports: %1").arg(reports) : tr("No reports yet"));
}

HomeTile* HomeScreen::utilityTile() const
{
    return m_utilityTile;
}

HomeTile* HomeScreen::resultsTile() const
{
    return m_resultsTile;
}

QString utilityTitle(const UtilInterface& utility)
{
    if (utility.getPluginID() == "com.korvane.CommonUtil.wifiondivoPlugin")
        return HomeScreen::tr("Wi-Fi Analyser");
    return utility.getPluginName();
}

} // namespace testset

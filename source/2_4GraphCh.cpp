#include "include/2_4GraphCh.h"

#include "core/channelsection.h"
#include "core/signallevel.h"
#include "hostbinding.h"
#include "views/channeltable.h"

namespace wifiondivo {

static_assert(Channels2_4[ChannelCount2_4 - 1] <= 127, "a channel number fits a summary's 8 bits");

qint8 ChannelText[ChannelCount2_4];
qint8 APText[ChannelCount2_4];
qint8 BestText[ChannelCount2_4];
qint32 ap2_4;

namespace {

QString percentText(int best)
{
    return QString::number(best) + QLatin1Char('%');
}

ChannelSummary<ChannelCount2_4, qint8> summary2_4 = {
    Channels2_4, ChannelText, APText, BestText, ap2_4};

} // namespace

Wifiondivo_2_4GraphCH::Wifiondivo_2_4GraphCH(QWidget* parent)
    : CWidget(parent)
    , m_pTableWidget(createChannelTable(this,
          QStringList() << tr("Channel") << tr("AP") << tr("Best Signal") << tr("Best Signal Bar")))
    , m_pProBar_signal(nullptr)
{
    connect(m_pTableWidget, SIGNAL(currentPageChanged(int)), SLOT(onCurrentPageChanged(int)));
}

Wifiondivo_2_4GraphCH::~Wifiondivo_2_4GraphCH() { }

void Wifiondivo_2_4GraphCH::clearSummary()
{
    summary2_4.clear();
}

int Wifiondivo_2_4GraphCH::signalChange(int signal)
{
    return percentOfSignal(signal);
}

void Wifiondivo_2_4GraphCH::creatChannelsList(const stEXT_WIFISCAN_result& m_pWiFiScanResult)
{
    summary2_4.replace(m_pWiFiScanResult);
    std::printf("wifiondivo: %d occupied channels in the 2.4 GHz band\n", ap2_4);
    initialize();
}

bool Wifiondivo_2_4GraphCH::initialize()
{
    fillChannelTable(m_pTableWidget, summary2_4.allRows(percentText), barList, m_pProBar_signal);
    return false;
}

void Wifiondivo_2_4GraphCH::onCurrentPageChanged(int pageIndex)
{
    showChannelBars(barList, pageIndex);
}

void Wifiondivo_2_4GraphCH::save2_4GraphCHResult(FILE* pfOutput, int font_size)
{
    writeChannelSection(pfOutput, font_size, "2.4GHzChannel", summary2_4.occupiedRows(percentText));
}

} // namespace wifiondivo

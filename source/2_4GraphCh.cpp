#include "2_4GraphCh.h"

#include "band.h"
#include "channelsummary.h"
#include "channeltable.h"
#include "cpagetable.h"
#include "signallevel.h"

namespace wifiondivo {

qint8 ChannelText[13];
qint8 APText[13];
qint8 BestText[13];
qint32 ap2_4;

namespace {

QString percentText(int best)
{
    return QString::number(best) + QLatin1Char('%');
}

QList<ChannelRow> summaryRows(int count)
{
    return channelRows(count, ChannelText, APText, BestText, percentText);
}

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

int Wifiondivo_2_4GraphCH::signalChange(int signal)
{
    return percentOfSignal(signal);
}

void Wifiondivo_2_4GraphCH::creatChannelsList(const stEXT_WIFISCAN_result& m_pWiFiScanResult)
{
    ap2_4 = summarise(Band2_4, m_pWiFiScanResult, ChannelText, APText, BestText);
    std::printf("wifiondivo: %d occupied channels in the 2.4 GHz band\n", ap2_4);
    initialize();
}

bool Wifiondivo_2_4GraphCH::initialize()
{
    fillChannelTable(m_pTableWidget, summaryRows(Band2_4.channelCount), barList, m_pProBar_signal);
    return false;
}

void Wifiondivo_2_4GraphCH::onCurrentPageChanged(int pageIndex)
{
    showChannelBars(barList, pageIndex);
}

void Wifiondivo_2_4GraphCH::save2_4GraphCHResult(FILE* pfOutput, int font_size)
{
    writeChannelSection(pfOutput, font_size, "2.4GHzChannel", summaryRows(ap2_4));
}

} // namespace wifiondivo

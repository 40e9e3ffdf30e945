#include "2_4GraphCh.h"

#include "band.h"
#include "channelsummary.h"
#include "channeltable.h"
#include "cpagetable.h"
#include "htmlwriter.h"
#include "signallevel.h"

namespace wifiondivo {

qint8 ChannelText[13];
qint8 APText[13];
qint8 BestText[13];
qint32 ap2_4;

namespace {

QString bestSignal(int row)
{
    return QString::number(BestText[row]) + QLatin1Char('%');
}

} // namespace

Wifiondivo_2_4GraphCH::Wifiondivo_2_4GraphCH(QWidget* parent)
    : CWidget(parent)
    , m_pTableWidget(createChannelTable(this))
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
    QList<ChannelRow> rows;
    for (int i = 0; i < Band2_4.channelCount; ++i) {
        const ChannelRow row = {ChannelText[i], APText[i], bestSignal(i), BestText[i]};
        rows.append(row);
    }
    fillChannelTable(m_pTableWidget, rows, barList, m_pProBar_signal);
    return false;
}

void Wifiondivo_2_4GraphCH::onCurrentPageChanged(int pageIndex)
{
    showChannelBars(barList, pageIndex);
}

void Wifiondivo_2_4GraphCH::save2_4GraphCHResult(FILE* pfOutput, int font_size)
{
    if (ap2_4 <= 0)
        return;
    beginTable(pfOutput, font_size, "2.4GHzChannel");
    writeRow(pfOutput, HeaderRow, font_size, {"Ch", "AP", "Best Signal"});
    for (int i = 0; i < ap2_4; ++i) {
        writeRow(pfOutput, DataRow, font_size,
            {std::to_string(ChannelText[i]), std::to_string(APText[i]),
                bestSignal(i).toStdString()});
    }
    endTable(pfOutput);
}

} // namespace wifiondivo

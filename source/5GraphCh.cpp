#include "include/5GraphCh.h"

#include "core/channelsection.h"
#include "core/signallevel.h"
#include "hostbinding.h"
#include "views/channeltable.h"

namespace wifiondivo {

static_assert(m_5_0_GHZchan[ChannelCount5 - 1] <= 255, "a channel number fits a summary's 8 bits");

quint8 Channel5Text[ChannelCount5];
quint8 AP5Text[ChannelCount5];
quint8 Best5Text[ChannelCount5];
qint32 ap5;

namespace {

QString levelText(int best)
{
    return QString::fromLatin1("- %1dBm").arg(levelOfSignal(best));
}

/// For the table only: the report writes a level for a best signal of 0 as well.
QString levelOrNullText(int best)
{
    return best != 0 ? levelText(best) : QString::fromLatin1("null");
}

ChannelSummary<ChannelCount5, quint8> summary5 = {
    m_5_0_GHZchan, Channel5Text, AP5Text, Best5Text, ap5};

} // namespace

Wifiondivo_5GraphCH::Wifiondivo_5GraphCH(QWidget* parent)
    : CWidget(parent)
    , m_pTable_5gWidget(createChannelTable(this,
          QStringList() << tr("Channel") << tr("AP") << tr("Best Signal") << tr("Best Signal Bar")))
    , m_pProBar_5Gsignal(nullptr)
{
    connect(m_pTable_5gWidget, SIGNAL(currentPageChanged(int)), SLOT(onCurrentPageChanged(int)));
}

Wifiondivo_5GraphCH::~Wifiondivo_5GraphCH() { }

void Wifiondivo_5GraphCH::clearSummary()
{
    summary5.clear();
}

int Wifiondivo_5GraphCH::signalChange(int signal)
{
    return percentOfSignal(signal);
}

int Wifiondivo_5GraphCH::signalToDbM(int signal)
{
    return levelOfSignal(signal);
}

void Wifiondivo_5GraphCH::creatChannelsList(const stEXT_WIFISCAN_result& m_pWiFiScanResult)
{
    summary5.replace(m_pWiFiScanResult);
    std::printf("wifiondivo: %d occupied channels in the 5 GHz band\n", ap5);
    initialize();
}

bool Wifiondivo_5GraphCH::initialize()
{
    fillChannelTable(
        m_pTable_5gWidget, summary5.allRows(levelOrNullText), barList, m_pProBar_5Gsignal);
    return false;
}

void Wifiondivo_5GraphCH::onCurrentPageChanged(int pageIndex)
{
    showChannelBars(barList, pageIndex);
}

void Wifiondivo_5GraphCH::save_5GraphCHResult(FILE* pfOutput, int font_size)
{
    writeChannelSection(pfOutput, font_size, "5.0GHzChannel", summary5.occupiedRows(levelText));
}

} // namespace wifiondivo

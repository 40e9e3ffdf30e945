#include "include/5Graph.h"

#include "core/band.h"
#include "core/signallevel.h"
#include "hostbinding.h"
#include "include/5GraphCh.h"
#include "views/graphpainter.h"

#include <QPainter>

#include <cstdio>

namespace wifiondivo {

qint32 ondivo_5Graph = 0;

namespace {

int graphs5 = 0; ///< number of graphs: a new window may exist before the old one is deleted

} // namespace

Wifiondivo_5Graph::Wifiondivo_5Graph(QWidget* parent)
    : CWidget(parent)
    , m_pWiFiScan5Result(nullptr)
    , m_sWiFiScan5Result()
    , m_curBSSiD()
    , m_curChan(0)
    , current(-1)
{
    ++graphs5;
    ondivo_5Graph = 1;
    setBackgroundColor(Qt::white);
    const QRect region = kit::tabRegion();
    setFixedSize(region.width(), region.height());
}

Wifiondivo_5Graph::~Wifiondivo_5Graph()
{
    if (--graphs5 == 0)
        ondivo_5Graph = 0;
}

int Wifiondivo_5Graph::get5GAPPos(int channel)
{
    return channelIndex(Band5, channel) + 1;
}

int Wifiondivo_5Graph::signalToDbM(int signal)
{
    return levelOfSignal(signal);
}

int Wifiondivo_5Graph::findBestSSID(int channel)
{
    update();
    return lastOnChannel(m_pWiFiScan5Result, channel);
}

int Wifiondivo_5Graph::findClosersignalSSID(int SSIDIndex, int updown)
{
    if (updown != 0)
        update();
    return neighbourBySignal(m_pWiFiScan5Result, SSIDIndex, updown);
}

void Wifiondivo_5Graph::GetAPList(const stEXT_WIFISCAN_result& m_pWiFiScanResult)
{
    m_sWiFiScan5Result = m_pWiFiScanResult;
    m_pWiFiScan5Result = &m_sWiFiScan5Result;
    std::printf("wifiondivo: 5 GHz graph, cells up to %d\n", m_sWiFiScan5Result.cellno);
}

void Wifiondivo_5Graph::markSelectedSSID(const stEXT_WIFI_UDRL& m_WIFI_UDRL)
{
    if (ap5 < 1 || ondivo_5Graph != 1)
        return;
    const Selection selection = {m_curBSSiD, m_curChan, current};
    if (stepSelection(Band5, m_pWiFiScan5Result, m_WIFI_UDRL, selection))
        update();
}

void Wifiondivo_5Graph::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    const QRect region = kit::tabRegion();
    paintGraph(
        painter, Band5, region.size(), graphContents(Band5, ap5, m_pWiFiScan5Result, m_curBSSiD));
}

} // namespace wifiondivo

#include "include/2_4Graph.h"

#include "core/band.h"
#include "core/signallevel.h"
#include "hostbinding.h"
#include "include/2_4GraphCh.h"
#include "views/graphpainter.h"

#include <QPainter>

#include <cstdio>

namespace wifiondivo {

qint32 ondivo_2_4Graph = 0;

namespace {

int graphs2_4 = 0; ///< number of graphs: a new window may exist before the old one is deleted

} // namespace

Wifiondivo_2_4Graph::Wifiondivo_2_4Graph(QWidget* parent)
    : CWidget(parent)
    , m_pWiFiScan2_4Result(nullptr)
    , m_sWiFiScan2_4Result()
    , m_curBSSiD()
    , m_curChan(0)
    , current(-1)
{
    ++graphs2_4;
    ondivo_2_4Graph = 1;
    setBackgroundColor(Qt::white);
    const QRect region = kit::tabRegion();
    setFixedSize(region.width(), region.height());
}

Wifiondivo_2_4Graph::~Wifiondivo_2_4Graph()
{
    if (--graphs2_4 == 0)
        ondivo_2_4Graph = 0;
}

int Wifiondivo_2_4Graph::signalToDbM(int signal)
{
    return levelOfSignal(signal);
}

int Wifiondivo_2_4Graph::findBestSSID(int channel)
{
    update();
    return lastOnChannel(m_pWiFiScan2_4Result, channel);
}

int Wifiondivo_2_4Graph::findClosersignalSSID(int SSIDIndex, int updown)
{
    if (updown != 0)
        update();
    return neighbourBySignal(m_pWiFiScan2_4Result, SSIDIndex, updown);
}

void Wifiondivo_2_4Graph::GetAPList(const stEXT_WIFISCAN_result& m_pWiFiScanResult)
{
    m_sWiFiScan2_4Result = m_pWiFiScanResult;
    m_pWiFiScan2_4Result = &m_sWiFiScan2_4Result;
    std::printf("wifiondivo: 2.4 GHz graph, cells up to %d\n", m_sWiFiScan2_4Result.cellno);
}

void Wifiondivo_2_4Graph::markSelectedSSID(const stEXT_WIFI_UDRL& m_WIFI_UDRL)
{
    if (ap2_4 < 1 || ondivo_2_4Graph != 1)
        return;
    const Selection selection = {m_curBSSiD, m_curChan, current};
    if (stepSelection(Band2_4, m_pWiFiScan2_4Result, m_WIFI_UDRL, selection))
        update();
}

void Wifiondivo_2_4Graph::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    const QRect region = kit::tabRegion();
    paintGraph(painter, Band2_4, region.size(),
        graphContents(Band2_4, ap2_4, m_pWiFiScan2_4Result, m_curBSSiD));
}

} // namespace wifiondivo

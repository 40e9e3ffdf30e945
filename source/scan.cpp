#include "include/scan.h"

#include "core/scanstatus.h"
#include "core/signallevel.h"
#include "hostbinding.h"

#include <QVBoxLayout>

#include <cstdio>

namespace wifiondivo {

namespace {

SecurityMode securityMode(const stK510_WIFISCAN_APDATA& ap)
{
    if (ap.with_enc == 0)
        return Security_None;
    const std::string method = fieldText(ap.enctype);
    if (method == "WEP")
        return Security_WEP;
    if (method == "WPA1")
        return Security_WPA1;
    if (method == "WPA2")
        return Security_WPA2;
    return Security_None;
}

/// The figure that the list shows as bars: 110 minus the magnitude of a level, or the first number
/// of a ratio. A text without a number, such as "-", gives 0, so that the list shows no bar.
int signalFigure(const std::string& signal)
{
    int value = 0;
    if (!readLeadingInteger(signal.c_str(), &value))
        return 0;
    if (signal[0] != '-')
        return value;
    return value < 0 ? value + 110 : 110 - value;
}

QString statusText(wifiondivoScanState state)
{
    switch (state) {
    case WIFISSID_SCAN:
        break;
    case WIFISSID_SCAN_START:
        return QObject::tr(scanstatus::Started);
    case WIFISSID_SCAN_INPROGRESS:
        return QObject::tr(scanstatus::InProgress);
    case WIFISSID_SCAN_FAILED:
        return QObject::tr(scanstatus::Failed);
    case WIFISSID_SCAN_FINISH:
        return QObject::tr(scanstatus::Finished);
    }
    return QObject::tr(scanstatus::NotScanned);
}

} // namespace

CScanResult::CScanResult(QWidget* parent)
    : CWidget(parent)
    , m_pLabelWifiScan(nullptr)
    , m_pWifiAPList(nullptr)
    , m_bWifiSSIDScanState(WIFISSID_SCAN)
{
    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(1, 1, 1, 1);

    m_pLabelWifiScan = new CLabel(nullptr);
    m_pLabelWifiScan->setBorderWidth(1);
    m_pLabelWifiScan->setBorderColor(Qt::black);
    m_pLabelWifiScan->setText(statusText(m_bWifiSSIDScanState));
    m_pLabelWifiScan->setBackgroundColor(Qt::white);
    m_pLabelWifiScan->setTextColor(Qt::blue);
    m_pLabelWifiScan->setFixedHeight(23);
    layout->addWidget(m_pLabelWifiScan);

    const QStringList titles = QStringList()
        << QString() << QObject::tr("ESSID") << QObject::tr("BSSID") << tr("Channel") << QString();
    m_pWifiAPList = new AccessPointList(titles, this);
    m_pWifiAPList->setSize(kit::tabRegion().width() - 2, 279);
    connect(
        m_pWifiAPList, SIGNAL(currentAPESSIDChanged(QString)), SIGNAL(sigApEssidChanged(QString)));
    connect(
        m_pWifiAPList, SIGNAL(currentAPBSSIDChanged(QString)), SIGNAL(sigApBssidChanged(QString)));
    connect(m_pWifiAPList, SIGNAL(currentAPBSSIDChanged(QString)), SLOT(setCurApEncType(QString)));
    layout->addWidget(m_pWifiAPList);
    layout->addStretch();
    setBackgroundColor(kit::pageBackground());
}

CScanResult::~CScanResult() { }

void CScanResult::translate()
{
    m_pLabelWifiScan->setText(statusText(m_bWifiSSIDScanState));
}

void CScanResult::addScanResultRecord(const stK510_WIFISCAN_APDATA& info)
{
    setState(WIFISSID_SCAN_INPROGRESS);
    _APInfo row;
    // Qt 5 reads the bytes as UTF-8, which most network names are; Qt 4, as on a test set, reads
    // them as Latin-1.
    row._bssid = QString::fromStdString(fieldText(info.bssid));
    row._essid = QString::fromStdString(fieldText(info.essid));
    row._channel = info.channel;
    row._secMode = securityMode(info);
    row._signal = signalFigure(fieldText(info.str_signal));
    std::printf("wifiondivo: signal figure %d\n", row._signal);
    m_pWifiAPList->addItem(row);
}

void CScanResult::scanBegin()
{
    setState(WIFISSID_SCAN_START);
    clearApList();
}

void CScanResult::scanError()
{
    setState(WIFISSID_SCAN_FAILED);
}

void CScanResult::scanEnd()
{
    setState(WIFISSID_SCAN_FINISH);
}

void CScanResult::scanNoResult()
{
    setState(WIFISSID_SCAN_FINISH);
    m_pLabelWifiScan->setText(QObject::tr(scanstatus::NoResults));
}

void CScanResult::clearApList()
{
    m_pWifiAPList->clear();
}

void CScanResult::setCurApEncType(const QString& in_bssid)
{
    if (AccessPointListItem* const row = m_pWifiAPList->getAPItem(in_bssid))
        emit sigApEncType(row->getSecurityMode());
}

void CScanResult::setState(wifiondivoScanState state)
{
    m_bWifiSSIDScanState = state;
    translate();
}

} // namespace wifiondivo

#include "WifiScanEventArg.h"

stWifiScanItem::stWifiScanItem()
    : cellId(0)
    , channel(0)
    , quality(0)
    , signal(0)
    , with_enc(0)
{
}

stWifiScanItem::stWifiScanItem(const stWifiScanItem& other) = default;
stWifiScanItem::~stWifiScanItem() = default;
stWifiScanItem& stWifiScanItem::operator=(const stWifiScanItem& other) = default;

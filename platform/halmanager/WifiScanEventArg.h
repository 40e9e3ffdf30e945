#pragma once

#include "halglobal.h"

#include <string>

/// An access point as the hardware library's own scan events carry it.
struct HAL_EXPORT stWifiScanItem {
    stWifiScanItem();
    stWifiScanItem(const stWifiScanItem& other);
    ~stWifiScanItem();
    stWifiScanItem& operator=(const stWifiScanItem& other);

    int cellId;
    std::string bssid;
    std::string essid;
    std::string mode;
    std::string frequency;
    int channel;
    int quality;
    int signal;
    int with_enc;
    std::string enctype;
};

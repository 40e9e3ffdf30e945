#pragma once

#include "halglobal.h"

#include <cstddef>
#include <string>

/// An access point in the hardware library's own scan events.
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
// On the test set, with the old string ABI on 32 bits, a string is one pointer.
static_assert(sizeof(std::string) != 4
        || (offsetof(stWifiScanItem, cellId) == 0 && offsetof(stWifiScanItem, bssid) == 4
            && offsetof(stWifiScanItem, essid) == 8 && offsetof(stWifiScanItem, mode) == 12
            && offsetof(stWifiScanItem, frequency) == 16 && offsetof(stWifiScanItem, channel) == 20
            && offsetof(stWifiScanItem, quality) == 24 && offsetof(stWifiScanItem, signal) == 28
            && offsetof(stWifiScanItem, with_enc) == 32 && offsetof(stWifiScanItem, enctype) == 36
            && sizeof(stWifiScanItem) == 40),
    "laid out as on the test set");

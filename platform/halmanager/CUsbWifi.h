#pragma once

#include "CDevice.h"

#include <string>

namespace halmanager {

/// The USB Wi-Fi adapter behind the interface "wlan0". GUI thread only.
class HAL_EXPORT CUsbWifi : public CDevice {
public:
    CUsbWifi();
    ~CUsbWifi() override;

    /// Whether the adapter is there: while a stored scan is replayed, unless somebody said
    /// SetPlugged(false); otherwise when sysfs shows "wlan0" as a wireless interface.
    virtual bool IsPlugged() const;

    /// Simulates plugging the replayed adapter; without a replay it changes nothing.
    void SetPlugged(bool plugged);

private:
    bool m_replayPlugged;
};

} // namespace halmanager

#pragma once

#include "CDevice.h"

#include <string>

namespace halmanager {

/// The Wi-Fi adapter behind the interface in use (see wireless::interfaceInUse()). GUI thread only.
class HAL_EXPORT CUsbWifi : public CDevice {
public:
    CUsbWifi();
    ~CUsbWifi() override;

    /// Whether the adapter is there: while a stored scan is replayed, unless somebody said
    /// SetPlugged(false); otherwise when the interface in use exists and is wireless.
    virtual bool IsPlugged() const;

    /// Simulates plugging the replayed adapter; without a replay it changes nothing.
    void SetPlugged(bool plugged);

private:
    bool m_replayPlugged;
};

} // namespace halmanager

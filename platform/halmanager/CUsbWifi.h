#pragma once

#include "CDevice.h"

#include <string>

namespace halmanager {

/// The Wi-Fi adapter of the interface in use (see wireless::interfaceInUse()). GUI thread only.
class HAL_EXPORT CUsbWifi : public CDevice {
public:
    CUsbWifi();
    ~CUsbWifi() override;

    /// While environment::Replay is set: the value of the last SetPlugged(), initially true.
    /// Otherwise: true if the interface in use exists and is wireless.
    virtual bool IsPlugged() const;

    /// Plugs or unplugs the adapter of a replay. Has no effect on IsPlugged() without a replay.
    void SetPlugged(bool plugged);

private:
    bool m_replayPlugged;
};

} // namespace halmanager

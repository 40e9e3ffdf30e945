#pragma once

#include "CBus.h"

#include <map>
#include <memory>
#include <string>

namespace halmanager {

class CDevice;

/// The USB bus and the devices that the board description places on it. Set up before use and only
/// read afterwards; GUI thread only.
class HAL_EXPORT CUsbBus : public CBus {
public:
    CUsbBus();
    ~CUsbBus() override;

    /// The device of that name ("USB_WIFI"), or null. Still owned by the bus.
    virtual CDevice* GetDevice(const std::string& name);

    /// Places `device` on the bus, which takes ownership and deletes an earlier one of that name.
    /// Null takes the earlier one away.
    void Attach(const std::string& name, CDevice* device);

private:
    std::map<std::string, std::unique_ptr<CDevice>> m_devices;
};

} // namespace halmanager

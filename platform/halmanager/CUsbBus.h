#pragma once

#include "CBus.h"

#include <map>
#include <memory>
#include <string>

namespace halmanager {

class CDevice;

/// The USB bus with its devices. GUI thread only.
class HAL_EXPORT CUsbBus : public CBus {
public:
    CUsbBus();
    ~CUsbBus() override;

    /// The device of that name ("USB_WIFI"), owned by the bus, or null.
    virtual CDevice* GetDevice(const std::string& name);

    /// Takes ownership of `device` under that name and deletes an earlier device of that name,
    /// unless it is the same object. Null only removes the earlier device.
    void Attach(const std::string& name, CDevice* device);

private:
    std::map<std::string, std::unique_ptr<CDevice>> m_devices;
};

} // namespace halmanager

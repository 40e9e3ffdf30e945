#include "CBoardSpec.h"
#include "CUsbBus.h"
#include "CUsbWifi.h"

namespace halmanager {

namespace {

template <typename T>
T* lookUp(const std::map<std::string, std::unique_ptr<T>>& owned, const std::string& name)
{
    const auto found = owned.find(name);
    return found == owned.end() ? nullptr : found->second.get();
}

/// Makes the map own `value` under that name. Attaching the same object again changes nothing.
template <typename T>
void attach(std::map<std::string, std::unique_ptr<T>>& owned, const std::string& name, T* value)
{
    std::unique_ptr<T>& place = owned[name];
    if (place.get() != value)
        place.reset(value);
}

} // namespace

CDevice::CDevice() { }

CDevice::~CDevice() { }

CBus::CBus() { }

CBus::~CBus() { }

CUsbBus::CUsbBus() { }

CUsbBus::~CUsbBus() { }

CDevice* CUsbBus::GetDevice(const std::string& name)
{
    return lookUp(m_devices, name);
}

void CUsbBus::Attach(const std::string& name, CDevice* device)
{
    attach(m_devices, name, device);
}

CBoardSpec::CBoardSpec()
{
    CUsbBus* const usb = new CUsbBus;
    usb->Attach("USB_WIFI", new CUsbWifi);
    Attach("UsbBus", usb);
}

CBoardSpec::~CBoardSpec() { }

CBoardSpec* CBoardSpec::GetInstance()
{
    static CBoardSpec board;
    return &board;
}

CBus* CBoardSpec::GetBus(const std::string& name)
{
    return lookUp(m_buses, name);
}

void CBoardSpec::Attach(const std::string& name, CBus* bus)
{
    attach(m_buses, name, bus);
}

} // namespace halmanager

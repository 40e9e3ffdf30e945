#include "CBoardSpec.h"
#include "CUsbBus.h"
#include "CUsbWifi.h"

namespace halmanager {

namespace {

/// Replaces the entry `name` of a map that owns its values; null erases it.
template <typename T>
void replaceOwned(std::map<std::string, T*>& owned, const std::string& name, T* value)
{
    const typename std::map<std::string, T*>::iterator old = owned.find(name);
    if (old != owned.end()) {
        if (old->second == value)
            return;
        delete old->second;
        owned.erase(old);
    }
    if (value)
        owned[name] = value;
}

template <typename T> T* lookUp(const std::map<std::string, T*>& owned, const std::string& name)
{
    const typename std::map<std::string, T*>::const_iterator found = owned.find(name);
    return found == owned.end() ? nullptr : found->second;
}

template <typename T> void deleteAll(std::map<std::string, T*>& owned)
{
    for (typename std::map<std::string, T*>::value_type& entry : owned)
        delete entry.second;
}

} // namespace

CDevice::CDevice() { }

CDevice::~CDevice() { }

CBus::CBus() { }

CBus::~CBus() { }

CUsbBus::CUsbBus() { }

CUsbBus::~CUsbBus()
{
    deleteAll(m_devices);
}

CDevice* CUsbBus::GetDevice(const std::string& name)
{
    return lookUp(m_devices, name);
}

void CUsbBus::Attach(const std::string& name, CDevice* device)
{
    replaceOwned(m_devices, name, device);
}

CBoardSpec::CBoardSpec()
{
    CUsbBus* const usb = new CUsbBus;
    usb->Attach("USB_WIFI", new CUsbWifi);
    Attach("UsbBus", usb);
}

CBoardSpec::~CBoardSpec()
{
    deleteAll(m_buses);
}

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
    replaceOwned(m_buses, name, bus);
}

} // namespace halmanager

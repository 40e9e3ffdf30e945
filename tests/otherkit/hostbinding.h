#pragma once

#include "otherkit.h"

namespace wifiondivo {
namespace host {

typedef halmanager::stWifiScanItem ScanItem;

inline QRect tabRegion()
{
    return Style().region(5);
}

inline QRect toolboxRegion()
{
    return Style().region(6);
}

inline QSize tabPageSize()
{
    return Style().size(8);
}

inline QColor pageBackground()
{
    return Style().colour(0);
}

inline QColor selectedTabBackground()
{
    return Style().colour(12);
}

inline QColor releasedTabBackground()
{
    return Style().colour(13);
}

inline QColor selectedTabText()
{
    return Style().colour(14);
}

inline QColor releasedTabText()
{
    return Style().colour(15);
}

inline QString askForText(const QString& title, const QString& preset, QWidget* parent)
{
    return KeyPads().ask(parent, KeyPads::Letters, title, preset, 0, 100);
}

inline halmanager::CUsbBus* usbBus()
{
    return dynamic_cast<halmanager::CUsbBus*>(halmanager::board().bus("UsbBus"));
}

inline halmanager::CUsbWifi* usbWifi(halmanager::CUsbBus* bus)
{
    return dynamic_cast<halmanager::CUsbWifi*>(bus->Find("USB_WIFI"));
}

inline bool isPlugged(halmanager::CUsbWifi* adapter)
{
    return adapter->Present();
}

} // namespace host
} // namespace wifiondivo

#include "adapter.h"

#include "CBoardSpec.h"
#include "CUsbBus.h"
#include "CUsbWifi.h"
#include "scenarios.h"

namespace testset {

namespace adapter {

namespace {

halmanager::CUsbWifi* device()
{
    halmanager::CBus* const bus = halmanager::CBoardSpec::GetInstance()->GetBus("UsbBus");
    halmanager::CUsbBus* const usb = dynamic_cast<halmanager::CUsbBus*>(bus);
    return usb ? dynamic_cast<halmanager::CUsbWifi*>(usb->GetDevice("USB_WIFI")) : nullptr;
}

} // namespace

bool isPlugged()
{
    const halmanager::CUsbWifi* const wifi = device();
    return wifi && wifi->IsPlugged();
}

bool canBeSimulated()
{
    return device() && !replayedFile().isEmpty();
}

void setPlugged(bool plugged)
{
    if (canBeSimulated())
        device()->SetPlugged(plugged);
}

} // namespace adapter

} // namespace testset

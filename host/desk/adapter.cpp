#include "adapter.h"

#include "CBoardSpec.h"
#include "CUsbBus.h"
#include "CUsbWifi.h"
#include "environment.h"
#include "interfaces.h"
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

QStringList interfaces()
{
    QStringList names;
    for (const wireless::Interface& interface : wireless::interfaces())
        names << QString::fromStdString(interface.name);
    return names;
}

QString interfaceInUse()
{
    return QString::fromStdString(wireless::interfaceInUse());
}

void useInterface(const QString& name)
{
    qputenv(environment::Interface, name.toUtf8());
}

void useNextInterface()
{
    const QStringList names = interfaces();
    if (!names.isEmpty())
        useInterface(names.at((names.indexOf(interfaceInUse()) + 1) % names.size()));
}

} // namespace adapter

} // namespace testset

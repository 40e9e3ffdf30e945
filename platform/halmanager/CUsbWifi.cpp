#include "CUsbWifi.h"

#include "interfaces.h"

#include <cstdlib>

namespace halmanager {

namespace {

/// The scan tool replays the file that this variable names instead of asking an adapter.
bool isReplaying()
{
    const char* const file = std::getenv("WIFI_SCAN_REPLAY");
    return file && *file;
}

} // namespace

CUsbWifi::CUsbWifi()
    : m_replayPlugged(true)
{
}

CUsbWifi::~CUsbWifi() { }

bool CUsbWifi::IsPlugged() const
{
    if (isReplaying())
        return m_replayPlugged;
    wireless::Interface adapter;
    return wireless::findInterface(wireless::interfaceInUse(), adapter) == wireless::Lookup::Found;
}

void CUsbWifi::SetPlugged(bool plugged)
{
    m_replayPlugged = plugged;
}

} // namespace halmanager

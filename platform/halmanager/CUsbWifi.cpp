#include "CUsbWifi.h"

#include "environment.h"
#include "interfaces.h"

#include <cstdlib>

namespace halmanager {

namespace {

bool isReplaying()
{
    const char* const file = std::getenv(environment::Replay);
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

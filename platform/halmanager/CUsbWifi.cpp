#include "CUsbWifi.h"

#include <cstdlib>
#include <sys/stat.h>

namespace halmanager {

namespace {

/// The kernel gives a cfg80211 interface the link "phy80211", an older driver the folder
/// "wireless".
bool isWirelessInterface(const std::string& name)
{
    const std::string folder = "/sys/class/net/" + name;
    struct stat info;
    return stat((folder + "/phy80211").c_str(), &info) == 0
        || stat((folder + "/wireless").c_str(), &info) == 0;
}

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
    return isReplaying() ? m_replayPlugged : isWirelessInterface("wlan0");
}

void CUsbWifi::SetPlugged(bool plugged)
{
    m_replayPlugged = plugged;
}

} // namespace halmanager

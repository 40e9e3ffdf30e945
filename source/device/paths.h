#pragma once

// Every path and every shell command of the test set stands here and nowhere else.
//
// A build for a desk puts WIFIONDIVO_DEVICE_ROOT in front of the paths, so that running it touches
// nothing of the developer's own machine. On the test set the root is empty, and each string is the
// device's own to the letter. WIFIONDIVO_DEVICE_ROOT_SHELL is the same folder quoted for the shell;
// both come from the build.

#include <string>

#ifndef WIFIONDIVO_DEVICE_ROOT
#define WIFIONDIVO_DEVICE_ROOT ""
#define WIFIONDIVO_DEVICE_ROOT_SHELL ""
#endif

namespace wifiondivo {
namespace device {

/// Where the scan tool's report is read, and where command ScanIntoFile writes it.
const char* const ScanOutputFile = WIFIONDIVO_DEVICE_ROOT "/tmp/ondivo_wifi_scanres";

/// Results of all utilities, from the outermost folder that a utility makes itself to the one in
/// which this utility's reports lie.
const char* const ResultFolders[] = {
    WIFIONDIVO_DEVICE_ROOT "/home/fileman/k510",
    WIFIONDIVO_DEVICE_ROOT "/home/fileman/k510/k510-rslt",
    WIFIONDIVO_DEVICE_ROOT "/home/fileman/k510/k510-rslt/wifiport",
    WIFIONDIVO_DEVICE_ROOT "/home/fileman/k510/k510-rslt/wifiport/SSID-result",
};
const char* const ReportFolder =
    WIFIONDIVO_DEVICE_ROOT "/home/fileman/k510/k510-rslt/wifiport/SSID-result";

/// Names the software that the test set runs.
const char* const VendorInfoFile = WIFIONDIVO_DEVICE_ROOT "/usr/local/qb740s-vendor-info.txt";

/// Shell commands. A stored supplicant configuration would keep the adapter busy with a network of
/// its own. The tool scans twice, since a first scan after the interface came up misses networks.
const char* const RemoveSupplicantConf =
    "rm " WIFIONDIVO_DEVICE_ROOT_SHELL "/etc/wpa_supplicant.conf";
/// Makes a folder with its parents; for any path, quotes and length included.
std::string makeFolder(const std::string& path);
const char* const InterfaceUp = "ifconfig wlan0 up";
const char* const ScanOnce =
    WIFIONDIVO_DEVICE_ROOT_SHELL "/usr/local/k510/sbin/wifi-scan wlan0 scanning";
const char* const ScanIntoFile =
    WIFIONDIVO_DEVICE_ROOT_SHELL "/usr/local/k510/sbin/wifi-scan wlan0 scanning"
                                 " > " WIFIONDIVO_DEVICE_ROOT_SHELL "/tmp/ondivo_wifi_scanres";

} // namespace device
} // namespace wifiondivo

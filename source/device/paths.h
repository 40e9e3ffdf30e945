#pragma once

#include <string>

namespace wifiondivo {
namespace device {

// Every path of the test set and every shell command for it, each to the letter.

/// The scan tool, and the file into which the command ScanIntoFile writes its output.
const char* const ScanTool = "/usr/local/k510/sbin/wifi-scan";
const char* const ScanOutputFile = "/tmp/ondivo_wifi_scanres";

/// Results of all utilities, from the outermost folder that a utility makes itself to the one in
/// which this utility's reports lie.
const char* const ResultFolders[] = {
    "/home/fileman/k510",
    "/home/fileman/k510/k510-rslt",
    "/home/fileman/k510/k510-rslt/wifiport",
    "/home/fileman/k510/k510-rslt/wifiport/SSID-result",
};
const char* const ReportFolder = "/home/fileman/k510/k510-rslt/wifiport/SSID-result";

/// Names the software that the test set runs.
const char* const VendorInfoFile = "/usr/local/qb740s-vendor-info.txt";

/// A configuration by which the adapter would join a network.
const char* const SupplicantConf = "/etc/wpa_supplicant.conf";

/// Shell commands. The scan tool runs twice, and only its second output is read.
const char* const RemoveSupplicantConf = "rm /etc/wpa_supplicant.conf";
const char* const InterfaceUp = "ifconfig wlan0 up";
const char* const ScanOnce = "/usr/local/k510/sbin/wifi-scan wlan0 scanning";
const char* const ScanIntoFile =
    "/usr/local/k510/sbin/wifi-scan wlan0 scanning > /tmp/ondivo_wifi_scanres";

/// The folder that stands for the root of the test set's file system: empty on the test set itself,
/// and on a desk a folder of its own, so that nothing of the machine is touched.
std::string root();

/// A path of the test set below the device root.
std::string path(const char* onTestSet);
/// A command of the test set with the device root, quoted, in front of each of its paths.
std::string command(const char* onTestSet);
/// Makes a folder with its parents; for any path, quotes and length included. The path is taken as
/// it is.
std::string makeFolder(const std::string& path);

} // namespace device
} // namespace wifiondivo

#pragma once

#include <string>

namespace wifiondivo {
namespace device {

// The test set's paths and the fixed shell commands, as they are on the test set. The other
// sources use them through path() and command().

/// The scan tool, and the output file of the command ScanIntoFile.
const char* const ScanTool = "/usr/local/k510/sbin/wifi-scan";
const char* const ScanOutputFile = "/tmp/ondivo_wifi_scanres";

/// The result folders, in the order in which the main window creates them; the last one is
/// ReportFolder. It is not known which other utilities use the outer ones.
const char* const ResultFolders[] = {
    "/home/fileman/k510",
    "/home/fileman/k510/k510-rslt",
    "/home/fileman/k510/k510-rslt/wifiport",
    "/home/fileman/k510/k510-rslt/wifiport/SSID-result",
};
const char* const ReportFolder = "/home/fileman/k510/k510-rslt/wifiport/SSID-result";

/// The file from which the update helper reads the software version. Its format on a test set is
/// not known.
const char* const VendorInfoFile = "/usr/local/qb740s-vendor-info.txt";

/// The stored supplicant configuration, which each new main window removes. Its content is not
/// known; presumably it would make the adapter join a network.
const char* const SupplicantConf = "/etc/wpa_supplicant.conf";

/// Shell commands. A scan runs the tool twice, and only the second output is read.
const char* const RemoveSupplicantConf = "rm /etc/wpa_supplicant.conf";
const char* const InterfaceUp = "ifconfig wlan0 up";
const char* const ScanOnce = "/usr/local/k510/sbin/wifi-scan wlan0 scanning";
const char* const ScanIntoFile =
    "/usr/local/k510/sbin/wifi-scan wlan0 scanning > /tmp/ondivo_wifi_scanres";

/// The folder that replaces the root of the test set's file system, without a slash at its end.
/// Empty on the test set itself; on a desk, devicetree::root().
std::string root();

/// A path of the test set, below root().
std::string path(const char* onTestSet);
/// A command of the test set, with the quoted root() before each path that begins a word.
std::string command(const char* onTestSet);
/// The shell command that creates a folder and its missing parents. It quotes the path, which may
/// have any characters and length, and does not add root().
std::string makeFolder(const std::string& path);

} // namespace device
} // namespace wifiondivo

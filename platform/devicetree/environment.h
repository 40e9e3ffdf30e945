#pragma once

/// The environment variables that configure the host, the stand-ins and the scan tool: the
/// replacements for the test set's hardware and file system. An empty variable counts as not set.
namespace environment {

/// The folder that replaces the root of the test set's file system.
const char* const DeviceRoot = "TESTSET_DEVICE_ROOT";
/// The file that replaces the test set's EEPROM.
const char* const Eeprom = "TESTSET_EEPROM";
/// The wireless interface that the name wlan0 means.
const char* const Interface = "TESTSET_INTERFACE";
/// The file that the scan tool replays instead of scanning.
const char* const Replay = "WIFI_SCAN_REPLAY";
/// The file for a copy of the scan tool's error output.
const char* const Remarks = "WIFI_SCAN_REMARKS";

} // namespace environment

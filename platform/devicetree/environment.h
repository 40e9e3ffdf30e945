#pragma once

/// The environment variables by which a host tells itself, the stand-ins and the scan tool what
/// stands for the test set's hardware and file system. An empty variable counts as not set.
namespace environment {

/// The folder that stands for the root of the test set's file system.
const char* const DeviceRoot = "TESTSET_DEVICE_ROOT";
/// A file that takes the place of the test set's EEPROM.
const char* const Eeprom = "TESTSET_EEPROM";
/// The wireless interface that the name wlan0 stands for.
const char* const Interface = "TESTSET_INTERFACE";
/// A file that the scan tool replays instead of scanning.
const char* const Replay = "WIFI_SCAN_REPLAY";
/// A file that gets a copy of the scan tool's error output.
const char* const Remarks = "WIFI_SCAN_REMARKS";

} // namespace environment

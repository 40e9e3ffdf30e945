#pragma once

#include "halglobal.h"

namespace halmanager {

/// The identity that a test set keeps in its EEPROM. The platform's README names the sources of
/// this stand-in. An EEPROM file must be a regular file of at most 64 KiB; any other file counts as
/// empty.
class HAL_EXPORT PlatE2PromServ {
public:
    PlatE2PromServ();
    ~PlatE2PromServ();

    /// Writes the test port's MAC address to the 6 bytes at `mac` and returns 0. Without an address
    /// returns -1 and leaves `mac` alone.
    int ReadMacAddr(char* mac);
    /// Writes the serial number to `serial`, at most 31 characters and a NUL, and returns 0.
    /// Without a serial number returns -1 and leaves `serial` alone.
    int ReadSN(char* serial);
};

} // namespace halmanager

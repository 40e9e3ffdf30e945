#pragma once

#include "halglobal.h"

namespace halmanager {

/// The identity that a test set keeps in its EEPROM. See the platform's README for where this
/// stand-in takes it from. Of a file only a regular one of at most 64 KiB is read; any other holds
/// no field.
class HAL_EXPORT PlatE2PromServ {
public:
    PlatE2PromServ();
    ~PlatE2PromServ();

    /// Fills 6 bytes with the test port's MAC address; 0 on success, -1 when there is none, in
    /// which case `mac` is left alone.
    int ReadMacAddr(char* mac);
    /// Fills at most 31 characters and a NUL with the serial number; 0 on success, -1 when there is
    /// none, in which case `serial` is left alone.
    int ReadSN(char* serial);
};

} // namespace halmanager

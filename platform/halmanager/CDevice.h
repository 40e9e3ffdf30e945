#pragma once

#include "halglobal.h"

namespace halmanager {

/// Base of the devices on a bus. Owned by the bus.
class HAL_EXPORT CDevice {
public:
    CDevice();
    virtual ~CDevice();

private:
    CDevice(const CDevice&);
    CDevice& operator=(const CDevice&);
};

} // namespace halmanager

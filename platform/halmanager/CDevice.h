#pragma once

#include "halglobal.h"

namespace halmanager {

/// Base of everything that sits on a bus. Owned by the bus.
class HAL_EXPORT CDevice {
public:
    CDevice();
    virtual ~CDevice();

private:
    CDevice(const CDevice&);
    CDevice& operator=(const CDevice&);
};

} // namespace halmanager

#pragma once

#include "halglobal.h"

#include <map>
#include <memory>
#include <string>

namespace halmanager {

class CBus;

/// Description of the board: its buses. GUI thread only.
class HAL_EXPORT CBoardSpec {
public:
    /// The process-wide description. Initially it has "UsbBus" with the adapter "USB_WIFI" on it.
    static CBoardSpec* GetInstance();
    virtual ~CBoardSpec();

    /// The bus of that name, owned by the board, or null.
    virtual CBus* GetBus(const std::string& name);

    /// Takes ownership of `bus` under that name and deletes an earlier bus of that name, unless it
    /// is the same object. Null only removes the earlier bus.
    void Attach(const std::string& name, CBus* bus);

private:
    CBoardSpec();
    CBoardSpec(const CBoardSpec&);
    CBoardSpec& operator=(const CBoardSpec&);

    std::map<std::string, std::unique_ptr<CBus>> m_buses;
};

} // namespace halmanager

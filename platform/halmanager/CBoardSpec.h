#pragma once

#include "halglobal.h"

#include <map>
#include <memory>
#include <string>

namespace halmanager {

class CBus;

/// Description of the board: which buses it has. GUI thread only.
class HAL_EXPORT CBoardSpec {
public:
    /// The process-wide description. At first it has "UsbBus" with the adapter "USB_WIFI" on it.
    static CBoardSpec* GetInstance();
    virtual ~CBoardSpec();

    /// The bus of that name, or null. Still owned by the board.
    virtual CBus* GetBus(const std::string& name);

    /// Gives the board another bus of that name, takes ownership of it and deletes the earlier one.
    /// Null describes a board without it.
    void Attach(const std::string& name, CBus* bus);

private:
    CBoardSpec();
    CBoardSpec(const CBoardSpec&);
    CBoardSpec& operator=(const CBoardSpec&);

    std::map<std::string, std::unique_ptr<CBus>> m_buses;
};

} // namespace halmanager

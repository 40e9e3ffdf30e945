#pragma once

#include "halglobal.h"

namespace halmanager {

/// Base of the board's buses. Owned by the board description.
class HAL_EXPORT CBus {
public:
    CBus();
    virtual ~CBus();

private:
    CBus(const CBus&);
    CBus& operator=(const CBus&);
};

} // namespace halmanager

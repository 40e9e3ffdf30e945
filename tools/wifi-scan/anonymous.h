#pragma once

#include "accesspoint.h"

namespace wifiscan {

/// Removes the identity of networks from a result, so that it can be sent to others. Names become
/// "Network 1", "Network 2" in the order of the list, hidden ones stay hidden without a length; the
/// last three bytes of addresses become 00:00:01 and so on, the first three, the maker's, stay.
/// Equal names and equal addresses stay equal.
void anonymise(Heard& heard);

} // namespace wifiscan

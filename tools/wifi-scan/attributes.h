#pragma once

#include "accesspoint.h"
#include "bytecursor.h"

#include <algorithm>
#include <linux/netlink.h>

namespace wifiscan {

/// A netlink attribute within a row of them.
struct Attribute {
    int type = 0;
    ByteCursor payload;
};

/// The next attribute of a row; false at the end of the row, and at a malformed attribute,
/// after which the cursor's ok() is false.
inline bool takeAttribute(ByteCursor& row, Attribute& attribute)
{
    if (row.remaining() == 0)
        return false;
    const std::size_t length = row.u16Host(); // with this head of four bytes
    attribute.type = row.u16Host() & NLA_TYPE_MASK;
    attribute.payload = length < NLA_HDRLEN ? row.take(row.remaining() + 1) // no attribute: fail
                                            : row.take(length - NLA_HDRLEN);
    if (!row.ok())
        return false;
    // Each begins on a multiple of four bytes; the last one need not be filled up.
    row.skip(std::min<std::size_t>(NLA_ALIGN(length) - length, row.remaining()));
    return true;
}

// One extractor for each kind of payload. Each takes the exact length only, and is false else.

inline bool extract(ByteCursor payload, std::uint8_t& value)
{
    const bool fits = payload.remaining() == sizeof value;
    value = payload.u8();
    return fits;
}

inline bool extract(ByteCursor payload, std::uint16_t& value)
{
    const bool fits = payload.remaining() == sizeof value;
    value = payload.u16Host();
    return fits;
}

inline bool extract(ByteCursor payload, std::uint32_t& value)
{
    const bool fits = payload.remaining() == sizeof value;
    value = payload.u32Host();
    return fits;
}

inline bool extract(ByteCursor payload, std::uint64_t& value)
{
    const bool fits = payload.remaining() == sizeof value;
    value = payload.u64Host();
    return fits;
}

inline bool extract(ByteCursor payload, Address& address)
{
    const bool fits = payload.remaining() == address.size();
    payload.copy(address.data(), address.size());
    return fits;
}

} // namespace wifiscan

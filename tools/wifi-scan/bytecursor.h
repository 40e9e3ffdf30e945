#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace wifiscan {

/// Reads bytes from outside in order and never past their end. The first read that wants more than
/// is left makes the cursor fail for good: from then on it has nothing left and every read gives
/// zero, so that a parser looks at ok() once, at its end. Does not own the bytes.
class ByteCursor {
public:
    ByteCursor() = default;

    ByteCursor(const void* bytes, std::size_t size)
        : m_next(static_cast<const std::uint8_t*>(bytes))
        , m_remaining(size)
    {
    }

    bool ok() const { return m_ok; }
    std::size_t remaining() const { return m_remaining; }

    std::uint8_t u8()
    {
        std::uint8_t value = 0;
        copy(&value, sizeof value);
        return value;
    }

    /// IEEE 802.11 sends the low byte first.
    std::uint16_t u16LittleEndian()
    {
        const unsigned low = u8();
        const unsigned high = u8();
        return static_cast<std::uint16_t>(ok() ? low | high << 8 : 0);
    }

    std::uint32_t u32LittleEndian()
    {
        const std::uint32_t low = u16LittleEndian();
        const std::uint32_t high = u16LittleEndian();
        return ok() ? low | high << 16 : 0;
    }

    /// Netlink passes numbers in the machine's own byte order.
    std::uint16_t u16Host() { return host<std::uint16_t>(); }
    std::uint32_t u32Host() { return host<std::uint32_t>(); }
    std::uint64_t u64Host() { return host<std::uint64_t>(); }

    void copy(void* to, std::size_t size)
    {
        const ByteCursor part = take(size);
        if (ok() && size > 0)
            std::memcpy(to, part.m_next, size);
    }

    void skip(std::size_t size) { take(size); }

    /// A cursor of its own over the next bytes, which this one passes; empty when there are fewer.
    ByteCursor take(std::size_t size)
    {
        if (size > m_remaining) {
            m_ok = false;
            m_remaining = 0;
            return {};
        }
        const ByteCursor part(m_next, size);
        m_next += size;
        m_remaining -= size;
        return part;
    }

    /// All that is left, as a text of raw bytes.
    std::string rest()
    {
        const ByteCursor part = take(m_remaining);
        return std::string(reinterpret_cast<const char*>(part.m_next), part.m_remaining);
    }

private:
    template <typename Number> Number host()
    {
        Number value = 0;
        copy(&value, sizeof value);
        return value;
    }

    const std::uint8_t* m_next = nullptr;
    std::size_t m_remaining = 0;
    bool m_ok = true;
};

} // namespace wifiscan

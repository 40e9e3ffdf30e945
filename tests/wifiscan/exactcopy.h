#pragma once

#include <QByteArray>

#include <cstring>
#include <memory>

/// Bytes in a heap block of exactly their size, so that the address sanitizer sees a read of one
/// byte too many. (A QByteArray keeps a zero behind its end.)
class ExactCopy {
public:
    explicit ExactCopy(const QByteArray& bytes)
        : m_size(static_cast<std::size_t>(bytes.size()))
        , m_bytes(new char[m_size])
    {
        std::memcpy(m_bytes.get(), bytes.constData(), m_size);
    }

    const char* data() const { return m_bytes.get(); }
    std::size_t size() const { return m_size; }

private:
    std::size_t m_size;
    std::unique_ptr<char[]> m_bytes;
};

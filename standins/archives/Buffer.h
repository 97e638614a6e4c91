#pragma once

#include <cstddef>
#include <memory>
#include <utility>

/// Memory for bytes that are about to be read or made; they are not set before.
class Buffer
{
public:
    Buffer() = default;
    explicit Buffer(std::size_t size)
        : m_bytes(std::make_unique_for_overwrite<char[]>(size)), m_size(size)
    {
    }
    Buffer(Buffer &&other) noexcept
        : m_bytes(std::move(other.m_bytes)), m_size(std::exchange(other.m_size, 0))
    {
    }
    Buffer &operator=(Buffer &&other) noexcept
    {
        m_bytes = std::move(other.m_bytes);
        m_size = std::exchange(other.m_size, 0);
        return *this;
    }

    char *data() const { return m_bytes.get(); }
    std::size_t size() const { return m_size; }

    /// Makes room for so many bytes; what was in it is lost if it has to grow.
    void require(std::size_t size)
    {
        if (size > m_size) {
            *this = Buffer(); ///< first, so that there is one at a time
            *this = Buffer(size);
        }
    }

private:
    std::unique_ptr<char[]> m_bytes;
    std::size_t m_size = 0;
};

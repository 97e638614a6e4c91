#pragma once

#include <unistd.h>

#include <utility>

namespace standin
{

/// Owns one open file descriptor and closes it.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    /// Takes what open() gave, -1 after an error included.
    explicit FileDescriptor(int number) : m_number(number) { }
    FileDescriptor(FileDescriptor &&other) noexcept
        : m_number(std::exchange(other.m_number, -1)) { }
    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~FileDescriptor() { close(); }

    void close()
    {
        if (m_number >= 0)
            ::close(std::exchange(m_number, -1));
    }
    /// -1: none.
    int number() const { return m_number; }
    bool isOpen() const { return m_number >= 0; }

private:
    int m_number = -1;
};

} // namespace standin

// A file descriptor that closes itself.
#pragma once

#include <unistd.h>

#include <utility>

namespace winapi {

class Descriptor
{
public:
    Descriptor() = default;
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(Descriptor&& other) noexcept : m_number(other.release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~Descriptor()
    {
        if (isOpen())
            ::close(m_number);
    }

    bool isOpen() const { return m_number >= 0; }
    int get() const { return m_number; }
    int release() { return std::exchange(m_number, -1); }

private:
    int m_number = -1;
};

}

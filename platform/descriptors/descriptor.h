#pragma once

#include <unistd.h>
#include <utility>

namespace platform {

/** An open descriptor that is closed with its owner. */
class Descriptor
{
public:
    Descriptor() = default;
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(Descriptor &&other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Descriptor &operator=(Descriptor &&other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~Descriptor() { close(); }

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }
    void close()
    {
        if (m_number >= 0)
            ::close(m_number);
        m_number = -1;
    }

private:
    int m_number = -1;
};

} // namespace platform

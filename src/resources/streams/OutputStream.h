#pragma once

#include "resources/streams/InputStream.h"

namespace keltavlo {

// Writes a file from front to back; can also seek.
class OutputStream : public virtual ByteStream {
public:
    virtual void Write(const void* buffer, std::size_t count) = 0;

    template <StreamNumber T>
    void Write(T value) {
        Write(&value, sizeof value);
    }
    template <StreamNumber T>
    void Write(std::span<const T> values) {
        Write(values.data(), values.size_bytes());
    }
};

} // namespace keltavlo

#pragma once

#include "resources/streams/ByteStream.h"

#include <concepts>
#include <span>
#include <type_traits>

namespace keltavlo {

// The types that files store as little-endian numbers.
template <class T>
concept StreamNumber = std::is_arithmetic_v<T>;

// Reads a file from front to back; can also seek.
class InputStream : public virtual ByteStream {
public:
    // Reads exactly `count` bytes. Throws the end-of-file exception of the stream's kind if there are fewer.
    virtual void Read(void* buffer, std::size_t count) = 0;

    template <StreamNumber T>
    T Read() {
        T value;
        Read(&value, sizeof value);
        return value;
    }
    template <StreamNumber T>
    void Read(std::span<T> values) {
        Read(values.data(), values.size_bytes());
    }

    // Returns the bytes from the position to the end. Readers check this before they allocate memory for a
    // size that a file claims.
    std::uint64_t GetRemaining() const {
        const std::uint64_t length = GetLength();
        const std::uint64_t position = GetPosition();
        return position < length ? length - position : 0;
    }
};

} // namespace keltavlo

#pragma once

#include "resources/streams/InputStream.h"

#include <algorithm>
#include <array>

// Hands out the rest of a stream byte by byte, of which it reads many at a time. The stream's own position is
// of no use afterwards.
class ByteReader {
public:
    explicit ByteReader(InputStream& stream) : in(stream), remaining(stream.GetRemaining()) {}

    // endOfFile when there is no more.
    std::uint8_t Next() {
        if (used == filled) Fill();
        return buffer[used++];
    }

private:
    void Fill() {
        if (remaining == 0) in.Fail(StreamError::endOfFile);
        filled = static_cast<std::size_t>(std::min<std::uint64_t>(buffer.size(), remaining));
        in.Read(buffer.data(), filled);
        remaining -= filled;
        used = 0;
    }

    InputStream& in;
    std::uint64_t remaining; // bytes of the stream that are not in the buffer yet
    std::size_t used = 0;
    std::size_t filled = 0;
    std::array<std::uint8_t, 16384> buffer;
};

#pragma once

#include "resources/streams/InputStream.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace keltavlo {

// Shows the rest of a stream piece by piece, of which it reads large ones. The stream's own position is of no
// use afterwards.
class ByteReader {
public:
    explicit ByteReader(InputStream& stream) : in(stream), remaining(stream.GetRemaining()) {}

    // The next bytes: at least so many, unless the stream ends before.
    std::span<const std::uint8_t> Peek(std::size_t count) {
        if (filled - used < count) Fill();
        return {buffer.data() + used, filled - used};
    }
    // Goes on by some of the bytes that Peek showed.
    void Take(std::size_t count) { used += count; }

private:
    void Fill() {
        std::memmove(buffer.data(), buffer.data() + used, filled - used);
        filled -= used;
        used = 0;
        const auto more =
            static_cast<std::size_t>(std::min<std::uint64_t>(buffer.size() - filled, remaining));
        in.Read(buffer.data() + filled, more);
        filled += more;
        remaining -= more;
    }

    InputStream& in;
    std::uint64_t remaining; // bytes of the stream that are not in the buffer yet
    std::size_t used = 0;
    std::size_t filled = 0;
    std::array<std::uint8_t, 16384> buffer;
};

} // namespace keltavlo

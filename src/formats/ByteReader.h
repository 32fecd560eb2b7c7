#pragma once

#include "resources/streams/InputStream.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace keltavlo {

// Reads the rest of a stream in large pieces and shows it to the caller. The stream's own position is
// undefined afterwards.
class ByteReader {
public:
    explicit ByteReader(InputStream& stream) : in(stream), remaining(stream.GetRemaining()) {}

    // Returns the next bytes: at least `count`, unless the stream ends earlier.
    std::span<const std::uint8_t> Peek(std::size_t count) {
        if (filled - used < count) Fill();
        return {buffer.data() + used, filled - used};
    }
    // Skips `count` of the bytes that Peek returned.
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

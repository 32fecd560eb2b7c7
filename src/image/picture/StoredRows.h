#pragma once

#include "resources/streams/InputStream.h"

#include <algorithm>
#include <vector>

namespace keltavlo {

// Reads the rows of a stored picture, all of the same length, many at a time.
class StoredRows {
public:
    // The caller has checked that the stream contains all rows.
    StoredRows(InputStream& stream, std::size_t bytesPerRow, std::size_t rows)
        : in(stream), rowBytes(bytesPerRow), rowsLeft(rows) {}

    // Returns the next row. Its bytes are valid until the next call.
    std::span<const std::uint8_t> Next() {
        if (used == block.size()) Fill();
        const std::size_t first = used;
        used += rowBytes;
        return {block.data() + first, rowBytes};
    }

private:
    static constexpr std::size_t blockBytes = std::size_t{1} << 16;

    void Fill() {
        const std::size_t rows = std::min(rowsLeft, std::max<std::size_t>(blockBytes / rowBytes, 1));
        block.resize(rows * rowBytes);
        in.Read(std::span<std::uint8_t>(block));
        rowsLeft -= rows;
        used = 0;
    }

    InputStream& in;
    std::size_t rowBytes;
    std::size_t rowsLeft;
    std::vector<std::uint8_t> block;
    std::size_t used = 0;
};

} // namespace keltavlo

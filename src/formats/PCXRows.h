#pragma once

#include "formats/ByteReader.h"
#include "image/picture/Kernels.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace keltavlo {

namespace pcx {

// A byte whose two highest bits are set starts a run: its other bits count how often the next byte repeats.
inline constexpr unsigned runMark = 0xC0;
inline constexpr unsigned maximumRun = 0x3F;

constexpr bool IsRun(unsigned byte) {
    return (byte & runMark) == runMark;
}

} // namespace pcx

// One implementation of decoding single pixels: a low byte, or a run of one.
struct PCXKernels {
    // What is left to decode, and the room for it. Both shrink from the front.
    struct Rest {
        const std::uint8_t* coded = nullptr;
        const std::uint8_t* codedEnd = nullptr;
        std::uint8_t* room = nullptr;
        std::uint8_t* roomEnd = nullptr;

        // Whether a run comes next and is complete. False at the end of the room.
        bool HasRun() const { return room != roomEnd && codedEnd - coded > 1 && pcx::IsRun(*coded); }
    };

    ProcessorFeature needs;
    // Decodes single pixels until a longer run or until nothing is left; the value of a run of one may be
    // missing.
    void (*decodeSingles)(Rest& rest);

    static std::vector<const PCXKernels*> All();
};

// Decodes the rows of a picture, many at a time. Runs do not continue in the next row.
class PCXRows {
public:
    // The stream is at the first row.
    PCXRows(InputStream& stream, std::size_t bytesPerRow, std::size_t rows,
            const PCXKernels& useKernels = FastestKernels<PCXKernels>());

    // Returns the next row. Its bytes are valid until the next call. Throws endOfFile if the stream ends too
    // early and badIndex for a run that is longer than the rest of its row.
    std::span<const std::uint8_t> Next();

private:
    void Fill();
    void PutRuns(PCXKernels::Rest& rest);

    InputStream& in;
    ByteReader reader;
    const PCXKernels& kernels;
    std::size_t rowBytes;
    std::size_t rowsLeft;
    std::vector<std::uint8_t> block;
    std::size_t blockBytes = 0; // decoded; the block is longer, because runs are stored at full length
    std::size_t used = 0;
    const std::uint8_t* rowEnd = nullptr; // of a decoded row, at most of the one that is being decoded
};

} // namespace keltavlo

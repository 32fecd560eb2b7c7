#include "formats/PCXRows.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace keltavlo {

using namespace pcx;

namespace {

constexpr unsigned runOfOne = runMark | 1;

void DecodeOneByOne(PCXKernels::Rest& rest) {
    auto [coded, codedEnd, room, roomEnd] = rest;
    while (room != roomEnd && coded != codedEnd) {
        const std::uint8_t byte = *coded;
        if (!IsRun(byte)) {
            *room++ = byte;
            ++coded;
            continue;
        }
        if (byte != runOfOne || codedEnd - coded < 2) break;
        *room++ = coded[1];
        coded += 2;
    }
    rest.coded = coded;
    rest.room = room;
}

constexpr PCXKernels plainKernels{ProcessorFeature::none, DecodeOneByOne};

#if defined(__x86_64__)

constexpr std::size_t vectorBytes = 32;
constexpr std::size_t groupBytes = 8;

// For each set of bytes of a group, the shuffle that moves them to its front.
using Shuffles = std::array<std::array<std::uint8_t, groupBytes>, 256>;

constexpr Shuffles MakeShuffles() {
    Shuffles shuffles{};
    for (std::size_t set = 0; set < shuffles.size(); ++set) {
        std::size_t count = 0;
        for (std::uint8_t i = 0; i < groupBytes; ++i)
            if ((set >> i & 1) != 0) shuffles[set][count++] = i;
    }
    return shuffles;
}

constexpr Shuffles shuffles = MakeShuffles();

// Returns which bytes start a run, of those with the two highest bits set. In a row of such bytes, every
// second one is the value of the run that the one before it starts.
std::uint32_t FindRuns(std::uint32_t marked) {
    constexpr std::uint32_t even = 0x55555555;
    const std::uint32_t evenStarts = marked & ~(marked << 1) & even;
    // The addition carries each such row away.
    const std::uint32_t evenRows = marked & ~(marked + evenStarts);
    return (evenRows & even) | (marked & ~evenRows & ~even);
}

// Stores the bytes of the set, and others behind them. Returns their end.
[[gnu::target("avx2")]] inline std::uint8_t* StoreSet(const std::uint8_t* bytes, std::uint32_t set,
                                                      std::uint8_t* output) {
    for (std::size_t i = 0; i < vectorBytes; i += groupBytes, set >>= groupBytes) {
        const __m128i group = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(bytes + i));
        const __m128i shuffle =
            _mm_loadl_epi64(reinterpret_cast<const __m128i*>(shuffles[set & 0xFF].data()));
        _mm_storel_epi64(reinterpret_cast<__m128i*>(output), _mm_shuffle_epi8(group, shuffle));
        output += std::popcount(set & 0xFF);
    }
    return output;
}

// Returns the set of bytes that are equal in both vectors.
[[gnu::target("avx2")]] inline std::uint32_t FindEqual(__m256i left, __m256i right) {
    return static_cast<std::uint32_t>(_mm256_movemask_epi8(_mm256_cmpeq_epi8(left, right)));
}

// Decodes the single pixels of a vector and returns the number of bytes used. A longer run follows if some
// are left, or a run of one whose value is in the next vector.
[[gnu::target("avx2")]] inline int DecodeVector(PCXKernels::Rest& rest) {
    const __m256i bytes = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(rest.coded));
    const __m256i marks = _mm256_set1_epi8(static_cast<char>(runMark));
    const std::uint32_t runs = FindRuns(FindEqual(_mm256_max_epu8(bytes, marks), bytes));
    const std::uint32_t ones = FindEqual(bytes, _mm256_set1_epi8(static_cast<char>(runOfOne)));
    constexpr std::uint32_t last = 1U << (vectorBytes - 1);
    const std::uint32_t others = runs & (~ones | last);
    const std::uint32_t before = ~others & (others - 1); // all bytes if there are no others
    rest.room = StoreSet(rest.coded, ~runs & before, rest.room);
    const int used = std::countr_zero(others);
    rest.coded += used;
    return used;
}

[[gnu::target("avx2")]] void DecodeByVectors(PCXKernels::Rest& rest) {
    constexpr int size = vectorBytes;
    PCXKernels::Rest local = rest; // in registers
    while (local.codedEnd - local.coded >= size && local.roomEnd - local.room >= size)
        if (DecodeVector(local) < size - 1) break;
    rest = local;
    DecodeOneByOne(rest);
}

constexpr PCXKernels vectorKernels{ProcessorFeature::avx2, DecodeByVectors};

#endif

} // namespace

std::vector<const PCXKernels*> PCXKernels::All() {
#if defined(__x86_64__)
    return {&plainKernels, &vectorKernels};
#else
    return {&plainKernels};
#endif
}

PCXRows::PCXRows(InputStream& stream, std::size_t bytesPerRow, std::size_t rows, const PCXKernels& useKernels)
    : in(stream), reader(stream), kernels(useKernels), rowBytes(bytesPerRow), rowsLeft(rows) {}

std::span<const std::uint8_t> PCXRows::Next() {
    if (used == blockBytes) Fill();
    const std::size_t first = used;
    used += rowBytes;
    return {block.data() + first, rowBytes};
}

void PCXRows::Fill() {
    constexpr std::size_t usualBytes = std::size_t{1} << 14;
    const std::size_t rows = std::min(rowsLeft, std::max<std::size_t>(usualBytes / rowBytes, 1));
    rowsLeft -= rows;
    blockBytes = rows * rowBytes;
    used = 0;
    block.resize(blockBytes + maximumRun);
    rowEnd = block.data();
    PCXKernels::Rest rest{nullptr, nullptr, block.data(), block.data() + blockBytes};
    while (rest.room != rest.roomEnd) {
        const std::span<const std::uint8_t> bytes = reader.Peek(2);
        // The stream has ended, perhaps within a run.
        if (bytes.empty() || (bytes.size() == 1 && IsRun(bytes[0]))) in.Fail(StreamError::endOfFile);
        rest.coded = bytes.data();
        rest.codedEnd = bytes.data() + bytes.size();
        do {
            kernels.decodeSingles(rest);
            PutRuns(rest);
        } while (rest.room != rest.roomEnd && rest.codedEnd - rest.coded > 1);
        reader.Take(static_cast<std::size_t>(rest.coded - bytes.data()));
    }
}

// Decodes runs until a single pixel.
void PCXRows::PutRuns(PCXKernels::Rest& rest) {
    for (; rest.HasRun() && *rest.coded != runOfOne; rest.coded += 2) {
        while (rowEnd <= rest.room) rowEnd += rowBytes;
        const int count = *rest.coded & maximumRun;
        if (count > rowEnd - rest.room) in.Fail(StreamError::badIndex);
        std::memset(rest.room, rest.coded[1], maximumRun + 1); // a fixed length is faster
        rest.room += count;
    }
}

} // namespace keltavlo

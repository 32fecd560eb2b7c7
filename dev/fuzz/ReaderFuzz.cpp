// One fuzz target for each reader; FUZZ_READER names it.

#include "MemoryWatch.h"
#include "support/readers/Readers.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace keltavlo {

namespace {

const Reader& TheReader() {
    static const Reader& reader = FindReader(FUZZ_READER);
    return reader;
}

// A reader may use 16 MiB plus 128 bytes for each byte of the file.
constexpr std::size_t freeMemory = std::size_t{16} << 20;
constexpr std::size_t memoryPerByte = 128;

void Require(bool condition, const char* promise) {
    if (condition) return;
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}

std::optional<std::size_t> ReadWatched(std::span<const std::byte> bytes, Buffering buffering,
                                       unsigned char fill) {
    BeginMemoryWatch(fill);
    const std::optional<std::size_t> outcome = TheReader().read(bytes, buffering);
    Require(EndMemoryWatch() <= freeMemory + memoryPerByte * bytes.size(),
            "memory stays within what the file can back");
    return outcome;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    const Bytes seed = TheReader().makeSeed();
    TheReader().read(seed,
                     Buffering::whole); // loads the built-in palettes once, before the measurement
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span<const std::byte> bytes(reinterpret_cast<const std::byte*>(data), size);
    const auto outcome = ReadWatched(bytes, Buffering::whole, 0x00);
    Require(outcome == ReadWatched(bytes, Buffering::whole, 0xA5),
            "what memory held before makes no difference");
    Require(outcome == ReadWatched(bytes, Buffering::none, 0x00), "buffering makes no difference");
#ifdef FUZZ_PLANTED_FAULT
    Require(!outcome || size < 40 || data[17] != 0xFF, "the planted fault is not found");
#endif
    return 0;
}

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t limit);

// Half of the mutations come from libFuzzer, half from MutateFile.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t limit,
                                               unsigned seed) {
    if (seed % 2 == 0) return LLVMFuzzerMutate(data, size, limit);
    const auto* first = reinterpret_cast<const std::byte*>(data);
    Bytes bytes(first, first + size);
    std::mt19937 random(seed);
    MutateFile(bytes, TheReader().fields, random);
    const std::size_t newSize = std::min(bytes.size(), limit);
    std::transform(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(newSize), data,
                   [](std::byte byte) { return std::to_integer<std::uint8_t>(byte); });
    return newSize;
}

} // namespace keltavlo

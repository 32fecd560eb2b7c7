#include "tool/pictures/MemoryBound.h"

#include <string>

namespace keltavlo {

namespace {

constexpr std::uint64_t freeMemory = std::uint64_t{16} << 20;
constexpr std::uint64_t memoryPerByte = 128;
constexpr std::uint64_t decoderMemory = std::uint64_t{1} << 19; // used by the decoders beside the picture

} // namespace

std::vector<std::uint8_t> ReadRest(InputStream& in) {
    std::vector<std::uint8_t> bytes(in.GetRemaining());
    in.Read(std::span<std::uint8_t>(bytes));
    return bytes;
}

void CheckMemory(const InputStream& in, std::size_t fileSize, std::uint64_t width, std::uint64_t height,
                 std::uint64_t bytesPerPixel) {
    if (width * height * bytesPerPixel + decoderMemory + fileSize <= freeMemory + memoryPerByte * fileSize)
        return;
    in.Fail(StreamError::badIndex, "A picture of " + std::to_string(width) + " x " + std::to_string(height) +
                                       " pixels in a file of " + std::to_string(fileSize) +
                                       " bytes is compressed too highly to be read.");
}

} // namespace keltavlo

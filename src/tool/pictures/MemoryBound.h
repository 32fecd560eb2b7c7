#pragma once

#include "resources/streams/InputStream.h"

#include <vector>

namespace keltavlo {

// Reads the rest of the stream.
std::vector<std::uint8_t> ReadRest(InputStream& in);

// Calls Fail(badIndex), with a sentence, if decoding the picture would take more than 16 MiB plus 128 bytes
// for each byte of its file. No real picture is compressed that well.
void CheckMemory(const InputStream& in, std::size_t fileSize, std::uint64_t width, std::uint64_t height,
                 std::uint64_t bytesPerPixel);

} // namespace keltavlo

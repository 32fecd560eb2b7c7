#pragma once

#include "support/builders/PackBuilder.h"

#include <functional>
#include <optional>
#include <random>
#include <span>

namespace keltavlo {

// A number in a file's header, little-endian.
struct HeaderField {
    std::size_t offset;
    std::size_t width; // bytes
};

// Whether the reader reads through the buffer of CArchive or each value from the file.
enum class Buffering { whole, none };

// A reader of files, for the fuzz targets and the tests of damaged files.
struct Reader {
    std::string name;
    // Returns a digest of what was read, or nothing if the file was refused with one of the program's own
    // exceptions. Other exceptions pass through.
    std::function<std::optional<std::size_t>(std::span<const std::byte> bytes, Buffering buffering)> read;
    std::function<Bytes()> makeSeed; // builds a small valid file
    std::vector<HeaderField> fields;
    std::function<std::vector<Bytes>()> makeMoreSeeds = nullptr;

    // All seeds.
    std::vector<Bytes> MakeSeeds() const;
};

// All readers of the program.
std::span<const Reader> Readers();
const Reader& FindReader(std::string_view name);

// Mutates a file. Half of the changes set a header field to a boundary value or to another field, plus or
// minus one; the others change, insert, remove or repeat bytes.
void MutateFile(Bytes& bytes, std::span<const HeaderField> fields, std::mt19937& random);

} // namespace keltavlo

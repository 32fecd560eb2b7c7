#pragma once

#include "support/builders/PackBuilder.h"

#include <optional>
#include <random>
#include <span>
#include <string_view>
#include <vector>

namespace keltavlo {

// A number in a file's header, little-endian.
struct HeaderField {
    std::size_t offset;
    std::size_t width; // bytes
};

// Whether the reader goes through the archive's buffer, or asks the file for every single value.
enum class Buffering { whole, none };

// One reader of files, for fuzzing and for mutated files in the tests.
struct Reader {
    const char* name;
    // A digest of what was read; nothing when the file was refused with one of the program's own exceptions.
    // Any other exception passes through.
    std::optional<std::size_t> (*read)(std::span<const std::byte> bytes, Buffering buffering);
    Bytes (*makeSeed)(); // a small file that is read without a failure
    std::vector<HeaderField> fields;
    std::vector<Bytes> (*makeMoreSeeds)() = nullptr;

    // All of them.
    std::vector<Bytes> MakeSeeds() const;
};

// All readers of the program.
std::span<const Reader> Readers();
const Reader& FindReader(std::string_view name);

// Changes a file as somebody would who knows its header: half of the changes set a field to a boundary value
// or to another field, give or take one; the others change, insert, remove or repeat bytes.
void MutateFile(Bytes& bytes, std::span<const HeaderField> fields, std::mt19937& random);

} // namespace keltavlo

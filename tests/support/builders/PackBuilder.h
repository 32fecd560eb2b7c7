#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace keltavlo {

using Bytes = std::vector<std::byte>;

Bytes ToBytes(std::string_view text);
// Returns the numbers as consecutive little-endian u32s.
Bytes Words(std::initializer_list<std::uint32_t> numbers);
Bytes Join(std::initializer_list<Bytes> parts);
// Returns the first `length` bytes.
Bytes CutTo(const Bytes& bytes, std::size_t length);
// Overwrites or appends a little-endian u32.
void PutU32(Bytes& bytes, std::size_t offset, std::uint32_t value);
// Appends a field of `size` bytes: the text, then NULs.
void PutField(Bytes& bytes, std::string_view text, std::size_t size);
void WriteFile(const std::string& path, const Bytes& bytes);
Bytes ReadFile(const std::string& path);

// Builds packs (".pak"): the header, the files' bytes, the directory.
class PackBuilder {
public:
    PackBuilder(std::initializer_list<std::pair<std::string_view, Bytes>> contents = {}) {
        for (const auto& [name, bytes] : contents) Add(name, bytes);
    }
    void Add(std::string_view name, const Bytes& bytes);
    Bytes Build() const;

    static constexpr std::size_t headerSize = 12;
    static constexpr std::size_t recordSize = 64;

private:
    std::vector<std::pair<std::string, Bytes>> files; // names and contents
};

} // namespace keltavlo
